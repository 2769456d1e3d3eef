.pragma library
.import "../components/card_names.js" as CardNames
.import "../components/hand_grid.js" as HandGrid

/// What is typed of a card after one more character: "7" and then "7c". A rank begins anew; any other
/// character that makes no card changes nothing.
function next(typed, character) {
    const rank = character.toUpperCase()
    if (HandGrid.RANKS.includes(rank))
        return rank
    const suit = character.toLowerCase()
    return typed.length === 1 && suit !== "" && CardNames.SUITS.includes(suit) ? typed + suit : typed
}

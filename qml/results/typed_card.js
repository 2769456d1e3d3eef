.pragma library
.import Velmora as Velmora

/// What is typed of a card after one more character: "7" and then "7c". A rank begins anew; any other
/// character that makes no card changes nothing.
function next(typed, character) {
    const rank = character.toUpperCase()
    if (Velmora.HandText.ranks.includes(rank))
        return rank
    const card = Velmora.BoardText.normalizeCard(typed + character)
    return card !== "" ? card : typed
}

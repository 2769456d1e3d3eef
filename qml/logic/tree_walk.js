.pragma library
.import "board_text.js" as BoardText
.import "card_names.js" as CardNames

// The public cards along a walk through a solved tree.

/// True for an action that is a dealt card.
function isCardName(name) {
    return String(name).length === 2 && BoardText.normalizeCard(String(name)) !== ""
}

/// The board text and the cards dealt after it (a list of card texts), as one board text.
function boardWithCards(boardText, cards) {
    return cards.reduce((board, card) => board + BoardText.normalizeCard(card), String(boardText).replace(/\s+/g, ""))
}

/// Action index by card text, for the actions of a chance node. `actions` is a list with `name`,
/// addressed by index and length only.
function chanceIndexByCard(actions) {
    const indices = {}
    for (let i = 0; i < actions.length; ++i) {
        if (isCardName(actions[i].name))
            indices[BoardText.normalizeCard(actions[i].name)] = i
    }
    return indices
}

/// The action that a card leads to, or -1. Suits that the board does not hold may be alike, and the
/// tree then keeps one of them: another such suit of the rank stands for the card. A card that the
/// board shows, if only in place of another, can't be dealt again.
function chanceCardIndexForSelection(card, indexByCard, boardText) {
    const used = BoardText.usedCards(boardText)
    if (used.includes(card))
        return -1
    if (indexByCard[card] !== undefined)
        return indexByCard[card]
    const present = used.map(shown => shown.charAt(1))
    const absent = CardNames.SUITS.filter(suit => !present.includes(suit))
    if (absent.length < 2 || !absent.includes(card.charAt(1)))
        return -1
    for (const suit of absent) {
        const listed = indexByCard[card.charAt(0) + suit]
        if (listed !== undefined)
            return listed
    }
    return -1
}

.pragma library
.import Velmora as Velmora
.import "../components/card_names.js" as CardNames

// The public cards along a walk through a solved tree.

/// True for an action that is a dealt card.
function isCardName(name) {
    return String(name).length === 2 && Velmora.BoardText.normalizeCard(String(name)) !== ""
}

/// The board text and the cards dealt after it (a list of card texts), as one board text.
function boardWithCards(boardText, cards) {
    return cards.reduce((board, card) => board + Velmora.BoardText.normalizeCard(card), String(boardText).replace(/\s+/g, ""))
}

/// Which suit stands for each suit of the tree on a shown board. `dealt` are the dealt cards so far,
/// each as the tree names it and as it is `shown`: a suit that was picked for another one of its kind
/// trades places with it from there on.
function shownSuits(dealt) {
    const suits = {}
    CardNames.SUITS.forEach(suit => suits[suit] = suit)
    for (const card of dealt) {
        const before = suits[Velmora.BoardText.normalizeCard(card.name).charAt(1)]
        const now = Velmora.BoardText.normalizeCard(card.shown).charAt(1)
        for (const suit of CardNames.SUITS)
            suits[suit] = suits[suit] === before ? now : suits[suit] === now ? before : suits[suit]
    }
    return suits
}

/// A card of the tree as it is shown where `suits` stand for each other.
function shownCard(card, suits) {
    return card === "" ? "" : card.charAt(0) + suits[card.charAt(1)]
}

/// A shown card as the tree names it.
function treeCard(card, suits) {
    return card === "" ? "" : card.charAt(0) + CardNames.SUITS.find(suit => suits[suit] === card.charAt(1))
}

/// Combos (`c1`, `c2`) of the tree as they are shown. `combos` may be the controller's own list.
function shownCombos(combos, suits) {
    if (CardNames.SUITS.every(suit => suits[suit] === suit))
        return combos
    return Array.from({ length: combos.length }, (_, index) => {
        const combo = combos[index]
        return Object.assign({}, combo, { c1: shownCard(combo.c1, suits), c2: shownCard(combo.c2, suits) })
    })
}

/// Action index by shown card text, for the actions of a chance node. `actions` is a list with `name`,
/// addressed by index and length only; `suits` is that of `shownSuits`.
function chanceIndexByCard(actions, suits) {
    const indices = {}
    for (let i = 0; i < actions.length; ++i) {
        if (isCardName(actions[i].name))
            indices[shownCard(Velmora.BoardText.normalizeCard(actions[i].name), suits)] = i
    }
    return indices
}

/// The action that a card leads to, or -1. Suits that the board does not hold may be alike, and the
/// tree then keeps one of them: another such suit of the rank stands for the card. A card that the
/// board shows, if only in place of another, can't be dealt again.
function chanceCardIndexForSelection(card, indexByCard, boardText) {
    const used = Velmora.BoardText.usedCards(boardText)
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

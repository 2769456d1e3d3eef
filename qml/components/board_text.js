.pragma library

// A board is one text of two characters for each slot, with "__" for a slot left empty, so that
// its cards may be set in any order: "______Kd" has a turn card only.

const SLOTS = 5
const EMPTY_SLOT = "__"
const CARD = /^[AKQJT98765432][hdcs]$/i

function _pairs(text) {
    return String(text ?? "").replace(/\s+/g, "").match(/../g) ?? []
}

/// A card with an upper-case rank and a lower-case suit; "" for a text that is no card.
function normalizeCard(card) {
    const text = String(card ?? "")
    return CARD.test(text) ? text[0].toUpperCase() + text[1].toLowerCase() : ""
}

/// A list of cards, each normalised.
function normalizeCards(cards) {
    return Array.from(cards ?? [], normalizeCard)
}

/// The slots of a board text as they are written, "" for an empty one; at least five.
function boardCards(text) {
    const cards = _pairs(text).map(pair => pair === EMPTY_SLOT ? "" : pair)
    while (cards.length < SLOTS)
        cards.push("")
    return cards
}

/// The five slots of a board text as they are shown: cards normalised, "" for anything else.
function shownCards(text) {
    return normalizeCards(boardCards(text).slice(0, SLOTS))
}

/// The board text of a list of slots. Empty slots at its end leave no trace.
function setBoardFromCards(cards) {
    let length = cards.length
    while (length > 0 && !cards[length - 1])
        --length
    return cards.slice(0, length).map(card => card || EMPTY_SLOT).join("")
}

/// The board text with `card` in the slot `index`, 0..4.
function setCardAt(text, index, card) {
    const cards = boardCards(text)
    cards[index] = card
    return setBoardFromCards(cards)
}

/// The board text without the slot `index` and all that follow it.
function clearFrom(text, index) {
    return setBoardFromCards(boardCards(text).slice(0, Math.max(0, index)))
}

/// The cards of a board text, normalised, in slot order.
function usedCards(text) {
    return normalizeCards(_pairs(text)).filter(card => card !== "")
}

/// Whether a text is a whole flop, turn or river board: cards only, without a gap.
function validBoard(text) {
    const length = String(text ?? "").replace(/\s+/g, "").length
    return [6, 8, 10].includes(length) && usedCards(text).length * 2 === length
}

/// "flop", "turn" or "river", by the number of cards set; "flop" for fewer than four.
function inferStreet(text) {
    const count = usedCards(text).length
    if (count >= 5)
        return "river"
    return count === 4 ? "turn" : "flop"
}

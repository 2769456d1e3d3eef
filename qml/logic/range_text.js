.pragma library
.import "hand_grid.js" as HandGrid

// What the window reads of a range text, for display and painting. The solve reads the same text
// by a grammar of its own that goes further.

const PERCENT = /^\s*(\d+\.?\d*|\.\d+)\s*%\s*$/
/// From this weight on a hand is written without one.
const FULL_WEIGHT = 0.999

function _tokens(text) {
    return String(text ?? "").split(/[,\s]+/).filter(token => token !== "")
}

function _expression(token) {
    return token.split(":", 1)[0]
}

function _clamped(weight) {
    return Math.min(1, Math.max(0, weight))
}

/// The weight 0..1 that a text gives; 1 if it is no number.
function _parsedWeight(text) {
    const weight = text.trim() === "" ? NaN : Number(text)
    return isNaN(weight) ? 1 : _clamped(weight)
}

/// A hand expression with its weight 0..1 behind a colon, in at most three decimals.
function _weighted(expression, weight) {
    return weight >= FULL_WEIGHT ? expression : expression + ":" + Number(weight.toFixed(3))
}

function _isPair(hand) {
    return hand.length === 2 && hand[0].toUpperCase() === hand[1].toUpperCase()
}

/// The place of a rank in the order from A to 2, in either case; -1 for any other character.
function _rankIndex(rank) {
    return HandGrid.RANKS.indexOf(rank.toUpperCase())
}

/// The ranks from one index to the other, in either direction, both ends included.
function _rankSpan(from, to) {
    const ranks = HandGrid.RANKS.slice(Math.min(from, to), Math.max(from, to) + 1)
    return from <= to ? ranks : ranks.reverse()
}

function _expandDash(left, right) {
    if (_isPair(left) && _isPair(right)) {
        const from = _rankIndex(left[0])
        const to = _rankIndex(right[0])
        return from < 0 || to < 0 ? [left] : _rankSpan(from, to).map(rank => rank + rank)
    }
    const first = _rankIndex(left[0])
    const suffix = left[2].toLowerCase()
    if (first < 0 || first !== _rankIndex(right[0]) || suffix !== right[2].toLowerCase())
        return [left]
    const from = _rankIndex(left[1])
    const to = _rankIndex(right[1])
    if (from < 0 || to < 0)
        return [left]
    return _rankSpan(from, to).map(rank => HandGrid.RANKS[first] + rank + suffix)
}

function _expandPlus(base) {
    const first = _rankIndex(base[0])
    const second = _rankIndex(base[1])
    if (first < 0 || second < 0)
        return [base]
    if (base.length === 2)
        return _rankSpan(second, 0).map(rank => rank + rank)
    if (second <= first)
        return [base]
    return _rankSpan(second, first + 1).map(rank => HandGrid.RANKS[first] + rank + base[2].toLowerCase())
}

/// The labels that a hand expression without its weight covers, such as "99-22", "A5s-A2s", "JJ+",
/// "A8s+", "AK" or "AKs". An expression that is not understood gives itself, which is no label.
function expandHand(expression) {
    const ends = expression.split("-")
    if (ends.length === 2) {
        const [left, right] = ends
        if ((_isPair(left) && _isPair(right)) || (left.length === 3 && right.length === 3))
            return _expandDash(left, right)
    }
    if (expression.endsWith("+")) {
        const base = expression.slice(0, -1)
        if (_isPair(base) || base.length === 3)
            return _expandPlus(base)
    }
    const upper = expression.toUpperCase()
    if (upper.length === 2 && _rankIndex(upper[0]) >= 0 && _rankIndex(upper[1]) >= 0)
        return upper[0] === upper[1] ? [upper] : [upper + "s", upper + "o"]
    if (upper.length === 3)
        return [upper.slice(0, 2) + upper[2].toLowerCase()]
    return [expression]
}

/// A map from label to weight 0..1 of a range text. A later token overwrites an earlier one; a
/// percentage alone gives all 169 labels that weight.
function parseRangeWeights(rangeText) {
    const weights = {}
    const percent = PERCENT.exec(rangeText)
    if (percent) {
        for (const label of HandGrid.LABELS)
            weights[label] = Number(percent[1]) / 100
        return weights
    }
    for (const token of _tokens(rangeText)) {
        if (token.length < 2)
            continue
        const expression = _expression(token)
        const weight = expression === token ? 1 : _parsedWeight(token.slice(expression.length + 1))
        for (const label of expandHand(expression))
            weights[label] = weight
    }
    return weights
}

/// The range text after a paint on a hand. A `currentWeight` above 0 removes every token that
/// covers the hand, whole; else the hand is added at the end with the weight `addWeight`, 0..1.
function toggleHand(rangeText, hand, currentWeight, addWeight) {
    const removing = currentWeight > 0
    const isWeight = typeof addWeight === "number" && !isNaN(addWeight)
    const added = _weighted(hand, isWeight ? _clamped(addWeight) : 1)
    if (PERCENT.test(rangeText))
        return removing ? "" : added
    const tokens = _tokens(rangeText)
    if (!removing)
        return [...tokens, added].join(", ")
    const labels = expandHand(hand)
    const covers = token => expandHand(_expression(token)).some(label => labels.includes(label))
    return tokens.filter(token => !covers(token)).join(", ")
}

/// The range text of a file of hands; "" if it holds none. A weight behind a colon goes to all the
/// hands before it that have none yet.
function normalizeImportedRangeText(text) {
    const written = []
    let pending = []
    const close = weight => {
        const hands = pending.filter(hand => /[AKQJT98765432]{2}/i.test(hand))
        written.push(...hands.map(hand => _weighted(hand, weight)))
        pending = []
    }
    for (const token of _tokens(text)) {
        const expression = _expression(token)
        if (expression !== "")
            pending.push(expression)
        if (expression !== token)
            close(_parsedWeight(token.slice(expression.length + 1)))
    }
    close(1)
    return written.join(", ")
}

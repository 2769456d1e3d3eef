.pragma library
.import Velmora as Velmora

// Chance in a hand of the trainer. `random` gives numbers from 0 on and below 1. Lists may be the
// controller's own, so they are addressed by index and length only.

function _share(weight) {
    const value = Number(weight)
    return isFinite(value) && value > 0 ? value : 0
}

/// An index drawn in proportion to the weights; -1 if none is above 0.
function pickWeightedIndex(weights, random) {
    const shares = weights.map(_share)
    const total = shares.reduce((sum, share) => sum + share, 0)
    if (!(total > 0))
        return -1
    let left = random() * total
    let last = -1
    for (let i = 0; i < shares.length; ++i) {
        if (shares[i] === 0)
            continue
        last = i
        left -= shares[i]
        if (left < 0)
            return i
    }
    return last
}

/// The combos (`c1`, `c2`, `weight`) that can be dealt while `usedCards` are out. Their cards come
/// normalised.
function eligibleCombosForDeal(combos, usedCards) {
    const eligible = []
    for (let i = 0; i < (combos ? combos.length : 0); ++i) {
        const c1 = Velmora.BoardText.normalizeCard(combos[i].c1)
        const c2 = Velmora.BoardText.normalizeCard(combos[i].c2)
        const weight = _share(combos[i].weight)
        if (c1 !== "" && c2 !== "" && c1 !== c2 && weight > 0 && !usedCards.includes(c1) && !usedCards.includes(c2))
            eligible.push({ c1: c1, c2: c2, weight: weight })
    }
    return eligible
}

/// One combo, drawn in proportion to the weights; null from an empty list.
function pickWeightedCombo(combos, random) {
    return combos[pickWeightedIndex(combos.map(combo => combo.weight), random)] ?? null
}

/// The hands of a deal, {oop, ip}, each a list of two cards, or of none where no combo is left. OOP
/// is dealt first and IP gets none of its cards.
function dealHands(oopCombos, ipCombos, boardText, random) {
    const used = Velmora.BoardText.usedCards(boardText)
    const draw = combos => {
        const combo = pickWeightedCombo(eligibleCombosForDeal(combos, used), random)
        const cards = combo ? [combo.c1, combo.c2] : []
        used.push(...cards)
        return cards
    }
    const oop = draw(oopCombos)
    return { oop: oop, ip: draw(ipCombos) }
}

/// An action drawn by `frequency`; any, each as likely as another, where none has one. -1 from an
/// empty list.
function pickWeightedActionIndex(actions, random) {
    const weights = []
    for (let i = 0; i < (actions ? actions.length : 0); ++i)
        weights.push(actions[i].frequency)
    const picked = pickWeightedIndex(weights, random)
    return picked >= 0 ? picked : pickWeightedIndex(weights.map(() => 1), random)
}

/// The dealt card among the actions of a chance node, drawn by `frequency`; cards in `usedCards` stay
/// out. `names` are the cards as they are shown, by action. -1 if none is left.
function pickChanceIndex(actions, names, usedCards, random) {
    return pickWeightedIndex(names.map((name, i) => {
        const card = Velmora.BoardText.normalizeCard(name)
        return card !== "" && !usedCards.includes(card) ? actions[i].frequency : 0
    }), random)
}

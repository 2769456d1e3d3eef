.pragma library

const _allCombos = 1326

/// How large a range is, from its weights by hand label: labels in it, weighted combos before any
/// card is known, and their share (0..1) of all combos.
function ofWeights(weights) {
    let hands = 0
    let combos = 0
    for (const label in weights) {
        const weight = weights[label]
        if (weight > 0) {
            ++hands
            combos += weight * (label.length === 2 ? 6 : label.charAt(2) === "s" ? 4 : 12)
        }
    }
    return { hands: hands, combos: combos, share: combos / _allCombos }
}

.pragma library

// What a decision cost against the best one. EVs are in chips.

function _finite(value) {
    return typeof value === "number" && isFinite(value)
}

/// {chosenEv, bestEv, bestIndex, evLoss} of an action in a list of EVs, which may be the controller's
/// own; null where the chosen EV is not known. The first of equals is the best.
function evInfo(evs, chosenIndex) {
    if (!evs || !_finite(evs[chosenIndex]))
        return null
    let best = chosenIndex
    for (let i = evs.length - 1; i >= 0; --i) {
        if (_finite(evs[i]) && evs[i] >= evs[best])
            best = i
    }
    return { chosenEv: evs[chosenIndex], bestEv: evs[best], bestIndex: best, evLoss: evs[best] - evs[chosenIndex] }
}

/// The largest loss that is none: a share of the larger EV, so that actions which are nearly tied
/// count as equal, but not below an absolute figure.
function tolerance(bestEv, chosenEv, epsilon, relativeTol) {
    const scale = Math.max(Math.abs(bestEv), Math.abs(chosenEv), 1e-9)
    return Math.max(Math.max(0, epsilon), Math.max(0, relativeTol) * scale)
}

/// Whether an `evInfo` is a mistake; a decision without one is not scored.
function isMistake(info, epsilon, relativeTol) {
    return info !== null && _finite(info.evLoss)
        && info.evLoss > tolerance(info.bestEv, info.chosenEv, epsilon, relativeTol)
}

/// A list of combos (`c1`, `c2`, `actionEvs`) as their EVs by cards, in both orders.
function evsByCards(combos) {
    const evs = {}
    for (let i = 0; i < (combos ? combos.length : 0); ++i) {
        const combo = combos[i]
        evs[combo.c1 + combo.c2] = combo.actionEvs
        evs[combo.c2 + combo.c1] = combo.actionEvs
    }
    return evs
}

/// A loss in three decimals; a dash where it is not known.
function lossText(evLoss) {
    return _finite(evLoss) ? evLoss.toFixed(3) : "—"
}

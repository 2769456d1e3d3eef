.pragma library

// What a solve must have beside a spot without faults.

/// All in bytes. A requirement of 0 is not known yet, and an unknown one never fits.
function hasEnoughRamToSolve(required, available, reclaimable) {
    if (!isFinite(required) || required <= 0 || !isFinite(available) || available <= 0)
        return false
    const extra = isFinite(reclaimable) && reclaimable > 0 ? reclaimable : 0
    return available + extra > required
}

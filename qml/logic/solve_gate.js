.pragma library

// What a spot must have before a solve can start.

/// True for 3, 4 or 5 whole cards and nothing else but white space.
function isStrictBoardReady(boardText) {
    const text = String(boardText).replace(/\s+/g, "")
    return [6, 8, 10].includes(text.length) && /^([akqjt2-9][shdc])+$/i.test(text)
}

/// True if every text of the list holds more than white space.
function hasSizingFilled(texts) {
    return texts.every(text => String(text).trim().length > 0)
}

/// True if two rank characters stand in a row somewhere.
function hasAnyHand(rangeText) {
    return /[akqjt2-9]{2}/i.test(String(rangeText))
}

/// All in bytes. A requirement of 0 is not known yet, and an unknown one never fits.
function hasEnoughRamToSolve(required, available, reclaimable) {
    if (!isFinite(required) || required <= 0 || !isFinite(available) || available <= 0)
        return false
    const extra = isFinite(reclaimable) && reclaimable > 0 ? reclaimable : 0
    return available + extra > required
}

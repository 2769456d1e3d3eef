.pragma library

// The trainer's figures as they are read. `stats` has `todayHands`, `totalHands`, `todayAccuracyPct`
// (0..100) and so on; a missing count is 0.

const UNKNOWN = "—"

function _pair(today, total) {
    return today + " / " + total
}

function _count(value) {
    return Number(value) || 0
}

/// A figure of a side that has hands and whose figure is finite; a dash otherwise.
function _figure(hands, value, text) {
    const number = Number(value)
    return _count(hands) > 0 && value !== undefined && isFinite(number) ? text(number) : UNKNOWN
}

function handsText(stats) {
    return _pair(_count(stats.todayHands), _count(stats.totalHands))
}

/// Whole percents, without the sign.
function accuracyText(stats) {
    const text = value => String(Math.round(value))
    return _pair(_figure(stats.todayHands, stats.todayAccuracyPct, text),
                 _figure(stats.totalHands, stats.totalAccuracyPct, text))
}

/// Chips a hand.
function evLossText(stats) {
    const text = value => value.toFixed(3)
    return _pair(_figure(stats.todayHands, stats.todayAvgEvLoss, text),
                 _figure(stats.totalHands, stats.totalAvgEvLoss, text))
}

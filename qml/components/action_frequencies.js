.pragma library

// How a list of actions is spread over a bar: shares, segments, hit test and number formats.
// A list may come from the controller and not be a script array, so it is read by index and length.

function _isNumber(value) {
    return value !== undefined && value !== null && value !== "" && isFinite(Number(value))
}

/// The shares 0..1 of the actions in the sum of their frequencies; all 0 when there is no sum.
function shares(actions) {
    const raw = []
    let sum = 0
    const count = actions ? actions.length : 0
    for (let i = 0; i < count; ++i) {
        const frequency = actions[i] ? actions[i].frequency : undefined
        raw.push(_isNumber(frequency) ? Math.max(0, Number(frequency)) : 0)
        sum += raw[i]
    }
    return raw.map(frequency => sum > 0 ? Math.min(1, frequency / sum) : 0)
}

/// The segments of a bar, left to right, without those of share 0: their action's index, place,
/// and the corner radius at each end. Only what is at least a pixel wide takes a rounded end, but
/// if nothing is, the outermost slivers do.
function segments(shareList, width, height, cornerRadius) {
    const list = []
    let x = 0
    for (let i = 0; i < shareList.length; ++i) {
        const extent = shareList[i] * width
        if (shareList[i] > 0)
            list.push({ index: i, x: x, width: extent, leftRadius: 0, rightRadius: 0 })
        x += extent
    }
    const wide = list.filter(segment => segment.width >= 1)
    const ends = wide.length > 0 ? wide : list
    if (ends.length > 0) {
        const first = ends[0]
        const last = ends[ends.length - 1]
        first.leftRadius = Math.min(cornerRadius, height / 2, first.width / 2)
        last.rightRadius = Math.min(cornerRadius, height / 2, last.width / 2)
    }
    return list
}

/// The index of the action under x: the last one beyond the end, -1 in an empty list.
function indexAt(shareList, width, x) {
    let end = 0
    for (let i = 0; i < shareList.length; ++i) {
        end += shareList[i] * width
        if (x < end)
            return i
    }
    return shareList.length - 1
}

/// The next action of a share above 0 in the direction `step` (1 or -1); `from` if there is none.
function neighbour(shareList, from, step) {
    for (let i = from + step; i >= 0 && i < shareList.length; i += step) {
        if (shareList[i] > 0)
            return i
    }
    return from
}

function percentText(share) {
    return String(Math.round(share * 100))
}

/// Whole when within 1e-6 of it, else with one decimal.
function combosText(combos) {
    if (!_isNumber(combos))
        return "—"
    const value = Number(combos)
    const whole = Math.round(value)
    return Math.abs(value - whole) <= 1e-6 ? String(whole) : value.toFixed(1)
}

/// An equity of 0..1 in percent, without the sign.
function equityText(equity) {
    return _isNumber(equity) ? (Number(equity) * 100).toFixed(1) : "—"
}

function evText(ev) {
    return _isNumber(ev) ? Number(ev).toFixed(2) : "—"
}

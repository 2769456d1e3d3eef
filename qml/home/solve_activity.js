.pragma library

// A calendar of days, week after week from Monday to Sunday. A cell has `date` ("2026-03-01"),
// `isPadding`, `isFuture`, `solves`, `avgIterations` and `avgExploitability`. Lists may be the
// controller's own, so they are addressed by index and length only.

const DAYS_OF_WEEK = 7

function weekdayNames() {
    return [qsTr("Mon"), qsTr("Tue"), qsTr("Wed"), qsTr("Thu"), qsTr("Fri"), qsTr("Sat"), qsTr("Sun")]
}

function monthNames() {
    return [qsTr("Jan"), qsTr("Feb"), qsTr("Mar"), qsTr("Apr"), qsTr("May"), qsTr("Jun"),
            qsTr("Jul"), qsTr("Aug"), qsTr("Sep"), qsTr("Oct"), qsTr("Nov"), qsTr("Dec")]
}

function weekCount(cells) {
    return Math.max(1, Math.floor(cells.length / DAYS_OF_WEEK))
}

/// The side of a cell, with its gap, in a grid of a width.
function cellSide(width, weeks) {
    return Math.max(14, Math.floor(width / weeks))
}

/// Year, month (0..11) and day of a date text, which is a local date.
function _partsOf(date) {
    const parts = String(date).split("-").map(Number)
    return { year: parts[0], month: parts[1] - 1, day: parts[2] }
}

/// The month that starts in a week; "" if none does.
function monthLabelForWeek(cells, week) {
    const end = Math.min(cells.length, (week + 1) * DAYS_OF_WEEK)
    for (let i = week * DAYS_OF_WEEK; i < end; ++i) {
        if (cells[i].isPadding)
            continue
        const date = _partsOf(cells[i].date)
        if (date.day === 1)
            return monthNames()[date.month] ?? ""
    }
    return ""
}

/// How busy a day was, 0..3.
function level(cell) {
    const solves = Math.max(0, Math.round(Number(cell.solves) || 0))
    return Math.min(3, solves)
}

/// The cell under a point of the grid, or -1: weeks are columns.
function indexAt(cells, side, x, y) {
    const week = Math.floor(x / side)
    const day = Math.floor(y / side)
    const index = week * DAYS_OF_WEEK + day
    return day >= 0 && day < DAYS_OF_WEEK && week >= 0 && index < cells.length && !cells[index].isPadding ? index : -1
}

/// The nearest cell from one by so many days, never beyond the ends.
function moved(cells, from, days) {
    const to = from + days
    return to >= 0 && to < cells.length && !cells[to].isPadding ? to : from
}

/// What a day was like, in four lines.
function describe(cell) {
    return [
        cell.isFuture ? qsTr("%1 (future)").arg(cell.date) : cell.date,
        qsTr("Solves: %1").arg(Math.max(0, Math.round(cell.solves))),
        qsTr("Avg iters: %1").arg(Math.round(cell.avgIterations)),
        qsTr("Avg expl: %1").arg(Number(cell.avgExploitability).toFixed(4))
    ].join("\n")
}

.pragma library

/// Cells a row and a column.
const SIDE = 13

/// The index 0..168 of the cell under a point of the grid, in pixels; -1 outside the grid and in
/// the gaps between cells.
function cellAt(x, y, cellSize, cellSpacing) {
    const step = cellSize + cellSpacing
    const column = Math.floor(x / step)
    const row = Math.floor(y / step)
    if (!(column >= 0 && column < SIDE && row >= 0 && row < SIDE))
        return -1
    if (x - column * step > cellSize || y - row * step > cellSize)
        return -1
    return row * SIDE + column
}

/// The index of the cell `rows` and `columns` away from a cell, held inside the grid.
function neighbour(index, rows, columns) {
    const last = SIDE - 1
    const row = Math.min(last, Math.max(0, Math.floor(index / SIDE) + rows))
    const column = Math.min(last, Math.max(0, index % SIDE + columns))
    return row * SIDE + column
}

/// The cells that the straight way from one point to another enters, in pixels, in order.
function cellsBetween(fromX, fromY, toX, toY, cellSize, cellSpacing) {
    const steps = Math.max(1, Math.ceil(4 * Math.hypot(toX - fromX, toY - fromY) / cellSize))
    const cells = []
    for (let step = 1; step <= steps; ++step) {
        const t = step / steps
        const cell = cellAt(fromX + (toX - fromX) * t, fromY + (toY - fromY) * t, cellSize, cellSpacing)
        if (cell >= 0 && cell !== cells[cells.length - 1])
            cells.push(cell)
    }
    return cells
}

/// Where the segments of an action split begin, as shares 0..1 of the whole, and 1 as the end of the
/// last, which takes whatever is left.
function segmentEdges(probabilities) {
    let sum = 0
    const edges = Array.from(probabilities, probability => {
        const start = Math.min(1, sum)
        sum += Math.max(0, Number(probability) || 0)
        return start
    })
    edges.push(1)
    return edges
}

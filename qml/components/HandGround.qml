import QtQuick
import Velmora

/// What is the same at every weight of a hand matrix: the bases of its cells, or the borders that
/// lie over the fills. Painted once as one picture, because 169 rounded rectangles in each frame
/// are slow without a graphics card.
Canvas {
    id: root

    property Theme theme: Style.theme
    property real cellSize: 32
    property real cellSpacing: 2
    /// The colours of the 169 bases, row by row; without them borders are painted.
    property var fills: []
    property color stroke: theme.strokeLight

    /// Whether the picture shows; a canvas comes a frame later than other items.
    property bool ready: false

    function paintCells(context: var) {
        const step = cellSize + cellSpacing
        const bordersOnly = fills.length === 0
        const inset = bordersOnly ? 0.5 : 0
        const side = cellSize - 2 * inset
        const radius = theme.radiusXs - inset
        context.reset()
        context.lineWidth = 1
        context.strokeStyle = stroke
        for (let index = 0; index < 169; ++index) {
            context.beginPath()
            context.roundedRect(index % 13 * step + inset, Math.floor(index / 13) * step + inset,
                                side, side, radius, radius)
            if (bordersOnly) {
                context.stroke()
            } else {
                context.fillStyle = fills[index]
                context.fill()
            }
        }
    }

    onPaint: paintCells(getContext("2d"))
    onPainted: ready = true
    onFillsChanged: requestPaint()
    onStrokeChanged: requestPaint()
    onCellSizeChanged: requestPaint()
    onCellSpacingChanged: requestPaint()
}

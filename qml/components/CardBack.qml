import QtQuick
import Velmora

/// The back of a card: diagonal lines on a plain ground.
Rectangle {
    id: root

    property Theme theme: Style.theme

    readonly property color lineColor: Qt.rgba(1, 1, 1, 0.1)
    readonly property int lineSpacing: 8

    radius: theme.radiusSm
    color: theme.cardBack
    border.color: theme.cardBorder

    Canvas {
        function drawLines(context: var) {
            context.reset()
            context.roundedRect(0, 0, width, height, root.radius - 1, root.radius - 1)
            context.clip()
            context.strokeStyle = root.lineColor
            context.beginPath()
            for (let x = -height; x < width; x += root.lineSpacing) {
                context.moveTo(x, height)
                context.lineTo(x + height, 0)
            }
            context.stroke()
        }

        anchors.fill: parent
        anchors.margins: 1
        onPaint: drawLines(getContext("2d"))
    }
}

import QtQuick
import Velmora

/// A turning arc: something is under way and its length is not known.
Canvas {
    id: root

    property Theme theme: Style.theme
    property color color: theme.accent
    property real strokeWidth: 2

    implicitWidth: 14
    implicitHeight: 14
    onColorChanged: requestPaint()
    onPaint: {
        const ctx = getContext("2d")
        ctx.reset()
        ctx.lineWidth = strokeWidth
        ctx.lineCap = "round"
        ctx.strokeStyle = color
        ctx.beginPath()
        ctx.arc(width / 2, height / 2, (Math.min(width, height) - strokeWidth) / 2, 0, 1.5 * Math.PI)
        ctx.stroke()
    }

    RotationAnimation on rotation {
        running: root.visible
        from: 0
        to: 360
        duration: 1000
        loops: Animation.Infinite
    }
}

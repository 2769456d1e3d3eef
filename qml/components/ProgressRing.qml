import QtQuick
import QtQuick.Controls
import Velmora

/// A ring that fills clockwise from the top with `value`, 0..1.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property real value: 0
    property real strokeWidth: 8
    property color trackColor: theme.surface3
    property color progressColor: theme.accent
    property bool showPercentage: true
    property bool indeterminate: false

    readonly property real _share: isNaN(value) ? 0 : Math.min(1, Math.max(0, value))
    property real _drawnShare: _share

    implicitWidth: 100
    implicitHeight: 100
    Accessible.role: Accessible.ProgressBar
    Accessible.name: caption.text

    Behavior on _drawnShare {
        NumberAnimation {
            duration: 300
            easing.type: Easing.OutCubic
        }
    }

    Canvas {
        id: ring

        readonly property real drawnShare: root.indeterminate ? 0 : root._drawnShare
        readonly property real lineWidth: root.strokeWidth
        readonly property color trackColor: root.trackColor
        readonly property color progressColor: root.progressColor

        anchors.fill: parent
        onDrawnShareChanged: requestPaint()
        onLineWidthChanged: requestPaint()
        onTrackColorChanged: requestPaint()
        onProgressColorChanged: requestPaint()
        onPaint: {
            const ctx = getContext("2d")
            const radius = Math.max(0, (Math.min(width, height) - lineWidth) / 2)
            const top = -Math.PI / 2
            ctx.reset()
            ctx.lineWidth = lineWidth
            ctx.lineCap = "round"
            ctx.strokeStyle = trackColor
            ctx.beginPath()
            ctx.arc(width / 2, height / 2, radius, 0, 2 * Math.PI)
            ctx.stroke()
            if (drawnShare <= 0)
                return
            ctx.strokeStyle = progressColor
            ctx.beginPath()
            ctx.arc(width / 2, height / 2, radius, top, top + 2 * Math.PI * drawnShare)
            ctx.stroke()
        }
    }

    Label {
        id: caption

        objectName: "caption"
        anchors.centerIn: parent
        visible: root.indeterminate || root.showPercentage
        text: root.indeterminate ? "..." : qsTr("%1%").arg(Math.round(root._share * 100))
        color: root.indeterminate ? root.theme.textMuted : root.theme.text
        font.pixelSize: Math.max(1, Math.round(root.width * (root.indeterminate ? 0.18 : 0.22)))
        font.weight: root.type.weightBold
    }
}

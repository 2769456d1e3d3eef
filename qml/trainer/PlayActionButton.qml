import QtQuick
import QtQuick.Controls
import Velmora

/// An action to take, in the colour that it has everywhere, with the number key that takes it.
BaseButton {
    id: root

    property string actionType: ""
    property int number: 0
    property bool narrow: false

    readonly property color _tone: theme.actionColor(actionType)

    implicitHeight: narrow ? 32 : 40
    leftPadding: narrow ? theme.spaceSm : theme.spaceMd
    rightPadding: leftPadding
    scale: hovered ? 1.02 : 1
    Accessible.description: qsTr("Key %1").arg(number)

    Behavior on scale {
        NumberAnimation {
            duration: root.theme.durationFast
        }
    }

    Shortcut {
        sequence: String(root.number)
        enabled: root.visible && root.number < 10
        onActivated: root.clicked()
    }

    background: Rectangle {
        radius: root.theme.radiusSm
        color: root.down ? root.theme.surface3 : root.hovered ? root.theme.surfaceHover : root.theme.surface
        border.color: root._tone
        border.width: 2

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: root.theme.withOpacity(root._tone, root.hovered ? 0.28 : 0.18)
        }
    }

    contentItem: Row {
        spacing: root.theme.spaceSm

        Label {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.number < 10
            text: root.number
            color: root.theme.textMuted
            font.pixelSize: root.type.labelSm
            font.family: root.theme.monoFamily
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: root.theme.text
            font: root.font
        }
    }
}

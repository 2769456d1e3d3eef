import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// A row that is a button: icon, title, what it does, and an arrow.
BaseButton {
    id: root

    property string description: ""

    implicitWidth: 280
    implicitHeight: 56
    leftPadding: theme.spaceMd
    rightPadding: theme.spaceMd
    Accessible.description: description

    background: Rectangle {
        radius: root.theme.radiusSm
        color: root.pressed ? root.theme.surface3 : root.hovered ? root.theme.surfaceHover : root.theme.surface2
        border.color: root.hovered ? root.theme.strokeFocus : root.theme.stroke

        Behavior on color {
            ColorAnimation {
                duration: root.theme.durationFast
            }
        }
    }

    contentItem: RowLayout {
        spacing: root.theme.spaceMd

        Icon {
            name: root.iconName
            size: 20
            color: root.theme.accent
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            Label {
                Layout.fillWidth: true
                text: root.text
                color: root.theme.text
                font.pixelSize: root.type.bodyMd
                font.weight: root.type.weightSemibold
                elide: Text.ElideRight
            }

            Label {
                Layout.fillWidth: true
                text: root.description
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
                font.weight: root.type.weightRegular
                elide: Text.ElideRight
            }
        }

        Label {
            text: "→"
            color: root.hovered ? root.theme.accent : root.theme.textMuted
            font.pixelSize: root.type.headingSm
        }
    }
}

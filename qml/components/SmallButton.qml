import QtQuick
import Velmora

/// A button for tool rows and card heads. A checkable one shows that it is on in the accent.
BaseButton {
    id: root

    property bool danger: false

    implicitHeight: 26
    leftPadding: 10
    rightPadding: 10
    spacing: 6
    font.pixelSize: type.labelMd
    font.weight: type.weightMedium
    contentColor: danger ? theme.danger : theme.text
    contentOpacity: enabled ? 1 : 0.5
    Accessible.checkable: checkable
    Accessible.checked: checked

    background: Rectangle {
        radius: root.theme.radiusSm
        color: root.down ? root.theme.surface3
               : root.hovered ? root.theme.surfaceHover : root.theme.surface2
        border.width: 1
        border.color: root.checked ? root.theme.accent
                      : root.danger ? root.theme.danger
                      : root.hovered ? root.theme.strokeFocus : root.theme.stroke

        Behavior on color {
            ColorAnimation { duration: root.theme.durationFast }
        }

        Behavior on border.color {
            ColorAnimation { duration: root.theme.durationFast }
        }

        Rectangle {
            anchors.fill: parent
            visible: root.checked
            radius: parent.radius
            color: root.theme.withOpacity(root.theme.accent, 0.15)
        }
    }
}

import QtQuick
import Velmora

/// The button of any other thing to do; `danger` marks one that discards or stops something.
BaseButton {
    id: root

    property bool danger: false

    contentColor: danger ? theme.danger : theme.text
    contentOpacity: enabled ? 1 : 0.5
    scale: enabled && hovered ? 1.02 : 1

    Behavior on scale {
        NumberAnimation { duration: 100 }
    }

    background: Rectangle {
        radius: root.theme.radiusSm
        color: root.down ? root.theme.surface3
               : root.hovered ? root.theme.surfaceHover : root.theme.surface
        border.width: 1
        border.color: root.danger ? root.theme.danger
                      : root.hovered ? root.theme.strokeFocus : root.theme.stroke

        Behavior on color {
            ColorAnimation { duration: root.theme.durationFast }
        }

        Behavior on border.color {
            ColorAnimation { duration: root.theme.durationFast }
        }
    }
}

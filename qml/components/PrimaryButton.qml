import QtQuick
import Velmora

/// The button of the main thing to do.
BaseButton {
    id: root

    property color _top: !enabled ? theme.surface3
                         : down ? Qt.darker(theme.accent, 1.1)
                         : hovered ? Qt.lighter(theme.accent, 1.1) : theme.accent
    property color _bottom: !enabled ? theme.surface2
                            : down ? Qt.darker(theme.accentMuted, 1.1) : theme.accentMuted

    contentColor: enabled ? "white" : theme.text
    contentOpacity: enabled ? 1 : 0.85
    scale: enabled && hovered ? 1.02 : 1

    Behavior on scale {
        NumberAnimation { duration: 100 }
    }

    Behavior on _top {
        ColorAnimation { duration: root.theme.durationFast }
    }

    Behavior on _bottom {
        ColorAnimation { duration: root.theme.durationFast }
    }

    background: Rectangle {
        radius: root.theme.radiusSm
        gradient: Gradient {
            GradientStop { position: 0; color: root._top }
            GradientStop { position: 1; color: root._bottom }
        }

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: "transparent"
            border.width: 1
            border.color: Qt.rgba(1, 1, 1, 0.1)
        }
    }
}

import QtQuick
import QtQuick.Templates as T
import Velmora

/// A slim scroll bar, there only while there is something to scroll.
T.ScrollBar {
    id: root

    property Theme theme: Style.theme

    implicitWidth: 10
    implicitHeight: 10
    padding: 2
    minimumSize: 0.08
    visible: policy !== T.ScrollBar.AlwaysOff && size < 1

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: root.pressed || root.hovered ? root.theme.textMuted : root.theme.textFaint
        opacity: root.pressed || root.hovered ? 0.9 : 0.5

        Behavior on opacity {
            NumberAnimation { duration: root.theme.durationFast }
        }
    }
}

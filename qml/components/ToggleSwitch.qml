import QtQuick
import QtQuick.Templates as T
import Velmora

/// An on/off switch. Its `text` is not shown: it is the name that assistive tools read.
T.Switch {
    id: root

    property Theme theme: Style.theme

    function press() {
        toggle()
        toggled()
        clicked()
    }

    implicitWidth: 44
    implicitHeight: 24
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()

    indicator: Item {
        implicitWidth: 44
        implicitHeight: 24

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: 18
            radius: height / 2
            color: root.checked ? root.theme.accent : root.theme.surface3
            border.width: 1
            border.color: root.checked ? root.theme.accentMuted : root.theme.stroke
            opacity: root.enabled ? 1 : 0.45

            FocusRing {
                radius: height / 2
                active: root.visualFocus
            }

            Behavior on color {
                ColorAnimation { duration: root.theme.durationFast }
            }

            Behavior on border.color {
                ColorAnimation { duration: root.theme.durationFast }
            }

            Behavior on opacity {
                NumberAnimation { duration: root.theme.durationFast }
            }
        }

        Rectangle {
            x: root.checked ? parent.width - width - 3 : 3
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            radius: 7
            color: root.theme.text
            opacity: root.enabled ? 1 : 0.6

            Behavior on x {
                NumberAnimation { duration: root.theme.durationFast }
            }

            Behavior on opacity {
                NumberAnimation { duration: root.theme.durationFast }
            }
        }
    }
}

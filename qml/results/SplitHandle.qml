import QtQuick
import Velmora

/// The handle between two columns.
Item {
    id: root

    property Theme theme: Style.theme

    implicitWidth: 8

    Rectangle {
        anchors.centerIn: parent
        width: 4
        height: 40
        radius: 2
        color: root.theme.stroke
    }
}

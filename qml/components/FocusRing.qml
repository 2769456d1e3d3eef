import QtQuick
import Velmora

/// The ring around its parent that shows keyboard focus.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property bool active: false

    anchors.fill: parent
    anchors.margins: -3
    z: 1
    visible: active
    color: "transparent"
    border.width: 2
    border.color: theme.strokeFocus
}

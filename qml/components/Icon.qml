import QtQuick
import Velmora

/// One icon of the set in one flat colour. An empty `name` shows nothing.
Item {
    id: root

    property Theme theme: Style.theme
    property string name: ""
    property real size: 16
    property color color: "white"
    property real iconOpacity: 1.0

    implicitWidth: size
    implicitHeight: size

    Tint {
        anchors.fill: parent
        visible: root.name !== ""
        source: root.name === "" ? "" : Qt.resolvedUrl("../assets/icons/" + root.name + ".svg")
        sourceSize.width: root.size
        sourceSize.height: root.size
        color: root.color
        opacity: root.iconOpacity
    }
}

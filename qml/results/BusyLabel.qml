import QtQuick
import QtQuick.Controls
import Velmora

/// Says that the figures of a node are on their way.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type

    implicitWidth: row.implicitWidth + 2 * theme.spaceMd
    implicitHeight: 32
    radius: height / 2
    color: theme.surface
    border.color: theme.stroke

    Row {
        id: row

        anchors.centerIn: parent
        spacing: root.theme.spaceSm

        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.visible
            color: root.theme.accent
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Loading…")
            color: root.theme.text
            font.pixelSize: root.type.labelMd
        }
    }
}

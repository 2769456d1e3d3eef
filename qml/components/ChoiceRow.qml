import QtQuick
import QtQuick.Controls
import QtQuick.Templates as T
import Velmora

/// A row of a list: a click selects it, a double click confirms it.
T.ItemDelegate {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property bool selected: false

    signal chosen
    signal confirmed

    implicitHeight: 32
    leftPadding: theme.spaceMd
    rightPadding: theme.spaceMd
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: text
    Accessible.selected: selected
    onClicked: chosen()
    onDoubleClicked: confirmed()

    contentItem: Label {
        text: root.text
        color: root.theme.text
        font.pixelSize: root.type.bodySm
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: root.theme.radiusXs
        color: root.selected ? root.theme.surface3 : root.hovered ? root.theme.surfaceHover : "transparent"
        border.width: root.selected ? 1 : 0
        border.color: root.theme.strokeFocus
    }
}

import QtQuick
import Velmora
import "card_names.js" as CardNames

/// The index of a card: its rank with the suit glyph under it.
Column {
    id: root

    property Theme theme: Style.theme
    required property string rank
    required property string suit
    required property color ink
    property bool mini: false
    property real sizeScale: 1

    spacing: sizeScale

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.rank
        color: root.ink
        font.family: root.theme.uiFamily
        font.bold: true
        font.pixelSize: (root.mini ? 12 : 18) * root.sizeScale
        height: 0.85 * font.pixelSize
        verticalAlignment: Text.AlignVCenter
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: CardNames.suitGlyph(root.suit)
        color: root.ink
        font.family: root.theme.uiFamily
        font.pixelSize: (root.mini ? 10 : 14) * root.sizeScale
        height: 0.85 * font.pixelSize
        verticalAlignment: Text.AlignVCenter
    }
}

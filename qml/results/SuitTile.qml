import QtQuick
import QtQuick.Controls
import Velmora
import "../components/card_names.js" as CardNames

/// The head of a row of cards: its suit.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property string suit

    implicitWidth: 22
    implicitHeight: 22
    radius: theme.radiusXs
    color: theme.surface2

    Label {
        anchors.centerIn: parent
        text: CardNames.suitGlyph(root.suit)
        color: root.suit === "s" && root.theme.dark ? root.theme.text : root.theme.suitColor(root.suit)
        font.pixelSize: root.type.bodyMd
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "card_names.js" as CardNames

/// The printed side of a card. A mini card shows its top left corner only.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property string rank
    property string suit
    property bool selected: false
    property bool mini: false
    property real sizeScale: 1

    readonly property color ink: theme.suitColor(suit)

    radius: theme.radiusSm
    border.color: selected ? theme.accent : theme.cardBorder
    border.width: selected ? 2 : 1
    gradient: Gradient {
        GradientStop {
            position: 0
            color: root.theme.cardFace
        }
        GradientStop {
            position: 1
            color: Qt.darker(root.theme.cardFace, 1.03)
        }
    }

    CardCorner {
        x: 4 * root.sizeScale
        y: 3 * root.sizeScale
        rank: root.rank
        suit: root.suit
        ink: root.ink
        mini: root.mini
        sizeScale: root.sizeScale
    }

    Repeater {
        model: root.mini ? 0 : 1

        Item {
            anchors.fill: root

            Text {
                anchors.centerIn: parent
                text: CardNames.suitGlyph(root.suit)
                color: root.ink
                font.family: root.theme.uiFamily
                font.pixelSize: 28 * root.sizeScale
            }

            CardCorner {
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.rightMargin: 4 * root.sizeScale
                anchors.bottomMargin: 3 * root.sizeScale
                rotation: 180
                rank: root.rank
                suit: root.suit
                ink: root.ink
                sizeScale: root.sizeScale
            }
        }
    }
}

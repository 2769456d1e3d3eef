pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "card_names.js" as CardNames

/// All 52 cards, a row for each suit, to choose one that is not used yet.
FocusScope {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// A list of cards such as "Ah" that cannot be chosen.
    property var usedCards: []
    property bool showSuitHeaders: true

    /// The card that the keyboard stands on, by row * 13 + column.
    property int currentIndex: 0

    readonly property int tileSize: 28
    readonly property list<string> _used: Array.from(BoardText.normalizeCards(usedCards))

    signal cardSelected(card: string)

    function isUsed(index: int): bool {
        return _used.includes(cardAt(index))
    }

    function cardAt(index: int): string {
        const columns = HandText.ranks.length
        return HandText.ranks[index % columns] + CardNames.SUITS[Math.floor(index / columns)]
    }

    function select(index: int) {
        if (!isUsed(index))
            cardSelected(cardAt(index))
    }

    /// Moves the keyboard to the next free card in a direction, if there is one.
    function move(rows: int, columns: int) {
        let row = Math.floor(currentIndex / 13) + rows
        let column = currentIndex % 13 + columns
        while (row >= 0 && row < 4 && column >= 0 && column < 13) {
            const index = row * 13 + column
            if (!isUsed(index)) {
                tiles.itemAt(index).forceActiveFocus(Qt.OtherFocusReason)
                currentIndex = index
                return
            }
            row += rows
            column += columns
        }
    }

    /// The ink of a suit on a dark surface or a light one.
    function suitInk(suit: string): color {
        return suit === "s" && theme.dark ? theme.text : theme.suitColor(suit)
    }

    implicitWidth: layout.implicitWidth
    implicitHeight: layout.implicitHeight

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Cards")

    Keys.onLeftPressed: move(0, -1)
    Keys.onRightPressed: move(0, 1)
    Keys.onUpPressed: move(-1, 0)
    Keys.onDownPressed: move(1, 0)

    Row {
        id: layout

        spacing: root.theme.spaceXs

        Column {
            visible: root.showSuitHeaders
            spacing: root.theme.spaceXs

            Repeater {
                model: CardNames.SUITS

                Rectangle {
                    id: header

                    required property string modelData

                    width: root.tileSize
                    height: root.tileSize
                    radius: root.theme.radiusXs
                    color: root.theme.surface3

                    Accessible.role: Accessible.StaticText
                    Accessible.name: CardNames.suitName(modelData)

                    Text {
                        anchors.centerIn: parent
                        text: CardNames.suitGlyph(header.modelData)
                        color: root.suitInk(header.modelData)
                        font.family: root.theme.uiFamily
                        font.pixelSize: root.type.headingSm
                    }
                }
            }
        }

        Grid {
            columns: HandText.ranks.length
            spacing: root.theme.spaceXs

            Repeater {
                id: tiles

                model: HandText.ranks.length * CardNames.SUITS.length

                CardPickerTile {
                    required property int index

                    width: root.tileSize
                    height: root.tileSize
                    card: root.cardAt(index)
                    ink: root.suitInk(card.charAt(1))
                    used: root.isUsed(index)
                    focus: index === 0
                    activeFocusOnTab: index === root.currentIndex
                    onSelected: root.select(index)
                }
            }
        }
    }
}

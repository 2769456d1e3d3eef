pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora
import "../components/card_names.js" as CardNames
import "tree_walk.js" as Walk
import "typed_card.js" as TypedCard

/// Chooses the card of a chance node. Where the tree keeps one of several suits that are alike, the
/// others can be chosen too. Arrow keys go from card to card; a card that is typed is chosen at once.
AppDialog {
    id: root

    required property TreeWalk walk
    property int chancePickerLevelIndex: -1
    property var chancePickerIndexByCard: ({})
    property string chancePickerBoardText: ""
    readonly property var chancePickerAvailableCardIndices: Object.values(chancePickerIndexByCard)

    /// The card that the keyboard stands on, by row * 13 + column; -1 while none can be chosen.
    property int currentIndex: -1

    property string _typed: ""
    /// The typed card that can't be chosen.
    property string _refused: ""

    readonly property real _rowWidth: 22 + 6 + 13 * 32 + 12 * 3

    /// The walk has moved to a card.
    signal cardDealt

    function openChancePicker(levelIndex: int, nodeIndex: int) {
        title = walk.nodeMeta(nodeIndex).chanceDeal === "river" ? qsTr("Choose River Card") : qsTr("Choose Turn Card")
        chancePickerLevelIndex = levelIndex
        chancePickerIndexByCard = Walk.chanceIndexByCard(walk.nodeActions(nodeIndex), walk.suitsAt(levelIndex))
        chancePickerBoardText = walk.boardAt(levelIndex)
        currentIndex = _indices().find(index => cards.itemAt(index).actionIndex >= 0) ?? -1
        open()
    }

    /// Moves the keyboard to the next card in a direction that can be chosen, if there is one.
    function moveFocus(rows: int, columns: int) {
        const ranks = HandText.ranks.length
        let row = Math.floor(currentIndex / ranks) + rows
        let column = currentIndex % ranks + columns
        while (row >= 0 && row < CardNames.SUITS.length && column >= 0 && column < ranks) {
            const index = row * ranks + column
            if (cards.itemAt(index).actionIndex >= 0) {
                _focusCard(index)
                return
            }
            row += rows
            column += columns
        }
    }

    /// Takes a typed character, and the card when it is whole. Gives whether the character is part of one.
    function typeCharacter(character: string): bool {
        const typed = TypedCard.next(_typed, character)
        if (character === "" || (typed === _typed && typed !== character.toUpperCase()))
            return false
        _refused = ""
        _typed = typed.length === 2 ? "" : typed
        if (typed.length < 2)
            return true
        const index = _indices().find(card => cards.itemAt(card).rank + cards.itemAt(card).suit === typed)
        if (cards.itemAt(index).actionIndex >= 0)
            cards.itemAt(index).clicked()
        else
            _refused = typed
        return true
    }

    function _indices(): var {
        return Array.from({ length: cards.count }, (_, index) => index)
    }

    function _focusCard(index: int) {
        // First the focus: the card that has it stays a stop of Tab.
        cards.itemAt(index)?.forceActiveFocus(Qt.TabFocusReason)
        currentIndex = index
    }

    function chooseChanceCard(actionIndex: int, displayCardText: string) {
        walk.chooseChanceCard(chancePickerLevelIndex, actionIndex, displayCardText)
        cardDealt()
        close()
    }

    function chooseChanceCardRandom() {
        const indices = chancePickerAvailableCardIndices
        if (indices.length > 0)
            chooseChanceCard(indices[Math.floor(Math.random() * indices.length)], "")
    }

    width: Math.max(240, Math.min(640, _rowWidth + 2 * 14 + 28, parent.width - 40))
    height: Math.max(240, Math.min(520, implicitHeight, parent.height - 40))
    padding: 14
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
    onOpened: _focusCard(currentIndex)
    onClosed: {
        _typed = ""
        _refused = ""
        chancePickerLevelIndex = -1
        chancePickerIndexByCard = {}
    }

    // Of a new tree its nodes say nothing.
    Connections {
        function onRevisionChanged() {
            root.close()
        }

        target: root.walk
    }

    FocusScope {
        anchors.fill: parent
        focus: true
        implicitWidth: root._rowWidth
        implicitHeight: rows.implicitHeight + root.theme.spaceMd + note.implicitHeight

        Keys.onLeftPressed: root.moveFocus(0, -1)
        Keys.onRightPressed: root.moveFocus(0, 1)
        Keys.onUpPressed: root.moveFocus(-1, 0)
        Keys.onDownPressed: root.moveFocus(1, 0)
        Keys.onPressed: event => event.accepted = root.typeCharacter(event.text)

        Flickable {
            // Leaves space for the ring around a card at an edge.
            x: -root.theme.spaceXs
            y: -root.theme.spaceXs
            width: parent.width + 2 * root.theme.spaceXs
            height: parent.height - note.height - root.theme.spaceMd + 2 * root.theme.spaceXs
            contentWidth: rows.implicitWidth + 2 * root.theme.spaceXs
            contentHeight: rows.implicitHeight + 2 * root.theme.spaceXs
            clip: true
            boundsBehavior: Flickable.StopAtBounds

            ScrollBar.vertical: AppScrollBar {
            }
            ScrollBar.horizontal: AppScrollBar {
            }

            Row {
                id: rows

                x: root.theme.spaceXs
                y: root.theme.spaceXs
                spacing: 6

                Column {
                    spacing: 6

                    Repeater {
                        model: CardNames.SUITS

                        Item {
                            id: head

                            required property string modelData

                            width: tile.width
                            height: 44

                            SuitTile {
                                id: tile

                                anchors.verticalCenter: parent.verticalCenter
                                suit: head.modelData
                            }
                        }
                    }
                }

                Grid {
                    columns: HandText.ranks.length
                    columnSpacing: 3
                    rowSpacing: 6

                    Repeater {
                        id: cards

                        model: CardNames.SUITS.length * HandText.ranks.length

                        PlayingCard {
                            required property int index
                            readonly property int actionIndex: Walk.chanceCardIndexForSelection(
                                rank + suit, root.chancePickerIndexByCard, root.chancePickerBoardText)

                            rank: HandText.ranks[index % HandText.ranks.length]
                            suit: CardNames.SUITS[Math.floor(index / HandText.ranks.length)]
                            mini: true
                            disabled: actionIndex < 0
                            activeFocusOnTab: index === root.currentIndex
                            Accessible.role: Accessible.Button
                            onClicked: root.chooseChanceCard(actionIndex, rank + suit)
                        }
                    }
                }
            }
        }

        Label {
            id: note

            anchors.bottom: parent.bottom
            width: parent.width
            text: root._refused !== "" ? qsTr("%1 can't be dealt here.").arg(root._refused)
                  : root._typed !== "" ? root._typed + "…"
                  : qsTr("Arrow keys and Return choose a card, or type it: 7c.")
            color: root._refused !== "" ? root.theme.warn : root.theme.textMuted
            font.pixelSize: root.type.labelMd
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    footerButtons: [
        SecondaryButton {
            text: qsTr("Random")
            onClicked: root.chooseChanceCardRandom()
        },
        SecondaryButton {
            text: "✕"
            Accessible.name: qsTr("Close")
            onClicked: root.close()
        }
    ]
}

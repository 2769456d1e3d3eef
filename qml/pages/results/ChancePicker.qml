pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora
import "../../logic/card_names.js" as CardNames
import "../../logic/hand_grid.js" as HandGrid
import "../../logic/tree_walk.js" as Walk

/// Chooses the card of a chance node. Where the tree keeps one of several suits that are alike, the
/// others can be chosen too.
AppDialog {
    id: root

    required property TreeWalk walk
    property int chancePickerLevelIndex: -1
    property var chancePickerIndexByCard: ({})
    property string chancePickerBoardText: ""
    readonly property var chancePickerAvailableCardIndices: Object.values(chancePickerIndexByCard)

    readonly property real _rowWidth: 22 + 6 + 13 * 32 + 12 * 3

    /// The walk has moved to a card.
    signal cardDealt

    function openChancePicker(levelIndex: int, nodeIndex: int) {
        title = walk.nodeMeta(nodeIndex).chanceDeal === "river" ? qsTr("Choose River Card") : qsTr("Choose Turn Card")
        chancePickerLevelIndex = levelIndex
        chancePickerIndexByCard = Walk.chanceIndexByCard(walk.nodeActions(nodeIndex), walk.suitsAt(levelIndex))
        chancePickerBoardText = walk.boardAt(levelIndex)
        open()
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
    onClosed: {
        chancePickerLevelIndex = -1
        chancePickerIndexByCard = {}
    }

    Flickable {
        implicitWidth: root._rowWidth
        implicitHeight: rows.implicitHeight
        contentWidth: rows.implicitWidth
        contentHeight: rows.implicitHeight
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        ScrollBar.vertical: AppScrollBar {
            theme: root.theme
        }
        ScrollBar.horizontal: AppScrollBar {
            theme: root.theme
        }

        Column {
            id: rows

            spacing: 6

            Repeater {
                model: CardNames.SUITS

                Row {
                    id: suitRow

                    required property string modelData

                    spacing: 6

                    SuitTile {
                        anchors.verticalCenter: parent.verticalCenter
                        theme: root.theme
                        type: root.type
                        suit: suitRow.modelData
                    }

                    Row {
                        spacing: 3

                        Repeater {
                            model: HandGrid.RANKS

                            PlayingCard {
                                required property string modelData

                                readonly property int actionIndex: Walk.chanceCardIndexForSelection(
                                    modelData + suitRow.modelData, root.chancePickerIndexByCard, root.chancePickerBoardText)

                                theme: root.theme
                                rank: modelData
                                suit: suitRow.modelData
                                mini: true
                                disabled: actionIndex < 0
                                activeFocusOnTab: actionIndex >= 0
                                onClicked: root.chooseChanceCard(actionIndex, modelData + suitRow.modelData)
                            }
                        }
                    }
                }
            }
        }
    }

    footerButtons: [
        SecondaryButton {
            theme: root.theme
            type: root.type
            text: qsTr("Random")
            onClicked: root.chooseChanceCardRandom()
        },
        SecondaryButton {
            theme: root.theme
            type: root.type
            text: "✕"
            Accessible.name: qsTr("Close")
            onClicked: root.close()
        }
    ]
}

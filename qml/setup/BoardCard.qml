import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// The board, card by card. A click on a slot opens the picker under it.
Card {
    id: root

    property Typography type: Style.type
    required property string boardText
    property int editingCardIndex: -1
    property string fault: ""  ///< What is wrong with the board, or "".

    signal boardEdited(string text)

    function setBoardCardAt(index: int, card: string) {
        boardEdited(BoardText.setCardAt(boardText, index, card))
    }

    function clearBoardFrom(index: int) {
        boardEdited(BoardText.clearFrom(boardText, index))
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceMd

        CardTitle {
            text: qsTr("Board")
        }

        BoardDisplay {
            id: board

            boardText: root.boardText
            editable: true
            cardScale: 1.25
            horizontalPadding: 0
            onCardClicked: index => {
                root.editingCardIndex = index
                picker.openUnder(board)
            }
        }

        Label {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            visible: root.fault !== ""
            text: root.fault
            color: root.theme.danger
            font.pixelSize: root.type.labelMd
            wrapMode: Text.WordWrap
        }

        Item {
            Layout.fillHeight: true
        }
    }

    CardPickerDialog {
        id: picker

        slot: root.editingCardIndex
        usedCards: BoardText.usedCards(root.boardText)
        onCardChosen: card => root.setBoardCardAt(root.editingCardIndex, card)
        onCardCleared: root.clearBoardFrom(root.editingCardIndex)
        onClosed: root.editingCardIndex = -1
    }
}

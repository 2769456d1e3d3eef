import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// Picks or clears the card of one board slot. It opens under the board and leaves the page usable.
AppDialog {
    id: root

    property int slot: -1  ///< 0..4
    property alias usedCards: picker.usedCards

    signal cardChosen(string card)
    signal cardCleared

    /// Opens at the bottom left corner of an item, held inside the window.
    function openUnder(item: Item) {
        const corner = item.mapToItem(parent, 0, item.height)
        open()
        x = Math.max(12, Math.min(corner.x, parent.width - width - 12))
        y = Math.max(12, Math.min(corner.y + 8, parent.height - height - 12))
        picker.forceActiveFocus()
    }

    title: qsTr("Select card")
    modal: false
    dim: false
    anchors.centerIn: undefined
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside

    ColumnLayout {
        spacing: root.theme.spaceMd

        Label {
            text: root.slot === 4 ? qsTr("River card") : root.slot === 3 ? qsTr("Turn card") : qsTr("Flop card")
            color: root.theme.textMuted
            font.pixelSize: root.type.labelMd
        }

        CardPicker {
            id: picker

            focus: true
            onCardSelected: card => {
                root.cardChosen(card)
                root.close()
            }
        }
    }

    footerButtons: [
        SecondaryButton {
            text: qsTr("Clear card")
            onClicked: {
                root.cardCleared()
                root.close()
            }
        },
        SecondaryButton {
            text: qsTr("Cancel")
            onClicked: root.close()
        }
    ]
}

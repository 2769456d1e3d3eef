pragma ComponentBehavior: Bound

import QtQuick
import Velmora

/// A board of five slots: the flop in one group, turn and river beside it.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// Two characters a slot, "__" for an empty one.
    property string boardText
    property bool editable: false
    /// The slots 0..4 that may be clicked while `editable`; null for all.
    property var clickableIndices: null
    property bool compact: false
    property real cardScale: 1
    property real horizontalPadding: compact ? 0 : 10
    property color labelColor: theme.textMuted
    /// Whether a new card turns into view.
    property bool animated: false

    readonly property list<string> cards: Array.from(BoardText.shownCards(boardText))
    readonly property int cardCount: BoardText.usedCards(boardText).length

    signal cardClicked(index: int)

    function isSet(index: int): bool {
        return cards[index] !== ""
    }

    function streetLabel(): string {
        switch (cardCount) {
        case 5:
            return qsTr("River")
        case 4:
            return qsTr("Turn")
        case 3:
            return qsTr("Flop")
        default:
            return qsTr("Preflop")
        }
    }

    implicitWidth: column.implicitWidth + 2 * horizontalPadding
    implicitHeight: column.implicitHeight

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Board")
    Accessible.description: streetLabel()

    component Slot: PlayingCard {
        id: slot

        required property int index

        readonly property bool clickable: root.editable
            && (!root.clickableIndices || root.clickableIndices.includes(index)) && !disabled
        readonly property string card: root.cards[index]

        rank: card.charAt(0)
        suit: card.charAt(1)
        mini: root.compact
        sizeScale: root.cardScale
        hoverable: clickable
        enableHoverScale: false
        activeFocusOnTab: clickable
        onClicked: {
            if (clickable)
                root.cardClicked(index)
        }
        onCardChanged: {
            if (root.animated && card !== "")
                turning.restart()
        }
        transform: Scale {
            id: turn

            origin.x: slot.width / 2
        }

        NumberAnimation {
            id: turning

            target: turn
            property: "xScale"
            from: 0
            to: 1
            duration: root.theme.durationSlow
            easing.type: Easing.OutCubic
        }
    }

    Column {
        id: column

        x: root.horizontalPadding
        spacing: root.theme.spaceSm

        Text {
            visible: !root.compact
            text: root.streetLabel()
            color: root.labelColor
            font.family: root.theme.uiFamily
            font.pixelSize: root.type.labelSm
            font.weight: root.type.weightMedium
            font.capitalization: Font.AllUppercase
            font.letterSpacing: 1
        }

        Row {
            spacing: root.compact ? 4 : 8

            Rectangle {
                readonly property real padding: root.compact ? root.theme.spaceXs : root.theme.spaceSm

                visible: root.editable || root.isSet(0)
                implicitWidth: flop.implicitWidth + 2 * padding
                implicitHeight: flop.implicitHeight + 2 * padding
                radius: root.theme.radiusSm + padding
                color: root.theme.surface2

                Row {
                    id: flop

                    anchors.centerIn: parent
                    spacing: root.compact ? 2 : 4

                    Repeater {
                        model: 3

                        Slot {}
                    }
                }
            }

            Slot {
                index: 3
                anchors.verticalCenter: parent.verticalCenter
                visible: !root.compact || root.editable || root.isSet(index)
            }

            Slot {
                index: 4
                anchors.verticalCenter: parent.verticalCenter
                visible: !root.compact || root.editable || root.isSet(index)
                disabled: root.editable && !root.isSet(3) && !root.isSet(4)
            }
        }
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora
import "../components/card_names.js" as CardNames

/// A seat at the table: two cards, centred on its own centre, and the stack beyond them.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property string seat
    property list<string> cards
    property bool faceUp: false
    property bool acting: false
    property string stack: ""
    property real cardScale: 0.95
    /// Whether the stack stands above the cards, else below.
    property bool stackAbove: false
    /// From where cards are dealt, in pixels.
    property real dealFrom: 0

    readonly property real stackWidth: stackPill.width
    readonly property color seatColor: seat === "IP" ? theme.info : theme.actionBet

    function _cardsName(): string {
        const shown = Array.from(cards).filter(card => card !== "")
        if (shown.length === 0)
            return qsTr("%1: no cards").arg(seat)
        if (!faceUp)
            return qsTr("%1: opponent's cards, face down").arg(seat)
        return seat + ": " + shown.map(card => CardNames.cardName(card.charAt(0), card.charAt(1))).join(", ")
    }

    implicitWidth: row.width
    implicitHeight: row.height
    Accessible.role: Accessible.Grouping
    Accessible.name: _cardsName()
    Accessible.description: stackLabel.text

    Row {
        id: row

        spacing: root.theme.spaceXs

        Repeater {
            model: 2

            PlayCard {
                required property int index

                card: root.cards[index] ?? ""
                faceDown: !root.faceUp
                sizeScale: root.cardScale
                fromY: root.dealFrom
                delay: 80 * index
            }
        }
    }

    Rectangle {
        id: stackPill

        anchors.horizontalCenter: parent.horizontalCenter
        y: root.stackAbove ? -height - root.theme.spaceXs : row.height + root.theme.spaceXs
        width: stackRow.implicitWidth + 2 * root.theme.spaceSm
        height: stackRow.implicitHeight + 4
        radius: height / 2
        color: root.theme.withOpacity(root.theme.surface, 0.92)
        border.color: root.acting ? root.seatColor : root.theme.stroke
        border.width: root.acting ? 2 : 1

        Behavior on border.color {
            ColorAnimation {
                duration: root.theme.durationNormal
            }
        }

        Row {
            id: stackRow

            anchors.centerIn: parent
            spacing: root.theme.spaceSm

            Label {
                text: root.seat
                color: root.seatColor
                font.pixelSize: root.type.labelMd
                font.weight: root.type.weightBold
            }

            Label {
                id: stackLabel

                text: qsTr("Stack: %1").arg(root.stack)
                color: root.theme.text
                font.pixelSize: root.type.labelMd
            }
        }
    }
}

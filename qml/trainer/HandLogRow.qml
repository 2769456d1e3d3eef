pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora
import "trainer_hand.js" as Hand
import "trainer_score.js" as Score

/// A played hand in the log: the board, the user's cards, and how it went.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// A row of the log.
    required property var entry
    property bool selected: false
    property bool focused: false

    readonly property color _tone: entry.isMistake ? theme.danger : theme.success
    readonly property string _score: entry.isMistake ? qsTr("EV -%1").arg(Score.lossText(entry.evLoss)) : qsTr("Perfect")

    signal clicked

    implicitHeight: column.implicitHeight + 2 * 6
    radius: theme.radiusSm
    color: theme.withOpacity(_tone, selected ? 0.18 : 0.12)
    border.color: _tone
    border.width: selected ? 2 : 1
    Accessible.role: Accessible.ListItem
    Accessible.name: _score + ", " + Hand.heroHand(entry) + ", " + entry.board
    Accessible.selected: selected
    Accessible.onPressAction: clicked()

    Column {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.margins: 6
        spacing: 2

        Row {
            id: cards

            spacing: 6

            BoardDisplay {
                anchors.verticalCenter: parent.verticalCenter
                boardText: root.entry.board
                compact: true
                cardScale: 0.9
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: "|"
                color: root.theme.textMuted
                font.pixelSize: root.type.headingSm
            }

            Repeater {
                model: Hand.cardsOf(Hand.heroHand(root.entry))

                PlayingCard {
                    required property string modelData

                    anchors.verticalCenter: cards.verticalCenter
                    rank: modelData.charAt(0)
                    suit: modelData.charAt(1)
                    mini: true
                    sizeScale: 0.9
                    hoverable: false
                }
            }
        }

        RowLayout {
            width: parent.width

            Label {
                Layout.fillWidth: true
                text: root.entry.time + " · " + root.entry.role
                color: root.theme.textMuted
                font.pixelSize: root.type.labelSm
                elide: Text.ElideRight
            }

            Label {
                text: root._score
                color: root._tone
                font.pixelSize: root.type.labelMd
                font.weight: root.type.weightBold
            }
        }
    }

    FocusRing {
        radius: root.radius
        anchors.margins: 0
        active: root.focused
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    TapHandler {
        onTapped: root.clicked()
    }
}

import QtQuick
import QtQuick.Controls
import Velmora
import "trainer_hand.js" as Hand

/// The table: two seats, the board, the pot, and what the user can do. Everything has its place on the
/// painted table, whatever space that takes.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property TreeWalk walk
    required property PlaySession play

    readonly property real pictureRatio: 700 / 1200
    readonly property bool _small: picture.paintedHeight < 400
    /// Of the usual size of cards, or of small ones: less where the table is a little low for it, more
    /// where it is large.
    readonly property real _fit: Math.min(_small ? 1 : 1.5, picture.paintedHeight / (_small ? 280 : 460))
    readonly property real _seatScale: (_small ? 0.62 : 0.95) * _fit
    readonly property string _actingSeat: play.playHandComplete ? _heroSeat : play.playMeta.player ?? ""
    /// Where the end of a hand is shown: at the seat that went wrong, else at the user's own.
    readonly property string _heroSeat: play.lastHand?.mistakeActor || (play.playRole === "IP" ? "IP" : "OOP")
    readonly property var _meta: play.playMeta
    /// For text on the table, which is dark in both modes.
    readonly property color _feltInk: theme.withOpacity(theme.cardFace, 0.85)
    readonly property color _ground: "#0B0F14"
    /// From the middle of the table to where the dealer button leaves space, in pixels.
    readonly property int _besideDealer: _dealerX + 13 + (_small ? theme.spaceSm : theme.spaceMd)
    readonly property int _dealerX: _small ? 56 : 86 * Math.max(1, _fit)

    /// A turn or river on the table is to be another one.
    signal cardChangeWanted(levelIndex: int, nodeIndex: int)

    function _changeCard(slot: int) {
        if (!play.changeableSlots.includes(slot))
            return
        const level = play.chanceLevels[slot]
        play.holdForCardChange()
        cardChangeWanted(level, walk.treeLevels.get(level).nodeIndex)
    }

    implicitWidth: 700
    implicitHeight: implicitWidth * pictureRatio
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Table")

    // The picture's own ground, where the space is higher than the picture.
    Rectangle {
        anchors.fill: parent
        radius: root.theme.radiusSm
        color: root._ground
    }

    Image {
        id: picture

        anchors.fill: parent
        source: "../assets/poker_table_placeholder.svg"
        sourceSize.width: 1200
        sourceSize.height: 700
        fillMode: Image.PreserveAspectFit
        mipmap: true
        Accessible.ignored: true
    }

    Item {
        id: table

        anchors.centerIn: parent
        width: picture.paintedWidth
        height: picture.paintedHeight

        RoleChoice {
            anchors.centerIn: parent
            visible: !root.play.playSessionStarted
            narrow: root._small
            onRoleChosen: role => root.play.startPlaySession(role)
        }

        Item {
            anchors.fill: parent
            visible: root.play.playSessionStarted

            PlaySeat {
                id: oop

                anchors.centerIn: parent
                anchors.verticalCenterOffset: -0.26 * table.height
                seat: "OOP"
                cards: root.play.playSessionStarted ? [root.play.oopCard1, root.play.oopCard2] : []
                faceUp: root.play.isHeroSeat(seat)
                acting: root.play.running && root._meta.player === seat
                stack: Hand.stackText(root._meta, root._meta.investedOop)
                stackAbove: true
                cardScale: root._seatScale
                dealFrom: 0.2 * table.height
            }

            PlaySeat {
                id: ip

                anchors.centerIn: parent
                anchors.verticalCenterOffset: 0.26 * table.height
                seat: "IP"
                cards: root.play.playSessionStarted ? [root.play.ipCard1, root.play.ipCard2] : []
                faceUp: root.play.isHeroSeat(seat)
                acting: root.play.running && root._meta.player === seat
                stack: Hand.stackText(root._meta, root._meta.investedIp)
                cardScale: root._seatScale
                dealFrom: -0.2 * table.height
            }

            Rectangle {
                x: ip.x + ip.width / 2 + root._dealerX - width / 2
                anchors.verticalCenter: ip.verticalCenter
                width: 26
                height: 26
                radius: 13
                color: root.theme.cardFace
                border.color: root.theme.gold
                border.width: 2
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Dealer button")

                Label {
                    anchors.centerIn: parent
                    text: "D"
                    color: root.theme.suitSpades
                    font.pixelSize: root.type.labelMd
                    font.weight: root.type.weightBold
                }
            }

            BoardDisplay {
                id: board

                anchors.centerIn: parent
                boardText: root.play.playBoardText
                compact: root._small
                cardScale: (root._small ? 1 : 1.05) * root._fit
                editable: root.play.changeableSlots.length > 0
                clickableIndices: root.play.changeableSlots
                animated: true
                labelColor: root._feltInk
                onCardClicked: index => root._changeCard(index)
            }

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.top: board.bottom
                anchors.topMargin: root._small ? 1 : root.theme.spaceXs
                spacing: root.theme.spaceSm

                Rectangle {
                    width: pot.implicitWidth + 2 * root.theme.spaceMd
                    height: pot.implicitHeight + (root._small ? 2 : 6)
                    radius: height / 2
                    color: root.theme.withOpacity(root.theme.surface, 0.92)
                    border.color: root.theme.gold

                    Label {
                        id: pot

                        anchors.centerIn: parent
                        text: qsTr("Pot: %1").arg(Hand.chipsText(root._meta.pot))
                        color: root.theme.text
                        font.pixelSize: root._small ? root.type.labelSm : root.type.labelMd
                        font.weight: root.type.weightBold
                    }
                }

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: board.editable
                    text: qsTr("Click Turn/River to change")
                    color: root._feltInk
                    font.pixelSize: root.type.labelSm
                }
            }

            PlayBubble {
                readonly property Item seat: root.play.playLastActionActor === "IP" ? ip : oop

                x: Math.min(table.width - width, table.width / 2 + (root._small ? root._besideDealer : 140 * Math.max(1, root._fit)))
                y: seat.y + (seat.height - height) / 2
                text: root.play.playLastActionText
            }

            Label {
                anchors.right: oop.left
                anchors.rightMargin: root.theme.spaceMd
                anchors.verticalCenter: oop.verticalCenter
                visible: root.play.playDrillMode && root.play.playDrillActor === "IP"
                text: visible ? qsTr("OOP action: %1").arg(root.play.drillNoteText()) : ""
                color: root._feltInk
                font.pixelSize: root.type.labelMd
            }

            PlayPrompt {
                id: prompt

                readonly property PlaySeat seat: root._actingSeat === "IP" ? ip : oop
                readonly property real besideSeat: Math.max(oop.width / 2 + root.theme.spaceLg,
                                                            oop.stackWidth / 2 + root.theme.spaceSm)

                x: table.width / 2 + (seat === ip ? root._besideDealer : besideSeat)
                y: Math.max(0, Math.min(table.height - height, seat.y + (seat.height - height) / 2))
                width: Math.min(380, 0.45 * table.width, table.width - x - root.theme.spaceSm)
                play: root.play
                narrow: root._small
            }

            DrillBar {
                x: root.theme.spaceMd
                y: table.height - height - root.theme.spaceMd
                width: ip.x - x - root.theme.spaceMd
                play: root.play
            }
        }
    }
}

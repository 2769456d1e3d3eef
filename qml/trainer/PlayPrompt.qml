pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora
import "trainer_score.js" as Score

/// What stands beside a seat: the choices of a waiting hand, or how it went and the way on. Number keys
/// choose too.
Column {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property PlaySession play
    property bool narrow: false

    readonly property var _hand: play.lastHand
    readonly property color _scoreColor: _hand && _hand.isMistake ? theme.danger : theme.success

    spacing: theme.spaceSm

    BusyLabel {
        visible: root.play.scoring
    }

    Flow {
        width: parent.width
        visible: root.play.playAwaitingUserAction
        spacing: root.theme.spaceSm

        Repeater {
            model: root.play.playAwaitingUserAction ? root.play.playActions.length : 0

            PlayActionButton {
                required property int index
                readonly property var info: root.play.playActions[index]

                narrow: root.narrow
                text: info?.name ?? ""
                actionType: info?.actionType ?? ""
                number: index + 1
                onClicked: root.play.choosePlayAction(index)
            }
        }
    }

    Column {
        width: parent.width
        visible: root.play.playHandComplete
        spacing: root.theme.spaceSm

        Rectangle {
            id: score

            readonly property bool shown: root._hand !== null

            width: Math.min(parent.width, verdict.implicitWidth + 2 * root.theme.spaceMd)
            height: verdict.height + root.theme.spaceSm
            radius: root.theme.radiusSm
            color: root.theme.surface
            border.color: root._scoreColor
            border.width: 2
            scale: shown ? 1 : 0.8
            opacity: shown ? 1 : 0
            Accessible.role: Accessible.StaticText
            Accessible.name: verdict.text

            Behavior on scale {
                NumberAnimation {
                    duration: root.theme.durationNormal
                    easing.type: Easing.OutBack
                }
            }

            Behavior on opacity {
                NumberAnimation {
                    duration: root.theme.durationNormal
                }
            }

            Label {
                id: verdict

                anchors.verticalCenter: parent.verticalCenter
                x: root.theme.spaceMd
                width: parent.width - 2 * root.theme.spaceMd
                text: !root._hand ? ""
                      : root._hand.isMistake ? qsTr("%1 loses %2 EV. Best: %3").arg(root._hand.mistakeAction)
                                               .arg(Score.lossText(root._hand.evLoss)).arg(root._hand.correctAction || "—")
                                             : qsTr("Perfect")
                color: root._scoreColor
                font.pixelSize: root.type.bodySm
                font.weight: root.type.weightSemibold
                wrapMode: Text.Wrap
            }
        }

        PrimaryButton {
            readonly property bool offered: visible && enabled

            width: Math.min(implicitWidth, parent.width)
            text: qsTr("Another hand")
            implicitHeight: root.narrow ? 32 : 40
            leftPadding: root.narrow ? root.theme.spaceSm : root.theme.spaceLg
            rightPadding: leftPadding
            // A hidden button would keep the focus, and Return with it.
            enabled: root.play.playHandComplete
            onOfferedChanged: {
                if (offered)
                    forceActiveFocus()
            }
            onClicked: root.play.restartHand()
        }
    }
}

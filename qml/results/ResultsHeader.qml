pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The head of the strategy view: the board of the walk, whose turn it is, and the figures of the
/// whole solve.
RowLayout {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property TreeWalk walk
    required property PlaySession play

    readonly property color _seatColor: walk.selectedPlayer === "IP" ? theme.info : theme.actionBet
    readonly property bool _decision: walk.currentMeta.nodeType === "decision"

    readonly property var _figures: [
        { label: qsTr("EV (OOP)"), value: (Controller.resultEvOop + Controller.resultStartingPot / 2).toFixed(3), tone: theme.success },
        { label: qsTr("EV (IP)"), value: (Controller.resultEvIp + Controller.resultStartingPot / 2).toFixed(3), tone: theme.info },
        { label: qsTr("Exploitability"), value: Controller.resultExploitability.toFixed(4), tone: theme.gold }
    ]
    /// Whether all fits side by side: the title too, and the figures of the solve in full size.
    readonly property bool _roomy: width >= title.implicitWidth + _fullBoardWidth + turn.implicitWidth
                                   + playButton.implicitWidth + 3 * _figureWidth + 9 * theme.spaceMd
    readonly property int _figureWidth: 140
    readonly property int _lineWidth: 220
    readonly property int _fullBoardWidth: 190

    /// Below this width something is cut off.
    readonly property real minimumWidth: _fullBoardWidth + turn.implicitWidth + playButton.implicitWidth
                                         + _lineWidth + 5 * theme.spaceMd

    spacing: theme.spaceMd

    Label {
        id: title

        visible: root._roomy
        text: qsTr("Strategy View")
        color: root.theme.text
        font.pixelSize: root.type.headingSm
        font.weight: root.type.weightBold
        Accessible.role: Accessible.Heading
    }

    BoardDisplay {
        boardText: root.play.playMode && root.play.playBoardText ? root.play.playBoardText : root.walk.treeBoardText
        compact: true
    }

    Rectangle {
        Layout.preferredWidth: 1
        Layout.preferredHeight: 28
        visible: root._roomy
        color: root.theme.stroke
    }

    Rectangle {
        Layout.preferredWidth: turn.implicitWidth + 2 * root.theme.spaceMd
        Layout.preferredHeight: 24
        // Its place stays, so that a hand that is played doesn't move the head.
        opacity: root._decision ? 1 : 0
        radius: height / 2
        color: root.theme.withOpacity(root._seatColor, 0.15)

        Label {
            id: turn

            anchors.centerIn: parent
            text: qsTr("%1 to act").arg(root.walk.selectedPlayer)
            color: root._seatColor
            font.pixelSize: root.type.labelMd
            font.weight: root.type.weightSemibold
        }
    }

    Item {
        Layout.fillWidth: true
    }

    SecondaryButton {
        id: playButton

        Layout.preferredWidth: Math.max(140, implicitWidth)
        text: root.play.playMode ? qsTr("Range view") : qsTr("Play vs solution")
        leftPadding: root.theme.spaceSm
        rightPadding: root.theme.spaceSm
        font.pixelSize: root.type.bodySm
        onClicked: root.play.playMode = !root.play.playMode
    }

    GridLayout {
        columns: root._roomy ? 3 : 1
        columnSpacing: root.theme.spaceMd
        rowSpacing: 2

        Repeater {
            model: root._figures.length

            StatCard {
                required property int index

                Layout.preferredWidth: root._roomy ? root._figureWidth : root._lineWidth
                compact: true
                inline: !root._roomy
                label: root._figures[index].label
                value: root._figures[index].value
                accentColor: root._figures[index].tone
            }
        }
    }
}

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The head of the strategy view: the board of the walk, whose turn it is, and the figures of the
/// whole solve.
RowLayout {
    id: root

    property Theme theme: Fallback.theme
    property Typography type: Fallback.type
    required property var controller
    required property TreeWalk walk
    required property PlaySession play

    readonly property color _seatColor: walk.selectedPlayer === "IP" ? theme.info : theme.actionBet
    readonly property bool _decision: walk.currentMeta.nodeType === "decision"

    /// Whether the figures of the solve have room. The table of play mode does without them rather than
    /// scroll sideways.
    readonly property bool _roomy: !play.playMode || width >= 900

    spacing: theme.spaceMd

    Label {
        text: qsTr("Strategy View")
        color: root.theme.text
        font.pixelSize: root.type.headingSm
        font.weight: root.type.weightBold
        Accessible.role: Accessible.Heading
    }

    BoardDisplay {
        theme: root.theme
        type: root.type
        boardText: root.play.playMode && root.play.playBoardText ? root.play.playBoardText : root.walk.treeBoardText
        compact: true
    }

    Rectangle {
        Layout.preferredWidth: 1
        Layout.preferredHeight: 28
        color: root.theme.stroke
    }

    Rectangle {
        Layout.preferredWidth: turn.implicitWidth + 2 * root.theme.spaceMd
        Layout.preferredHeight: 24
        visible: root._decision
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
        Layout.preferredWidth: Math.max(140, implicitWidth)
        theme: root.theme
        type: root.type
        text: root.play.playMode ? qsTr("Range view") : qsTr("Play vs solution")
        leftPadding: root.theme.spaceSm
        rightPadding: root.theme.spaceSm
        font.pixelSize: root.type.bodySm
        onClicked: root.play.playMode = !root.play.playMode
    }

    StatCard {
        visible: root._roomy
        theme: root.theme
        type: root.type
        compact: true
        label: qsTr("EV (OOP)")
        value: (root.controller.resultEvOop + root.controller.resultStartingPot / 2).toFixed(3)
        accentColor: root.theme.success
    }

    StatCard {
        visible: root._roomy
        theme: root.theme
        type: root.type
        compact: true
        label: qsTr("EV (IP)")
        value: (root.controller.resultEvIp + root.controller.resultStartingPot / 2).toFixed(3)
        accentColor: root.theme.info
    }

    StatCard {
        visible: root._roomy
        theme: root.theme
        type: root.type
        compact: true
        label: qsTr("Exploitability")
        value: root.controller.resultExploitability.toFixed(4)
        accentColor: root.theme.gold
    }
}

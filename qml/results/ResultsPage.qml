pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora

/// Browses a solved game: the walked tree at the left, how the node on view is played at the right.
FocusScope {
    id: root

    property Theme theme: Style.theme
    required property SolveFollower follower
    /// Whether Setup shows another spot than that of the result.
    required property bool setupDiffers
    // Of the spot that was solved, whatever Setup shows by now.
    readonly property string boardText: Controller.resultBoard
    readonly property real rakePercent: Controller.resultRakePercent
    readonly property real rakeCap: Controller.resultRakeCap

    readonly property alias walk: walk_
    readonly property alias view: view_
    readonly property alias locks: locks_
    readonly property alias play: play_

    signal solveAgainRequested
    signal setupWanted

    function _showNewResults() {
        play_.playMode = false
        view_.forget()
        walk_.resetTreeToRoot()
        view_.look()
    }

    Component.onCompleted: _showNewResults()

    Connections {
        function onResultsChanged() {
            root._showNewResults()
        }

        function onRunningChanged() {
            if (Controller.running)
                play_.playMode = false
        }

        target: Controller
    }

    TreeWalk {
        id: walk_

        boardText: root.boardText
        locked: play_.playMode
        entersTerminals: play_.playMode
    }

    NodeLocks {
        id: locks_

        onChanged: view_.refreshLocks()
    }

    NodeView {
        id: view_

        walk: walk_
        locks: locks_
        paused: play_.playMode
    }

    PlayScores {
        id: scores_

        walk: walk_
    }

    PlayLog {
        id: playLog_

        rakePercent: root.rakePercent
        rakeCap: root.rakeCap
    }

    PlaySession {
        id: play_

        walk: walk_
        scores: scores_
        log: playLog_
    }

    ResultNotices {
        id: notices

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: root.theme.spaceLg
        follower: root.follower
        setupDiffers: root.setupDiffers
        lockMode: locks_.nodeLockMode
        nodeError: view_.nodeError
        onSolveAgainRequested: root.solveAgainRequested()
        onSetupWanted: root.setupWanted()
    }

    SplitView {
        anchors.fill: parent
        anchors.margins: root.theme.spaceLg
        anchors.topMargin: root.theme.spaceLg + (notices.visible ? notices.height + root.theme.spaceSm : 0)

        handle: SplitHandle {
        }

        GameTreePanel {
            SplitView.preferredWidth: Math.max(SplitView.minimumWidth, Math.min(320, 0.24 * root.width))
            SplitView.minimumWidth: 240
            walk: walk_
            // A decision that is asked about keeps what the solution does there to itself.
            frequenciesShown: !play_.playMode || play_.playHandComplete
        }

        StrategyPanel {
            SplitView.fillWidth: true
            SplitView.minimumWidth: minimumWidth
            walk: walk_
            view: view_
            locks: locks_
            play: play_
        }
    }
}

import QtQuick
import QtQuick.Layouts
import Velmora

/// What a reader of the results must know about them: that a solve runs which will replace them, how
/// the last one ended, that Setup shows another spot by now, that locks wait to be solved.
ColumnLayout {
    id: root

    property Theme theme: Style.theme
    required property SolveFollower follower
    /// Whether Setup shows another spot than that of the result.
    required property bool setupDiffers
    /// While hands are being locked the panel and the grid speak of the locks, and nothing may move.
    required property bool lockMode
    /// Why the figures of the node on view are missing; empty if they are not.
    required property string nodeError

    /// The run whose end the user has read about.
    property int _readRevision: -1
    property int _runRevision: 0
    readonly property bool _endedBadly: !follower.running && _readRevision !== _runRevision
        && Controller.lastRunOutcome !== "" && Controller.lastRunOutcome !== "Completed"

    readonly property bool _locksWait: Controller.locksPending && !follower.running && !lockMode
    readonly property bool _setupWaits: setupDiffers && !follower.running

    signal solveAgainRequested
    signal setupWanted

    function _lastRunLine(): string {
        switch (Controller.lastRunOutcome) {
        case "Cancelled":
            return qsTr("The last solve was cancelled. These are the results of the solve before.")
        case "Refused":
            return qsTr("The last solve was not started: %1. These are the results of the solve before.")
                   .arg(Controller.lastRunText)
        default:
            return qsTr("The last solve failed: %1. These are the results of the solve before.")
                   .arg(Controller.lastRunText)
        }
    }

    visible: follower.running || _endedBadly || nodeError !== "" || _locksWait || _setupWaits || Controller.resultStalled
    spacing: theme.spaceXs

    Connections {
        function onLastRunChanged() {
            ++root._runRevision
        }

        target: Controller
    }

    NoticeStrip {
        Layout.fillWidth: true
        visible: root.follower.running
        accentColor: root.theme.success
        progress: root.follower.progressWheelValue
        text: qsTr("Solving. These are the results of the solve before, until the new ones are there. %1")
              .arg(root.follower.shownStatus)

        SmallButton {
            text: qsTr("Cancel")
            onClicked: Controller.cancelSolve()
        }
    }

    NoticeStrip {
        Layout.fillWidth: true
        visible: root._endedBadly
        accentColor: root.theme.warn
        text: root._endedBadly ? root._lastRunLine() : ""

        SmallButton {
            text: qsTr("OK")
            onClicked: root._readRevision = root._runRevision
        }
    }

    NoticeStrip {
        Layout.fillWidth: true
        visible: root.nodeError !== ""
        accentColor: root.theme.danger
        text: qsTr("Figures of this node are missing: %1").arg(root.nodeError)
    }

    NoticeStrip {
        Layout.fillWidth: true
        visible: root._locksWait
        accentColor: root.theme.warn
        text: Controller.lockCount > 0
              ? qsTr("The node locks (%1) are not solved yet. At their nodes the grid, the buckets and the hands show a preview; all other figures are those from before.")
                .arg(Controller.lockCount)
              : qsTr("The node locks of this result were removed. It still shows the solve with them.")

        SmallButton {
            text: qsTr("Re-solve")
            onClicked: Controller.reSolveWithNodeLocks()
        }
    }

    NoticeStrip {
        Layout.fillWidth: true
        visible: Controller.resultStalled
        accentColor: root.theme.warn
        text: qsTr("The node locks keep the exploitability from falling any further. The solve ended above its target.")
    }

    NoticeStrip {
        Layout.fillWidth: true
        visible: root._setupWaits
        text: qsTr("Setup has changed since this solve")

        SmallButton {
            text: qsTr("Solve again")
            onClicked: root.solveAgainRequested()
        }

        SmallButton {
            text: qsTr("Take back the setup of this result")
            onClicked: root.setupWanted()
        }
    }
}

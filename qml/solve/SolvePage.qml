import QtQuick
import QtQuick.Layouts
import Velmora

/// Shows the spot about to be solved, starts and cancels the solve, and follows it.
ScrollPage {
    id: root

    required property ProjectState project
    required property bool canSolve
    required property SolveFollower follower

    signal goToResults
    signal solveRequested

    RunHistory {
        id: history

    }

    SolveClock {
        id: clock

        running: root.follower.running
        currentIteration: root.follower.currentIteration
        maxIterations: root.follower.maxIterations
    }

    SectionHeader {
        Layout.fillWidth: true
        title: qsTr("Solve")
        subtitle: qsTr("Run the CFR solver and monitor progress in real-time.")
        badge: root.follower.isFinalizing ? qsTr("Finalizing")
               : root.follower.running ? qsTr("Running") : qsTr("Ready")
        badgeColor: root.follower.isFinalizing ? root.theme.warn
                    : root.follower.running ? root.theme.success : root.theme.textMuted
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: 20

        ColumnLayout {
            Layout.fillWidth: true
            Layout.preferredWidth: 40
            Layout.alignment: Qt.AlignTop
            spacing: 20

            ConfigurationCard {
                Layout.fillWidth: true
                project: root.project
                running: root.follower.running
                canSolve: root.canSolve
                runComplete: root.follower.runComplete
                onStartRequested: root.solveRequested()
                onCancelRequested: Controller.cancelSolve()
                onResultsRequested: root.goToResults()
            }

            ComputeCard {
                Layout.fillWidth: true
                project: root.project
                systemThreadCount: Controller.systemThreadCount
                enabled: !root.follower.running
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            Layout.preferredWidth: 60
            Layout.alignment: Qt.AlignTop
            spacing: 20

            ProgressCard {
                Layout.fillWidth: true
                follower: root.follower
                clock: clock
            }

            RecentRunsCard {
                Layout.fillWidth: true
                history: history
            }
        }
    }
}

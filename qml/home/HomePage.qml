import QtQuick
import QtQuick.Layouts
import Velmora

/// The first page: the ways into a solve, and what this machine offers.
ScrollPage {
    id: root

    required property bool filesBusy
    property var solveActivityGrid: []
    property var playVsSolutionStats: ({})

    signal newProject
    signal quickSolve
    signal importRange
    signal saveRequested
    signal openRequested

    function reloadSolveActivity() {
        solveActivityGrid = Controller.solveActivityGridLastYear()
    }

    function reloadPlayVsSolutionStats() {
        playVsSolutionStats = Controller.playVsSolutionStats()
    }

    Component.onCompleted: {
        reloadSolveActivity()
        reloadPlayVsSolutionStats()
    }

    // Another day may have begun since the page showed last.
    onVisibleChanged: {
        if (visible) {
            reloadSolveActivity()
            reloadPlayVsSolutionStats()
        }
    }

    Connections {
        function onSolveStatsChanged() {
            root.reloadSolveActivity()
        }

        function onPlayVsSolutionStatsChanged() {
            root.reloadPlayVsSolutionStats()
        }

        target: Controller
    }

    HeroBand {
        Layout.fillWidth: true
        Layout.preferredHeight: 180
        busy: root.filesBusy
        progress: Controller.fileProgress
        onNewProject: root.newProject()
        onSaveRequested: root.saveRequested()
        onOpenRequested: root.openRequested()
    }

    GridLayout {
        Layout.fillWidth: true
        columns: 2
        columnSpacing: 20
        rowSpacing: 20

        QuickActionsCard {
            Layout.preferredWidth: 320
            Layout.fillHeight: true
            Layout.rowSpan: 2
            onNewProject: root.newProject()
            onQuickSolve: root.quickSolve()
            onImportRange: root.importRange()
        }

        TrainerStatsCard {
            Layout.fillWidth: true
            Layout.fillHeight: true
            stats: root.playVsSolutionStats
            onClearRequested: Controller.clearPlayVsSolutionStats()
        }

        SystemCard {
            Layout.fillWidth: true
        }
    }

    SolveActivityCard {
        Layout.fillWidth: true
        cells: root.solveActivityGrid
    }
}

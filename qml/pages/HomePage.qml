import QtQuick
import QtQuick.Layouts
import Velmora

/// The first page: the ways into a solve, and what this machine offers.
ScrollPage {
    id: root

    required property var controller
    property var projectStateProvider
    property var solveActivityGrid: []
    property var playVsSolutionStats: ({})

    signal newProject
    signal quickSolve
    signal importRange
    signal projectLoaded(var projectState, bool hasResults)

    function reloadSolveActivity() {
        solveActivityGrid = controller.solveActivityGridLastYear()
    }

    function reloadPlayVsSolutionStats() {
        playVsSolutionStats = controller.playVsSolutionStats()
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

        target: root.controller
    }

    ProjectFiles {
        id: files

        visible: false
        theme: root.theme
        type: root.type
        controller: root.controller
        onStateWanted: file => save(file, root.projectStateProvider())
        onProjectLoaded: (projectState, hasResults) => root.projectLoaded(projectState, hasResults)
    }

    HeroBand {
        Layout.fillWidth: true
        Layout.preferredHeight: 180
        theme: root.theme
        type: root.type
        busy: files.busy
        progress: root.controller.fileProgress
        onNewProject: root.newProject()
        onSaveRequested: files.chooseFileToSave()
        onOpenRequested: files.chooseFileToOpen()
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
            theme: root.theme
            type: root.type
            onNewProject: root.newProject()
            onQuickSolve: root.quickSolve()
            onImportRange: root.importRange()
        }

        TrainerStatsCard {
            Layout.fillWidth: true
            Layout.fillHeight: true
            theme: root.theme
            type: root.type
            stats: root.playVsSolutionStats
            onClearRequested: root.controller.clearPlayVsSolutionStats()
        }

        SystemCard {
            Layout.fillWidth: true
            theme: root.theme
            type: root.type
            controller: root.controller
        }
    }

    SolveActivityCard {
        Layout.fillWidth: true
        theme: root.theme
        type: root.type
        cells: root.solveActivityGrid
    }
}

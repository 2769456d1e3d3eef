import QtQuick
import QtQuick.Layouts
import Velmora

/// The first page: the ways into a solve, and what this machine offers.
ScrollPage {
    id: root

    required property var controller
    property var projectStateProvider

    signal newProject
    signal quickSolve
    signal importRange
    signal projectLoaded(var projectState, bool hasResults)

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

        RoomCard {
            Layout.fillWidth: true
            Layout.fillHeight: true
            theme: root.theme
            type: root.type
            iconName: "gamepad"
            title: qsTr("Play vs. Solution")
            note: qsTr("No hands played yet.")
        }

        SystemCard {
            Layout.fillWidth: true
            theme: root.theme
            type: root.type
            controller: root.controller
        }
    }

    RoomCard {
        Layout.fillWidth: true
        theme: root.theme
        type: root.type
        iconName: "calendar"
        title: qsTr("Solve Activity")
        note: root.controller.resultIterations > 0
              ? qsTr("Last solve: %1").arg(root.controller.resultsSummary)
              : qsTr("No solve in this session yet.")
    }
}

import QtQuick
import QtQuick.Dialogs
import Velmora
import "../../logic/file_url.js" as FileUrl

/// Saves the project to a file and opens one, each by a file dialog. A failure is told in a message.
Item {
    id: root

    property Theme theme: Fallback.theme
    property Typography type: Fallback.type
    required property var controller
    readonly property bool busy: controller.fileProgress >= 0

    readonly property var _filters: [qsTr("Velmora Project (*.velmoraproj)"), qsTr("JSON (*.json)"), qsTr("All Files (*)")]

    /// A file to save to was chosen.
    signal stateWanted(url file)
    signal projectLoaded(var projectState, bool hasResults)

    function chooseFileToSave() {
        saveDialog.open()
    }

    function chooseFileToOpen() {
        openDialog.open()
    }

    function save(file: url, projectState: var) {
        controller.saveProjectInBackground(file, projectState)
    }

    Connections {
        function onProjectSaved(ok: bool, error: string) {
            if (!ok) {
                console.warn("Save failed:", saveDialog.selectedFile)
                fault.title = qsTr("Save Project")
                fault.report(error)
            }
        }

        function onProjectLoaded(answer: var) {
            if (answer.ok) {
                root.projectLoaded(answer.project, answer.hasResults)
                return
            }
            console.warn("Load failed:", answer.error || "unknown")
            fault.title = qsTr("Open Project")
            fault.report(answer.error || qsTr("unknown error"))
        }

        target: root.controller
    }

    FileDialog {
        id: saveDialog

        title: qsTr("Save Project")
        fileMode: FileDialog.SaveFile
        acceptLabel: qsTr("Save")
        defaultSuffix: "velmoraproj"
        nameFilters: root._filters
        onAccepted: root.stateWanted(FileUrl.ofLocalFile(selectedFile))
    }

    FileDialog {
        id: openDialog

        title: qsTr("Open Project")
        nameFilters: root._filters
        onAccepted: root.controller.loadProjectInBackground(FileUrl.ofLocalFile(selectedFile))
    }

    MessageBox {
        id: fault

        theme: root.theme
        type: root.type
    }
}

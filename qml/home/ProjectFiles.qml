import QtQuick
import Velmora
import "../components/file_url.js" as FileUrl

/// Saves the project to a file and opens one, by file dialogs where a name is needed. It knows the
/// file that the project belongs to. Success and failure are both reported.
Item {
    id: root

    required property ProjectState project
    /// The file name that a project without one is offered, without its ending.
    property string suggestedName: ""
    /// The file of the project at hand; empty until it is saved or opened.
    property url currentFile
    readonly property string currentName: FileUrl.baseName(currentFile, ".velmoraproj")
    readonly property bool busy: Controller.fileProgress >= 0

    readonly property var _filters: [qsTr("Velmora Project (*.velmoraproj)"), qsTr("JSON (*.json)"), qsTr("All Files (*)")]
    /// The file that is being saved, what it gets, and what is to be done after that.
    property url _pendingFile
    property var _savedState: null
    property var _afterSave: null

    /// A file stands on disk that holds `projectState`.
    signal saved(string name, var projectState)
    signal projectLoaded(var projectState, bool hasResults)

    /// Saves to the file of the project, or asks for one. `then` is called once it is saved.
    function save(then: var) {
        _afterSave = then ?? null
        if (String(currentFile) !== "")
            _saveTo(currentFile)
        else
            saveDialog.openWith(suggestedName)
    }

    function saveAs() {
        _afterSave = null
        saveDialog.openWith(currentName || suggestedName)
    }

    function chooseFileToOpen() {
        openDialog.open()
    }

    function open(file: url) {
        Controller.loadProjectInBackground(file)
    }

    /// The project at hand has no file any more.
    function forgetFile() {
        currentFile = ""
    }

    function _saveTo(file: url) {
        _pendingFile = file
        _savedState = project.exportProjectState()
        Controller.saveProjectInBackground(file, _savedState)
    }

    Connections {
        function onProjectSaved(ok: bool, error: string) {
            if (root._savedState === null)
                return
            const [then, state] = [root._afterSave, root._savedState]
            root._afterSave = root._savedState = null
            if (ok) {
                root.currentFile = root._pendingFile
                root.saved(root.currentName, state)
                if (then)
                    then()
                return
            }
            console.warn("Save failed:", root._pendingFile)
            fault.title = qsTr("Save Project")
            fault.report(error)
        }

        function onProjectLoaded(answer: var) {
            if (answer.ok) {
                root.currentFile = answer.file ?? ""
                root.projectLoaded(answer.project, answer.hasResults)
                return
            }
            console.warn("Load failed:", answer.error || "unknown")
            fault.title = qsTr("Open Project")
            fault.report(answer.error || qsTr("unknown error"))
        }

        target: Controller
    }

    FileChooser {
        id: saveDialog

        function openWith(name: string) {
            if (name !== "")
                selectedFile = FileUrl.inFolder(currentFolder, name + ".velmoraproj")
            open()
        }

        title: qsTr("Save Project")
        fileMode: FileChooser.SaveFile
        acceptLabel: qsTr("Save")
        defaultSuffix: "velmoraproj"
        nameFilters: root._filters
        onAccepted: root._saveTo(FileUrl.ofLocalFile(selectedFile))
        onRejected: root._afterSave = null
    }

    FileChooser {
        id: openDialog

        title: qsTr("Open Project")
        nameFilters: root._filters
        onAccepted: root.open(FileUrl.ofLocalFile(selectedFile))
    }

    MessageBox {
        id: fault
    }
}

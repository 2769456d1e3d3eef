import QtQuick
import Velmora
import "../../components/file_url.js" as FileUrl

/// Brings a range from a text file to the user's own ranges: asks for the file, then for a name.
Item {
    id: root

    required property RangeLibraries libraries

    property string _seat: "oop"
    property string _rangeText: ""

    /// Asks for a file, for the ranges of both seats. `focusPlayer` is the seat that wants it, "oop"
    /// or "ip".
    function start(focusPlayer: string) {
        _seat = focusPlayer === "ip" ? "ip" : "oop"
        fileDialog.open()
    }

    /// Reads a file and asks how to call what is in it.
    function read(file: url) {
        const { ok, text, error } = Controller.readTextFile(file)
        const range = ok ? RangeText.imported(text) : ""
        const fault = ok ? RangeText.fault(range) : error || qsTr("unknown error")
        _rangeText = fault === "" ? range : ""
        nameDialog.fault = fault !== "" ? qsTr("Import failed: %1").arg(fault)
                    : _rangeText === "" ? qsTr("Import failed: file contained no recognizable hands.") : ""
        nameDialog.ask(FileUrl.baseName(file, ".txt"))
    }

    FileChooser {
        id: fileDialog

        title: qsTr("Import Range")
        nameFilters: [qsTr("Range text (*.txt)"), qsTr("All Files (*)")]
        onAccepted: root.read(FileUrl.ofLocalFile(selectedFile))
    }

    NameDialog {
        id: nameDialog

        title: qsTr("Import Range")
        prompt: qsTr("Name this range:")
        placeholder: qsTr("e.g., BTN open (custom)")
        acceptText: qsTr("Import")
        canAccept: name.trim() !== "" && root._rangeText !== ""
        onNameChosen: name => finish(root.libraries.commitImportRange(root._seat, name, root._rangeText))
    }
}

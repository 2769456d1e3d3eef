import QtQuick
import QtQuick.Layouts
import Velmora
import "range_library_tree.js" as Tree

/// What a user can do with their own ranges: save, import, sort into folders, delete.
ColumnLayout {
    id: root

    property Theme theme: Style.theme
    required property SeatLibrary library
    required property string rangeText

    readonly property bool _oop: library.seat === "oop"

    signal importRequested

    function openSaveRangeDialog() {
        saveDialog.rangeText = rangeText
        saveDialog.ask()
    }

    function openDeleteSelectedDialog() {
        const node = library.selectedNode
        if (!node)
            return
        const inside = Tree.countDescendants(node)
        deleteDialog.question = Tree.isFolder(node) ? qsTr("Are you sure you want to delete this folder?")
                                                    : qsTr("Are you sure you want to delete this range?")
        deleteDialog.name = node.name
        deleteDialog.note = inside > 0 ? qsTr("This will also delete %1 range(s). This cannot be undone.").arg(inside)
                                       : qsTr("This cannot be undone.")
        deleteDialog.open()
    }

    spacing: theme.spaceXs

    SmallButton {
        Layout.fillWidth: true
        text: qsTr("Save current range…")
        enabled: root.rangeText.trim() !== ""
        onClicked: root.openSaveRangeDialog()
    }

    SmallButton {
        Layout.fillWidth: true
        text: qsTr("Import range…")
        onClicked: root.importRequested()
    }

    SmallButton {
        Layout.fillWidth: true
        text: qsTr("Add folder…")
        onClicked: folderDialog.ask()
    }

    SmallButton {
        Layout.fillWidth: true
        text: qsTr("Delete selected…")
        enabled: root.library.selectedId !== ""
        danger: enabled
        onClicked: root.openDeleteSelectedDialog()
    }

    NameDialog {
        id: saveDialog

        property string rangeText: ""

        title: root._oop ? qsTr("Save OOP range") : qsTr("Save IP range")
        prompt: qsTr("Name this range:")
        placeholder: qsTr("e.g., BTN vs BB (default)")
        onNameChosen: name => finish(root.library.commitSaveRange(name, rangeText))
    }

    NameDialog {
        id: folderDialog

        title: root._oop ? qsTr("Add folder (OOP)") : qsTr("Add folder (IP)")
        prompt: qsTr("Folder name:")
        placeholder: qsTr("e.g., BTN vs BB")
        acceptText: qsTr("Add")
        onNameChosen: name => finish(root.library.commitAddFolder(name))
    }

    DeleteDialog {
        id: deleteDialog

        title: qsTr("Delete range")
        onConfirmed: root.library.deleteSelectedItem()
    }
}

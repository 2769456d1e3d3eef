pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Qt.labs.folderlistmodel
import Velmora
import "file_choice.js" as FileChoice

/// Chooses a file to open or to save to, with the face of Qt's FileDialog. Windows and macOS have a
/// dialog of their own; elsewhere a desktop may have none, and Qt's stand-in neither follows the theme
/// nor asks before it overwrites, so there the window draws this one.
Item {
    id: root

    enum FileMode { OpenFile, SaveFile }

    property Theme theme: Style.theme
    property Typography type: Style.type
    property string title: ""
    property int fileMode: FileChooser.OpenFile
    property string acceptLabel: ""
    property string defaultSuffix: ""
    property list<string> nameFilters
    /// The folder that shows. It starts with the user's documents.
    property url currentFolder: _places.find(place => place.key === "documents")?.url ?? _home
    /// The chosen file; set before `open`, what a dialog for saving starts from.
    property url selectedFile

    readonly property var _places: Array.from(Controller.standardFolders())
    readonly property url _home: _places[0]?.url ?? "file:///"
    readonly property bool _saving: fileMode === FileChooser.SaveFile
    readonly property bool _native: Qt.platform.os === "windows" || Qt.platform.os === "osx"

    signal accepted
    signal rejected

    function open() {
        if (_native) {
            nativeDialog.item.selectedFile = selectedFile
            nativeDialog.item.open()
            return
        }
        const file = String(selectedFile)
        if (_saving && file !== "") {
            currentFolder = FileChoice.parent(file)
            nameField.text = FileChoice.name(file)
        } else {
            nameField.text = ""
        }
        note.fault = ""
        dialog.open()
    }

    function _placeName(key: string): string {
        switch (key) {
        case "documents":
            return qsTr("Documents")
        case "desktop":
            return qsTr("Desktop")
        case "downloads":
            return qsTr("Downloads")
        default:
            return qsTr("Home")
        }
    }

    function _show(folder: url) {
        currentFolder = folder
        note.fault = ""
        list.currentIndex = -1
    }

    /// Takes what the name field says, or the row of the list: a folder is entered, a file is chosen.
    function _take() {
        const typed = nameField.text.trim()
        if (typed === "") {
            if (list.currentIndex >= 0)
                _enterRow(list.currentIndex)
            return
        }
        const typedFile = FileChoice.resolve(currentFolder, typed, _home)
        if (Controller.fileKind(typedFile) === "folder") {
            nameField.text = ""
            _show(typedFile)
            return
        }
        const file = _saving ? FileChoice.parent(typedFile) + "/" + encodeURIComponent(FileChoice.withEnding(
            FileChoice.name(typedFile), Array.from(nameFilters), filterBox.currentIndex, defaultSuffix)) : typedFile
        const there = Controller.fileKind(file) === "file"
        if (_saving && there)
            overwrite.ask(file)
        else if (_saving && Controller.fileKind(FileChoice.parent(file)) !== "folder")
            note.fault = qsTr("There is no folder “%1”.").arg(FileChoice.path(FileChoice.parent(file)))
        else if (_saving || there)
            _accept(file)
        else
            note.fault = qsTr("There is no file “%1” here.").arg(typed)
    }

    function _accept(file: url) {
        selectedFile = file
        currentFolder = FileChoice.parent(file)
        dialog.settled = true
        dialog.close()
        accepted()
    }

    /// A row of the list: a folder is entered, a file is taken.
    function _enterRow(index: int) {
        if (index < 0 || index >= folder.count)
            return
        if (folder.get(index, "fileIsDir")) {
            _show(folder.get(index, "fileUrl"))
            list.forceActiveFocus()
        } else {
            nameField.text = folder.get(index, "fileName")
            _take()
        }
    }

    FolderListModel {
        id: folder

        folder: root.currentFolder
        nameFilters: FileChoice.patterns(root.nameFilters[filterBox.currentIndex] ?? "")
        showDirsFirst: true
        caseSensitive: false
        sortCaseSensitive: false
    }

    Loader {
        id: nativeDialog

        active: root._native
        sourceComponent: FileDialog {
            title: root.title
            fileMode: root._saving ? FileDialog.SaveFile : FileDialog.OpenFile
            acceptLabel: root.acceptLabel
            defaultSuffix: root.defaultSuffix
            nameFilters: Array.from(root.nameFilters)
            currentFolder: root.currentFolder
            onAccepted: {
                root.selectedFile = selectedFile
                root.accepted()
            }
            onRejected: root.rejected()
        }
    }

    AppDialog {
        id: dialog

        property bool settled: false

        title: root.title
        width: Math.min(760, (parent?.width ?? 0) - 2 * margins)
        height: Math.min(560, (parent?.height ?? 0) - 2 * margins)
        onAboutToShow: settled = false
        onOpened: {
            const start = root._saving ? nameField : list
            start.forceActiveFocus(Qt.TabFocusReason)
            // The name without its ending, which is what one types over.
            if (root._saving)
                nameField.select(0, nameField.text.replace(/\.[^.]*$/, "").length)
        }
        onClosed: {
            if (!settled)
                root.rejected()
        }

        ColumnLayout {
            anchors.fill: parent
            spacing: root.theme.spaceSm

            RowLayout {
                Layout.fillWidth: true
                spacing: root.theme.spaceXs

                Repeater {
                    model: root._places.length

                    SmallButton {
                        required property int index

                        text: root._placeName(root._places[index].key)
                        iconName: root._places[index].key === "home" ? "home" : "folder-open"
                        onClicked: root._show(root._places[index].url)
                    }
                }

                Item {
                    Layout.fillWidth: true
                }

                SmallButton {
                    text: "↑ " + qsTr("Up")
                    enabled: String(FileChoice.parent(root.currentFolder)) !== String(root.currentFolder)
                    onClicked: root._show(FileChoice.parent(root.currentFolder))
                }
            }

            Label {
                Layout.fillWidth: true
                text: FileChoice.path(root.currentFolder)
                color: root.theme.textMuted
                elide: Text.ElideLeft
                font.pixelSize: root.type.labelMd
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Rectangle {
                Layout.fillWidth: true
                Layout.fillHeight: true
                radius: root.theme.radiusSm
                color: root.theme.surface2
                border.color: list.activeFocus ? root.theme.strokeFocus : root.theme.stroke

                FileList {
                    id: list

                    anchors.fill: parent
                    anchors.margins: root.theme.spaceXs
                    model: folder
                    onRowChosen: index => {
                        if (!folder.get(index, "fileIsDir"))
                            nameField.text = folder.get(index, "fileName")
                    }
                    onRowEntered: index => root._enterRow(index)
                    onUpWanted: root._show(FileChoice.parent(root.currentFolder))
                }

                Label {
                    anchors.centerIn: parent
                    visible: folder.count === 0 && folder.status === FolderListModel.Ready
                    text: qsTr("Nothing to choose here.")
                    color: root.theme.textMuted
                    font.pixelSize: root.type.bodySm
                }
            }

            RowLayout {
                Layout.fillWidth: true
                spacing: root.theme.spaceSm

                InputField {
                    id: nameField

                    Layout.fillWidth: true
                    label: qsTr("File name")
                    placeholderText: label
                    onTextEdited: note.fault = ""
                    onAccepted: root._take()
                    Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
                }

                ChoiceBox {
                    id: filterBox

                    Layout.preferredWidth: 280
                    label: qsTr("File type")
                    model: root.nameFilters
                }
            }

            Label {
                id: note

                property string fault: ""

                Layout.fillWidth: true
                text: fault
                visible: fault !== ""
                color: root.theme.danger
                font.pixelSize: root.type.labelMd
                wrapMode: Text.Wrap
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }
        }

        footerButtons: [
            SecondaryButton {
                text: qsTr("Cancel")
                onClicked: dialog.close()
            },
            PrimaryButton {
                text: root.acceptLabel !== "" ? root.acceptLabel : root._saving ? qsTr("Save") : qsTr("Open")
                enabled: nameField.text.trim() !== "" || list.currentIndex >= 0
                onClicked: root._take()
            }
        ]
    }

    AppDialog {
        id: overwrite

        property url file

        function ask(file: url) {
            overwrite.file = file
            open()
        }

        title: qsTr("Replace file?")
        width: Math.min(440, (parent?.width ?? 0) - 2 * margins)

        Label {
            width: parent.width
            text: qsTr("“%1” is there already. Saving replaces what it holds.").arg(FileChoice.name(overwrite.file))
            color: root.theme.text
            font.pixelSize: root.type.bodyMd
            wrapMode: Text.Wrap
        }

        footerButtons: [
            SecondaryButton {
                text: qsTr("Keep it")
                focus: true
                onClicked: overwrite.close()
            },
            SecondaryButton {
                text: qsTr("Replace")
                danger: true
                onClicked: {
                    overwrite.close()
                    root._accept(overwrite.file)
                }
            }
        ]
    }
}

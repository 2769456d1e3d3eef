import QtQuick
import QtTest
import "find.js" as Find
import "../../qml/components/file_choice.js" as FileChoice

/// Files are chosen by a dialog that the window draws itself.
MainWindowCase {
    id: root

    name: "FileChooser"

    readonly property Item overlay: window?.contentItem.parent ?? null
    readonly property string folder: FileChoice.path(testFolder)

    SignalSpy {
        id: saved

        target: root.controller ?? null
        signalName: "projectSaved"
    }

    SignalSpy {
        id: opened

        target: root.controller ?? null
        signalName: "projectLoaded"
    }

    function type(text: string) {
        keyClick(Qt.Key_A, Qt.ControlModifier)
        for (const character of text)
            keyClick(character)
    }

    function nameField(): Item {
        return Find.fields(overlay, "File name")[0]
    }

    function openChooser(key: int, modifiers: int, title: string) {
        tryVerify(() => !Find.text(overlay, title))
        keyClick(key, modifiers)
        tryVerify(() => Find.text(overlay, title) && nameField())
        wait(200)
    }

    function test_typed_names_data() {
        return [
            { tag: "a name", typed: "x y.json", address: "file:///a/b/x%20y.json" },
            { tag: "a path from here", typed: "c/../d", address: "file:///a/b/d" },
            { tag: "a path from the root", typed: "/etc/50%", address: "file:///etc/50%25" },
            { tag: "the root", typed: "/", address: "file:///" },
            { tag: "beyond the root", typed: "../../../x", address: "file:///x" },
            { tag: "home", typed: "~", address: "file:///home/u" },
            { tag: "a path from home", typed: "~/d", address: "file:///home/u/d" }
        ]
    }

    function test_typed_names(data) {
        compare(FileChoice.resolve("file:///a/b/", data.typed, "file:///home/u"), data.address)
    }

    function test_endings_data() {
        const filters = ["Project (*.velmoraproj)", "JSON (*.json)", "All Files (*)"]
        return [
            { tag: "a dot in the name", name: "spot v1.2", filters: filters, chosen: 0, full: "spot v1.2.velmoraproj" },
            { tag: "an ending of another filter", name: "a.JSON", filters: filters, chosen: 0, full: "a.JSON" },
            { tag: "the chosen filter", name: "a", filters: filters, chosen: 1, full: "a.json" },
            { tag: "all files", name: "a.txt", filters: filters, chosen: 2, full: "a.txt" },
            { tag: "all files, no ending", name: "a", filters: filters, chosen: 2, full: "a.velmoraproj" }
        ]
    }

    function test_endings(data) {
        compare(FileChoice.withEnding(data.name, data.filters, data.chosen, "velmoraproj"), data.full)
    }

    function test_saving_asks_before_it_overwrites() {
        setRiverSpot()
        openChooser(Qt.Key_S, Qt.ControlModifier | Qt.ShiftModifier, "Save Project")
        const save = () => Find.all(overlay, item => item.text === "Save" && item.clicked !== undefined
                                    && item.Accessible && item.contentColor !== undefined).pop()
        verify(nameField().activeFocus && nameField().text !== "")
        type(" ")
        verify(!save().enabled)
        type(folder + "/nowhere/kept")
        verify(save().enabled)
        keyClick(Qt.Key_Return)
        verify(Find.text(overlay, "There is no folder “" + folder + "/nowhere”."))
        type(folder + "/kept")
        saved.clear()
        keyClick(Qt.Key_Return)
        tryCompare(saved, "count", 1, 10000)
        const file = testFolder + "/kept.velmoraproj"
        compare(controller.fileKind(file), "file")

        verify(controller.saveTextFile(file, "precious").ok)
        openChooser(Qt.Key_S, Qt.ControlModifier | Qt.ShiftModifier, "Save Project")
        type("kept")
        keyClick(Qt.Key_Return)
        tryVerify(() => Find.text(overlay, "Replace file?"))
        wait(200)
        mouseClick(Find.button(overlay, "Keep it"))
        tryVerify(() => !Find.text(overlay, "Replace file?"))
        compare(controller.readTextFile(file).text, "precious")
        keyClick(Qt.Key_Return)
        tryVerify(() => Find.text(overlay, "Replace file?"))
        wait(200)
        mouseClick(Find.button(overlay, "Replace"))
        tryCompare(saved, "count", 2, 10000)
        verify(controller.readTextFile(file).text !== "precious")
    }

    function test_opening_by_keyboard() {
        verify(controller.saveTextFile(testFolder + "/notes.txt", "n").ok)
        setRiverSpot()
        project.startingPot = 77
        saved.clear()
        controller.saveProjectInBackground(testFolder + "/zebra.velmoraproj", shell.exportProjectState())
        tryCompare(saved, "count", 1, 10000)
        verify(saved.signalArguments[0][0])
        shell.resetToStartupBlank()
        shell.requestPage(0)
        openChooser(Qt.Key_O, Qt.ControlModifier, "Open Project")
        const list = Find.withProperties(overlay, "rowEntered", "model")
        verify(list.activeFocus)
        mouseClick(nameField())
        type(folder)
        keyClick(Qt.Key_Return)
        tryVerify(() => list.count > 0)
        compare(nameField().text, "")
        // The filter leaves other files out.
        verify(!Find.text(list, "notes.txt"))
        type("lion")
        keyClick(Qt.Key_Return)
        verify(Find.text(overlay, "There is no file “lion” here."))
        keyClick(Qt.Key_Down)
        verify(list.activeFocus)
        for (const character of "zeb")
            keyClick(character)
        compare(nameField().text, "zebra.velmoraproj")
        opened.clear()
        keyClick(Qt.Key_Return)
        tryCompare(opened, "count", 1, 10000)
        compare(project.startingPot, 77)
        // Escape chooses nothing.
        openChooser(Qt.Key_O, Qt.ControlModifier, "Open Project")
        keyClick(Qt.Key_Escape)
        tryVerify(() => !Find.text(overlay, "Open Project"))
        compare(opened.count, 1)
    }
}

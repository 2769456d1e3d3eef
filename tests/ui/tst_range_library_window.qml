import QtQuick
import QtTest
import "find.js" as Find

/// The libraries of both seats in the real window, by mouse and keyboard.
MainWindowCase {
    id: root

    name: "RangeLibraryWindow"

    function column(seat: string): Item {
        return Find.all(page(), item => item.libraries && item.library && item.developerMode !== undefined
                                        && item.library.seat === seat)[0]
    }

    function rows(seat: string): string {
        return column(seat).library.rows.map(row => "-".repeat(row.depth) + row.name).join(", ")
    }

    function row(seat: string, name: string): Item {
        return Find.all(column(seat), item => item.entry && item.text === name)[0]
    }

    function clickRows(seat, ...names) {
        for (const name of names)
            click(row(seat, name))
    }

    function press(seat: string, text: string) {
        const button = Find.button(column(seat), text)
        verify(button?.enabled, text)
        click(button)
    }

    function dialog(title: string): var {
        return Find.all(window.contentItem.parent, item => item.text === title && item.elide !== undefined)[0]?.parent
    }

    /// Answers the dialog of a title, with a name if it wants one.
    function answer(title: string, button: string, typed = "") {
        tryVerify(() => dialog(title))
        wait(150)
        for (const character of typed)
            keyClick(character)
        mouseClick(Find.button(dialog(title), button))
        tryVerify(() => !dialog(title))
    }

    /// What of a file's rows has a name, whatever the file is.
    function bundled(seat: string, name: string): string {
        const file = JSON.parse(controller.readTextResource(":/Velmora/qml/data/standard_ranges.json"))
        return file[seat].standard.find(entry => entry.name.replace("No rake / ", "") === name).value
    }

    function test_choosing_from_the_libraries() {
        clickButton("New Solve")
        press("oop", "Standard Ranges")
        compare(rows("oop"), "6-max, Heads up")
        compare(project.oopRangeText, "")
        clickRows("oop", "6-max", "No rake", "RFI", "UTG")
        compare(project.oopRangeText, bundled("oop", "RFI UTG"))
        compare(project.ipRangeText, "")
        // By keyboard: the list is one stop; arrows walk it, open and close.
        for (const key of [Qt.Key_Up, Qt.Key_Left])
            keyClick(key)
        compare(rows("oop"), "6-max, -No rake, --RFI, --vs RFI, --vs 3bet, --vs 4bet")
        keyClick(Qt.Key_Escape)
        compare(column("oop").library.selectedId, "")
        keyClick(Qt.Key_Home)
        keyClick(Qt.Key_Return)
        compare(rows("oop"), "6-max, Heads up")
        keyClick(Qt.Key_Delete)
        verify(!dialog("Delete range"))
        press("ip", "Population Ranges")
        clickRows("ip", "Other", "Bomb pot")
        compare(project.ipRangeText, "100%")
        compare(rows("ip"), "Other, -Bomb pot")
        // Another category shows nothing open and leaves the range alone.
        press("oop", "Custom Ranges")
        compare(column("oop").library.selectedId, "")
        compare(project.oopRangeText, bundled("oop", "RFI UTG"))
        verify(!Find.button(column("ip"), "Override"))
    }

    function test_saving_importing_and_deleting() {
        clickButton("New Solve")
        verify(!Find.button(column("oop"), "Save current range…").enabled)
        verify(!Find.button(column("oop"), "Delete selected…").enabled)
        project.oopRangeText = "AA"
        press("oop", "Save current range…")
        tryVerify(() => dialog("Save OOP range"))
        wait(150)
        keyClick(Qt.Key_Return)
        verify(Find.text(dialog("Save OOP range"), "Please enter a name."))
        answer("Save OOP range", "Save", "Foo")
        press("oop", "Add folder…")
        answer("Add folder (OOP)", "Add", "Bar")
        compare(rows("oop"), "Bar")
        project.oopRangeText = "KK"
        press("oop", "Save current range…")
        answer("Save OOP range", "Save", "Foo")
        press("oop", "Save current range…")
        answer("Save OOP range", "Save", "Foo")
        compare(rows("oop"), "Bar, -Foo, -Foo (2)")
        compare(rows("ip"), "")
        // On disk at once, as a program that dies now would leave it.
        const stored = controller.readTextFile(testFolder + "/DunmarrowTests/DunmarrowUiTests.conf").text
        verify(/oopCustomRangesJson=.*Foo \(2\)/.test(stored), stored)

        // A file comes to both seats; where it was asked for, beside the selection.
        const file = testFolder + "/BTN open.txt"
        verify(controller.saveTextFile(file, "QQ\r\nJJ:0.5 TT\n").ok)
        press("ip", "Population Ranges")
        const importer = Find.all(page(), item => item.read && item.start)[0]
        importer._seat = "oop"
        importer.read(file)
        tryVerify(() => dialog("Import Range"))
        answer("Import Range", "Import")
        compare(rows("oop"), "Bar, -Foo, -Foo (2), -BTN open")
        compare(rows("ip"), "BTN open")
        compare(column("ip").library.selectedId, "")
        compare(project.oopRangeText, "KK")
        compare(column("oop").library.selectedNode.name, "BTN open")
        importer.read(testFolder + "/nowhere.txt")
        tryVerify(() => dialog("Import Range"))
        verify(Find.text(dialog("Import Range"), "Import failed: File does not exist."))
        verify(!Find.button(dialog("Import Range"), "Import").enabled)
        answer("Import Range", "Cancel")

        // What comes after a deleted row takes its place, or what is before it.
        clickRows("oop", "BTN open")
        compare(project.oopRangeText, "QQ, JJ:0.5, TT")
        keyClick(Qt.Key_Delete)
        answer("Delete range", "Delete")
        compare(rows("oop"), "Bar, -Foo, -Foo (2)")
        compare(project.oopRangeText, "QQ, JJ:0.5, TT")
        // A text that the solve could not read is refused by name, not read in part.
        verify(controller.saveTextFile(file, "QQ\nJJx, TT").ok)
        importer.read(file)
        tryVerify(() => dialog("Import Range"))
        verify(Find.text(dialog("Import Range"), "Import failed: 'JJx': Invalid suitedness suffix"))
        verify(!Find.button(dialog("Import Range"), "Import").enabled)
        answer("Import Range", "Cancel")

        cleanup()
        init()
        clickButton("New Solve")
        compare(rows("oop"), "Foo, Bar")
        compare(rows("ip"), "BTN open")
        clickRows("oop", "Bar")
        press("oop", "Delete selected…")
        tryVerify(() => dialog("Delete range"))
        verify(Find.text(dialog("Delete range"), "This will also delete 2 range(s). This cannot be undone."))
        answer("Delete range", "Delete")
        // A seat keeps its range whatever happens in the library.
        compare(project.oopRangeText, "")
        for (const [seat, name] of [["oop", "Foo"], ["ip", "BTN open"]]) {
            clickRows(seat, name)
            const chosen = project[seat + "RangeText"]
            verify(chosen !== "")
            press(seat, "Delete selected…")
            answer("Delete range", "Delete")
            compare(rows(seat), "")
            compare(project[seat + "RangeText"], chosen)
        }
    }
}

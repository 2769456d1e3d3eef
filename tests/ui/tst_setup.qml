import QtQuick
import QtTest
import "find.js" as Find

/// The Setup page of the real window.
MainWindowCase {
    id: root

    name: "Setup"

    readonly property int step: 38

    function openNewProject() {
        clickButton("New Solve")
        compare(shell.navIndex, 1)
    }

    function matrix(index = 0): Item {
        return Find.all(page(), item => item.cellSize !== undefined && item.editable === true)[index]
    }

    /// The middle of a cell, in pixels of the matrix.
    function cell(row: int, column: int): point {
        return Qt.point(column * step + 18, row * step + 18)
    }

    function clickCell(item: Item, row: int, column: int) {
        const place = cell(row, column)
        mouseClick(item, place.x, place.y)
    }

    function dialog(title: string): var {
        const heading = Find.all(window.contentItem.parent, item => item.text === title && item.elide !== undefined)[0]
        return heading ? heading.parent : undefined
    }

    function clickInDialog(title: string, text: string) {
        tryVerify(() => dialog(title))
        wait(150)
        const button = Find.button(dialog(title), text)
        verify(button?.enabled, text)
        mouseClick(button)
    }

    function test_painting_and_typing_a_range() {
        openNewProject()
        const oop = matrix(0)
        page().reveal(oop)
        wait(50)
        // A drag from off cells paints what it passes; one from on cells clears that.
        mousePress(oop, cell(0, 0).x, cell(0, 0).y)
        mouseMove(oop, cell(0, 2).x, cell(0, 2).y)
        mouseRelease(oop, cell(0, 2).x, cell(0, 2).y)
        compare(project.oopRangeText, "AA, AKs, AQs")
        compare(project.ipRangeText, "")
        mousePress(oop, cell(0, 1).x, cell(0, 1).y)
        mouseMove(oop, cell(0, 3).x, cell(0, 3).y)
        mouseRelease(oop, cell(0, 3).x, cell(0, 3).y)
        compare(project.oopRangeText, "AA")
        // The weight of a newly painted hand counts from the keystroke on.
        click(field("Weight"))
        keyClick(Qt.Key_A, Qt.ControlModifier)
        keyClick("5")
        keyClick("0")
        clickCell(oop, 6, 6)
        compare(project.oopRangeText, "AA, 88:0.5")
        compare(oop.weights["88"], 0.5)
        clickCell(oop, 6, 6)
        compare(project.oopRangeText, "AA")
        // Typing shows at once, as the solve reads it.
        const text = field("OOP Range")
        typeInto(text, "54s-98s")
        compare(project.oopRangeText, "54s-98s")
        compare(Object.keys(oop.weights), ["54s", "65s", "76s", "87s", "98s"])
        // By keyboard: the matrix is one stop, its arrows walk the cells.
        oop.forceActiveFocus()
        oop.currentIndex = 0
        keyClick(Qt.Key_Right)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Space)
        compare(project.oopRangeText, "54s-98s, KK:0.5")
        const clear = Find.all(page(), item => item.text === "Clear" && item.clicked !== undefined)[0]
        click(clear)
        compare(project.oopRangeText, "")
        compare(text.text, "")
    }

    function test_numbers_are_held_to_their_range_data() {
        return [
            { tag: "pot of nothing", label: "Starting Pot", typed: "0", key: "startingPot", value: 1 },
            { tag: "no pot", label: "Starting Pot", typed: "", key: "startingPot", value: 100 },
            { tag: "too much", label: "Effective Stack", typed: "999999", key: "effectiveStack", value: 100000 },
            { tag: "rake", label: "Rake (%)", typed: "2.125", key: "rakePercent", value: 2.125 },
            { tag: "no rake", label: "Rake (%)", typed: "", key: "rakePercent", value: 0 },
            { tag: "target", label: "Target Exploitability (%)", typed: "", key: "targetExploitability", value: 0.1 }
        ]
    }

    function test_numbers_are_held_to_their_range(data) {
        openNewProject()
        typeInto(field(data.label), data.typed)
        compare(project[data.key], data.value)
        compare(field(data.label).text, String(data.value))
    }

    function test_a_shortcut_keeps_what_was_typed() {
        openNewProject()
        click(field("Starting Pot"))
        keyClick(Qt.Key_End)
        keyClick("7")
        keyClick(Qt.Key_1, Qt.ControlModifier)
        compare(shell.navIndex, 0)
        compare(project.startingPot, 1807)
    }

    function test_target_buttons_rewrite_the_field() {
        openNewProject()
        click(field("Target Exploitability (%)"))
        keyClick("7")
        clickButton("1%")
        compare(project.targetExploitability, 1)
        compare(field("Target Exploitability (%)").text, "1")
        clickButton("0.1%")
        compare(field("Target Exploitability (%)").text, "0.1")
    }

    function test_switches_and_the_jam_field() {
        openNewProject()
        const toggle = text => Find.all(page(), item => item.text === text && item.value !== undefined)[0]
        click(toggle("OOP Turn Don't donk"))
        click(toggle("IP River Add All-In"))
        verify(project.oopTurnDontDonk)
        verify(project.ipRiverAddAllIn)
        verify(!toggle("IP Turn Don't donk"))
        const jam = field("IP Add all-in if jam less than")
        verify(!jam.enabled)
        toggle("IP Add all-in if jam less than").forceActiveFocus()
        keyClick(Qt.Key_Space)
        verify(project.ipAddAllInIfJamLtEnabled)
        click(jam)
        keyClick(Qt.Key_A, Qt.ControlModifier)
        keyClick("4")
        compare(project.ipAddAllInIfJamLtPct, 4)
        keyClick("5")
        compare(project.ipAddAllInIfJamLtPct, 45)
        // A reset takes every switch and field along.
        shell.resetToNewProject()
        verify(!toggle("OOP Turn Don't donk").checked)
        verify(!toggle("IP Add all-in if jam less than").checked)
        compare(project.ipAddAllInIfJamLtPct, 0)
        compare(jam.text, "0")
    }

    function test_the_board_in_any_order() {
        openNewProject()
        project.boardText = "______Kd"
        verify(Find.text(page(), "Setup Required"))
        compare(project.startingStreet, "flop")
        verify(!shell._canSolveBase)
        project.boardText = "AsKd7h2c9s"
        compare(project.startingStreet, "river")
        // The picker by keyboard: it opens on a slot, clears it and what follows.
        const slot = Find.all(page(), item => item.rank !== undefined && item.index === 1)[0]
        slot.forceActiveFocus()
        keyClick(Qt.Key_Return)
        clickInDialog("Select card", "Clear card")
        compare(project.boardText, "As")
        compare(project.startingStreet, "flop")
    }

    function test_profiles() {
        clickButton("Quick Solve")
        compare(shell.navIndex, 1)
        const spot = shell.exportProjectState()
        for (const attempt of ["fast", "fast"]) {
            clickButton("Save settings")
            tryVerify(() => dialog("Save Settings Profile"))
            wait(150)
            verify(!Find.button(dialog("Save Settings Profile"), "Save").enabled)
            for (const character of attempt)
                keyClick(character)
            keyClick(Qt.Key_Return)
            tryVerify(() => !dialog("Save Settings Profile"))
        }
        // Another pot, another board: a profile brings back the first and leaves the second.
        typeInto(field("Starting Pot"), "77")
        typeInto(field("OOP Flop Bet sizes (%)"), "33")
        project.boardText = "AsKd7h2c9s"
        clickButton("Load settings")
        tryVerify(() => dialog("Load Settings Profile"))
        wait(150)
        const row = Find.text(dialog("Load Settings Profile"), "fast (2)")
        verify(row)
        mouseClick(row)
        clickInDialog("Load Settings Profile", "Load")
        tryCompare(project, "startingPot", spot.startingPot)
        compare(project.oopFlopBetSizesText, spot.oopFlopBetSizesText)
        compare(field("OOP Flop Bet sizes (%)").text, spot.oopFlopBetSizesText)
        compare(project.boardText, "AsKd7h2c9s")
        compare(project.startingStreet, "river")
        compare(project.oopRangeText, spot.oopRangeText)
        tryVerify(() => !dialog("Load Settings Profile"))
        // Both go again, each after a question.
        for (const name of ["fast", "fast (2)"]) {
            clickButton("Load settings")
            tryVerify(() => dialog("Load Settings Profile"))
            wait(150)
            mouseClick(Find.text(dialog("Load Settings Profile"), name))
            clickInDialog("Load Settings Profile", "Delete")
            clickInDialog("Delete settings profile", "Delete")
            tryVerify(() => !dialog("Delete settings profile"))
            verify(!Find.text(dialog("Load Settings Profile"), name))
            clickInDialog("Load Settings Profile", "Cancel")
            tryVerify(() => !dialog("Load Settings Profile"))
        }
    }

    function test_what_was_saved_is_there_in_the_next_window() {
        openNewProject()
        clickButton("Save settings")
        tryVerify(() => dialog("Save Settings Profile"))
        wait(150)
        keyClick("k")
        keyClick(Qt.Key_Return)
        tryVerify(() => !dialog("Save Settings Profile"))
        cleanup()
        init()
        openNewProject()
        clickButton("Load settings")
        tryVerify(() => dialog("Load Settings Profile"))
        wait(150)
        const list = dialog("Load Settings Profile")
        mouseClick(Find.text(list, "k"))
        clickInDialog("Load Settings Profile", "Delete")
        clickInDialog("Delete settings profile", "Delete")
        tryVerify(() => !Find.text(list, "k"))
    }

    function test_threads() {
        setRiverSpot()
        tryVerify(() => shell.canSolve, 10000)
        keyClick(Qt.Key_3, Qt.ControlModifier)
        const box = Find.all(page(), item => item.label === "Threads" && item.currentIndex !== undefined)[0]
        compare(box.currentText, "Max")
        click(box)
        wait(200)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)
        compare(project.threadCount, 1)
        compare(box.currentText, "1")
        shell.translator.setLanguage("de")
        compare([box.currentText, box.displayText], ["1", "1"])
        shell.translator.setLanguage("en")
        project.threadCount = 100000
        compare(project.threadCount, controller.systemThreadCount)
        compare(box.currentText, "Max")
        shell.translator.setLanguage("fr")
        compare([box.currentText, box.displayText], ["Max.", "Max."])
    }

    function test_the_look_is_kept_by_saving_only() {
        keyClick(Qt.Key_Comma, Qt.ControlModifier)
        const mode = Find.all(page(), item => item.text === "Dark Mode" && item.value !== undefined)[0]
        click(mode)
        verify(!shell.theme.dark)
        cleanup()
        init()
        verify(shell.theme.dark)
        keyClick(Qt.Key_Comma, Qt.ControlModifier)
        const purple = Find.all(page(), item => item.label === "Purple")[0]
        click(purple)
        compare(String(shell.theme.accent), "#a371f7")
        clickButton("Save Settings")
        cleanup()
        init()
        compare(String(shell.theme.accent), "#a371f7")
        keyClick(Qt.Key_Comma, Qt.ControlModifier)
        clickButton("Reset to Defaults")
        verify(!shell.theme.useAccentOverride)
        cleanup()
        init()
        verify(!shell.theme.useAccentOverride)
    }

    /// Tab reaches what can be pressed or typed into, and everything reached has a name.
    function test_tab_reaches_everything_and_names_it() {
        clickButton("Quick Solve")
        tryVerify(() => shell.canSolve, 20000)
        for (const visit of [0, 1, 2, 4]) {
            shell.requestPage(visit)
            compare(shell.navIndex, visit)
            const reached = []
            window.contentItem.forceActiveFocus()
            for (let press = 0; press < 80; ++press) {
                keyClick(Qt.Key_Tab)
                const item = window.activeFocusItem
                if (reached.includes(item))
                    break
                reached.push(item)
                verify((item.Accessible.name || item.text || "") !== "", "no name: " + item)
            }
            const controls = Find.all(page(), item => item.enabled && item.clicked !== undefined && item.text !== undefined
                                                      && item.checkable !== undefined && item.implicitHeight > 20)
            verify(controls.length > 0)
            for (const control of controls)
                verify(reached.includes(control), "not reached by Tab on page " + visit + ": " + control.text)
        }
    }
}

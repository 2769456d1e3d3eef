import QtQuick
import QtQuick.Controls
import QtTest
import Velmora
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

    function type(item: Item, text: string) {
        click(item)
        keyClick(Qt.Key_A, Qt.ControlModifier)
        for (const character of text)
            keyClick(character)
    }

    /// Whether a text shows in the window or above it.
    function says(text: string): bool {
        return Find.text(window.contentItem.parent, text) !== undefined
    }

    function test_a_bad_size_is_told_at_its_field_and_by_the_way_on() {
        setRiverSpot()
        keyClick(Qt.Key_2, Qt.ControlModifier)
        const sentence = "Sizing: separate sizes by commas, as in '33, 75', not '33 75'"
        const refusal = "IP Turn Bet sizes (%): " + sentence
        const size = field("IP Turn Bet sizes (%)")
        type(size, "33 75")
        compare(project.ipTurnBetSizesText, "33 75")
        compare(size.fault, sentence)
        tryVerify(() => says(sentence))
        verify(Find.text(page(), refusal))
        verify(Find.text(page(), "Setup Required"))
        compare(tab("Solve").disabledReason, refusal)
        // The way on and F5 are open, stay here, say the same and lead to the field.
        for (const ask of [() => clickButton("Continue to Solve →"), () => keyClick(Qt.Key_F5),
                           () => keyClick(Qt.Key_3, Qt.ControlModifier)]) {
            field("OOP Range").forceActiveFocus()
            ask()
            compare(shell.navIndex, 1)
            verify(size.activeFocus)
            tryVerify(() => Find.all(window.contentItem.parent, item => item.text === refusal).length > 1)
        }
        verify(!controller.running)
        type(size, "33, 75")
        verify(!says(sentence))
        compare(shell.solveRefusal, "")
        verify(shell.estimatePending)
        tryVerify(() => !shell.estimatePending && shell.canSolve, 10000)
    }

    function test_a_range_is_what_the_parser_reads_data() {
        return [
            { tag: "one combo", text: "AhKc", combos: "1.0 combos (0.1%)", weight: 1 / 12 },
            { tag: "half of all", text: "50%", combos: "663.0 combos (50.0%)", weight: 0.5 },
            { tag: "last token wins", text: "AKo, AK:0.25", combos: "4.0 combos (0.3%)", weight: 0.25 },
            { tag: "a fault", text: "AA, AKoo", fault: "'AKoo': Invalid suit character", weight: undefined },
            { tag: "no hand", text: "AA:0", weight: undefined,
              refusal: "Not ready: select at least one hand in both ranges" }
        ]
    }

    function test_a_range_is_what_the_parser_reads(data) {
        setRiverSpot()
        keyClick(Qt.Key_2, Qt.ControlModifier)
        type(field("OOP Range"), data.text)
        compare(field("OOP Range").fault, data.fault ?? "")
        compare(project.faults.refusal, data.refusal ?? (data.fault ? "OOP Range: " + data.fault : ""))
        compare(shell._canSolveBase, data.combos !== undefined)
        compare(Find.all(page(), item => / combos \(/.test(item.text ?? "")).length, data.combos ? 2 : 1)
        verify(!data.combos || Find.text(page(), data.combos))
        fuzzyCompare(matrix(0).weights["AKo"] ?? -1, data.weight ?? -1, 1e-6)
    }

    function test_a_text_that_is_no_number_is_refused_data() {
        return [
            { tag: "a fraction", label: "Starting Pot", typed: "5.5", key: "startingPot" },
            { tag: "a decimal comma", label: "Effective Stack", typed: "10,5", key: "effectiveStack" },
            { tag: "of the cap", label: "Rake Cap", typed: "2.5", key: "rakeCap" },
            { tag: "letters", label: "Starting Pot", typed: "x7x5", key: "startingPot" },
            { tag: "two numbers", label: "Effective Stack", typed: "10 000", key: "effectiveStack" },
            { tag: "decimals", label: "Rake (%)", typed: "2.1255", key: "rakePercent" }
        ]
    }

    function test_a_text_that_is_no_number_is_refused(data) {
        openNewProject()
        const item = field(data.label)
        const before = project[data.key]
        typeInto(item, data.typed)
        // It stands as typed, with the reason, and changes nothing.
        compare(item.text, data.typed)
        verify(/^Enter a /.test(item.fault), item.fault)
        compare(project[data.key], before)
        compare(project.faults.refusal, data.label + ": " + item.fault)
        verify(!shell._canSolveBase)
        item.forceActiveFocus()
        keyClick(Qt.Key_Z, Qt.ControlModifier)
        compare(item.text, String(before))
        compare(item.fault, "")
        // Another project has nothing of it either.
        typeInto(item, data.typed)
        shell.resetToNewProject()
        compare(item.text, String(before))
        compare(item.fault, "")
    }

    function test_a_start_takes_what_stands_in_the_field() {
        setRiverSpot()
        keyClick(Qt.Key_2, Qt.ControlModifier)
        type(field("Starting Pot"), "77")
        compare(project.startingPot, 77)
        // What is out of range would be held to it on leaving: nothing is solved that nobody typed.
        type(field("Effective Stack"), "999999")
        keyClick(Qt.Key_F5)
        compare(shell.navIndex, 1)
        compare(field("Effective Stack").text, "999999")
        compare(project.effectiveStack, 200)
        type(field("Effective Stack"), "150")
        tryVerify(() => shell.canSolve, 10000)
        keyClick(Qt.Key_F5)
        tryVerify(() => !controller.running && controller.resultIterations > 0, 30000)
        compare(controller.resultStartingPot, 77)
        compare(project.effectiveStack, 150)
    }

    function test_a_click_anywhere_ends_typing() {
        openNewProject()
        const pot = field("Starting Pot")
        for (const place of [() => mouseClick(page(), 5, 5), () => mouseClick(Find.text(page(), "Rake Cap")),
                             () => clickCell(matrix(0), 0, 0)]) {
            type(pot, "999999")
            verify(pot.activeFocus)
            place()
            verify(!pot.activeFocus, String(place))
            compare(project.startingPot, 100000)
            project.startingPot = 5
        }
        verify(matrix(0).activeFocus)
    }

    function test_undo_and_redo() {
        openNewProject()
        const z = modifiers => keyClick(Qt.Key_Z, Qt.ControlModifier | (modifiers ?? Qt.NoModifier))
        verify(!Find.button(page(), "Undo").enabled)
        const states = [shell.exportProjectState()]
        const oop = matrix(0)
        const toggle = Find.all(page(), item => item.text === "OOP Turn Don't donk" && item.value !== undefined)[0]
        const steps = [
            () => {  // One drag over three cells.
                page().reveal(oop)
                wait(50)
                mousePress(oop, cell(0, 0).x, cell(0, 0).y)
                for (const column of [1, 2]) {
                    mouseMove(oop, cell(0, column).x, cell(0, column).y)
                    wait(1)
                }
                mouseRelease(oop, cell(0, 2).x, cell(0, 2).y)
            },
            () => clickCell(oop, 1, 1),
            () => typeInto(field("IP Range"), "AA, KQs"),
            () => typeInto(field("Starting Pot"), "250"),
            () => typeInto(field("OOP Flop Bet sizes (%)"), "33, 75"),
            () => click(toggle),
            () => project.edit("", "boardText", "AsKd7h2c"),
            () => clickButton("0.1%"),
            () => shell.project.applyProjectState({ rakePercent: 1, rakeCap: 2, oopFlopAddAllIn: true }),
            () => click(Find.all(page(), item => item.text === "Clear" && item.clicked !== undefined)[0])
        ]
        for (const step of steps) {
            step()
            wait(5)
            states.push(shell.exportProjectState())
        }
        compare(states[1].oopRangeText, "AA, AKs, AQs")
        compare(states[7].startingStreet, "turn")
        for (let place = steps.length - 1; place >= 0; --place) {
            z()
            compare(shell.exportProjectState(), states[place], "back to " + place)
        }
        verify(!project.canUndo)
        compare(field("Starting Pot").text, "180")
        verify(!toggle.checked)
        for (let place = 1; place < states.length; ++place) {
            z(Qt.ShiftModifier)
            compare(shell.exportProjectState(), states[place], "on to " + place)
        }
        verify(!project.canRedo)
        // Inside a field it goes to the spot as well, and what is typed then ends what could be redone.
        type(field("IP Range"), "QQ")
        z()
        compare(project.ipRangeText, "AA, KQs")
        compare(field("IP Range").text, "AA, KQs")
        z()
        compare(project.oopRangeText, "AA, AKs, AQs, KK")
        clickButton("Redo")
        compare(project.oopRangeText, "")
        clickButton("Undo")
        type(field("IP Range"), "JJ")
        wait(5)
        verify(!project.canRedo)
        shell.resetToNewProject()
        verify(!project.canUndo)
        z()
        compare(project.ipRangeText, "")
    }

    function test_the_matrices_use_a_large_window() {
        clickButton("Quick Solve")
        const least = shell.projectRecommendedWidth
        verify(matrix(0).cellSize >= 36)
        window.width = 2560
        window.height = 1440
        tryVerify(() => matrix(0).cellSize > 50)
        compare(matrix(1).cellSize, matrix(0).cellSize)
        compare(shell.projectRecommendedWidth, least)
        const bars = Find.all(page(), item => item.policy !== undefined && item.policy === ScrollBar.AlwaysOn)
        compare(bars.length, 0)
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
        verify(tab("Solve").disabledReason.startsWith(
            "Not ready: enter a valid board first. Still missing: Board, OOP Range, IP Range, OOP Flop Bet sizes (%), "))
        project.boardText = "AhAhAh"
        verify(Find.text(page(), "Flop cards must be unique"))
        verify(Find.text(page(), "Board: Flop cards must be unique"))
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
        Translator.setLanguage("de")
        compare([box.currentText, box.displayText], ["1", "1"])
        Translator.setLanguage("en")
        project.threadCount = 100000
        compare(project.threadCount, controller.systemThreadCount)
        compare(box.currentText, "Max")
        Translator.setLanguage("fr")
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

import QtQuick
import QtTest
import "find.js" as Find

/// A user's road from the first start to a finished solve.
MainWindowCase {
    name: "Road"

    function test_a_blank_start_leads_nowhere_but_home_and_settings() {
        compare(shell.navIndex, 0)
        verify(!shell.hasProject)
        verify(!shell.canSolve)
        for (const title of ["Setup", "Solve", "Results"])
            verify(!tab(title).tabEnabled, title)
        for (const key of [Qt.Key_2, Qt.Key_3, Qt.Key_4]) {
            keyClick(key, Qt.ControlModifier)
            compare(shell.navIndex, 0)
        }
        keyClick(Qt.Key_Comma, Qt.ControlModifier)
        compare(shell.navIndex, 4)
        keyClick(Qt.Key_1, Qt.ControlModifier)
        compare(shell.navIndex, 0)
        keyClick(Qt.Key_F5)
        verify(!controller.running)
        compare(controller.statusText, "Ready")
    }

    function test_setup_is_drawn_ahead_out_of_sight() {
        const found = of => Find.all(of.contentItem, item => item.recommendedWindowWidth !== undefined)
        const starting = Qt.createComponent("qrc:/Velmora/Main.qml").createObject(null)
        compare(found(starting).length, 1)
        verify(found(starting)[0].mapToItem(starting.contentItem, 0, 0).x >= starting.width)
        tryVerify(() => found(starting).length === 0)
        starting.destroy()

        window.requestActivate()
        tryVerify(() => window.active && found(window).length === 0)
        clickButton("Quick Solve")
        const setup = found(window)[0]
        compare(setup.mapToItem(window.contentItem, 0, 0).x, 0)
        compare(setup.width, window.contentItem.width)
        keyClick(Qt.Key_1, Qt.ControlModifier)
        compare(found(window).length, 0)
    }

    function test_from_a_new_solve_to_results() {
        // Home, by mouse.
        clickButton("New Solve")
        compare(shell.navIndex, 1)
        compare(project.startingPot, 180)
        compare(project.boardText, "")
        verify(Find.text(page(), "Setup Required"))

        // The board, card by card.
        const board = Find.withProperties(page(), "boardText", "cardScale")
        const cards = ["As", "Kd", "7h", "2c", "9s"]
        for (let slot = 0; slot < cards.length; ++slot) {
            const places = Find.all(board, item => item.rank !== undefined && item.index !== undefined)
            click(places[slot])
            const picker = Find.withProperties(window.contentItem.parent, "usedCards", "showSuitHeaders")
            verify(picker, "the picker is open")
            tryVerify(() => picker.visible)
            wait(150)
            const tile = Find.all(picker, item => item.card === cards[slot])[0]
            verify(tile, "a tile for " + cards[slot])
            mouseClick(tile)
            tryCompare(project, "boardText", cards.slice(0, slot + 1).join(""))
            wait(150)
        }
        compare(project.startingStreet, "river")
        verify(Find.text(page(), "Setup Required"))

        // Pot and stack, sizes and ranges, by keyboard.
        typeInto(field("Starting Pot"), "100")
        compare(project.startingPot, 100)
        typeInto(field("Effective Stack"), "200")
        for (const seat of ["OOP", "IP"]) {
            for (const street of ["Flop", "Turn", "River"]) {
                typeInto(field(seat + " " + street + " Bet sizes (%)"), "50")
                typeInto(field(seat + " " + street + " Raise sizes (%)"), "60")
            }
        }
        typeInto(field("OOP Range"), "AA,KK,QJs")
        verify(!shell.canSolve)
        // The way on answers with what is missing, and stays.
        clickButton("Continue to Solve →")
        compare(shell.navIndex, 1)
        verify(field("IP Range").activeFocus)
        tryVerify(() => Find.text(window.contentItem.parent, "Not ready: select at least one hand in both ranges"))
        typeInto(field("IP Range"), "AK,QQ,JJ")
        compare(project.ipRangeText, "AK,QQ,JJ")
        tryVerify(() => shell.canSolve, 10000)

        clickButton("Continue to Solve →")
        compare(shell.navIndex, 2)
        project.maxIterations = 150
        verify(!Find.button(page(), "View Results →").enabled)
        clickButton("Start Solve")
        tryVerify(() => !controller.running && controller.resultIterations > 0, 30000)
        verify(controller.resultIterations <= 150)
        verify(controller.resultExploitability >= 0)
        verify(Find.text(page(), "Completed"))
        compare(Find.withProperties(page(), "strokeWidth", "showPercentage").value, 1)

        clickButton("View Results →")
        compare(shell.navIndex, 3)
        verify(tab("Results").tabEnabled)
    }

    function test_quick_solve_brings_a_whole_spot() {
        clickButton("Quick Solve")
        compare(shell.navIndex, 1)
        compare(project.boardText, "QsJh2h")
        compare(project.ipRiverBetSizesText, "70")
        compare(project.maxIterations, 400)
        tryVerify(() => controller.solveRequiredMemoryBytes > 0, 20000)
        tryVerify(() => !shell.estimatePending)
        compare(shell.canSolve, controller.systemAvailableMemoryBytes > controller.solveRequiredMemoryBytes)
        // Back to a new project: nothing of it stays, also in fields that were edited by hand.
        typeInto(field("OOP Flop Bet sizes (%)"), "33")
        keyClick(Qt.Key_1, Qt.ControlModifier)
        clickButton("New Solve")
        answer("Cancel")
        compare(project.boardText, "QsJh2h")
        clickButton("New Solve")
        answer("Don't save")
        compare(field("OOP Flop Bet sizes (%)").text, "")
        compare(field("OOP Range").text, "")
        compare(field("Starting Pot").text, "180")
    }

    function test_a_running_solve_holds_the_user_and_escape_cancels_it() {
        setRiverSpot()
        project.maxIterations = 2000000000
        project.targetExploitability = -1  // Never reached.
        tryVerify(() => shell.canSolve, 10000)
        keyClick(Qt.Key_F5)
        compare(shell.navIndex, 2)
        tryVerify(() => controller.running)
        tryVerify(() => Find.text(window.contentItem, "Solving"))
        for (const title of ["Home", "Setup", "Results", "Settings"])
            verify(!tab(title).tabEnabled, title)
        keyClick(Qt.Key_1, Qt.ControlModifier)
        keyClick(Qt.Key_Comma, Qt.ControlModifier)
        compare(shell.navIndex, 2)
        tryVerify(() => /^Iteration \d+ \| exploitability=/.test(
            Find.all(page(), item => /^Iteration /.test(item.text ?? ""))[0]?.text ?? ""))
        keyClick(Qt.Key_Escape)
        tryVerify(() => !controller.running, 20000)
        compare(controller.resultIterations, 0)
        verify(tab("Home").tabEnabled)
        // A row for a solve started by key too, and no result to view.
        verify(Find.text(page(), "Cancelled"))
        verify(!Find.button(page(), "View Results →").enabled)
    }

    function test_cancel_marks_the_run() {
        setRiverSpot()
        project.maxIterations = 2000000000
        project.targetExploitability = -1  // Never reached.
        tryVerify(() => shell.canSolve, 10000)
        keyClick(Qt.Key_3, Qt.ControlModifier)
        clickButton("Start Solve")
        tryVerify(() => controller.running)
        tryVerify(() => Find.button(page(), "Cancel").enabled)
        clickButton("Cancel")
        tryVerify(() => !controller.running, 20000)
        verify(Find.text(page(), "Cancelled"))
        verify(!Find.text(page(), "Completed"))
    }

    function test_the_history_keeps_ten_runs() {
        setRiverSpot()
        project.maxIterations = 1
        tryVerify(() => shell.canSolve, 10000)
        keyClick(Qt.Key_3, Qt.ControlModifier)
        const history = Find.withProperties(page(), "history").history
        for (let run = 0; run < 11; ++run) {
            clickButton("Start Solve")
            tryVerify(() => !controller.running, 20000)
        }
        compare(history.rows.count, 10)
        compare(history.rows.get(0).runId, 11)
        compare(history.rows.get(9).runId, 2)
        compare(history.rows.get(0).status, "Completed")
        clickButton("Clear")
        compare(history.rows.count, 0)
    }
}

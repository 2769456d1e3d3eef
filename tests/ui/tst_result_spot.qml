import QtQuick
import QtTest
import "find.js" as Find

/// What belongs together stays together: a result, the spot that was solved, its locks, its file.
MainWindowCase {
    id: root

    name: "ResultSpot"

    property var results
    readonly property var view: results?.view
    readonly property string heading: "Setup has changed since this solve"

    SignalSpy {
        id: saved

        target: root.controller ?? null
        signalName: "projectSaved"
    }

    SignalSpy {
        id: ended

        target: root.controller ?? null
        signalName: "runEnded"
    }

    function solveTurnSpot() {
        results = solvedTurnPage()
        settle()
    }

    function settle() {
        tryVerify(() => !view.loading && !view._handCombosLoading, 20000)
        waitForRendering(window.contentItem, 500)
    }

    function files(): var {
        return Find.withHidden(window.contentItem, "currentFile", "suggestedName")
    }

    function statValue(label: string): string {
        return Find.all(results, item => item.label === label && item.value !== undefined)[0].value
    }

    function test_editing_the_setup_changes_nothing_on_results() {
        solveTurnSpot()
        const seen = () => [results.boardText, results.walk.treeBoardText, statValue("EV (OOP)"), statValue("EV (IP)"),
                            results.rakePercent, results.rakeCap, results.play.playMode].join()
        const before = seen()
        verify(!Find.text(results, heading))
        const edits = { boardText: "2c3c4c", startingPot: 777, effectiveStack: 50, rakePercent: 1, rakeCap: 2,
                        oopRangeText: "22", ipTurnBetSizesText: "100" }
        for (const key in edits) {
            const kept = project[key]
            project[key] = edits[key]
            compare(seen(), before, key)
            tryVerify(() => Find.text(results, heading), 1000, key)
            project[key] = kept
            tryVerify(() => !Find.text(results, heading), 1000, key)
        }
        // The limits of a solve are not part of its spot.
        project.maxIterations = 7
        project.targetExploitability = 3
        wait(0)
        verify(!Find.text(results, heading))

        for (const key in edits)
            project[key] = edits[key]
        clickButton("Take back the setup of this result")
        compare(shell.navIndex, 1)
        compare([project.boardText, project.startingPot, project.effectiveStack, project.rakeCap, project.oopRangeText,
                 project.targetExploitability, project.maxIterations].join(),
                ["QsJh2h3s", 100, 200, 30, "AA,KK,AKs,KTs,QJs,T9s,98s", 0.01, 50].join())
        verify(controller.isResultSpot(project.solveConfig()))
        // What was edited is one step back.
        keyClick(Qt.Key_Z, Qt.ControlModifier)
        compare([project.boardText, project.startingPot].join(), "2c3c4c,777")
    }

    function test_a_solve_keeps_the_result_until_the_new_one_stands() {
        solveTurnSpot()
        const ev = statValue("EV (OOP)")
        const rows = Find.withHidden(window.contentItem, "history").history.rows
        project.startingPot = 60
        project.maxIterations = 2000000000
        project.targetExploitability = -1  // Never reached.
        keyClick(Qt.Key_F5)
        compare(shell.navIndex, 3)
        tryVerify(() => /^Solving\. /.test(Find.all(results, item => /^Solving\. /.test(item.text ?? ""))[0]?.text ?? ""))
        compare(statValue("EV (OOP)"), ev)
        verify(view.visibleHandCombos.length > 0)
        clickButton("Cancel")
        tryVerify(() => !controller.running, 20000)
        compare(statValue("EV (OOP)"), ev)
        tryVerify(() => Find.text(results, "The last solve was cancelled. These are the results of the solve before."))
        clickButton("OK")
        tryVerify(() => !Find.text(results, "The last solve was cancelled. These are the results of the solve before."))
        compare([rows.get(0).status, rows.get(1).status].join(), "Cancelled,Completed")
        verify(/^50 iterations/.test(rows.get(1).summary), rows.get(1).summary)

        project.maxIterations = 5
        keyClick(Qt.Key_F5)
        tryCompare(controller, "resultStartingPot", 60, 20000)
        settle()
        verify(statValue("EV (OOP)") !== ev)
    }

    function test_a_solve_that_needs_the_memory_of_the_result_asks() {
        solveTurnSpot()
        project.startingPot = 60
        const config = project.solveConfig()
        controller.memoryWanted(config, "9 GB", "5 GB")
        answer("Cancel")
        verify(controller.resultHasTables && !controller.running)
        controller.memoryWanted(config, "9 GB", "5 GB")
        answer("Solve without saving")
        tryCompare(controller, "resultStartingPot", 60, 20000)
        verify(controller.resultHasTables)
    }

    function test_the_figures_of_a_run_start_with_it() {
        const clock = Qt.createQmlObject("import Velmora; SolveClock { currentIteration: 40; maxIterations: 100; interval: 1 }", root)
        clock.running = true
        tryVerify(() => clock.iterationsPerSec > 0 && clock.estimatedRemaining !== "--:--")
        clock.running = false
        clock.interval = 100000
        clock.currentIteration = 0
        clock.running = true
        compare([clock.elapsedTime, clock.estimatedRemaining, clock.iterationsPerSec].join(), "00:00,--:--,0")
        clock.destroy()
    }

    function test_locks_are_asked_about_and_every_view_previews_them() {
        solveTurnSpot()
        const hand = "KTs"
        const inCombos = () => {
            const mine = view._loadedHandCombos.filter(combo => ["KT", "TK"].includes(combo.c1[0] + combo.c2[0]))
            return mine.reduce((sum, combo) => sum + combo.actionProbs[1], 0) / mine.length
        }
        const solvedBuckets = JSON.stringify(view.buckets)
        controller.setNodeLock(0, hand, 1, 0.25)
        settle()
        fuzzyCompare(view.handActionProbs[hand][1], 0.25, 1e-9)
        fuzzyCompare(inCombos(), 0.25, 1e-9)
        verify(JSON.stringify(view.buckets) !== solvedBuckets)
        verify(Find.text(results, "Strategy by Hand (preview, not solved yet)"))
        // Going back to looking costs no lock; a reset does, and can be undone.
        clickButton("Node-lock mode")
        clickButton("Standard mode")
        compare(controller.lockCount, 1)
        clickButton("Node-lock mode")
        clickButton("Reset weights")
        compare(controller.lockCount, 0)
        tryVerify(() => JSON.stringify(view.buckets) === solvedBuckets)
        clickButton("Undo reset")
        compare(controller.lockCount, 1)
        // A weight that is none locks nothing.
        results.locks.nodeLockSelectedActionIndex = 0
        results.locks.nodeLockWeightText = "abc"
        verify(Find.text(results, "The weight must be a number from 0 to 1"))
        verify(!results.locks.applyNodeLockToHand(0, "AA"))
        compare(controller.lockCount, 1)

        keyClick(Qt.Key_F5)
        answer("Solve without locks")
        tryVerify(() => !controller.running, 20000)
        verify(controller.locksPending)
        ended.clear()
        keyClick(Qt.Key_F5)  // Not asked again.
        tryCompare(ended, "count", 1, 20000)
        verify(controller.locksPending)
        clickButton("Re-solve")
        tryVerify(() => !controller.running && !controller.locksPending, 20000)
        settle()
        fuzzyCompare(view.handActionProbs[hand][1], 0.25, 1e-6)
        verify(!Find.text(results, "Strategy by Hand (preview, not solved yet)"))
    }

    function test_nothing_is_lost_without_a_question() {
        compare(window.title, "Dunmarrow")
        keyClick(Qt.Key_N, Qt.ControlModifier)  // Nothing to lose yet.
        compare(shell.navIndex, 1)
        compare(window.title, "New spot — Dunmarrow")
        solveTurnSpot()
        compare(window.title, "• QsJh2h3s pot 100 — Dunmarrow")

        files().currentFile = testFolder + "/a spot.velmoraproj"
        saved.clear()
        keyClick(Qt.Key_S, Qt.ControlModifier)
        tryCompare(saved, "count", 1, 20000)
        tryCompare(window, "title", "a spot — Dunmarrow")
        verify(Find.all(window.contentItem, item => /^Saved a spot at /.test(item.text ?? "")).length > 0)

        project.startingPot = 33
        compare(window.title, "• a spot — Dunmarrow")
        window.close()
        answer("Cancel")
        verify(window.visible)
        keyClick(Qt.Key_N, Qt.ControlModifier)
        answer("Save")
        tryCompare(window, "title", "New spot — Dunmarrow", 20000)
        compare(project.startingPot, 180)
        compare(controller.resultIterations, 0)
        const file = readBack.of(testFolder + "/a spot.velmoraproj")
        compare([file.board, file.iterations].join(), "QsJh2h3s,50")

        // A save that can't be done keeps everything.
        setRiverSpot()
        project.startingPot = 44
        files().currentFile = testFolder + "/no folder/spot.velmoraproj"
        ignoreWarning(/^Save failed:/)
        ignoreWarning(/^saveProject: failed to open:/)
        keyClick(Qt.Key_N, Qt.ControlModifier)
        answer("Save")
        answer("OK")
        compare(project.startingPot, 44)
        verify(shell.unsaved)
    }
}

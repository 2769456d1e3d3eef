import QtQuick
import QtTest
import Velmora
import "find.js" as Find
import "random.js" as Random

/// A user who does everything at every moment, by mouse and keyboard. After every step what the window
/// shows belongs together. Short as it stands; VELMORA_STRESS_SECONDS and VELMORA_STRESS_SEED ask for more.
MainWindowCase {
    id: root

    name: "Stress"

    property var random
    property var results
    property string lastStep: ""
    property int fileNumber: 0
    property var saved: ({})

    readonly property var boards: ["QsJh2h3s", "AsKd7h2c9s", "Td8d3h5c", "KsQd7h2c3s"]
    readonly property var steps: ({
        start: () => keyClick(Qt.Key_F5),
        cancel: () => keyClick(Qt.Key_Escape),
        page: () => keyClick([Qt.Key_1, Qt.Key_2, Qt.Key_3, Qt.Key_4, Qt.Key_Comma][pick(5)], Qt.ControlModifier),
        results: () => keyClick(Qt.Key_4, Qt.ControlModifier),
        board: () => project.boardText = boards[pick(boards.length)],
        pot: () => project.startingPot = 50 + pick(3) * 50,
        range: () => project.oopRangeText = ["AA,KK,QJs", "AA,KK,AKs,KTs,QJs,T9s,98s", "AA,KK,"][pick(3)],
        type: typeSomewhere,
        undo: () => keyClick(Qt.Key_Z, pick(2) === 0 ? Qt.ControlModifier : Qt.ControlModifier | Qt.ShiftModifier),
        limit: () => project.maxIterations = [1, 50, 150, 2000000000][pick(4)],
        spot: newSpot,
        save: save,
        load: load,
        tile: () => clickOneOf(item => item.toggleExpand !== undefined),
        cell: () => clickOneOf(item => item.hoveredIndex !== undefined && item.cellSize !== undefined),
        bucket: () => clickOneOf(item => item.bucket !== undefined && item.chosen !== undefined),
        lock: lock,
        resolve: () => controller.reSolveWithNodeLocks(),
        button: () => clickOneOf(item => item.clicked !== undefined && item.enabled && item.text !== undefined),
        trainer: () => press(["Play vs solution", "Range view", "Play as OOP", "Play as both", "Another hand"][pick(5)]),
        language: () => Translator.setLanguage(["en", "de", "ru"][pick(3)]),
        digit: () => keyClick(Qt.Key_1 + pick(3))
    })

    function pick(below: int): int {
        return Math.floor(random() * below)
    }

    function overlay(): Item {
        return window.contentItem.parent
    }

    function clickOneOf(accept: var) {
        const found = Find.all(window.contentItem, accept)
        if (found.length === 0)
            return
        const item = found[pick(found.length)]
        const x = pick(Math.max(1, Math.floor(item.width)))
        const y = pick(Math.max(1, Math.floor(item.height)))
        const at = item.mapToItem(window.contentItem, x, y)
        // What is scrolled out of sight, or leads out of the program, is nothing to click on.
        if (at.x < 0 || at.y < 0 || at.x >= window.width || at.y >= window.height || leadsOut(item))
            return
        mouseClick(item, x, y)
    }

    function leadsOut(item: Item): bool {
        return /licen|notice|update|open file|import|export|browse/i.test(item.text ?? "") || shell.navIndex === 4
    }

    function press(text: string) {
        const button = Find.button(window.contentItem, text)
        if (button?.enabled)
            mouseClick(button)
    }

    function typeSomewhere() {
        const fields = Find.all(window.contentItem, item => item.editingFinished !== undefined && item.enabled)
        if (fields.length === 0)
            return
        fields[pick(fields.length)].forceActiveFocus()
        keyClick(["5", "0", ".", ",", "A", "x", Qt.Key_Backspace, Qt.Key_Tab][pick(8)])
    }

    function newSpot() {
        controller.abandonRun()
        setRiverSpot()
        shell.navIndex = 1
    }

    function lock() {
        const node = controller.treeNodeCount() > 0 ? pick(Math.min(40, controller.treeNodeCount())) : 0
        controller.setNodeLock(node, ["AA", "KK", "QJs"][pick(3)], pick(3) - 1, random())
    }

    /// What Results shows, and so what a file read back must say.
    function shown(): var {
        return {
            board: results.boardText, iterations: controller.resultIterations,
            exploitability: controller.resultExploitability, nodeCount: controller.treeNodeCount(),
            locks: JSON.stringify(controller.nodeLocks(0)),
            strategy: JSON.stringify(controller.nodeHandStrategyReach169(0, "").actionProbs ?? {})
        }
    }

    function save() {
        if (controller.fileProgress >= 0)
            return
        fileNumber = pick(3)
        const before = shown()
        files().currentFile = testFolder + "/stress" + fileNumber + ".velmoraproj"
        files().save()
        tryVerify(() => controller.fileProgress < 0, 60000)
        const file = readBack.of(testFolder + "/stress" + fileNumber + ".velmoraproj")
        if (before.nodeCount === 0)
            return
        for (const key of ["board", "iterations", "exploitability", "nodeCount"])
            compare(file[key], before[key], "read back: " + key)
        compare(JSON.stringify(file.locks), before.locks, "read back: locks")
        compare(JSON.stringify(file.strategy.actionProbs), before.strategy, "read back: strategy")
        saved[fileNumber] = true
    }

    function load() {
        // While a file is being saved another is refused.
        if (!saved[fileNumber] || files()._savedState !== null)
            return
        files().open(testFolder + "/stress" + fileNumber + ".velmoraproj")
        if (pick(2) === 0)
            tryVerify(() => controller.fileProgress < 0, 60000)
    }

    function files(): var {
        return Find.withHidden(window.contentItem, "currentFile", "suggestedName")
    }

    function answerWhatIsAsked() {
        for (const text of ["Don't save", "Apply the locks", "Solve without locks", "Cancel the solve", "OK", "Cancel"]) {
            const button = Find.all(overlay(), item => item.text === text && item.clicked !== undefined
                                    && !isInside(item, window.contentItem))[0]
            if (button) {
                mouseClick(button)
                wait(200)
                return
            }
        }
        const popups = Find.all(overlay(), item => !isInside(item, window.contentItem) && item !== overlay() && item.width > 100)
        if (popups.length > 0)
            keyClick(Qt.Key_Escape)
    }

    function isInside(item: Item, ancestor: Item): bool {
        return _isInside(item, ancestor)
    }

    function verifyThatAllBelongsTogether() {
        compare(results.boardText, controller.resultBoard)
        compare(results.walk.treeBoardText.startsWith(controller.resultBoard), true, results.walk.treeBoardText)
        compare(controller.resultIterations > 0 || controller.treeNodeCount() > 0, controller.resultBoard !== "")
        const view = results.view
        if (view.loading || view._handCombosLoading || view.paused || view.isChance || view.selectedBucket !== "")
            return
        compare(Object.keys(view.handActionProbs).length > 0, view._loadedHandCombos.length > 0)
        const sums = {}
        for (const combo of view._loadedHandCombos) {
            const hand = label(combo.c1, combo.c2)
            sums[hand] = sums[hand] ?? { weight: 0, actions: combo.actionProbs.map(() => 0) }
            sums[hand].weight += combo.weight
            combo.actionProbs.forEach((share, action) => sums[hand].actions[action] += combo.weight * share)
        }
        for (const hand in sums) {
            if (sums[hand].weight < 1e-6)
                continue
            sums[hand].actions.forEach((sum, action) =>
                fuzzyCompare(view.handActionProbs[hand][action], sum / sums[hand].weight, 1e-4, "grid and combos of " + hand))
        }
    }

    function label(c1: string, c2: string): string {
        const ranks = "AKQJT98765432"
        const [high, low] = ranks.indexOf(c1[0]) <= ranks.indexOf(c2[0]) ? [c1, c2] : [c2, c1]
        return high[0] === low[0] ? high[0] + low[0] : high[0] + low[0] + (high[1] === low[1] ? "s" : "o")
    }

    function test_whatever_a_user_does_belongs_together() {
        // What the window says of a file that can't be read, or of a fault, is no warning of the pages.
        random = Random.seeded(stressSeed || 1)
        results = Find.withHidden(window.contentItem, "walk", "locks", "rakeCap")
        setRiverSpot()
        const end = Date.now() + 1000 * (stressSeconds || 12)
        const names = Object.keys(steps)
        let count = 0
        while (Date.now() < end) {
            lastStep = names[pick(names.length)]
            if (stressSeconds > 0)
                console.info("step", count, lastStep)
            steps[lastStep]()
            wait(pick(3) === 0 ? pick(150) : 0)
            answerWhatIsAsked()
            verifyThatAllBelongsTogether()
            ++count
        }
        console.info("steps:", count)
        verify(count > 10)
        Translator.setLanguage("en")
        controller.abandonRun()
        setRiverSpot()
        tryVerify(() => !controller.running, 20000)
        keyClick(Qt.Key_F5)
        answerWhatIsAsked()
        tryVerify(() => !controller.running && controller.resultIterations > 0 && controller.resultBoard === "AsKd7h2c9s", 60000)
    }
}

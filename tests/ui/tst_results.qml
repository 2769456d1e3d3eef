import QtQuick
import QtTest
import Velmora
import "find.js" as Find

/// The Results page on a solved turn spot, whose river may map diamonds and clubs to each other.
MainWindowCase {
    id: root

    name: "Results"

    property var results
    readonly property var walk: results?.walk
    readonly property var view: results?.view
    readonly property var locks: results?.locks

    function solveTurnSpot() {
        results = solvedTurnPage()
        settle()
    }

    /// Waits for the figures of the node on view.
    function settle() {
        tryVerify(() => !view.loading && !view._handCombosLoading, 20000)
        waitForRendering(window.contentItem, 500)
    }

    function tile(action: string): Item {
        const tiles = Find.all(results, item => item.toggleExpand !== undefined && item.action === action)
        verify(tiles.length > 0, "no tile says " + action)
        return tiles[tiles.length - 1]
    }

    function take(action: string) {
        mouseClick(tile(action))
        settle()
    }

    function clickCell(row: int, column: int) {
        const grid = Find.withProperties(results, "weights", "cellSize")
        mouseClick(grid, (grid.cellSize + grid.cellSpacing) * column + 10, (grid.cellSize + grid.cellSpacing) * row + 10)
    }

    function combos(): var {
        return view.visibleHandCombos.map(combo => combo.c1 + combo.c2)
    }

    function test_a_walk_down_and_back() {
        solveTurnSpot()
        compare(walk.currentNodeIndex, 0)
        verify(Find.text(results, "OOP to act"))
        compare(view.currentActions.length, controller.nodeActions(0).length)
        verify(view.buckets.length > 0)
        verify(view.visibleHandCombos.length > 0)

        take("Check")
        verify(Find.text(results, "IP to act"))
        compare(walk.treeLevels.count, 2)
        take("Check")
        compare(walk.currentMeta.nodeType, "chance")
        compare(view.currentActions[0].name, "Random river card")
        Translator.setLanguage("de")
        verify(view.currentActions[0].name !== "Random river card")
        Translator.setLanguage("en")
        compare(view.currentActions[0].name, "Random river card")

        // A club is not in the tree where the diamond stands for it, and shows all the same.
        mouseClick(Find.all(results, item => item.toggleExpand !== undefined && item.nodeType === "chance")[0])
        tryVerify(() => Find.text(window.contentItem.parent, "Choose River Card"))
        wait(200)
        const names = controller.nodeActions(walk.currentNodeIndex).map(action => action.name)
        const listed = ["9d", "9c"].filter(card => names.includes(card))
        compare(listed.length, 1)
        const wanted = listed[0] === "9d" ? "c" : "d"
        const card = Find.all(window.contentItem.parent, item => item.actionIndex !== undefined && item.rank === "9" && item.suit === wanted)[0]
        compare(names[card.actionIndex], listed[0])
        mouseClick(card)
        tryVerify(() => !Find.text(window.contentItem.parent, "Choose River Card"))
        settle()
        compare(walk.treeBoardText, "QsJh2h3s9" + wanted)
        compare(walk.nodePath.slice(1), ["Check", "Check", "9" + wanted])
        compare(walk.currentMeta.nodeType, "decision")
        verify(view.visibleHandCombos.length > 0)

        // Back to the first choice, and another way.
        mouseClick(Find.all(results, item => item.toggleExpand !== undefined && item.action === "Check")[0])
        settle()
        compare(walk.treeLevels.count, 1)
        compare(walk.currentNodeIndex, 0)
        compare(walk.treeBoardText, "QsJh2h3s")
        take(controller.nodeActions(0)[1].name)
        take("Fold")
        compare(walk.treeLevels.count, 2)
        compare(walk.nodePath.length, 3)
        take("Fold")
        compare(walk.treeLevels.get(1).selectedActionIndex, -1)
    }

    function test_a_walk_by_keyboard() {
        solveTurnSpot()
        tile("Check").forceActiveFocus()
        // Each tile is one stop of Tab.
        keyClick(Qt.Key_Tab)
        verify(tile(controller.nodeActions(0)[1].name).activeFocus)
        keyClick(Qt.Key_Tab, Qt.ShiftModifier)
        verify(tile("Check").activeFocus)
        const expander = Find.all(tile("Check"), item => item.objectName === "expander")[0]
        compare(expander.Accessible.name, "Expand Check")
        keyClick(Qt.Key_Right)
        settle()
        compare(expander.Accessible.name, "Collapse Check")
        keyClick(Qt.Key_Left)
        settle()
        compare(walk.treeLevels.count, 1)
        take("Check")
        take("Check")
        const chance = Find.all(results, item => item.toggleExpand !== undefined && item.nodeType === "chance")[0]
        chance.forceActiveFocus()
        keyClick(Qt.Key_Return)
        const cards = () => Find.all(window.contentItem.parent, item => item.actionIndex !== undefined && item.rank !== undefined)
        const focused = () => cards().filter(card => card.activeFocus).map(card => card.rank + card.suit).join()
        // The queen of spades is on the board.
        tryVerify(() => focused() === "As")
        keyClick(Qt.Key_Right)
        keyClick(Qt.Key_Right)
        compare(focused(), "Js")
        keyClick(Qt.Key_Down)
        // So is the jack of hearts.
        compare(focused(), "Jd")
        keyClick("q")
        keyClick("s")
        verify(Find.text(window.contentItem.parent, "Qs can't be dealt here."))
        keyClick("9")
        keyClick("c")
        tryCompare(walk, "treeBoardText", "QsJh2h3s9c")
    }

    function overlap(one: Item, other: Item): bool {
        const [a, b] = [one, other].map(item => item.mapToItem(null, 0, 0, item.width, item.height))
        return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height
    }

    function test_everything_has_its_place_data() {
        return [
            { tag: "smallest", width: 1100, height: 700, language: "en", tabbed: true },
            { tag: "smallest, German", width: 1100, height: 700, language: "de", tabbed: true },
            { tag: "smallest, Russian", width: 1100, height: 700, language: "ru", tabbed: true },
            { tag: "wide and low", width: 1700, height: 700, language: "en", tabbed: false },
            { tag: "usual", width: 1540, height: 1200, language: "de", tabbed: false },
            { tag: "large", width: 2560, height: 1440, language: "en", tabbed: false }
        ]
    }

    function test_everything_has_its_place(data) {
        solveTurnSpot()
        window.width = data.width
        window.height = data.height
        Translator.setLanguage(data.language)
        settle()
        const views = Find.withProperties(results, "combosShown", "tabbed")
        compare(views.tabbed, data.tabbed)
        const grid = Find.withProperties(results, "weights", "cellSize")
        verify(data.width < 2000 ? grid.cellSize < 60 : grid.cellSize >= 60)
        for (const locking of [false, true]) {
            locks.nodeLockMode = locking
            waitForRendering(window.contentItem, 200)
            const page = Find.withProperties(results, "minimumContentWidth", "rows")
            verify(page.minimumContentWidth <= page.width, "scrolls sideways")
            verify(views.implicitHeight <= views.roomHeight, "scrolls up and down")
            const blocks = Find.all(views, item => item.showLabels === true || item.labels !== undefined
                || item.lockable !== undefined || item.rowCount !== undefined || item.facts !== undefined)
            verify(blocks.length >= (data.tabbed ? 4 : 5) + (locking ? 1 : 0))
            blocks.forEach((block, i) => blocks.slice(i + 1).forEach(other =>
                verify(!overlap(block, other), block + " covers " + other)))
            // No button is cut off by an edge.
            const edge = views.mapToItem(null, views.width, 0).x
            for (const button of Find.all(views, item => item.clicked !== undefined && item.checkable !== undefined)) {
                verify(button.mapToItem(null, button.width, 0).x <= edge + 1, button.text)
                verify(button.width + 1 >= button.implicitWidth || button.checkable, button.text + " is cut off")
            }
        }
    }

    function test_filters_and_search() {
        solveTurnSpot()
        const all = view.visibleHandCombos.length
        const field = root.field("Search")
        click(field)
        for (const character of "KA")
            keyClick(character)
        verify(combos().length > 0)
        verify(combos().every(text => "AK".includes(text[0]) && "AK".includes(text[2]) && text[0] !== text[2]))
        keyClick(Qt.Key_A, Qt.ControlModifier)
        for (const character of "AK+")
            keyClick(character)
        verify(Find.text(results, "No combos match the current filters."))
        keyClick(Qt.Key_A, Qt.ControlModifier)
        keyClick(Qt.Key_Delete)
        compare(view.visibleHandCombos.length, all)

        clickCell(0, 1)
        compare(view.selectedHandClass, "AKs")
        verify(Find.text(results, "Filter: AKs"))
        const filtered = combos()
        verify(filtered.length > 0 && filtered.length < all)
        const row = Find.all(results, item => item.bucket !== undefined && item.chosen !== undefined)[0]
        mouseClick(row)
        compare(view.selectedBucket, row.bucket.name)
        verify(Find.text(results, "Filter: AKs + " + row.bucket.displayName))
        verify(combos().length <= filtered.length)
        for (const combo of view.visibleHandCombos)
            verify(combo.buckets.includes(view.selectedBucket))
        clickCell(0, 1)
        verify(Find.text(results, "Filter: " + row.bucket.displayName))
        clickButton("Clear")
        compare([view.selectedBucket, view.selectedHandClass], ["", ""])
        compare(view.visibleHandCombos.length, all)
        // A step clears the filters.
        clickCell(0, 0)
        compare(view.selectedHandClass, "AA")
        take("Check")
        compare(view.selectedHandClass, "")
    }

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

    /// What the views show of the node on view.
    function seen(): var {
        return JSON.stringify([view.currentActions, view.handWeights, view.handActionProbs, view.buckets,
                               view.visibleHandCombos, walk.currentMeta, walk.treeBoardText])
    }

    function test_a_saved_project_shows_what_it_showed() {
        solveTurnSpot()
        const bet = controller.nodeActions(0)[1].name
        const before = [seen()]
        take("Check")
        before.push(seen())
        take(bet)
        before.push(seen())
        controller.setNodeLock(0, "AA", 1, 0.25)
        const file = testFolder + "/turn.velmoraproj"
        saved.clear()
        controller.saveProjectInBackground(file, shell.exportProjectState())
        tryCompare(saved, "count", 1, 20000)
        verify(saved.signalArguments[0][0], saved.signalArguments[0][1])

        shell.resetToStartupBlank()
        shell.requestPage(0)
        compare(controller.treeNodeCount(), 0)
        opened.clear()
        controller.loadProjectInBackground(file)
        tryCompare(opened, "count", 1, 20000)
        tryCompare(shell, "navIndex", 3)
        compare(project.boardText, "QsJh2h3s")
        compare(controller.nodeLocks(0).length, 1)
        settle()
        const after = [seen()]
        take("Check")
        after.push(seen())
        take(bet)
        after.push(seen())
        for (let step = 0; step < before.length; ++step)
            compare(after[step], before[step], "step " + step)
    }

    function test_a_file_that_is_no_project_tells_why() {
        ignoreWarning(/^Load failed:/)
        controller.loadProjectInBackground(testFolder + "/nowhere.velmoraproj")
        tryVerify(() => Find.text(window.contentItem.parent, "Failed to open file"), 5000)
        wait(150)
        mouseClick(Find.button(window.contentItem.parent, "OK"))
        compare(shell.navIndex, 0)
        verify(!shell.hasProject)
    }

    function test_locks_preview_and_resolve() {
        solveTurnSpot()
        clickButton("Node-lock mode")
        clickCell(0, 0)
        compare(controller.nodeLocks(0).length, 0)
        const actions = controller.nodeActions(0)
        clickButton(actions[1].name)
        const weight = Find.all(results, item => item.label === "Weight" && item.placeholderText === "0..1")[0]
        typeInto(weight, "0.7")
        clickCell(0, 0)
        const locked = controller.nodeLocks(0)
        compare(locked.length, 1)
        compare(locked[0].hand, "AA")
        fuzzyCompare(locked[0].actionProb, 0.7, 1e-12)
        fuzzyCompare(view.handActionProbs.AA[1], 0.7, 1e-12)
        fuzzyCompare(view.handActionProbs.AA[0], 0.3 / (actions.length - 1), 1e-12)

        clickButton("Re-solve")
        tryVerify(() => controller.running)
        compare(shell.navIndex, 3)
        tryVerify(() => !controller.running, 60000)
        settle()
        compare(walk.currentNodeIndex, 0)
        const strategy = controller.nodeHandStrategy(0)
        fuzzyCompare(strategy.actionProbs.AA[1], 0.7, 1e-5)

        clickButton("Reset weights")
        compare(controller.nodeLocks(0).length, 0)
        clickButton("✓ Node-lock mode")
        clickButton("Standard mode")
        verify(!locks.nodeLockMode)
    }
}

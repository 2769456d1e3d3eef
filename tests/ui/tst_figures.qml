import QtQuick
import QtTest
import Velmora
import "find.js" as Find
import "random.js" as Random

/// Each figure on screen against what the solver answers. The expected texts are made here, without
/// the scripts of the pages.
MainWindowCase {
    id: root

    name: "Figures"

    property var results

    function settle() {
        tryVerify(() => !results.view.loading && !results.view._handCombosLoading, 20000)
        waitForRendering(window.contentItem, 500)
    }

    /// The shown texts below an item, in the order of the tree.
    function texts(item: Item): var {
        return Find.all(item, part => typeof part.text === "string" && part.text !== "" && part.elide !== undefined)
            .map(part => part.text)
    }

    /// What a figure with a name says.
    function figure(label: string): string {
        const card = Find.all(window.contentItem, item => item.label === label && item.accentColor !== undefined)[0]
        verify(card, "no figure is called " + label)
        const shown = texts(card)
        compare(shown[0], label)
        return shown[1]
    }

    function combosText(combos: real): string {
        return (Math.abs(combos - Math.round(combos)) <= 1e-6 ? combos.toFixed(0) : combos.toFixed(1)) + " combos"
    }

    /// The EVs of actions as shown: against folding, where one can fold.
    function shownEvs(stats: var, evs: var): var {
        const fold = stats.findIndex(action => action.name === "Fold")
        return evs.map(ev => fold < 0 ? ev : ev - evs[fold])
    }

    /// The cards that show below an item, each once, in the order of the tree.
    function cards(item: Item): var {
        return Array.from(new Set(Find.all(item, part => part.rank && part.suit).map(card => card.rank + card.suit)))
    }

    function checkNode(node: int) {
        const stats = Array.from(controller.nodeActionStats(node))
        const meta = controller.nodeMeta(node)
        verify(Find.text(results, meta.player + " to act"))

        // Under the bar: name, share, combos, equity and EV of each action.
        const evs = shownEvs(stats, stats.map(action => action.ev))
        const sum = stats.reduce((total, action) => total + action.frequency, 0)
        const legend = Find.all(results, item => item.maximumWidth !== undefined && item.ink !== undefined && item.action !== undefined)
        compare(legend.length, stats.length)
        stats.forEach((action, i) => compare(texts(legend[i]), [
            action.name, Math.round(100 * action.frequency / sum) + "%", combosText(action.combos),
            (100 * action.equity).toFixed(1) + "% equity", evs[i].toFixed(2) + " EV"
        ]))

        // The tiles of the node's actions stand in the last level of the tree.
        const tiles = Find.all(results, item => item.toggleExpand !== undefined).slice(-stats.length)
        stats.forEach((action, i) => {
            compare(tiles[i].action, action.name)
            const shown = texts(tiles[i])
            verify(shown.includes("Freq: " + Math.round(100 * action.frequency) + "%"), shown.join())
        })

        // Categories, as far as the list shows them.
        const buckets = Array.from(controller.nodeHandBuckets(node))
        const rows = Find.all(results, item => item.bucket !== undefined && item.chosen !== undefined && item.bucket)
        verify(rows.length > 0)
        for (const row of rows) {
            const [title, combos] = texts(row)
            const bucket = buckets.find(one => (one.displayName || one.name) === title)
            verify(bucket, title)
            compare(combos, bucket.combos.toFixed(1) + " combos")
        }

        // The combos' rows: cards, and an EV for each action.
        const combos = Array.from(controller.nodeHandCombos(node))
        const comboRows = Find.all(results, item => item.combo !== undefined && item.actions !== undefined && item.combo)
        verify(comboRows.length > 0)
        for (const row of comboRows) {
            const hand = cards(row)
            compare(hand.length, 2)
            const combo = combos.find(one => one.c1 === hand[0] && one.c2 === hand[1])
            verify(combo, hand.join())
            const expected = shownEvs(stats, Array.from(combo.actionEvs))
            const numbers = texts(row).map(text => /(-?\d+\.\d+)$/.exec(text)?.[1]).filter(Boolean).map(Number)
            compare(numbers.length, stats.length)
            numbers.forEach((number, i) => verify(Math.abs(number - expected[i]) <= 0.00501, texts(row).join()))
        }
    }

    function test_results() {
        results = solvedTurnPage()
        settle()
        const half = controller.resultStartingPot / 2
        compare(figure("EV (OOP)"), (controller.resultEvOop + half).toFixed(3))
        compare(figure("EV (IP)"), (controller.resultEvIp + half).toFixed(3))
        // The seats share the pot, less a rake of at most 5 % of both stacks and it.
        const shared = Number(figure("EV (OOP)")) + Number(figure("EV (IP)"))
        verify(shared > 75 && shared < 100, shared)
        compare(figure("Exploitability"), controller.resultExploitability.toFixed(4))
        checkNode(0)

        // A category that is chosen stays with its node.
        const row = Find.all(results, item => item.bucket !== undefined && item.chosen !== undefined)[0]
        mouseClick(row)
        verify(results.view.selectedBucket !== "")
        for (const bets of [false, true]) {
            const actions = controller.nodeActions(results.walk.currentNodeIndex)
            const action = actions[bets ? actions.length - 1 : 0].name
            const tiles = Find.all(results, item => item.toggleExpand !== undefined && item.action === action)
            mouseClick(tiles[tiles.length - 1])
            settle()
            compare(results.view.selectedBucket, "")
            compare(results.walk.currentMeta.nodeType, "decision")
            compare(results.view.handWeights, controller.nodeHandStrategyReach169(results.walk.currentNodeIndex, "").weights)
            checkNode(results.walk.currentNodeIndex)
        }

        // A river card stands on the board of the head, and its node has figures of its own.
        const walk = results.walk
        walk.navigateToBreadcrumb(0)
        walk.selectActionAtLevel(0, 0)
        walk.selectActionAtLevel(1, 0)
        const river = controller.nodeActions(walk.currentNodeIndex)[5].name
        walk.chooseChanceCard(2, 5, "")
        settle()
        const head = Find.all(results, item => item.boardText !== undefined && item.compact === true)[0]
        compare(cards(head), ["Qs", "Jh", "2h", "3s", river])
        checkNode(walk.currentNodeIndex)
    }

    function test_solve() {
        setRiverSpot()
        shell.applyProjectState({ boardText: "AsKd7h2c", startingStreet: "turn", oopRangeText: "50%", ipRangeText: "50%",
                                  maxIterations: 1000000, targetExploitability: 0, rakePercent: 5, rakeCap: 7,
                                  oopTurnBetSizesText: "33", ipRiverBetSizesText: "75" })
        tryVerify(() => shell.canSolve, 10000)
        keyClick(Qt.Key_3, Qt.ControlModifier)
        for (const fact of ["TURN", "100 / 200", "0% (= 0.00)", "5% (cap 7)", "F 50/50 • T 33/50 • R 50/75"])
            verify(Find.text(page(), fact), fact)
        project.targetExploitability = 0.5
        verify(Find.text(page(), "0.5% (= 0.50)"))
        project.targetExploitability = 0
        keyClick(Qt.Key_F5)
        tryVerify(() => controller.iteration > 0, 20000)
        if (controller.iteration < 40)
            compare(figure("Exploitability"), "Measuring...")
        tryVerify(() => controller.iteration > 60 && figure("Speed") !== "—", 60000)
        const iteration = controller.iteration
        const shown = controller.exploitability.toFixed(4)
        compare(figure("Exploitability"), shown)
        verify(Find.text(page(), "Iteration " + iteration + " | exploitability=" + Number(shown).toFixed(2)))
        verify(Find.text(page(), "Window " + ((iteration - 1) % 10 + 1) + "/10"))
        const seconds = text => text.split(":").reduce((sum, part) => 60 * sum + Number(part), 0)
        const [elapsed, remaining] = [seconds(figure("Elapsed")), seconds(figure("Remaining"))]
        verify(elapsed >= 1 && elapsed < 60, elapsed)
        const speed = Number(figure("Speed"))
        // The clock looks once a second, and shows a speed without decimals.
        verify(speed > 0 && speed <= iteration / elapsed + 0.5, speed)
        verify(Math.abs(remaining - (1000000 - iteration) / speed) <= 0.6 / speed * remaining + 2, remaining)
        controller.cancelSolve()
        tryVerify(() => !controller.running, 20000)
        compare([figure("Exploitability"), figure("Remaining")], ["—", "00:00"])
        verify(Find.text(page(), "Iterations: 0"))
    }

    function test_the_table_of_the_trainer() {
        results = solvedTurnPage()
        const play = results.play
        play.playStepDelayMs = 0
        play.random = Random.seeded(6)
        play.playStopOnSuboptimalAction = false
        clickButton("Play vs solution")
        clickButton("Play as IP")
        const seats = () => Find.all(results, item => item.stackWidth !== undefined)
        let uneven = false
        const bubbled = new Set()
        for (let step = 0; step < 40 && !(uneven && bubbled.has("OOP")); ++step) {
            tryVerify(() => play.playAwaitingUserAction || play.playHandComplete, 20000)
            waitForRendering(window.contentItem, 200)
            const meta = controller.nodeMeta(play.playNodeIndex)
            uneven = uneven || meta.investedOop !== meta.investedIp
            const [oop, ip] = seats()
            verify(oop.y < ip.y)
            compare(texts(oop).slice(-2), ["OOP", "Stack: " + Math.max(0, meta.effectiveStack - meta.investedOop).toFixed(0)])
            compare(texts(ip).slice(-2), ["IP", "Stack: " + Math.max(0, meta.effectiveStack - meta.investedIp).toFixed(0)])
            compare([cards(oop), cards(ip)], [[play.oopCard1, play.oopCard2], [play.ipCard1, play.ipCard2]])
            compare([oop, ip].map(seat => / face down$/.test(seat.Accessible.name)), [true, false])
            verify(Find.text(Find.withProperties(results, "pictureRatio"), "Pot: " + meta.pot.toFixed(0)))
            const line = play.playActionLine.split(" → ").filter(text => !text.startsWith("Chance")).pop()
            if (play.playLastActionText && line) {
                const [actor, action] = line.split(": ")
                const bubble = Find.all(results, item => item.text === action && item.seat !== undefined && item.implicitHeight === 30)[0]
                verify(bubble, "nothing says " + action)
                const middle = item => item.y + item.height / 2
                fuzzyCompare(middle(bubble), middle(actor === "IP" ? ip : oop), 1)
                bubbled.add(actor)
            }
            if (play.playHandComplete)
                clickButton("Another hand")
            else
                clickButton(play.playActions[play.playActions.length - 1].name)
        }
        verify(uneven, "the seats never differed")
        verify(bubbled.has("OOP"))
    }

    SolveClock {
        id: clock

        currentIteration: 30
        maxIterations: 40
    }

    function test_the_clock_counts_what_is_left() {
        for (let second = 0; second < 3; ++second)
            clock.triggered()
        compare([clock.elapsedTime, clock.iterationsPerSec, clock.estimatedRemaining], ["00:03", 10, "00:01"])
        // Another run is another time.
        clock.running = true
        clock.triggered()
        clock.running = false
        compare(clock.elapsedTime, "00:01")
    }
}

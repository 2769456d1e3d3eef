import QtQuick
import QtTest
import Velmora
import "find.js" as Find
import "random.js" as Random
import "../../qml/results/tree_walk.js" as Walk

/// Hands played against a solved turn spot, without waiting and with chance that repeats.
MainWindowCase {
    id: root

    name: "Trainer"

    property var results
    readonly property var play: results?.play
    readonly property var log: play?.log
    readonly property var walk: results?.walk

    function openTrainer(seed: int) {
        results = solvedTurnPage()
        controller.clearPlayVsSolutionStats()
        play.playStepDelayMs = 0
        play.random = Random.seeded(seed)
        clickButton("Play vs solution")
        verify(Find.text(results, "Choose a role to start"))
        verify(!Find.text(results, "Action Frequencies"))
    }

    function untilItRests() {
        tryVerify(() => play.playAwaitingUserAction || play.playHandComplete, 20000)
        wait(0)
    }

    /// The EVs of the hand that waits, as the strategy view gets them.
    function evs(): var {
        const suits = walk.suitsAt(walk.treeLevels.count)
        const cards = Array.from(play.cardsOf(play.playMeta.player), card => Walk.treeCard(card, suits))
        return controller.nodeHandCombos(play.playNodeIndex).find(combo => cards.includes(combo.c1) && cards.includes(combo.c2)).actionEvs
    }

    function best(): int {
        const list = evs()
        return list.indexOf(Math.max(...list))
    }

    /// The action that costs most, or -1 where none costs enough to count.
    function blunder(): int {
        const list = evs()
        const [low, high] = [Math.min(...list), Math.max(...list)]
        return high - low > 0.05 * Math.max(Math.abs(high), Math.abs(low)) ? list.indexOf(low) : -1
    }

    function choose(actionIndex: int) {
        clickButton(play.playActions[actionIndex].name)
    }

    function playWell() {
        untilItRests()
        while (!play.playHandComplete) {
            choose(best())
            untilItRests()
        }
    }

    /// Deals until a hand waits with a blunder to make, and makes it.
    function blunderOnce() {
        untilItRests()
        while (play.playHandComplete || blunder() < 0) {
            if (play.playHandComplete)
                clickButton("Another hand")
            else
                choose(best())
            untilItRests()
        }
        const index = blunder()
        const list = evs()
        const made = { name: play.playActions[index].name, best: play.playActions[best()].name, loss: Math.max(...list) - list[index] }
        choose(index)
        tryVerify(() => play.playHandComplete)
        return made
    }

    function test_what_is_asked_is_not_given_away() {
        openTrainer(2)
        clickButton("Play as both")
        let asked = 0
        while (asked < 3) {
            untilItRests()
            if (play.playHandComplete) {
                clickButton("Another hand")
                continue
            }
            const open = () => Find.all(results, item => item.toggleExpand !== undefined && item.nodeType === "decision" && !item.selected)
            tryVerify(() => open().length === play.playActions.length)
            for (const tile of open()) {
                verify(!Find.all(tile, item => item.objectName === "frequency").length, tile.action)
                verify(!/%/.test(tile.Accessible.description))
            }
            for (const button of Find.all(results, item => item.actionType !== undefined && item.number > 0))
                compare([button.text, button.Accessible.description],
                        [play.playActions[button.number - 1].name, "Key " + button.number])
            choose(best())
            ++asked
        }
        clickButton("Range view")
        verify(Find.all(results, item => item.objectName === "frequency").length > 1)
    }

    function test_the_smallest_window_holds_table_log_and_figures() {
        openTrainer(4)
        window.width = 1100
        window.height = 700
        Translator.setLanguage("ru")
        waitForRendering(window.contentItem, 200)
        const page = Find.withProperties(results, "minimumContentWidth", "rows")
        verify(page.minimumContentWidth <= page.width)
        const tiles = Find.all(results, item => item.inline === true)
        compare(tiles.length, 3)
        verify(tiles.every(tile => tile.mapToItem(null, tile.width, 0).x <= 1100 && tile.value !== ""))
        Translator.setLanguage("en")
        clickButton("Play as OOP")
        playWell()
        verify(!Find.text(results, "Winner: OOP") && !Find.text(results, "Winner: IP"))
        mouseClick(Find.all(results, item => item.entry !== undefined && item.focused !== undefined)[0])
        verify(Find.text(results, "Winner: OOP") || Find.text(results, "Winner: IP") || Find.text(results, "Winner: TIE"))
        const details = Find.withProperties(results, "stacked", "details")
        const table = Find.withProperties(results, "pictureRatio")
        verify(table.mapToItem(null, table.width, 0).x <= details.mapToItem(null, 0, 0).x)
        clickButton("Hand Log")
        verify(Find.text(results, "1 hands"))
    }

    function test_hands_are_played_to_their_end_and_counted() {
        openTrainer(1)
        clickButton("Play as OOP")
        verify(Find.text(results, "Role: OOP"))
        for (let hand = 1; hand <= 4; ++hand) {
            playWell()
            compare(log.playHandLog.count, hand)
            const entry = log.playHandLog.get(0)
            compare(entry.endedReason, "terminal")
            verify(!entry.isMistake)
            compare(play.playMeta.nodeType, "terminal")
            compare(walk.currentNodeIndex, play.playNodeIndex)
            compare(entry.line.split(" → ").length, walk.nodePath.length - 1)
            verify(Find.text(results, "Perfect"))
            // By mouse, and by the key that the button has the focus for.
            if (hand % 2)
                clickButton("Another hand")
            else
                keyClick(Qt.Key_Return)
            verify(!play.playHandComplete)
            // Return goes on from the end of a hand only.
            untilItRests()
            keyClick(Qt.Key_Return)
            verify(play.playAwaitingUserAction)
        }
        const stats = controller.playVsSolutionStats()
        compare([stats.totalHands, stats.totalMistakes, stats.todayHands], [4, 0, 4])
        keyClick(Qt.Key_1, Qt.ControlModifier)
        verify(Find.text(page(), "4 / 4"))
        verify(Find.text(page(), "100 / 100"))
        clickButton("Clear")
        tryVerify(() => Find.button(window.contentItem.parent, "OK"))
        wait(150)
        mouseClick(Find.button(window.contentItem.parent, "OK"))
        verify(Find.text(page(), "0 / 0"))
    }

    function test_a_mistake_costs_what_the_strategy_view_shows() {
        openTrainer(3)
        clickButton("Play as OOP")
        // At the root, which is what the strategy view shows afterwards.
        untilItRests()
        while (blunder() < 0) {
            choose(best())
            playWell()
            clickButton("Another hand")
            untilItRests()
        }
        const index = blunder()
        keyClick(Qt.Key_1 + index)
        tryVerify(() => play.playHandComplete)
        const entry = log.playHandLog.get(0)
        compare(entry.endedReason, "suboptimal")
        compare(entry.mistakeAction, play.playActions[index].name)
        compare(walk.currentNodeIndex, 0)
        verify(Find.text(results, "EV lost: " + entry.evLoss.toFixed(3)))
        verify(Find.text(results, "Incorrect: " + entry.mistakeAction))
        verify(Find.text(results, "Correct: " + entry.correctAction))
        const stats = controller.playVsSolutionStats()
        compare(stats.totalMistakes, 1)
        fuzzyCompare(stats.totalAvgEvLoss * stats.totalHands, entry.evLoss, 1e-9)

        clickButton("Range view")
        tryVerify(() => !results.view.loading && !results.view._handCombosLoading, 20000)
        const seen = results.view.visibleHandCombos.find(combo => [combo.c1 + combo.c2, combo.c2 + combo.c1].includes(entry.oop))
        fuzzyCompare(seen.actionEvs[entry.correctActionIndex] - seen.actionEvs[entry.chosenActionIndex], entry.evLoss, 1e-12)
        compare(log.playHandLog.count, stats.totalHands)
    }

    function test_both_seats_are_played_and_scored() {
        openTrainer(5)
        clickButton("Play as both")
        const actors = new Set()
        for (let hand = 0; hand < 3; ++hand) {
            untilItRests()
            while (!play.playHandComplete) {
                verify(play.isHeroSeat("OOP") && play.isHeroSeat("IP"))
                compare(play.playLastActionText, "")
                actors.add(play.playMeta.player)
                choose(best())
                untilItRests()
            }
            clickButton("Another hand")
        }
        compare(actors.size, 2)
        compare(Find.all(results, item => item.faceDown === true && item.held).length, 0)
    }

    function test_in_position_the_opponent_acts_by_itself() {
        openTrainer(6)
        clickButton("Play as IP")
        untilItRests()
        verify(Find.text(results, play.playLastActionText))
        compare(play.playActionLine.split(":")[0], "OOP")
        compare(Find.all(results, item => item.held && item.faceDown === true).length, 2)
        // The column shows the line, and takes no choices.
        const levels = walk.treeLevels.count
        mouseClick(Find.all(results, item => item.toggleExpand !== undefined)[0])
        compare(walk.treeLevels.count, levels)
        const made = blunderOnce()
        compare(log.playHandLog.get(0).mistakeActor, "IP")
        compare(log.playHandLog.get(0).mistakeAction, made.name)
        fuzzyCompare(log.playHandLog.get(0).evLoss, made.loss, 1e-12)
        // Back to the ranges, and into the trainer again: the log stays, the hand does not.
        clickButton("Range view")
        compare(walk.treeLevels.count, 1)
        clickButton("Play vs solution")
        verify(!play.playSessionStarted)
        verify(log.playHandLog.count > 0)
    }

    function test_a_drill_repeats_one_decision() {
        openTrainer(8)
        clickButton("Play as IP")
        untilItRests()
        const node = play.playNodeIndex
        clickButton("Drill spot")
        compare([play.playDrillNodeIndex, play.playDrillActor], [node, "IP"])
        verify(Find.text(results, "OOP action: " + play.drillNoteText()))
        let [right, wrong] = [0, 0]
        while (right < 2 || wrong < 2) {
            tryVerify(() => play.playAwaitingUserAction)
            const worst = blunder()
            const index = worst >= 0 && wrong < 2 ? worst : best()
            const expected = index === best() ? "Correct"
                : "Wrong — best: " + play.playActions[best()].name + " (EV -" + (evs()[best()] - evs()[index]).toFixed(3) + ")"
            choose(index)
            tryCompare(play, "playDrillFeedbackText", expected)
            tryVerify(() => Find.text(results, expected), 500)
            index === best() ? ++right : ++wrong
            compare(play.playNodeIndex, node)
        }
        compare(log.playHandLog.count, 0)
        compare(controller.playVsSolutionStats().totalHands, 0)
        clickButton("Stop drill")
        untilItRests()
        compare([play.playDrillNodeIndex, play.playDrillActor, play.playDrillFeedbackText], [-1, "", ""])
        compare(play.playNodeIndex, node)
        verify(play.playActionLine !== "")
        playWell()
        compare(log.playHandLog.count, 1)
    }

    function test_no_card_is_dealt_twice() {
        openTrainer(9)
        play.playStopOnSuboptimalAction = false
        play.startPlaySession("BOTH")
        for (let hand = 0; hand < 40; ++hand) {
            // Check after check, to the showdown.
            for (untilItRests(); !play.playHandComplete; untilItRests())
                play.choosePlayAction(0)
            const cards = BoardText.usedCards(play.playBoardText).concat(play.cardsOf("OOP"), play.cardsOf("IP"))
            compare(new Set(cards).size, 9, cards.join(" "))
            play.restartHand()
        }
    }

    function test_another_river_card() {
        openTrainer(11)
        clickButton("Play as both")
        untilItRests()
        const check = () => {
            const index = play.playActions.findIndex(action => action.name === "Check")
            play.playStopOnSuboptimalAction = false
            choose(index)
            untilItRests()
        }
        compare(play.changeableSlots.length, 0)
        check()
        check()
        compare(play.playBoardText.length, 10)
        compare(play.changeableSlots, [4])
        verify(Find.text(results, "Click Turn/River to change"))
        const before = play.playBoardText
        const river = Find.all(results, item => item.clickable === true && item.index === 4)[0]
        mouseClick(river)
        tryVerify(() => Find.text(window.contentItem.parent, "Choose River Card"))
        wait(200)
        keyClick(Qt.Key_Escape)
        tryVerify(() => !Find.text(window.contentItem.parent, "Choose River Card"))
        compare(play.playBoardText, before)
        verify(play.playAwaitingUserAction)

        mouseClick(river)
        tryVerify(() => Find.text(window.contentItem.parent, "Choose River Card"))
        wait(200)
        const names = controller.nodeActions(walk.treeLevels.get(play.chanceLevels[4]).nodeIndex).map(action => action.name)
        const listed = ["9d", "9c"].filter(card => names.includes(card))[0]
        const wanted = listed === "9d" ? "c" : "d"
        mouseClick(Find.all(window.contentItem.parent, item => item.actionIndex !== undefined && item.rank === "9" && item.suit === wanted)[0])
        untilItRests()
        compare(play.playBoardText, "QsJh2h3s9" + wanted)
        compare(play.playActionLine, "OOP: Check → IP: Check → Chance: 9" + wanted)
        // What the tree keeps as one suit is scored with the hand of that suit.
        const swapped = card => card[0] + (card[1] === "c" ? "d" : card[1] === "d" ? "c" : card[1])
        play.oopCard1 = "Ac"
        play.oopCard2 = "Kc"
        const info = results.play.scores.suboptimalEvInfoAtNode(play.playNodeIndex, "OOP", ["Ac", "Kc"], 0)
        const tree = controller.nodeHandCombos(play.playNodeIndex).find(combo => combo.c1 + combo.c2 === swapped("Kc") + swapped("Ac"))
        compare(info.chosenEv, tree.actionEvs[0])
    }

    function test_an_older_hand_stays_pinned() {
        openTrainer(13)
        clickButton("Play as OOP")
        const another = () => {
            playWell()
            clickButton("Another hand")
        }
        another()
        another()
        compare(log.playSelectedLogIndex, 0)
        // The older row makes room for the newer one.
        const older = () => Find.all(results, item => item.entry !== undefined && item.focused !== undefined).find(row => row.y > 0)
        tryVerify(older)
        mouseClick(older())
        compare(log.playSelectedLogIndex, 1)
        const pinned = JSON.stringify(log.playHandDetails)
        for (let hand = 0; hand < 3; ++hand) {
            another()
            compare(JSON.stringify(log.playHandDetails), pinned)
        }
        compare(log.playSelectedLogIndex, 4)
        log.userSelectPlayLog(0)
        another()
        compare(log.playSelectedLogIndex, 0)
        clickButton("Close")
        another()
        compare(log.playHandDetails, null)
        verify(!Find.text(results, "Hand details"))
        verify(Find.text(results, "7 hands"))
    }

    function test_a_new_solve_ends_the_hand() {
        openTrainer(15)
        clickButton("Play as OOP")
        untilItRests()
        controller.reSolveWithNodeLocks()
        verify(!play.playMode)
        tryVerify(() => !controller.running, 60000)
        verify(!play.playSessionStarted)
        compare(walk.currentNodeIndex, 0)
        verify(Find.text(results, "Action Frequencies"))
    }
}

import QtQuick
import QtTest
import "find.js" as Find

/// A walk on the Results page never keeps the window waiting: what its steps show is put into the rows
/// that are there, in short turns of the event loop.
MainWindowCase {
    id: root

    name: "ResultsTurns"

    property var results
    readonly property var walk: results?.walk
    readonly property var view: results?.view
    readonly property var steps: [
        { name: "check", take: () => walk.selectActionAtLevel(0, 0) },
        { name: "bet", take: () => walk.selectActionAtLevel(1, 1) },
        { name: "call", take: () => walk.selectActionAtLevel(2, 1) },
        { name: "river card", take: () => walk.chooseChanceCard(3, 20, "") },
        { name: "river check", take: () => walk.selectActionAtLevel(4, 0) },
        { name: "river bet", take: () => walk.selectActionAtLevel(5, 1) },
        { name: "root", take: () => walk.navigateToBreadcrumb(0) }
    ]

    /// A piece of work that takes the measure of the machine and of how busy it is.
    Component {
        id: yardstick

        Rectangle {
            id: piece

            property int count: 3
            readonly property string label: "x" + count

            width: 10 + count
            color: count > 2 ? "red" : "blue"

            Text {
                anchors.centerIn: parent
                text: piece.label
            }

            Item {
                width: piece.width
                visible: piece.count > 1
            }
        }
    }

    /// Milliseconds that a hundred pieces take.
    function yardstickTime(): real {
        turnClock.restart()
        const pieces = Array.from({ length: 100 }, () => yardstick.createObject(root))
        const time = turnClock.turns().pop()
        pieces.forEach(piece => piece.destroy())
        return time
    }

    function settle() {
        tryVerify(() => !view.loading && !view._handCombosLoading, 20000)
        wait(100)
    }

    /// The rows of the list of combos that can be seen.
    function comboRows(): var {
        const list = Find.all(results, item => item.rowCount !== undefined && item.Accessible.name === "Hand Details")[0]
        return list.opacity > 0 ? Find.all(list, item => item.combo !== undefined && item.actions !== undefined) : []
    }

    function test_no_turn_of_a_walk_is_long() {
        results = solvedTurnPage()
        settle()
        const rounds = 5
        const longest = steps.map(() => [])
        const yardsticks = []
        for (let round = 0; round < rounds; ++round) {
            steps.forEach((step, index) => {
                gc()
                yardsticks.push(yardstickTime())
                wait(0)
                turnClock.restart()
                step.take()
                settle()
                // The first round makes the rows that the others find.
                if (round > 0)
                    longest[index].push(Math.max(...turnClock.turns()))
            })
        }
        // The quietest of each, because a busy machine makes any of them longer. Rows that are made
        // anew at each step take 20 to 30 yardsticks, those that are kept 4 to 11.
        const bound = 16 * Math.min(...yardsticks)
        steps.forEach((step, index) => {
            const time = Math.min(...longest[index])
            verify(time < bound, step.name + ": " + time.toFixed(1) + " ms in a turn, at most " + bound.toFixed(1))
        })
    }

    function test_rows_live_through_a_walk() {
        results = solvedTurnPage()
        settle()
        // Rows get taller with more actions, and the last of them leave the view.
        const rows = comboRows().slice(0, 5)
        compare(rows.length, 5)
        for (const step of steps) {
            step.take()
            settle()
            const now = comboRows()
            if (view.visibleHandCombos.length === 0)
                compare(now.length, 0, step.name)
            else
                verify(rows.every(row => now.includes(row)), step.name)
            now.forEach(row => compare(row.combo, view.visibleHandCombos[row.index], step.name))
        }
        // A hidden lock panel makes no buttons.
        const panel = []
        const collect = item => {
            if (item.lockable !== undefined)
                panel.push(item)
            Array.from(item.children).forEach(collect)
        }
        collect(results)
        compare(panel.length, 1)
        const buttons = () => Find.all(results, item => item.clicked !== undefined
                                       && controller.nodeActions(0).some(action => item.text === action.name))
        compare(buttons().length, 0)
        clickButton("Node-lock mode")
        compare(buttons().length, controller.nodeActions(0).length)
    }
}

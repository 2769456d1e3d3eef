import QtQuick
import QtTest
import Velmora
import "../../qml/components/hand_grid.js" as HandGrid

TestCase {
    id: test

    name: "HandMatrix"
    when: windowShown
    visible: true
    width: 500
    height: 500

    Component {
        id: editorComponent

        RangeEditor {
            onRangeChanged: newRange => rangeText = newRange
        }
    }

    Component {
        id: matrixComponent

        HandMatrix {
            property string log

            onHandClicked: (hand, weight) => log += "click " + hand + " " + weight + ";"
            onHandHovered: (hand, weight) => log += editable ? "" : hand + " " + weight + ";"
            onHandPainted: (hand, on, weight) => {
                log += (on ? "+" : "-") + hand + " " + weight + ";"
                weights = Object.assign({}, weights, { [hand]: on ? 1 : 0 })
            }
        }
    }

    function make(properties) {
        return createTemporaryObject(matrixComponent, test, properties)
    }

    /// Presses at the first x of the top row, moves over the others and releases at the last.
    function drag(matrix, xs) {
        mousePress(matrix, xs[0], 16)
        xs.slice(1).forEach(x => mouseMove(matrix, x, 16, -1, Qt.LeftButton))
        mouseRelease(matrix, xs[xs.length - 1], 16)
    }

    function init() {
        mouseMove(test, 495, 495)
    }

    function test_cell_at() {
        const points = [[0, 0, 0], [34, 5, 1], [5, 65, 13], [32, 5, 0], [32.5, 5, -1], [5, 33, -1],
                        [439, 439, 168], [442, 5, -1], [-1, 5, -1]]
        for (const [x, y, cell] of points)
            compare(HandGrid.cellAt(x, y, 32, 2), cell, x + ", " + y)
    }

    // Points are shares of the cell of "AA"; a key is an action, "fill" the plain fill, "" the base.
    function test_fill_data() {
        const split = ["fold", "call"]
        return [
            { tag: "left half", weight: 0.5, seen: [[0.4, 0.9, "fill"], [0.6, 0.1, ""]] },
            { tag: "lower half", weight: 0.5, mode: "verticalFill", seen: [[0.1, 0.9, "fill"], [0.9, 0.1, ""]] },
            { tag: "no number", weight: "x", seen: [[0.1, 0.9, ""]] },
            { tag: "above 1", weight: 3, seen: [[0.9, 0.9, "fill"]] },
            { tag: "split below", weight: 0.3, mode: "verticalFill", types: split, probs: [0.5, 0.5],
              seen: [[0.4, 0.8, "fold"], [0.6, 0.8, "call"], [0.1, 0.1, ""], [0.9, 0.1, ""]] },
            { tag: "split in a span", weight: 0.5, types: split, probs: [0.5, 0.5],
              seen: [[0.2, 0.9, "fold"], [0.3, 0.9, "call"], [0.6, 0.9, ""]] },
            { tag: "last takes the rest", weight: 1, types: split, probs: [0.2, 0.1], seen: [[0.1, 0.9, "fold"], [0.9, 0.9, "call"]] },
            { tag: "sum above 1", weight: 1, types: ["fold", "call", "check"], probs: [0.7, 0.9, 1], seen: [[0.9, 0.9, "call"]] },
            { tag: "negative", weight: 1, types: split, probs: [-1, 0.2], seen: [[0.1, 0.9, "call"]] },
            { tag: "too few probabilities", weight: 1, types: split, probs: [1], seen: [[0.5, 0.9, "fill"]] }
        ]
    }

    function test_fill(data) {
        const matrix = make({
            weights: { AA: data.weight }, colors: { AA: "#ff00ff" }, showLabels: false,
            weightDisplayMode: data.mode ?? "horizontalSpan",
            actionTypes: data.types ?? [], actionProbs: { AA: data.probs ?? [] }
        })
        const base = Style.theme.surface3
        // At first each cell draws its own base; then one picture has them all.
        for (const waiting of [0, 50]) {
            wait(waiting)
            const image = grabImage(matrix)
            for (const [x, y, key] of data.seen) {
                const seen = image.pixel(32 * x, 32 * y)
                const fill = key === "fill" ? Qt.color("#ff00ff") : key ? Style.theme.actionColor(key) : base
                const alpha = key && key !== "fill" ? 0.85 : 1
                fuzzyCompare(seen.r, base.r * (1 - alpha) + fill.r * alpha, 0.02)
                fuzzyCompare(seen.b, base.b * (1 - alpha) + fill.b * alpha, 0.02)
            }
            compare(image.pixel(50, 16), Style.theme.surface2)
            compare(image.pixel(16, 50), Style.theme.surface)
        }
    }

    function test_painting_data() {
        return [
            { tag: "click on", xs: [16], log: "+AA 0;" },
            { tag: "click off", on: { AA: 0.5 }, xs: [16], log: "-AA 0.5;" },
            { tag: "on over off-cells", on: { AQs: 1 }, xs: [16, 50, 84, 118], log: "+AA 0;+AKs 0;+AJs 0;" },
            { tag: "off over on-cells", on: { AA: 1, AQs: 0.25 }, xs: [16, 50, 84, 118], log: "-AA 1;-AQs 0.25;" },
            { tag: "there and back", xs: [16, 50, 16], log: "+AA 0;+AKs 0;" },
            { tag: "fast", xs: [16, 152], log: "+AA 0;+AKs 0;+AQs 0;+AJs 0;+ATs 0;" },
            { tag: "from a gap", xs: [33, 84], log: "" }
        ]
    }

    function test_painting(data) {
        const matrix = make({ editable: true, selectable: true, weights: data.on ?? {} })
        drag(matrix, data.xs)
        mouseMove(matrix, 200, 16)
        compare(matrix.log, data.log)
    }

    function test_hover_and_click() {
        const matrix = make({ weights: { AKs: 0.5 } })
        for (const x of [45, 55, 67, 84])
            mouseMove(matrix, x, 16)
        mouseClick(matrix, 84, 16)
        compare(matrix.log, "AKs 0.5;AQs 0;")
        matrix.selectable = true
        matrix.log = ""
        verify(!matrix.activeFocus)
        mouseClick(matrix, 84, 16)
        verify(matrix.activeFocus)
        drag(matrix, [84, 50])
        compare(matrix.log, "AQs 0;click AQs 0;AQs 0;AKs 0.5;")
    }

    function test_keys() {
        const matrix = make({ editable: true, selectable: true, weights: { AKs: 1 } })
        matrix.forceActiveFocus()
        compare(matrix.Accessible.description, "AA, weight 0%")
        for (const key of [Qt.Key_Up, Qt.Key_Left, Qt.Key_Space, Qt.Key_Right, Qt.Key_Return, Qt.Key_Down, Qt.Key_Space])
            keyClick(key)
        matrix.editable = false
        keyClick(Qt.Key_Space)
        compare(matrix.log, "+AA 0;-AKs 1;+KK 0;click KK 1;")
        compare(matrix.Accessible.description, "KK, weight 100%")
    }

    function test_range_editor() {
        const editor = createTemporaryObject(editorComponent, test, { rangeText: "AA, KK:0.5, foo" })
        compare(editor.handCount, 2)
        mouseClick(findChild(editor, "matrix"), 50, 16)
        compare(editor.rangeText, "AA, AKs, KK")
        mouseClick(findChild(editor, "matrix"), 16, 16)
        compare(editor.rangeText, "AKs, KK")
        mouseClick(findChild(editor, "25%"))
        compare(editor.handCount, 169)
        const field = findChild(editor, "field")
        field.forceActiveFocus()
        field.selectAll()
        keyClick(Qt.Key_Q)
        keyClick(Qt.Key_Q)
        compare(editor.weights.QQ, 1)
        mouseClick(findChild(editor, "clear"))
        compare(editor.rangeText + field.text, "")
    }
}

import QtQuick
import QtQuick.Templates as T
import QtTest
import Velmora
import "../../qml/components/action_frequencies.js" as Frequencies

TestCase {
    id: test

    name: "Controls"
    when: windowShown
    visible: true
    width: 400
    height: 600

    Theme {
        id: theme
    }

    SignalSpy {
        id: spy
    }

    Component {
        id: primary

        PrimaryButton { text: "Go" }
    }

    Component {
        id: secondary

        SecondaryButton { text: "Go" }
    }

    Component {
        id: small

        SmallButton { text: "Go" }
    }

    Component {
        id: toggleSwitch

        ToggleSwitch {}
    }

    Component {
        id: bar

        ActionBar { width: 300 }
    }

    Component {
        id: node

        TreeNode {}
    }

    function make(component: Component, properties: var): var {
        return createTemporaryObject(component, test, properties)
    }

    /// Whether two colours are the same to the eye; a pixel has eight bits a channel.
    function alike(a: color, b: color): bool {
        return ["r", "g", "b"].every(channel => Math.abs(a[channel] - b[channel]) < 0.01)
    }

    function listen(target: QtObject, signalName: string) {
        spy.target = null
        spy.clear()
        spy.signalName = signalName
        spy.target = target
    }

    function test_shares_data() {
        return [
            { tag: "do not sum to 1", raw: [2, 1, 1], shares: [0.5, 0.25, 0.25] },
            { tag: "single", raw: [0.3], shares: [1] },
            { tag: "not numbers", raw: [undefined, NaN, Infinity, "x", null, 3], shares: [0, 0, 0, 0, 0, 1] },
            { tag: "negative", raw: [-5, 1, 1], shares: [0, 0.5, 0.5] },
            { tag: "no sum", raw: [0, -1], shares: [0, 0] },
            { tag: "no entries", raw: [], shares: [] }
        ]
    }

    function test_shares(data) {
        compare(Frequencies.shares(data.raw.map(f => ({ frequency: f }))), data.shares)
        // A list of the controller has an index and a length, but no methods.
        const list = { length: data.raw.length }
        data.raw.forEach((f, i) => list[i] = { frequency: f })
        compare(Frequencies.shares(list), data.shares)
    }

    // Radii as [left, right] for each drawn segment, for a corner radius of 8.
    function test_segments_data() {
        return [
            { tag: "two", shares: [0.5, 0.5], height: 20, indices: [0, 1], radii: [[8, 0], [0, 8]] },
            { tag: "pill", shares: [0, 1, 0], height: 20, indices: [1], radii: [[8, 8]] },
            { tag: "low strip", shares: [0.5, 0.5], height: 10, indices: [0, 1], radii: [[5, 0], [0, 5]] },
            { tag: "narrow end", shares: [0.01, 0.99], height: 20, indices: [0, 1], radii: [[1.5, 0], [0, 8]] },
            { tag: "sliver between", shares: [0.4995, 0.001, 0.4995], height: 20, indices: [0, 1, 2],
              radii: [[8, 0], [0, 0], [0, 8]] },
            { tag: "slivers at the ends", shares: [0.001, 0.998, 0.001], height: 20, indices: [0, 1, 2],
              radii: [[0, 0], [8, 8], [0, 0]] },
            { tag: "only slivers", shares: [0.001, 0.001], height: 20, indices: [0, 1],
              radii: [[0.15, 0], [0, 0.15]] },
            { tag: "nothing", shares: [0, 0], height: 20, indices: [], radii: [] }
        ]
    }

    function test_segments(data) {
        const segments = Frequencies.segments(data.shares, 300, data.height, 8)
        compare(segments.map(s => s.index), data.indices)
        let x = 0
        segments.forEach((segment, i) => {
            fuzzyCompare(segment.x, x, 1e-9)
            fuzzyCompare(segment.width, data.shares[segment.index] * 300, 1e-9)
            fuzzyCompare(segment.leftRadius, data.radii[i][0], 1e-9)
            fuzzyCompare(segment.rightRadius, data.radii[i][1], 1e-9)
            x += segment.width
        })
    }

    function test_bar_paints_and_answers() {
        const actions = [{ name: "Check", actionType: "check", frequency: 2 },
                         { name: "Bet 33%", frequency: 1 },
                         { name: "Own", actionType: "fold", color: "#123456", frequency: 1 }]
        const item = make(bar, { theme: theme, actions: actions, showLabels: false })
        compare([item.implicitWidth, item.implicitHeight], [300, 24])
        const expected = [[20, theme.accent], [160, theme.actionColor("bet 33%")], [290, Qt.color("#123456")]]
        for (const [x, color] of expected)
            tryVerify(() => alike(grabImage(item).pixel(x, 4), color), 2000, "at " + x)

        listen(item, "actionHovered")
        mouseMove(item, 200, 10)
        tryVerify(() => spy.count > 0)
        compare(Array.from(spy.signalArguments[spy.count - 1]), [1, "Bet 33%", 0.25])

        listen(item, "actionClicked")
        mouseClick(item, 200, 10)
        compare(spy.count, 0)
        item.interactive = true
        mouseClick(item, 200, 10)
        compare(Array.from(spy.signalArguments[0]), [1, "Bet 33%"])
        item.selectedAction = 1
        item.forceActiveFocus()
        keyClick(Qt.Key_Right)
        compare(Array.from(spy.signalArguments[1]), [2, "Own"])
        item.selectedAction = 2
        keyClick(Qt.Key_Right)
        compare(spy.count, 2)

        item.actions = []
        tryVerify(() => alike(grabImage(item).pixel(150, 4), theme.surface2))
    }

    function test_tree_node_texts_data() {
        return [
            { tag: "nothing to tell", set: {}, title: "OOP" },
            { tag: "hidden", set: { pot: 0, frequency: -1, ev: 0 }, title: "OOP" },
            { tag: "never taken", set: { player: "IP", frequency: 0 }, title: "IP", frequency: "Freq: 0%" },
            { tag: "rounded", set: { pot: 180.4, frequency: 0.255, ev: 1.256 }, title: "OOP",
              pot: "Pot: 180", frequency: "Freq: 26%", ev: "EV: +1.26" },
            { tag: "clamped", set: { frequency: 1.2, ev: -3 }, title: "OOP", frequency: "Freq: 100%", ev: "EV: -3.00" },
            { tag: "deal", set: { nodeType: "chance", player: "" }, title: "Deal" },
            { tag: "named deal", set: { nodeType: "chance", player: "Deal Turn" }, title: "Deal Turn" },
            { tag: "end", set: { nodeType: "terminal" }, title: "Terminal" }
        ]
    }

    function test_tree_node_texts(data) {
        const item = make(node, data.set)
        compare(findChild(item, "title").text, data.title)
        for (const field of ["pot", "frequency", "ev"]) {
            const label = findChild(item, field)
            compare(label.visible, data[field] !== undefined, field)
            if (label.visible)
                compare(label.text, data[field])
        }
        compare(findChild(item, "expander").visible, (data.set.nodeType ?? "decision") === "decision")
    }

    function test_tree_node_expander_does_not_select() {
        const item = make(node, { x: 20, y: 20 })
        const expander = findChild(item, "expander")
        listen(item, "toggleExpand")
        mouseClick(expander)
        compare(spy.count, 1)
        compare(expander.text, "+")
        listen(item, "clicked")
        mouseClick(expander)
        compare(spy.count, 0)
        mouseClick(item, 150, 40)
        item.forceActiveFocus()
        keyClick(Qt.Key_Space)
        keyClick(Qt.Key_Return)
        compare(spy.count, 3)
    }

    function test_buttons_data() {
        return [
            { tag: "primary", component: primary }, { tag: "secondary", component: secondary },
            { tag: "small", component: small }, { tag: "toggle switch", component: toggleSwitch }
        ]
    }

    function test_buttons(data) {
        const item = make(data.component, { x: 20, y: 20 })
        listen(item, "clicked")
        keyClick(Qt.Key_Tab)
        verify(item.visualFocus)
        for (const key of [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter])
            keyClick(key)
        compare(spy.count, 3)
        mouseClick(item)
        compare(spy.count, 4)
        item.enabled = false
        mouseClick(item)
        compare(spy.count, 4)
    }
}

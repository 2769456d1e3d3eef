import QtQuick
import QtTest
import Velmora
import "../../qml/setup/library/range_library_overrides.js" as Overrides
import "../../qml/setup/library/range_library_population.js" as Population
import "../../qml/setup/library/range_library_standard.js" as Standard
import "../../qml/setup/library/range_library_tree.js" as Tree

/// The trees of ranges beside a matrix: how they are read, built, listed, edited and written.
TestCase {
    id: root

    name: "RangeLibrary"

    /// A tree in short: "a=AA B[c=KK]".
    function brief(tree: var): string {
        return tree.map(node => node.type === "folder" ? node.name + "[" + brief(node.children) + "]"
                                                       : node.name + "=" + node.value).join(" ")
    }

    /// A tree of nested maps in which a text is a range's value; a node's id is its name.
    function tree(content: var): var {
        return Object.keys(content).map(name => typeof content[name] === "string"
            ? { id: name, type: "range", name: name, value: content[name] }
            : { id: name, type: "folder", name: name, children: tree(content[name]) })
    }

    function open(ids: string): var {
        return ids.split(" ").filter(id => id !== "").reduce((map, id) => Object.assign(map, { [id]: true }), {})
    }

    function shown(nodes: var, openIds: var): string {
        return Tree.flattenTree(nodes, openIds, name => name)
            .map(row => "-".repeat(row.depth) + row.id).join(" ")
    }

    function leaves(nodes: var, path = []): var {
        return nodes.reduce((found, node) => found.concat(node.type === "folder"
            ? leaves(node.children, [...path, node.name])
            : [{ path: path, name: node.name, value: node.value }]), [])
    }

    function test_whatever_was_stored_becomes_a_tree() {
        const cases = {
            "": "", "nonsense": "", "{}": "", "[]": "",
            '[null, 7, "x", {}, {"name": " "}]': "",
            '[{"name": "BTN", "value": "AA"}, {"name": " b "}]': "BTN=AA b=",
            '[{"type": "folder", "name": "F", "children": [{"name": "x", "value": "KK"}]}]': "F[x=KK]",
            '[{"name": "F", "children": []}, {"type": "folder", "name": "G", "children": 7}]': "F[] G[]",
            '[{"type": "folder", "name": "", "children": [{"name": "x", "value": "KK"}]}]': "",
            '[{"name": {"toString": 1}}, {"name": "a", "id": {"toString": 1}, "value": {"toString": 1}}]': "a="
        }
        for (const json in cases)
            compare(brief(Tree.parse(json)), cases[json], json)
        const [kept, made] = Tree.parse('[{"id": "n_1", "name": "a"}, {"id": " ", "name": "b"}]')
        compare(kept.id, "n_1")
        verify(/^n_[0-9a-z]+_[0-9a-z]{6}$/.test(made.id), made.id)
    }

    function test_folders_open_like_an_accordion() {
        const nodes = tree({ A: { C: { x: "AA" }, y: "KK" }, B: {}, z: "QQ" })
        const steps = [["", "A B z"], ["A", "A -C -y"], ["C", "A -C --x"], ["A", "A B z"], ["A", "A -C --x"],
                       ["C", "A -C -y"], ["A", "A B z"], ["B", "B"], ["A", "A -C -y"]]
        let openIds = {}
        for (const [clicked, expected] of steps) {
            if (clicked !== "")
                openIds = Tree.toggleOpenFolder(nodes, openIds, clicked)
            compare(shown(nodes, openIds), expected)
        }
        compare(Object.keys(Tree.openWayTo(nodes, open("B"), "x", false)), ["A", "C"])
        const [row] = Tree.flattenTree(nodes, open("A C"), name => name).slice(-1)
        compare([row.kind, row.value, row.depth, row.parentFolderId].join(), "range,AA,2,C")
    }

    function test_where_a_new_node_goes() {
        const nodes = tree({ A: { C: {}, Foo: "KK" }, Foo: "QQ", "Foo (2)": "JJ" })
        const parents = { "": "", A: "A", C: "C", nothing: "" }
        for (const selected in parents)
            compare(Tree.targetFolderId(nodes, selected), parents[selected], selected)
        compare(Tree.targetFolderId(tree({ A: { x: "KK" } }), "x"), "A")
        compare(Tree.uniqueRangeName(nodes, "", "Foo"), "Foo (3)")
        compare(Tree.uniqueRangeName(nodes, "A", "Foo"), "Foo (2)")
        compare(Tree.uniqueRangeName(nodes, "C", "Foo"), "Foo")
        compare(brief(Tree.withNode(nodes, "C", { type: "range", name: "n", value: "22" })),
                "A[C[n=22] Foo=KK] Foo=QQ Foo (2)=JJ")
    }

    function test_deleting_data() {
        const two = { A: { x: "AA", y: "KK", D: {} }, b: "QQ", c: "JJ" }
        return [
            { tag: "in the middle", nodes: two, id: "b", left: "A[x=AA y=KK D[]] c=JJ", selected: "c" },
            { tag: "the last row", nodes: two, id: "c", left: "A[x=AA y=KK D[]] b=QQ", selected: "b" },
            { tag: "a folder", nodes: two, id: "A", open: "A", left: "b=QQ c=JJ", selected: "b" },
            { tag: "inside a folder", nodes: two, id: "x", open: "A", left: "A[y=KK D[]] b=QQ c=JJ", selected: "y" },
            { tag: "before a folder", nodes: two, id: "y", open: "A", left: "A[x=AA D[]] b=QQ c=JJ", selected: "D" },
            { tag: "the only row", nodes: { a: "AA" }, id: "a", left: "", selected: "" }
        ]
    }

    function test_deleting(data) {
        const nodes = tree(data.nodes)
        const result = Tree.deleteNode(nodes, open(data.open ?? ""), data.id)
        compare(brief(result.tree), data.left)
        compare(result.selectedId, data.selected)
        compare(Object.keys(result.openFolderIds).join(" "), data.id === "A" ? "" : data.open ?? "")
        compare(Tree.countDescendants(tree({ A: { x: "", y: "", D: {} } })[0]), 3)
    }

    function test_routes() {
        const routes = {
            "RFI UTG": "RFI > UTG", "vs RFI UTG: Call SB": "vs RFI > vs UTG RFI > Call SB",
            "vs RFI UTG": "vs RFI > UTG", "vs RFI : Call": "vs RFI > : Call",
            "UTG vs HJ 3bet: UTG 4bet": "vs 3bet > UTG vs HJ 3bet > UTG 4bet",
            "SB 3bet vs UTG 4bet: SB Call": "vs 4bet > SB 3bet vs UTG 4bet > SB Call",
            "SB 3bet vs UTG 4bet": "vs 4bet > SB 3bet vs UTG 4bet", "3bet: ": "vs 3bet > 3bet: ",
            "UTG 3bet": "UTG 3bet", "Unknown thing": "Unknown thing"
        }
        for (const scenario in routes) {
            const route = Standard.routeRange(scenario)
            compare([...route.path, route.leaf].join(" > "), routes[scenario])
        }
    }

    function test_standard_tree_and_its_inverse() {
        const empty = "[RFI[] vs RFI[] vs 3bet[] vs 4bet[]]"
        const names = ["RFI UTG", "Unknown thing", "6-max / 50nl rake / vs RFI CO", "10nl / RFI CO",
                       "Heads up / 500nl rake / vs RFI SB: Call BB", "No rake / Heads up / RFI SB",
                       "200nl rake / UTG vs HJ 3bet: UTG Call", "200nl rake / UTG vs HJ 3bet: UTG 4bet",
                       "200nl rake / SB 3bet vs UTG 4bet: SB Call", "200nl rake / vs RFI UTG: Call SB"]
        const built = Standard.buildStandardTree(names.map(name => ({ name: name, value: "AA" })))
        compare(brief(built), "6-max[No rake[RFI[UTG=AA] vs RFI[] vs 3bet[] vs 4bet[] Unknown thing=AA 10nl / RFI CO=AA]"
            + " 50nl rake[RFI[] vs RFI[CO=AA] vs 3bet[] vs 4bet[]] 100nl rake" + empty
            + " 200nl rake[RFI[] vs RFI[vs UTG RFI[Call SB=AA]] vs 3bet[UTG vs HJ 3bet[UTG Call=AA UTG 4bet=AA]]"
            + " vs 4bet[SB 3bet vs UTG 4bet[SB Call=AA]]] 500nl rake" + empty
            + "] Heads up[No rake[RFI SB=AA] 50nl rake[] 100nl rake[] 200nl rake[] 500nl rake[vs RFI SB: Call BB=AA]]")
        const rows = Standard.flattenStandardForExport(built)
        compare(rows.length, names.length)
        compare(rows[0].name, "No rake / RFI UTG")
        compare(rows[rows.length - 1].name, "Heads up / 500nl rake / vs RFI SB: Call BB")
        compare(brief(Standard.buildStandardTree(rows)), brief(built))
        const noText = JSON.parse('{"toString": 1}')
        compare(Standard.validRows([{ name: " " }, null, { name: noText }, { name: "RFI UTG", value: noText }]).map(row => row.name + row.value), ["RFI UTG"])
    }

    function test_overrides() {
        const parsed = Overrides.parse('[{"key": "A / x", "value": "22"}, {"key": " ", "value": "33"}, {"value": "44"}]')
        compare(JSON.stringify(parsed), '{"A / x":"22"}')
        compare(JSON.stringify(Overrides.parse('{"A / x": "22", "y": " ", "z": null}')), '{"A / x":"22"}')
        for (const json of ["", "no", "null", "7", '{"a": {"toString": 1}, "b": [[]], "c": true}', '[{"key": {}, "value": "AA"}]'])
            compare(Object.keys(Overrides.parse(json)).length, 0, json)
        const nodes = tree({ A: { x: "AA", constructor: "KK" }, y: "QQ", z: "JJ" })
        const applied = Overrides.applyOverridesToTree(nodes,
            { "A / x": "22", "6-max / y": "33", "Heads up / y": "44", "Heads up / z": "55" })
        compare(brief(applied), "A[x=22 constructor=KK] y=33 z=55")
        compare(applied[0].children[0].id, "x")
    }

    /// Whether the solve reads a token as the matrix shows it: a pair or a kicker may rise or span, but
    /// not a connector, nor both cards.
    function readsAlike(token: string): bool {
        const [, high, low, suits, end, high2, low2, suits2] = /^(.)(.)([so]?)(\+|-(.)(.)([so]?))?$/.exec(token)
        if (end === undefined || high === low)
            return !end || end === "+" || high2 === low2
        return end === "+" ? HandText.ranks.indexOf(low) - HandText.ranks.indexOf(high) > 1
                           : high2 === high && suits2 === suits
    }

    function test_template_data() {
        return [{ tag: "oop", own: 107 }, { tag: "ip", own: 118 }]
    }

    function test_template(data) {
        const standard = tree({ "6-max": { "No rake": { RFI: { UTG: "AA:0.5, KK,QQ:0.25" } } } })
        const nodes = Population.buildExploitTree(data.tag, standard)
        const all = leaves(nodes)
        compare(nodes.map(node => node.name).join("; "), "Passive (VPIP 18–65); Loose aggressive (VPIP 28–70); "
            + "Weaker regs; Overfolder (10-22 VPIP); Other")
        const regs = all.filter(leaf => leaf.path[0] === "Weaker regs")
        compare(regs.map(leaf => leaf.path.slice(1).join() + leaf.name + leaf.value).join("; "),
                "Tighter reg,RFIUTGAA, KK, QQ; Looser reg,RFIUTGAA, KK, QQ")
        compare(all.length - regs.length, data.own)
        compare(new Set(all.map(leaf => [...leaf.path, leaf.name].join())).size, all.length)
        compare(brief(nodes.slice(-1)), "Other[Bomb pot=100%]")
        for (const leaf of all) {
            const hands = Object.keys(RangeText.weights(leaf.value))
            const at = [...leaf.path, leaf.name].join(" / ")
            compare(hands.length > 0, leaf.path[1] !== "Nit", at)
            verify(hands.every(hand => HandText.labels.includes(hand)), at)
            verify(leaf.value === "" || leaf.value === "100%" || leaf.value.split(", ").every(readsAlike), at)
        }
        const valueOf = (type, position, name) => all.find(leaf => leaf.path[1].startsWith(type)
            && leaf.path[2] === position && leaf.name === name).value
        compare(valueOf("Passive tight", "UTG/HJ/CO", "Limp-3b"), "QQ+, AKs, AKo")
        if (data.tag === "oop")
            compare(valueOf("Extreme loose", "BB", "Check back"), "100%")
        else
            compare(valueOf("Maniac", "BU", "RFI"), valueOf("Maniac", "UTG/HJ/CO", "RFI"))
    }

    function test_population_file_and_template() {
        const names = nodes => nodes.map(node => node.name)
        const merged = Population.completed(tree({ Foo: {}, "Weaker regs": {} }), "oop", [])
        compare(names(merged), ["Foo", "Weaker regs", "Passive (VPIP 18–65)", "Loose aggressive (VPIP 28–70)",
                                "Overfolder (10-22 VPIP)", "Other"])
        for (const file of [{}, { x: "AA" }])
            compare(names(Population.completed(tree(file), "ip", [])).length, 5)
        compare(Population.stripWeightsText("AA:0.5,KK QQ:1\n99-22:0.25, 100%"), "AA, KK, QQ, 99-22, 100%")
    }

    QtObject {
        id: bundled

        property var texts: ({})
        property string written: ""
        property bool writable: true

        function readTextResource(path: string): string {
            return texts[path] ?? ""
        }

        function saveTextFile(file: url, text: string): var {
            written = text
            return { ok: writable, error: writable ? "" : "disk full" }
        }
    }

    Component {
        id: librariesComponent

        RangeLibraries {
            files: bundled
        }
    }

    function makeLibraries(standard: var, exploit: var): RangeLibraries {
        bundled.texts = {
            ":/qt/qml/Velmora/qml/data/standard_ranges.json": standard,
            ":/Velmora/qml/data/exploit_ranges.json": exploit
        }
        return createTemporaryObject(librariesComponent, root)
    }

    readonly property string standardFile: JSON.stringify({
        oop: { standard: [{ name: "RFI UTG", value: "AA:0.5" }, { name: "Heads up / RFI SB" }] },
        ip: { standard: [{ name: "50nl rake / RFI HJ", value: "KK" }] }
    })
    readonly property string exploitFile: JSON.stringify({
        oop: { exploit: [{ type: "folder", name: "Foo", children: [{ name: "x", value: "22" }] }] }
    })

    function test_reading_the_libraries() {
        let libraries = makeLibraries(standardFile, exploitFile)
        compare(libraries._presetLoadError, "")
        verify(brief(libraries.rangesFor("oop", 0)).startsWith("6-max[No rake[RFI[UTG=AA:0.5]"))
        verify(brief(libraries.rangesFor("ip", 0)).includes("50nl rake[RFI[HJ=KK]"))
        verify(brief(libraries.rangesFor("oop", 1)).startsWith("Foo[x=22] Passive"))
        verify(brief(libraries.rangesFor("ip", 1)).includes("Tighter reg[RFI[] vs RFI[]"))
        // Without the charts the rest goes on; broken ones leave all as it was.
        libraries = makeLibraries("", exploitFile)
        compare(libraries.loadErrorOf(0), "Failed to load bundled standard presets (resource file missing/empty).")
        compare(libraries.loadErrorOf(1), "")
        compare(libraries.rangesFor("oop", 0).length, 0)
        compare(libraries.rangesFor("oop", 1)[0].name, "Foo")
        libraries = makeLibraries(standardFile, "")
        compare(libraries._presetLoadError, "")
        compare(libraries.rangesFor("ip", 1).length, 5)
        bundled.texts = { ":/Velmora/qml/data/standard_ranges.json": "{" }
        libraries._loadBundledPresetRanges()
        verify(libraries._presetLoadError.startsWith("Failed to load bundled presets: "))
        compare(libraries.rangesFor("ip", 1).length, 5)
    }

    function test_overriding_and_exporting() {
        let libraries = makeLibraries(standardFile, exploitFile)
        const find = (player, category, name) => {
            const library = libraries.seatLibrary(player)
            library.rangeCategory = category
            library.selectedId = leafId(library.ranges, name)
            return library
        }
        const oop = find("oop", 0, "UTG")
        verify(!oop.canOverride(" "))
        oop.overrideSelectedRange("QQ+")
        compare(oop.selectedNode.value, "QQ+")
        find("oop", 1, "x").overrideSelectedRange("33")
        libraries.exportRanges(0, "")
        compare(JSON.stringify(JSON.parse(bundled.written).oop.standard),
                '[{"name":"No rake / RFI UTG","value":"QQ+"},{"name":"Heads up / No rake / RFI SB","value":""}]')
        const exported = bundled.written
        const before = brief(libraries.rangesFor("oop", 0))
        libraries.exportRanges(1, "")
        const population = JSON.parse(bundled.written)
        compare([population.format, population.version, population.oop.standard.length].join(), "velmora_ranges_export,1,0")
        compare(JSON.stringify(population.oop.exploit[0]), '{"type":"folder","name":"Foo","children":[{"name":"x","value":"33"}]}')
        verify(Math.abs(Date.parse(population.generatedAt) - Date.now()) < 60000)
        bundled.writable = false
        libraries.exportRanges(1, "")
        compare(libraries.exportErrorOf(1), "Export failed: disk full")
        bundled.writable = true
        // The next start finds the overrides, and the exported file stands for the bundled one.
        libraries = makeLibraries(exported, bundled.written)
        compare(brief(libraries.rangesFor("oop", 0)), before)
        find("oop", 1, "x")
        compare(libraries.oop.selectedNode.value, "33")
        for (const category of [1, 0]) {
            const library = libraries.oop
            library.rangeCategory = category
            library.selectedId = library.ranges[0].id
            libraries.clearOverrides(library)
            compare(library.selectedId, "")
        }
        libraries = makeLibraries(standardFile, exploitFile)
        compare(find("oop", 0, "UTG").selectedNode.value, "AA:0.5")
        compare(find("oop", 1, "x").selectedNode.value, "22")
    }

    function leafId(nodes: var, name: string): string {
        for (const node of nodes) {
            const id = node.name === name ? node.id : leafId(node.children ?? [], name)
            if (id !== "")
                return id
        }
        return ""
    }

    SignalSpy {
        id: rowsSpy

        signalName: "rowsChanged"
    }

    function test_another_language_renames_rows_and_closes_nothing() {
        const libraries = makeLibraries(standardFile, exploitFile)
        libraries.oop.rangeCategory = 0
        libraries.oop.activate(libraries.oop.rows[0].id)
        rowsSpy.target = libraries.oop
        rowsSpy.clear()
        const language = Qt.uiLanguage
        Qt.uiLanguage = "de"
        compare(rowsSpy.count, 1)
        compare(libraries.listModelFor("oop").length, 6)
        Qt.uiLanguage = language
        rowsSpy.target = null
    }
}

.pragma library
.import "range_library_tree.js" as Tree
.import "../stored_text.js" as StoredText

// The equilibrium charts: a flat list of rows named "<game> / <rake> / <scenario>" as a file, and
// the tree that the list is shown as.

const SIX_MAX = "6-max"
const HEADS_UP = "Heads up"
const RAKES = ["No rake", "50nl rake", "100nl rake", "200nl rake", "500nl rake"]
const SCENARIOS = ["RFI", "vs RFI", "vs 3bet", "vs 4bet"]
const SEPARATOR = " / "

/// The rows of a file that have a name.
function validRows(rows) {
    if (!Array.isArray(rows))
        return []
    return rows.map(row => ({ name: StoredText.textOf(row?.name), value: StoredText.textOf(row?.value) }))
        .filter(row => row.name.trim() !== "")
}

/// The texts on both sides of the first colon; undefined if one of them is missing.
function _sides(text) {
    const colon = text.indexOf(":")
    if (colon < 0)
        return undefined
    const sides = { spot: text.slice(0, colon).trim(), action: text.slice(colon + 1).trim() }
    return sides.spot === "" || sides.action === "" ? undefined : sides
}

/// Where a 6-max scenario stands below its rake folder. Who 3-bet and faces a 4-bet decides "vs
/// 4bet"; an opener's answers to a 3-bet, a 4-bet among them, stay in "vs 3bet".
function routeRange(scenario) {
    if (scenario.startsWith("RFI "))
        return { path: ["RFI"], leaf: scenario.slice(4) }
    if (scenario.startsWith("vs RFI ")) {
        const rest = scenario.slice(7)
        const sides = _sides(rest)
        return sides ? { path: ["vs RFI", "vs " + sides.spot + " RFI"], leaf: sides.action }
                     : { path: ["vs RFI"], leaf: rest }
    }
    const facing4Bet = scenario.includes("3bet vs") && scenario.includes("4bet")
    if (facing4Bet || (scenario.includes("3bet") && scenario.includes(":"))) {
        const group = facing4Bet ? "vs 4bet" : "vs 3bet"
        const sides = _sides(scenario)
        return sides ? { path: [group, sides.spot], leaf: sides.action } : { path: [group], leaf: scenario }
    }
    return { path: [], leaf: scenario }
}

function _subfolder(nodes, name) {
    let found = nodes.find(node => Tree.isFolder(node) && node.name === name)
    if (!found) {
        found = Tree.folder(name)
        nodes.push(found)
    }
    return found
}

/// The rake folders with the rows in them. `scenarios` are the folders that each of them has, and
/// `route` says where in a rake folder a scenario stands.
function _rakeFolders(rows, scenarios, route) {
    const folders = RAKES.map(rake => Tree.folder(rake, scenarios.map(name => Tree.folder(name))))
    for (const row of rows) {
        const end = row.name.indexOf(SEPARATOR)
        const named = end < 0 ? -1 : RAKES.indexOf(row.name.slice(0, end))
        const place = route(named < 0 ? row.name : row.name.slice(end + SEPARATOR.length))
        let parent = folders[Math.max(0, named)]
        for (const name of place.path)
            parent = _subfolder(parent.children, name)
        parent.children.push(Tree.range(place.leaf, row.value))
    }
    return folders
}

function buildStandard6MaxTree(rows) {
    return _rakeFolders(rows, SCENARIOS, routeRange)
}

function buildStandardHeadsUpTree(rows) {
    return _rakeFolders(rows, [], scenario => ({ path: [], leaf: scenario }))
}

/// The tree of a flat list. A row without a game is one of 6-max.
function buildStandardTree(rows) {
    const sixMax = []
    const headsUp = []
    for (const row of rows) {
        const parts = row.name.split(SEPARATOR).map(part => part.trim())
        const game = [HEADS_UP, SIX_MAX].find(name => parts.includes(name))
        const name = game ? parts.filter(part => part !== game).join(SEPARATOR) : row.name
        const list = game === HEADS_UP ? headsUp : sixMax
        list.push({ name: name, value: row.value })
    }
    return [Tree.folder(SIX_MAX, buildStandard6MaxTree(sixMax)),
            Tree.folder(HEADS_UP, buildStandardHeadsUpTree(headsUp))]
}

/// The scenario of a leaf, from the folders above it below its rake folder.
function _scenario(path, leaf) {
    const [group, spot] = path
    if (path.length === 0)
        return leaf
    if (path.length === 1 && group === "RFI")
        return "RFI " + leaf
    if (group === "vs RFI") {
        const opener = /^vs (.+) RFI$/.exec(spot ?? "")
        if (path.length === 1)
            return "vs RFI " + leaf
        if (path.length === 2 && opener)
            return "vs RFI " + opener[1] + ": " + leaf
    }
    if (group === "vs 3bet" || group === "vs 4bet") {
        if (path.length === 1)
            return leaf
        if (path.length === 2)
            return spot + ": " + leaf
    }
    return [...path, leaf].join(SEPARATOR)
}

/// The flat list of a tree: building a tree of it gives the same tree again.
function flattenStandardForExport(tree) {
    const rows = []
    const walk = (nodes, prefix, path) => {
        for (const node of nodes) {
            if (Tree.isFolder(node))
                walk(node.children, prefix, [...path, node.name])
            else if (node.name.trim() !== "")
                rows.push({ name: prefix + _scenario(path, node.name), value: node.value })
        }
    }
    for (const [game, prefix] of [[SIX_MAX, ""], [HEADS_UP, HEADS_UP + SEPARATOR]]) {
        for (const rake of tree.find(node => node.name === game)?.children ?? []) {
            if (Tree.isFolder(rake) && rake.name.trim() !== "")
                walk(rake.children, prefix + rake.name + SEPARATOR, [])
        }
    }
    return rows
}

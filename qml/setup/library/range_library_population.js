.pragma library
.import "range_estimates.js" as Estimates
.import "range_library_standard.js" as Standard
.import "range_library_tree.js" as Tree

// The ranges of player types: what a file has, and a template in code, so that the library has its
// structure without the file too.

const _early = "UTG/HJ/CO"

/// Position folders and their leaves by player group and seat. In position, "BU" has the leaves of
/// the earlier positions.
const _leaves = {
    passive: {
        oop: {
            [_early]: ["Limp", "Limp-call", "Limp-3b", "RFI", "Call 3b", "4b"],
            SB: ["Limp", "Limp-3b", "RFI", "3b", "4b", "Call 3b", "Call 4b"],
            BB: ["Check back", "Call raise", "3b", "Call 4b"]
        },
        ip: {
            [_early]: ["Limp", "Limp-call", "Limp-3b", "RFI", "3b", "Call 3b", "4b", "Call 4b"],
            BB: ["Call raise", "3b", "Call 4b"]
        }
    },
    looseAggressive: {
        oop: {
            [_early]: ["RFI", "Call 3b", "4b"],
            SB: ["RFI", "3b", "4b", "Call 3b", "Call 4b"],
            BB: ["Call raise", "3b", "Call 4b"]
        },
        ip: {
            [_early]: ["RFI", "3b", "Call 3b", "4b", "Call 4b"],
            BB: ["Call", "3b"]
        }
    },
    nit: {
        oop: {
            [_early]: ["RFI", "Call 3b", "4b"],
            SB: ["RFI", "3b", "4b", "Call 3b", "Call 4b"],
            BB: ["Check back", "Call raise", "3b", "Call 4b"]
        },
        ip: {
            [_early]: ["RFI", "3b", "Call 3b", "4b", "Call 4b"],
            BB: ["Call raise", "3b", "Call 4b"]
        }
    }
}

/// The position folders of a player group. `valueOf` gives a range text for a position and a leaf.
function _positions(group, seat, valueOf) {
    const folders = []
    for (const position in _leaves[group][seat]) {
        const leaves = _leaves[group][seat][position]
        for (const name of position === _early && seat === "ip" ? [_early, "BU"] : [position])
            folders.push(Tree.folder(name, leaves.map(leaf => Tree.range(leaf, valueOf(position, leaf)))))
    }
    return folders
}

/// The folder of an archetype, called by its name and how much it plays.
function _archetype(group, seat, table, name, vpip) {
    const column = table.archetypes.indexOf(name)
    const valueOf = (position, leaf) => {
        // In position the big blind meets a raise only from the small blind: its "Call" is "Call raise".
        const estimates = table.estimates[position]
        return (estimates[leaf] ?? estimates[leaf + " raise"])[column]
    }
    const children = _positions(group, seat, valueOf)
    if (table.squeezes)
        children.push(Tree.range("3b cold call", table.squeezes[column]))
    return Tree.folder(name + " (VPIP " + vpip + ")", children)
}

/// A range text with all its hands at full weight.
function stripWeightsText(text) {
    return text.split(/[,\s]+/).filter(token => token !== "")
        .map(token => token.replace(/:[\d.]+$/, "")).join(", ")
}

/// A copy of a tree with new ids and without weights.
function cloneTreeStripWeights(tree) {
    return tree.map(node => Tree.isFolder(node)
        ? Tree.folder(node.name, cloneTreeStripWeights(node.children))
        : Tree.range(node.name, stripWeightsText(node.value)))
}

function _regs(standardTree) {
    const childrenOf = (nodes, name) => nodes.find(node => node.name === name)?.children
    const sixMax = childrenOf(standardTree, Standard.SIX_MAX) ?? []
    return cloneTreeStripWeights(childrenOf(sixMax, Standard.RAKES[0]) ?? sixMax)
}

/// The top folders of the template: names, and what makes the children of each.
function _template(seat, standardTree) {
    const passive = (name, vpip) => _archetype("passive", seat, Estimates.PASSIVE, name, vpip)
    const aggressive = (name, vpip) => _archetype("looseAggressive", seat, Estimates.LOOSE_AGGRESSIVE, name, vpip)
    return [
        ["Passive (VPIP 18–65)", () => [
            passive("Passive tight", "18–25"), passive("Passive neutral", "25–35"),
            passive("Passive loose", "35–45"), passive("Extreme loose", "45–65")
        ]],
        ["Loose aggressive (VPIP 28–70)", () => [
            aggressive("Standard LAG", "28–40"), aggressive("Maniac", "45–70")
        ]],
        ["Weaker regs", () => [
            Tree.folder("Tighter reg", _regs(standardTree)), Tree.folder("Looser reg", _regs(standardTree))
        ]],
        ["Overfolder (10-22 VPIP)", () => [Tree.folder("Nit", _positions("nit", seat, () => ""))]],
        ["Other", () => [Tree.range("Bomb pot", "100%")]]
    ]
}

function _built(template) {
    return template.map(([name, children]) => Tree.folder(name, children()))
}

/// The template of a seat, "oop" or "ip". `standardTree` gives the ranges of the regs.
function buildExploitTree(seat, standardTree) {
    return _built(_template(seat, standardTree))
}

/// What a seat shows for the tree of a file: that tree and those top folders of the template that it
/// lacks. A file without a folder counts for nothing.
function completed(fileTree, seat, standardTree) {
    const names = fileTree.filter(Tree.isFolder).map(node => node.name)
    if (names.length === 0)
        return buildExploitTree(seat, standardTree)
    const missing = _template(seat, standardTree).filter(([name]) => !names.includes(name))
    return [...fileTree, ..._built(missing)]
}

.pragma library
.import "range_library_tree.js" as Tree
.import "../stored_text.js" as StoredText

// What a developer puts in place of a library's ranges: a map from path key to range text.

/// The overrides of whatever was stored, a map or a list of { key, value }; blank keys and values
/// are dropped.
function sanitized(stored) {
    const overrides = {}
    if (stored === null || typeof stored !== "object")
        return overrides
    const entries = Array.isArray(stored) ? stored.map(entry => [entry?.key, entry?.value])
                                          : Object.entries(stored)
    for (const [key, value] of entries.map(entry => entry.map(StoredText.textOf))) {
        if (key.trim() !== "" && value.trim() !== "")
            overrides[key] = value
    }
    return overrides
}

/// The overrides of a stored JSON text; none if it can't be read.
function parse(json) {
    try {
        return sanitized(JSON.parse(json))
    } catch (error) {
        return {}
    }
}

function _valueAt(overrides, key) {
    return ["", "6-max / ", "Heads up / "].map(prefix => overrides[prefix + key])
        .find(value => typeof value === "string" && value !== "")
}

/// The tree with the values of the overrides in it; ids stay. `path` is where the tree hangs.
function applyOverridesToTree(tree, overrides, path = []) {
    if (Object.keys(overrides).length === 0)
        return tree
    return tree.map(node => {
        const own = [...path, node.name]
        return Object.assign({}, node, Tree.isFolder(node)
            ? { children: applyOverridesToTree(node.children, overrides, own) }
            : { value: _valueAt(overrides, own.join(" / ")) ?? node.value })
    })
}

.pragma library
.import "../settings_profiles.js" as SettingsProfiles
.import "../stored_text.js" as StoredText

// Trees of ranges. A node is a range { id, type: "range", name, value } or a folder { id, type:
// "folder", name, children }. No function changes a tree that it is given; one that edits gives a
// new tree. Which folders are open is a map from folder id to true.

function newNodeId() {
    return SettingsProfiles.newNodeId(Date.now(), Math.random)
}

function range(name, value) {
    return { id: newNodeId(), type: "range", name: name, value: value }
}

function folder(name, children = []) {
    return { id: newNodeId(), type: "folder", name: name, children: children }
}

function isFolder(node) {
    return node.type === "folder"
}

/// The nodes of whatever was stored. What has no name is dropped with all it holds; older forms
/// without ids or types are understood.
function sanitizeCustomTree(list) {
    if (!Array.isArray(list))
        return []
    const nodes = []
    for (const entry of list) {
        const name = StoredText.textOf(entry?.name).trim()
        if (name === "")
            continue
        const id = StoredText.textOf(entry.id).trim() || newNodeId()
        nodes.push(entry.type === "folder" || Array.isArray(entry.children)
            ? { id: id, type: "folder", name: name, children: sanitizeCustomTree(entry.children) }
            : { id: id, type: "range", name: name, value: StoredText.textOf(entry.value) })
    }
    return nodes
}

/// The nodes of a stored JSON text; none if it can't be read.
function parse(json) {
    try {
        return sanitizeCustomTree(JSON.parse(json))
    } catch (error) {
        return []
    }
}

/// A tree as a file holds it: without ids, and ranges without a type.
function stripIdsForExport(tree) {
    return tree.map(node => isFolder(node)
        ? { type: "folder", name: node.name, children: stripIdsForExport(node.children) }
        : { name: node.name, value: node.value })
}

/// The way from the top to a node, the node last; empty if there is no such node.
function pathTo(tree, id) {
    for (const node of tree) {
        if (node.id === id)
            return [node]
        const below = isFolder(node) ? pathTo(node.children, id) : []
        if (below.length > 0)
            return [node, ...below]
    }
    return []
}

/// The node of an id, or undefined.
function find(tree, id) {
    return pathTo(tree, id).pop()
}

/// What names a node however often ids are made anew.
function pathKey(tree, id) {
    return pathTo(tree, id).map(node => node.name).join(" / ")
}

/// How many nodes stand below a folder, folders included.
function countDescendants(node) {
    let count = 0
    for (const child of node.children ?? [])
        count += 1 + countDescendants(child)
    return count
}

/// The rows that a list shows. Where a folder is open, its siblings are hidden.
function flattenTree(tree, openFolderIds, displayName) {
    const rows = []
    const list = (nodes, depth, parentFolderId) => {
        const open = nodes.find(node => isFolder(node) && openFolderIds[node.id] === true)
        for (const node of open ? [open] : nodes) {
            rows.push({
                id: node.id, kind: node.type, name: node.name, displayName: displayName(node.name),
                value: node.value ?? "", depth: depth, parentFolderId: parentFolderId, open: node === open
            })
        }
        if (open)
            list(open.children, depth + 1, open.id)
    }
    list(tree, 0, "")
    return rows
}

function _siblingsOf(tree, id) {
    const parent = pathTo(tree, id).slice(0, -1).pop()
    return parent ? parent.children : tree
}

function _opened(tree, openFolderIds, id) {
    const open = Object.assign({}, openFolderIds)
    for (const sibling of _siblingsOf(tree, id))
        delete open[sibling.id]
    open[id] = true
    return open
}

/// The open folders after a click on one: an accordion, of siblings at most one is open.
function toggleOpenFolder(tree, openFolderIds, id) {
    if (openFolderIds[id] !== true)
        return _opened(tree, openFolderIds, id)
    const open = Object.assign({}, openFolderIds)
    delete open[id]
    return open
}

/// The open folders with all those open that hold a node, so that it shows; and the node itself, if
/// it is a folder and `itself` says so.
function openWayTo(tree, openFolderIds, id, itself) {
    const path = pathTo(tree, id)
    const folders = itself ? path : path.slice(0, -1)
    return folders.reduce((open, node) => _opened(tree, open, node.id), openFolderIds)
}

/// A name free among the children of a folder; "" is the top level.
function uniqueRangeName(tree, parentId, name) {
    const siblings = parentId === "" ? tree : find(tree, parentId).children
    return SettingsProfiles.uniqueName(name, siblings.map(node => node.name))
}

/// The folder that a new node goes into: the selected one, or the one of the selected range; ""
/// for the top level.
function targetFolderId(tree, selectedId) {
    return pathTo(tree, selectedId).filter(isFolder).pop()?.id ?? ""
}

/// The tree with a node at the end of a folder; "" is the top level.
function withNode(tree, parentId, node) {
    if (parentId === "")
        return [...tree, node]
    return tree.map(other => !isFolder(other) ? other : Object.assign({}, other, {
        children: other.id === parentId ? [...other.children, node] : withNode(other.children, parentId, node)
    }))
}

function _without(tree, id) {
    return tree.filter(node => node.id !== id).map(node => !isFolder(node) ? node
        : Object.assign({}, node, { children: _without(node.children, id) }))
}

/// The tree with another value for a range.
function withValue(tree, id, value) {
    return tree.map(node => node.id === id ? Object.assign({}, node, { value: value })
        : !isFolder(node) ? node : Object.assign({}, node, { children: withValue(node.children, id, value) }))
}

/// What becomes of a list when a node goes with all it holds: the tree, the open folders, and the
/// selection, which moves to what now stands in the node's place.
function deleteNode(tree, openFolderIds, id) {
    const rowsOf = (nodes, open) => flattenTree(nodes, open, name => name)
    const position = Math.max(0, rowsOf(tree, openFolderIds).findIndex(row => row.id === id))
    const left = _without(tree, id)
    const open = {}
    for (const folderId in openFolderIds) {
        if (find(left, folderId))
            open[folderId] = true
    }
    const rows = rowsOf(left, open)
    const next = rows[Math.min(position, rows.length - 1)]
    return {
        tree: left,
        openFolderIds: open,
        selectedId: next?.id ?? ""
    }
}

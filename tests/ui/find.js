.pragma library

// Finds what a user sees: shown items, by what they say or by what kind they are.

function _walk(item, accept, found) {
    if (!item || !item.visible)
        return
    if (accept(item))
        found.push(item)
    for (let i = 0; i < item.children.length; ++i)
        _walk(item.children[i], accept, found)
}

/// All shown items below `item` that `accept` takes, in the order of the tree.
function all(item, accept) {
    const found = []
    _walk(item, accept, found)
    return found
}

/// The first shown item with a text; undefined if there is none.
function text(item, text) {
    return all(item, candidate => candidate.text === text)[0]
}

/// The first shown control that can be clicked and has a text.
function button(item, text) {
    return all(item, candidate => candidate.text === text && candidate.clicked !== undefined)[0]
}

/// The first shown item that has all of these properties.
function withProperties(item, ...names) {
    return all(item, candidate => names.every(name => candidate[name] !== undefined))[0]
}

/// The shown input fields with a label.
function fields(item, label) {
    return all(item, candidate => candidate.label === label && candidate.editingFinished !== undefined)
}

/// The same whether it is shown or not.
function withHidden(item, ...names) {
    if (names.every(name => item[name] !== undefined))
        return item
    for (let i = 0; i < item.children.length; ++i) {
        const found = withHidden(item.children[i], ...names)
        if (found)
            return found
    }
    return undefined
}

.pragma library
.import "range_library_overrides.js" as Overrides
.import "range_library_population.js" as Population
.import "range_library_standard.js" as Standard
.import "range_library_tree.js" as Tree

// What the two files of ranges hold, as trees, and back.

function isBlank(text) {
    return text.trim() === ""
}

/// The charts of a seat, "oop" or "ip", from their parsed file; none without one.
function standardTree(seat, file, overrides) {
    if (file === undefined)
        return []
    const rows = Standard.validRows(file?.[seat]?.standard)
    return Overrides.applyOverridesToTree(Tree.sanitizeCustomTree(Standard.buildStandardTree(rows)), overrides)
}

/// The player types of a seat from their parsed file, undefined if there is none, and the charts.
function exploitTree(seat, file, standard, overrides) {
    const tree = Population.completed(Tree.sanitizeCustomTree(file?.[seat]?.exploit), seat, standard)
    return Overrides.applyOverridesToTree(tree, overrides)
}

function _text(content) {
    return JSON.stringify(content, null, 2)
}

/// The text of the file of the charts of both seats.
function standardText(oop, ip) {
    return _text({
        oop: { standard: Standard.flattenStandardForExport(oop) },
        ip: { standard: Standard.flattenStandardForExport(ip) }
    })
}

/// The text of the file of the player types of both seats.
function exploitText(oop, ip) {
    const seat = tree => ({ standard: [], exploit: Tree.stripIdsForExport(Tree.sanitizeCustomTree(tree)) })
    return _text({
        format: "velmora_ranges_export", version: 1, generatedAt: new Date().toISOString(),
        oop: seat(oop), ip: seat(ip)
    })
}

/// A parsed file; undefined for the text of a missing one. Throws for what is no JSON.
function parsed(text) {
    return text === "" ? undefined : JSON.parse(text)
}

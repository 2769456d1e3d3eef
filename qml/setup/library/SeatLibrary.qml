import QtQuick
import Velmora
import "range_categories.js" as Categories
import "range_library_files.js" as Files
import "range_library_names.js" as Names
import "range_library_overrides.js" as Overrides
import "range_library_tree.js" as Tree

/// The ranges that one seat can choose from: its three trees, what is selected and open in the one
/// that shows, and what of them is kept in the settings store.
QtObject {
    id: root

    required property string seat  ///< "oop" or "ip"
    /// Raised to have the names of the libraries looked up again.
    property int i18nRev: 0

    property int rangeCategory: Categories.custom
    property string selectedId: ""
    property var openFolderIds: ({})
    property var standardRanges: []
    property var exploitRanges: []
    property var customRanges: []
    property var standardOverrides: ({})
    property var exploitOverrides: ({})

    readonly property var ranges: rangesFor(rangeCategory)
    /// What the list shows; see `flattenTree` of the trees.
    readonly property var rows: _rows(i18nRev)
    readonly property var selectedNode: Tree.find(ranges, selectedId)

    // Written by setValue: a property would reach the file half a second later, and not at all if the
    // program died in between.
    readonly property StoredSettings _store: StoredSettings {
        category: "ranges"
    }

    /// A range was chosen: its text, which may be empty.
    signal rangeChosen(string text)

    function rangesFor(category: int): var {
        return category === Categories.standard ? standardRanges
             : category === Categories.population ? exploitRanges : customRanges
    }

    function rangeDisplayName(category: int, rawName: string): string {
        return category === Categories.standard ? Names.standardName(rawName)
             : category === Categories.population ? Names.populationName(rawName) : rawName
    }

    /// What a click on a row does.
    function activate(id: string) {
        const node = Tree.find(ranges, id)
        selectedId = id
        if (Tree.isFolder(node))
            openFolderIds = Tree.toggleOpenFolder(ranges, openFolderIds, id)
        else
            rangeChosen(node.value)
    }

    /// Keeps a range text under a trimmed name. Gives what is wrong, or "".
    function commitSaveRange(name: string, value: string): string {
        if (name === "")
            return qsTr("Please enter a name.")
        if (value.trim() === "")
            return qsTr("Current range is empty.")
        _add(Tree.range(name, value))
        return ""
    }

    /// Adds a folder of a trimmed name, opened. Gives what is wrong, or "".
    function commitAddFolder(name: string): string {
        if (name === "")
            return qsTr("Please enter a folder name.")
        _add(Tree.folder(name))
        return ""
    }

    /// Takes a range from a file, selected beside what is selected here, or `unnoticed` at the top
    /// level, and shows the user's own ranges.
    function addImportedRange(name: string, value: string, unnoticed: bool) {
        rangeCategory = Categories.custom
        const node = Tree.range(name, value)
        if (unnoticed)
            _insert("", node)
        else
            _add(node)
    }

    /// The seat keeps its range: what was copied from the library is the seat's own.
    function deleteSelectedItem() {
        const left = Tree.deleteNode(customRanges, openFolderIds, selectedId)
        selectedId = left.selectedId
        openFolderIds = left.openFolderIds
        customRanges = left.tree
        persistCustomRanges()
    }

    function canOverride(rangeText: string): bool {
        return rangeCategory !== Categories.custom && selectedNode?.type === "range" && rangeText.trim() !== ""
    }

    /// Puts a range text in place of the selected range of a library.
    function overrideSelectedRange(rangeText: string) {
        const overrides = Object.assign({}, _overrides(rangeCategory))
        overrides[Tree.pathKey(ranges, selectedId)] = rangeText
        _setOverrides(rangeCategory, overrides)
        _keep(_overridesKey(rangeCategory), overrides)
        const changed = Tree.withValue(ranges, selectedId, rangeText)
        if (rangeCategory === Categories.standard)
            standardRanges = changed
        else
            exploitRanges = changed
    }

    /// Drops all overrides of the library that shows; the libraries then have to be built anew.
    function clearOverrides() {
        _setOverrides(rangeCategory, {})
        _keep(_overridesKey(rangeCategory), {})
        _clearSelection()
        rangeChosen("")
    }

    function loadOverrides() {
        standardOverrides = Overrides.parse(_store.value(_overridesKey(Categories.standard), ""))
        exploitOverrides = Overrides.parse(_store.value(_overridesKey(Categories.population), ""))
    }

    /// Takes the libraries from their parsed files; undefined for a missing one.
    function setLibraries(standardFile: var, exploitFile: var) {
        standardRanges = Files.standardTree(seat, standardFile, standardOverrides)
        exploitRanges = Files.exploitTree(seat, exploitFile, standardRanges, exploitOverrides)
    }

    function loadCustomRanges() {
        customRanges = Tree.parse(_store.value(seat + "CustomRangesJson", ""))
    }

    function persistCustomRanges() {
        customRanges = Tree.sanitizeCustomTree(customRanges)
        _keep(seat + "CustomRangesJson", customRanges)
    }

    function _rows(revision: int): var {
        return Tree.flattenTree(ranges, openFolderIds, name => rangeDisplayName(rangeCategory, name))
    }

    function _clearSelection() {
        selectedId = ""
        openFolderIds = {}
    }

    /// Adds a node where the selection says, selects it and lets it be seen.
    function _add(node: var) {
        const parentId = Tree.targetFolderId(customRanges, selectedId)
        selectedId = node.id
        _insert(parentId, node)
        openFolderIds = Tree.openWayTo(customRanges, openFolderIds, node.id, Tree.isFolder(node))
    }

    function _insert(parentId: string, node: var) {
        const named = Object.assign({}, node, { name: Tree.uniqueRangeName(customRanges, parentId, node.name) })
        customRanges = Tree.withNode(customRanges, parentId, named)
        persistCustomRanges()
    }

    function _overrides(category: int): var {
        return category === Categories.standard ? standardOverrides : exploitOverrides
    }

    function _setOverrides(category: int, overrides: var) {
        if (category === Categories.standard)
            standardOverrides = overrides
        else
            exploitOverrides = overrides
    }

    function _overridesKey(category: int): string {
        return seat + (category === Categories.standard ? "Standard" : "Exploit") + "OverridesJson"
    }

    function _keep(key: string, value: var) {
        _store.setValue(key, JSON.stringify(value))
        _store.sync()
    }

    onRangeCategoryChanged: _clearSelection()
}

import QtQml
import "../../qml/setup/library/range_library_files.js" as Files
import "../../qml/setup/library/range_library_overrides.js" as Overrides
import "../../qml/setup/library/range_library_standard.js" as Standard
import "../../qml/setup/library/range_library_tree.js" as Tree
import "../../qml/setup/settings_profiles.js" as SettingsProfiles

// What the window makes of the two library files and of what the settings store keeps as JSON.
QtObject {
    function _isTree(tree: var): bool {
        return Array.isArray(tree) && tree.every(node =>
            typeof node.id === "string" && node.id.trim() !== "" && typeof node.name === "string" && node.name !== ""
            && (node.type === "folder" ? _isTree(node.children) : node.type === "range" && typeof node.value === "string"))
    }

    /// A fault of a tree, or of what the list does with it.
    function _faultOf(tree: var): string {
        if (!_isTree(tree))
            return "no tree"
        const again = Tree.parse(JSON.stringify(tree))
        if (JSON.stringify(again) !== JSON.stringify(tree))
            return "a stored tree comes back another"
        let open = {}
        for (const node of tree.slice(0, 8)) {
            open = Tree.toggleOpenFolder(tree, open, node.id)
            const rows = Tree.flattenTree(tree, open, name => name)
            if (rows.length === 0 || rows.some(row => typeof row.value !== "string" || typeof row.name !== "string"))
                return "no rows"
            Tree.pathKey(tree, node.id)
            Tree.countDescendants(node)
            const after = Tree.deleteNode(tree, open, node.id)
            if (!_isTree(after.tree) || Tree.find(after.tree, node.id) !== undefined && !_isTwice(tree, node.id))
                return "not deleted"
            const name = Tree.uniqueRangeName(tree, "", node.name)
            if (tree.some(other => other.name === name))
                return "a name twice"
        }
        return ""
    }

    function _isTwice(tree: var, id: string): bool {
        return JSON.stringify(tree).split(JSON.stringify(id)).length > 2
    }

    function check(text: string): string {
        const trees = [Tree.parse(text)]
        const overrides = Overrides.parse(text)
        for (const key in overrides) {
            if (typeof overrides[key] !== "string" || overrides[key].trim() === "" || key.trim() === "")
                return "fault: an override is no text: " + key
        }
        const profiles = SettingsProfiles.parse(text, Tree.newNodeId)
        for (const profile of profiles) {
            if (typeof profile.name !== "string" || profile.name === "" || typeof profile.data !== "object")
                return "fault: no profile"
            SettingsProfiles.projectValues(profile.data, 100)
        }
        let file
        try {
            file = Files.parsed(text)
        } catch (error) {
            return "no JSON"
        }
        // A seat that the file does not have shows what is built in.
        for (const seat of ["oop", "ip"].filter(seat => file?.[seat] !== undefined)) {
            const standard = Files.standardTree(seat, file, overrides)
            trees.push(standard, Files.exploitTree(seat, file, standard, overrides))
            Files.isBlank(Files.standardText(standard, standard) + Files.exploitText(standard, standard))
            Standard.validRows(file?.[seat]?.standard).forEach(row => Standard.routeRange(row.name))
        }
        for (const tree of trees) {
            const fault = _faultOf(tree)
            if (fault !== "")
                return "fault: " + fault
        }
        const shapes = trees.map(tree => JSON.stringify(Tree.stripIdsForExport(tree)).replace(/:"[^"]*"/g, ""))
        return shapes.join("\n") + profiles.length + Object.keys(overrides).length
    }
}

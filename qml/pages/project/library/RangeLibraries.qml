import QtQuick
import Velmora
import "../../../logic/range_categories.js" as Categories
import "../../../logic/range_library_overrides.js" as Overrides
import "../../../logic/range_library_population.js" as Population
import "../../../logic/range_library_standard.js" as Standard
import "../../../logic/range_library_tree.js" as Tree

/// The libraries of both seats: reads those that come with the program and the user's own, once, and
/// writes them out for a developer.
QtObject {
    id: root

    required property var controller

    readonly property SeatLibrary oop: SeatLibrary {
        seat: "oop"
        i18nRev: root._i18nRev
    }
    readonly property SeatLibrary ip: SeatLibrary {
        seat: "ip"
        i18nRev: root._i18nRev
    }

    property string _presetLoadError: ""
    property string _exportStandardError: ""
    property string _exportExploitError: ""
    property int _i18nRev: 0
    readonly property string _language: Qt.uiLanguage

    function seatLibrary(player: string): SeatLibrary {
        return player === "ip" ? ip : oop
    }

    function rangesFor(player: string, category: int): var {
        return seatLibrary(player).rangesFor(category)
    }

    function listModelFor(player: string): var {
        return seatLibrary(player).rows
    }

    function categoryLabel(category: int): string {
        return [qsTr("Standard Ranges"), qsTr("Population Ranges"), qsTr("Custom Ranges")][category]
    }

    /// What went wrong with the library of a category, or "".
    function loadErrorOf(category: int): string {
        return category === Categories.standard ? _presetLoadError : ""
    }

    function exportErrorOf(category: int): string {
        return category === Categories.standard ? _exportStandardError : _exportExploitError
    }

    /// Gives a range from a file to both seats; `focusPlayer` is the one that asked. Gives what is
    /// wrong, or "".
    function commitImportRange(focusPlayer: string, name: string, value: string): string {
        if (name.trim() === "")
            return qsTr("Please enter a name.")
        if (value === "")
            return qsTr("No range content to import.")
        try {
            for (const library of [oop, ip])
                library.addImportedRange(name.trim(), value, library.seat !== focusPlayer)
        } catch (error) {
            console.warn("[ranges] Import failed:", error)
            return qsTr("Import failed.")
        }
        return ""
    }

    /// Drops a seat's overrides of the library that it shows.
    function clearOverrides(library: SeatLibrary) {
        library.clearOverrides()
        _loadBundledPresetRanges()
    }

    /// Writes the library of a category, of both seats, to a file.
    function exportRanges(category: int, file: url) {
        const content = category === Categories.standard ? _standardExport() : _exploitExport()
        const answer = controller.saveTextFile(file, JSON.stringify(content, null, 2))
        const error = answer.ok ? "" : qsTr("Export failed: %1").arg(answer.error || qsTr("unknown error"))
        if (category === Categories.standard)
            _exportStandardError = error
        else
            _exportExploitError = error
    }

    function _standardExport(): var {
        const seat = library => ({ standard: Standard.flattenStandardForExport(library.standardRanges) })
        return { oop: seat(oop), ip: seat(ip) }
    }

    function _exploitExport(): var {
        const seat = library => ({
            standard: [],
            exploit: Tree.stripIdsForExport(Tree.sanitizeCustomTree(library.exploitRanges))
        })
        return {
            format: "velmora_ranges_export", version: 1, generatedAt: new Date().toISOString(),
            oop: seat(oop), ip: seat(ip)
        }
    }

    /// The text of a bundled file; "" if it is nowhere.
    function _readBundled(name: string, label: string): string {
        for (const folder of [":/Velmora/qml/data/", ":/qt/qml/Velmora/qml/data/"]) {
            const text = controller.readTextResource(folder + name)
            if (text.trim() !== "") {
                console.info("[ranges] Loaded " + label + " presets via AppController from", folder + name,
                             "bytes=" + text.length)
                return text
            }
        }
        return ""
    }

    /// Builds both libraries of both seats. Where a file is no JSON, what was there stays.
    function _loadBundledPresetRanges() {
        try {
            const standardText = _readBundled("standard_ranges.json", "STANDARD")
            const standard = standardText === "" ? undefined : JSON.parse(standardText)
            const exploitText = _readBundled("exploit_ranges.json", "POPULATION")
            const exploit = exploitText === "" ? undefined : JSON.parse(exploitText)
            const built = [oop, ip].map(library => _built(library, standard, exploit));
            [oop, ip].forEach((library, index) => library.setLibraries(...built[index]))
            _presetLoadError = standard ? ""
                : qsTr("Failed to load bundled standard presets (resource file missing/empty).")
        } catch (error) {
            _presetLoadError = qsTr("Failed to load bundled presets: ") + error.message
        }
    }

    /// The two trees of a seat from what the files hold for it; undefined for a missing file.
    function _built(library: SeatLibrary, standardFile: var, exploitFile: var): var {
        const standardTree = standardFile === undefined ? [] : Overrides.applyOverridesToTree(
            Tree.sanitizeCustomTree(Standard.buildStandardTree(
                Standard.validRows(standardFile?.[library.seat]?.standard))), library.standardOverrides)
        const exploitTree = Population.completed(
            Tree.sanitizeCustomTree(exploitFile?.[library.seat]?.exploit), library.seat, standardTree)
        return [standardTree, Overrides.applyOverridesToTree(exploitTree, library.exploitOverrides)]
    }

    on_LanguageChanged: ++_i18nRev
    Component.onCompleted: {
        for (const library of [oop, ip])
            library.loadOverrides()
        _loadBundledPresetRanges()
        for (const library of [oop, ip])
            library.loadCustomRanges()
    }
}

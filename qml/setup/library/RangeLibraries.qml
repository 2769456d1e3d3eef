import QtQuick
import Velmora
import "range_categories.js" as Categories
import "range_library_files.js" as Files

/// The libraries of both seats: reads those that come with the program and the user's own, once, and
/// writes them out for a developer.
QtObject {
    id: root

    /// What reads the program's own libraries and writes an export, by `readTextResource` and
    /// `saveTextFile`.
    property var files: Controller

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
        switch (category) {
        case Categories.standard:
            return qsTr("Standard Ranges")
        case Categories.population:
            return qsTr("Population Ranges")
        default:
            return qsTr("Custom Ranges")
        }
    }

    /// What went wrong with the library of a category, or "".
    function loadErrorOf(category: int): string {
        return category === Categories.standard ? _presetLoadError : ""
    }

    function exportErrorOf(category: int): string {
        return category === Categories.standard ? _exportStandardError : _exportExploitError
    }

    /// Gives a range from a file to both seats, under a trimmed name; `focusPlayer` is the one that
    /// asked. Gives what is wrong, or "".
    function commitImportRange(focusPlayer: string, name: string, value: string): string {
        if (name === "")
            return qsTr("Please enter a name.")
        if (value === "")
            return qsTr("No range content to import.")
        try {
            oop.addImportedRange(name, value, focusPlayer !== "oop")
            ip.addImportedRange(name, value, focusPlayer !== "ip")
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
        const text = category === Categories.standard
            ? Files.standardText(oop.standardRanges, ip.standardRanges)
            : Files.exploitText(oop.exploitRanges, ip.exploitRanges)
        const answer = files.saveTextFile(file, text)
        const error = answer.ok ? "" : qsTr("Export failed: %1").arg(answer.error || qsTr("unknown error"))
        if (category === Categories.standard)
            _exportStandardError = error
        else
            _exportExploitError = error
    }

    /// The text of a bundled file; "" if it is nowhere.
    function _readBundled(name: string, label: string): string {
        for (const folder of [":/Velmora/qml/data/", ":/qt/qml/Velmora/qml/data/"]) {
            const text = files.readTextResource(folder + name)
            if (!Files.isBlank(text)) {
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
            const standard = Files.parsed(_readBundled("standard_ranges.json", "STANDARD"))
            const exploit = Files.parsed(_readBundled("exploit_ranges.json", "POPULATION"))
            oop.setLibraries(standard, exploit)
            ip.setLibraries(standard, exploit)
            _presetLoadError = standard ? ""
                : qsTr("Failed to load bundled standard presets (resource file missing/empty).")
        } catch (error) {
            _presetLoadError = qsTr("Failed to load bundled presets: ") + error.message
        }
    }

    on_LanguageChanged: ++_i18nRev
    Component.onCompleted: {
        oop.loadOverrides()
        ip.loadOverrides()
        _loadBundledPresetRanges()
        oop.loadCustomRanges()
        ip.loadCustomRanges()
    }
}

import QtQuick
import QtTest
import Velmora
import "find.js" as Find
import "../../qml/settings/languages.js" as Languages

MainWindowCase {
    id: root

    readonly property var settings: Find.withProperties(window?.contentItem, "minimumContentWidth", "applyAccentHex")

    name: "Settings"

    function openPage() {
        keyClick(Qt.Key_Comma, Qt.ControlModifier)
        tryVerify(() => settings.visible)
    }

    function restart() {
        cleanup()
        init()
        openPage()
    }

    function swatch(label: string): Item {
        return Find.all(settings, item => item.swatchColor !== undefined && item.label === label)[0]
    }

    function test_the_look_is_kept_by_saving_only() {
        openPage()
        const dark = Find.all(settings, item => item.switched !== undefined && item.text === "Dark Mode")[0]
        click(dark)
        click(swatch("Blue"))
        compare(shell.theme.dark, false)
        compare(String(shell.theme.accent), "#58a6ff")
        restart()
        compare(shell.theme.dark, true)
        compare(shell.theme.useAccentOverride, false)

        shell.theme.dark = false
        click(swatch("Blue"))
        clickButton("Save Settings")
        restart()
        compare(shell.theme.dark, false)
        compare(String(shell.theme.accent), "#58a6ff")

        click(swatch("Red"))
        clickButton("Reset")
        clickButton("Save Settings")
        restart()
        compare(shell.theme.dark, false)
        compare(shell.theme.useAccentOverride, false)

        clickButton("Reset to Defaults")
        restart()
        compare(shell.theme.dark, true)
    }

    function test_the_language_changes_at_once_and_survives_a_reset() {
        openPage()
        const box = Find.all(settings, item => item.displayText !== undefined && item.popup !== undefined)[0]
        compare(box.count, 9)
        Translator.setLanguage("de")
        tryCompare(box, "currentIndex", Languages.indexOf("de"))
        verify(Find.button(settings, "Reset to Defaults") === undefined)
        settings.resetToDefaults()
        compare(Translator.currentLanguage, "de")
        Translator.setLanguage("xx")
        tryCompare(box, "currentIndex", 0)
        Translator.setLanguage("en")
        tryCompare(box, "currentIndex", 1)
        verify(Find.button(settings, "Reset to Defaults"))
        // A choice in the box puts a language in force, by keys and by clicks; all pages follow.
        click(box)
        tryVerify(() => box.popup.opened)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)
        compare(Translator.currentLanguage, "es")
        for (let round = 0; round < 2; ++round) {
            for (const [index, code] of Languages.CODES.entries()) {
                mouseClick(box)
                tryVerify(() => box.popup.opened)
                mouseClick(box.popup.contentItem.itemAtIndex(index))
                tryVerify(() => !box.popup.visible)
                compare(Translator.currentLanguage, code)
                compare(box.currentIndex, index)
            }
        }
    }

    function test_a_check_for_updates_says_how_it_goes() {
        openPage()
        // Nothing is asked without an address, and that is no fault.
        UpdateService.manifestUrl = ""
        clickButton("Check for updates")
        const note = Find.text(settings, "Update URL is not configured.")
        compare(String(note.color), String(shell.theme.textMuted))
        UpdateService.manifestUrl = "http://127.0.0.1:9/latest.json"
        verify(Find.button(settings, "Download update").enabled === false)
        clickButton("Check for updates")
        tryVerify(() => !UpdateService.busy, 9000)
        verify(Find.all(settings, item => item.text === UpdateService.lastError && item.visible).length === 1)
        UpdateService.clearState()
    }
}

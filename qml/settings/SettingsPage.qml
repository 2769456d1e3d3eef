import QtQuick
import QtQuick.Layouts
import Velmora

/// The preferences. A change of the look shows at once and is kept by "Save Settings".
ScrollPage {
    id: root

    function applyAccentHex(text: string) {
        theme.applyAccentHex(text)
    }

    function saveSettings() {
        // Values that are set by name are in the file after a sync; changed properties come later.
        store.setValue("darkMode", theme.dark)
        store.setValue("accentHex", theme.useAccentOverride ? String(theme.accentOverride) : "")
        store.sync()
    }

    function resetToDefaults() {
        theme.dark = true
        theme.useAccentOverride = false
        saveSettings()
    }

    StoredSettings {
        id: store

        category: "ui"
    }

    ColumnLayout {
        Layout.alignment: Qt.AlignHCenter
        Layout.preferredWidth: Math.min(root.width * 0.66, root.width - 48)
        Layout.fillWidth: false
        spacing: root.theme.spaceXl

        SectionHeader {
            title: qsTr("Settings")
        }

        AppearanceCard {
            language: Translator.currentLanguage
            onLanguageChosen: code => Translator.setLanguage(code)
            onAccentChosen: text => root.applyAccentHex(text)
        }

        LicensesCard {}

        UpdatesCard {}

        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: root.theme.spaceMd

            SecondaryButton {
                text: qsTr("Reset to Defaults")
                onClicked: root.resetToDefaults()
            }

            PrimaryButton {
                text: qsTr("Save Settings")
                iconName: "save"
                onClicked: root.saveSettings()
            }
        }
    }
}

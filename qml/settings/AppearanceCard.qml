pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "languages.js" as Languages

/// The look of the window: mode, language and accent.
SettingsCard {
    id: root

    property string language: "system"  ///< The code in force.

    signal languageChosen(string code)
    signal accentChosen(string text)

    title: qsTr("Appearance")
    iconName: "palette"

    ExplainedSetting {
        title: qsTr("Dark Mode")
        note: qsTr("Use dark color scheme throughout the interface")

        BoundSwitch {
            value: root.theme.dark
            text: qsTr("Dark Mode")
            onSwitched: on => root.theme.dark = on
        }
    }

    ExplainedSetting {
        title: qsTr("Language")
        note: qsTr("Change the app language (takes effect immediately)")

        ChoiceBox {
            width: 200
            label: qsTr("Language")
            model: [qsTr("System default"), ...Languages.OWN_NAMES]
            choice: Languages.indexOf(root.language)
            onActivated: index => root.languageChosen(Languages.CODES[index])
        }
    }

    ExplainedSetting {
        title: qsTr("Accent Color")
        note: qsTr("Customize the app highlight color (buttons, accents, clubs/check).")

        Repeater {
            model: [
                { label: qsTr("Green"), color: "#3FB950" },
                { label: qsTr("Blue"), color: "#58A6FF" },
                { label: qsTr("Purple"), color: "#A371F7" },
                { label: qsTr("Gold"), color: "#F0B429" },
                { label: qsTr("Orange"), color: "#F0883E" },
                { label: qsTr("Red"), color: "#F85149" }
            ]

            AccentSwatch {
                required property var modelData

                anchors.verticalCenter: parent?.verticalCenter
                label: modelData.label
                swatchColor: modelData.color
                onClicked: root.accentChosen(modelData.color)
            }
        }

        SecondaryButton {
            width: Math.max(90, implicitWidth)
            height: 32
            text: qsTr("Reset")
            enabled: root.theme.useAccentOverride
            onClicked: root.accentChosen("")
        }
    }
}

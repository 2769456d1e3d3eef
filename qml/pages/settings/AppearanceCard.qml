pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// The look of the window: mode and accent.
Card {
    id: root

    property Typography type: Fallback.type

    signal accentChosen(string text)

    component Explained: ColumnLayout {
        property alias title: titleLabel.text
        property alias note: noteLabel.text

        Layout.fillWidth: true
        spacing: 2

        Label {
            id: titleLabel

            color: root.theme.text
            font.pixelSize: root.type.bodyMd
            font.weight: root.type.weightMedium
        }

        Label {
            id: noteLabel

            Layout.fillWidth: true
            color: root.theme.textMuted
            font.pixelSize: root.type.labelMd
            wrapMode: Text.Wrap
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceLg

        RowLayout {
            spacing: root.theme.spaceSm

            Icon {
                name: "palette"
                color: root.theme.textMuted
            }

            CardTitle {
                theme: root.theme
                type: root.type
                text: qsTr("Appearance")
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: root.theme.spaceLg

            Explained {
                title: qsTr("Dark Mode")
                note: qsTr("Use dark color scheme throughout the interface")
            }

            BoundSwitch {
                theme: root.theme
                value: root.theme.dark
                text: qsTr("Dark Mode")
                onSwitched: on => root.theme.dark = on
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: root.theme.spaceLg

            Explained {
                title: qsTr("Accent Color")
                note: qsTr("Customize the app highlight color (buttons, accents, clubs/check).")
            }

            Row {
                spacing: root.theme.spaceSm

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

                        theme: root.theme
                        type: root.type
                        label: modelData.label
                        swatchColor: modelData.color
                        onClicked: root.accentChosen(modelData.color)
                    }
                }
            }

            SecondaryButton {
                Layout.preferredWidth: 90
                Layout.preferredHeight: 32
                theme: root.theme
                text: qsTr("Reset")
                enabled: root.theme.useAccentOverride
                onClicked: root.accentChosen("")
            }
        }
    }
}

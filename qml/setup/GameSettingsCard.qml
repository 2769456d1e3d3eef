pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// Pot, stack, rake and how exact the solve shall be.
Card {
    id: root

    property Typography type: Style.type
    required property ProjectState project
    readonly property real gameSettingsInputColumnWidth: 60

    /// Targets to choose with a click, in percent of the pot.
    readonly property list<real> _targets: [1.0, 0.5, 0.1]

    function choose(target: real) {
        project.setInputFault("target_exploitability", "")
        project.edit("", "targetExploitability", target)
    }

    component Setting: RowLayout {
        id: setting

        required property string key  ///< Of the project's property.
        required property string spotKey  ///< Of the solve configuration map.
        property alias text: label.text
        property alias low: field.low
        property alias high: field.high
        property alias decimals: field.decimals
        property alias fallback: field.fallback
        property alias placeholderText: field.placeholderText

        Layout.fillWidth: true
        spacing: root.theme.spaceMd

        Label {
            id: label

            Layout.fillWidth: true
            color: root.theme.textMuted
            font.pixelSize: root.type.labelMd
        }

        NumberField {
            id: field

            Layout.preferredWidth: root.gameSettingsInputColumnWidth
            label: setting.text
            spotKey: setting.spotKey
            number: root.project[setting.key]
            inputFault: root.project.inputFaults[setting.spotKey] ?? ""
            fault: root.project.faultAt(spotKey)
            project: root.project
            onChecked: sentence => root.project.setInputFault(setting.spotKey, sentence)
            onNumberCommitted: number => root.project.edit(setting.key, setting.key, number)
            onEditingFinished: root.project.endStep()
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceSm

        CardTitle {
            Layout.bottomMargin: root.theme.spaceXs
            text: qsTr("Game Settings")
        }

        Setting {
            text: qsTr("Starting Pot")
            key: "startingPot"
            spotKey: "starting_pot"
            low: 1
            high: 100000
            fallback: 100
            placeholderText: qsTr("e.g., 100")
        }

        Setting {
            text: qsTr("Effective Stack")
            key: "effectiveStack"
            spotKey: "effective_stack"
            low: 1
            high: 100000
            fallback: 100
            placeholderText: qsTr("e.g., 100")
        }

        Setting {
            text: qsTr("Rake (%)")
            key: "rakePercent"
            spotKey: "rake_percent"
            high: 100
            decimals: 3
            placeholderText: qsTr("e.g., 5.0")
        }

        Setting {
            text: qsTr("Rake Cap")
            key: "rakeCap"
            spotKey: "rake_cap"
            high: 1000000
            placeholderText: qsTr("e.g., 0")
        }

        Setting {
            text: qsTr("Target Exploitability (%)")
            key: "targetExploitability"
            spotKey: "target_exploitability"
            high: 100
            decimals: 6
            fallback: 0.1
            placeholderText: qsTr("e.g., 0.10")
        }

        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: root.theme.spaceXs

            Repeater {
                model: root._targets.length

                SmallButton {
                    required property int index
                    readonly property real target: root._targets[index]

                    text: qsTr("%1%").arg(target)
                    Accessible.name: qsTr("Target Exploitability (%)") + " " + text
                    onClicked: root.choose(target)
                }
            }
        }

        Item {
            Layout.fillHeight: true
        }
    }
}

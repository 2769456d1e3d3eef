pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// Pot, stack, rake and how exact the solve shall be.
Card {
    id: root

    property Typography type: Fallback.type
    required property ProjectState project
    readonly property real gameSettingsInputColumnWidth: 60

    /// Targets to choose with a click, in percent of the pot.
    readonly property list<real> _targets: [1.0, 0.5, 0.1]

    component Setting: RowLayout {
        id: setting

        property alias text: label.text
        property alias number: field.number
        property alias low: field.low
        property alias high: field.high
        property alias decimals: field.decimals
        property alias fallback: field.fallback
        property alias placeholderText: field.placeholderText

        signal numberCommitted(real number)

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
            theme: root.theme
            type: root.type
            label: setting.text
            onNumberCommitted: number => setting.numberCommitted(number)
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceSm

        CardTitle {
            Layout.bottomMargin: root.theme.spaceXs
            theme: root.theme
            type: root.type
            text: qsTr("Game Settings")
        }

        Setting {
            text: qsTr("Starting Pot")
            number: root.project.startingPot
            low: 1
            high: 100000
            fallback: 100
            placeholderText: qsTr("e.g., 100")
            onNumberCommitted: number => root.project.startingPot = number
        }

        Setting {
            text: qsTr("Effective Stack")
            number: root.project.effectiveStack
            low: 1
            high: 100000
            fallback: 100
            placeholderText: qsTr("e.g., 100")
            onNumberCommitted: number => root.project.effectiveStack = number
        }

        Setting {
            text: qsTr("Rake (%)")
            number: root.project.rakePercent
            high: 100
            decimals: 3
            placeholderText: qsTr("e.g., 5.0")
            onNumberCommitted: number => root.project.rakePercent = number
        }

        Setting {
            text: qsTr("Rake Cap")
            number: root.project.rakeCap
            high: 1000000
            placeholderText: qsTr("e.g., 0")
            onNumberCommitted: number => root.project.rakeCap = number
        }

        Setting {
            text: qsTr("Target Exploitability (%)")
            number: root.project.targetExploitability
            high: 100
            decimals: 6
            fallback: 0.1
            placeholderText: qsTr("e.g., 0.10")
            onNumberCommitted: number => root.project.targetExploitability = number
        }

        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: root.theme.spaceXs

            Repeater {
                model: root._targets.length

                SmallButton {
                    required property int index
                    readonly property real target: root._targets[index]

                    theme: root.theme
                    type: root.type
                    text: qsTr("%1%").arg(target)
                    Accessible.name: qsTr("Target Exploitability (%)") + " " + text
                    onClicked: root.project.targetExploitability = target
                }
            }
        }

        Item {
            Layout.fillHeight: true
        }
    }
}

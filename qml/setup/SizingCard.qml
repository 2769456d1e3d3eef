pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora
import "../shell/project_keys.js" as ProjectKeys

/// The bet and raise sizes of one seat, street by street.
Card {
    id: root

    property Typography type: Style.type
    required property ProjectState project
    required property string seat  ///< "oop" or "ip"

    readonly property string seatName: seat === "oop" ? qsTr("OOP") : qsTr("IP")
    /// The heads of the columns, one for each of the keys' streets. The rows count columns and look
    /// their titles up: a change of the language then builds nothing anew.
    readonly property var streetTitles: [qsTr("Flop"), qsTr("Turn"), qsTr("River")]
    readonly property bool _jamEnabled: project[seat + "AddAllInIfJamLtEnabled"]

    /// The label of a table row.
    component RowTitle: Label {
        Layout.minimumWidth: implicitWidth
        color: root.theme.textMuted
        font.pixelSize: root.type.labelMd
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceSm

        GridLayout {
            Layout.fillWidth: true
            columns: 4
            columnSpacing: root.theme.spaceSm
            rowSpacing: root.theme.spaceSm

            CardTitle {
                Layout.bottomMargin: root.theme.spaceXs
                text: root.seat === "oop" ? qsTr("OOP Sizing") : qsTr("IP Sizing")
            }

            Repeater {
                model: ProjectKeys.streets.length

                SizingCell {
                    id: heading

                    required property int index

                    implicitHeight: headingLabel.implicitHeight

                    Label {
                        id: headingLabel

                        anchors.centerIn: parent
                        text: root.streetTitles[heading.index]
                        color: root.theme.textMuted
                        font.pixelSize: root.type.labelMd
                        font.weight: root.type.weightSemibold
                    }
                }
            }

            RowTitle {
                text: qsTr("Bet sizes (%)")
            }

            SizeFields {
                model: ProjectKeys.streets.length
                streetTitles: root.streetTitles
                project: root.project
                seat: root.seat
                seatName: root.seatName
                title: qsTr("Bet sizes (%)")
                suffix: "BetSizesText"
                placeholder: "33, 75, 125"
            }

            RowTitle {
                text: qsTr("Raise sizes (%)")
            }

            SizeFields {
                model: ProjectKeys.streets.length
                streetTitles: root.streetTitles
                project: root.project
                seat: root.seat
                seatName: root.seatName
                title: qsTr("Raise sizes (%)")
                suffix: "RaiseSizesText"
                placeholder: "75, 125, 200"
            }

            RowTitle {
                text: qsTr("Add All-In")
            }

            SizeSwitches {
                model: ProjectKeys.streets.length
                streetTitles: root.streetTitles
                project: root.project
                seat: root.seat
                seatName: root.seatName
                title: qsTr("Add All-In")
                suffix: "AddAllIn"
            }

            RowTitle {
                visible: root.seat === "oop"
                text: qsTr("Don't donk")
            }

            SizeSwitches {
                model: root.seat === "oop" ? ProjectKeys.streets.length : 0
                streetTitles: root.streetTitles
                project: root.project
                seat: root.seat
                seatName: root.seatName
                title: qsTr("Don't donk")
                suffix: "DontDonk"
            }
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.topMargin: root.theme.spaceXs
            spacing: root.theme.spaceSm

            BoundSwitch {
                value: root._jamEnabled
                text: root.seatName + " " + jamLabel.text
                onSwitched: on => root.project.edit("", root.seat + "AddAllInIfJamLtEnabled", on)
            }

            Label {
                id: jamLabel

                Layout.fillWidth: true
                text: qsTr("Add all-in if jam less than")
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
                elide: Text.ElideRight
            }

            NumberField {
                Layout.preferredWidth: 72
                enabled: root._jamEnabled
                label: root.seatName + " " + jamLabel.text
                placeholderText: qsTr("e.g. 30")
                high: 1000
                decimals: 3
                number: root.project[root.seat + "AddAllInIfJamLtPct"]
                spotKey: root.seat + "_add_all_in_jam_threshold_pct"
                inputFault: root.project.inputFaults[spotKey] ?? ""
                project: root.project
                onChecked: sentence => root.project.setInputFault(spotKey, sentence)
                onNumberCommitted: number => root.project.edit(spotKey, root.seat + "AddAllInIfJamLtPct", number)
                onEditingFinished: root.project.endStep()
            }

            Label {
                text: qsTr("% pot")
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }
        }

        Item {
            Layout.fillHeight: true
        }
    }
}

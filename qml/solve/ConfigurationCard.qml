import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora
import "../components/number_text.js" as NumberText

/// The spot in short, and the buttons that run it.
Card {
    id: root

    property Typography type: Style.type
    required property ProjectState project
    required property bool running
    required property bool canSolve
    required property bool runComplete

    readonly property var _enabledOptionLines: {
        const lines = []
        const streets = [["Flop", qsTr("flop")], ["Turn", qsTr("turn")], ["River", qsTr("river")]]
        for (const street of streets) {
            if (project["oop" + street[0] + "DontDonk"])
                lines.push(qsTr("OOP: don't donk on %1").arg(street[1]))
        }
        for (const street of streets) {
            if (project["oop" + street[0] + "AddAllIn"])
                lines.push(qsTr("OOP: add all-in on %1").arg(street[1]))
        }
        for (const street of streets) {
            if (project["ip" + street[0] + "AddAllIn"])
                lines.push(qsTr("IP: add all-in on %1").arg(street[1]))
        }
        if (project.oopAddAllInIfJamLtEnabled)
            lines.push(qsTr("OOP: add all-in if jam < %1% pot").arg(NumberText.plain(project.oopAddAllInIfJamLtPct, 3)))
        if (project.ipAddAllInIfJamLtEnabled)
            lines.push(qsTr("IP: add all-in if jam < %1% pot").arg(NumberText.plain(project.ipAddAllInIfJamLtPct, 3)))
        return lines
    }

    signal startRequested
    signal cancelRequested
    signal resultsRequested

    function _sizes(seat: string, street: string): string {
        return project[seat + street + "BetSizesText"] || "—"
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceMd

        CardTitle {
            text: qsTr("Configuration")
        }

        BoardDisplay {
            boardText: root.project.boardText
            compact: true
            cardScale: 1.35
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: root.theme.spaceLg

            FactGrid {
                Layout.fillWidth: true
                Layout.preferredWidth: 3
                Layout.alignment: Qt.AlignTop
                facts: [
                    { label: qsTr("Street"), value: root.project.startingStreet.toUpperCase() },
                    {
                        label: qsTr("Pot / Stack"),
                        value: qsTr("%1 / %2").arg(root.project.startingPot).arg(root.project.effectiveStack)
                    },
                    {
                        label: qsTr("Target"),
                        value: qsTr("%1% (= %2)").arg(NumberText.plain(root.project.targetExploitability, 6))
                                                 .arg(root.project.targetExploitabilityAmount().toFixed(2))
                    },
                    {
                        label: qsTr("Rake"),
                        value: qsTr("%1% (cap %2)").arg(NumberText.plain(root.project.rakePercent, 3))
                                                   .arg(root.project.rakeCap)
                    },
                    {
                        label: qsTr("Bet sizes"),
                        value: qsTr("F %1/%2 • T %3/%4 • R %5/%6")
                            .arg(root._sizes("oop", "Flop")).arg(root._sizes("ip", "Flop"))
                            .arg(root._sizes("oop", "Turn")).arg(root._sizes("ip", "Turn"))
                            .arg(root._sizes("oop", "River")).arg(root._sizes("ip", "River"))
                    }
                ]
            }

            Rectangle {
                Layout.fillWidth: true
                Layout.preferredWidth: 2
                Layout.fillHeight: true
                Layout.minimumHeight: options.implicitHeight + 2 * root.theme.spaceSm
                radius: root.theme.radiusSm
                color: root.theme.surface2
                border.color: root.theme.stroke

                ColumnLayout {
                    id: options

                    anchors.fill: parent
                    anchors.margins: root.theme.spaceSm
                    spacing: 2

                    Label {
                        Layout.fillWidth: true
                        text: qsTr("Options enabled")
                        color: root.theme.text
                        font.pixelSize: root.type.labelMd
                        font.weight: root.type.weightSemibold
                        elide: Text.ElideRight
                    }

                    Label {
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        verticalAlignment: Text.AlignTop
                        text: root._enabledOptionLines.length > 0
                              ? root._enabledOptionLines.map(line => "• " + line).join("\n") : qsTr("None")
                        color: root.theme.textMuted
                        font.pixelSize: root.type.labelSm
                        wrapMode: Text.Wrap
                    }
                }
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 1
            color: root.theme.stroke
        }

        CardTitle {
            text: qsTr("Controls")
        }

        Flow {
            Layout.fillWidth: true
            spacing: root.theme.spaceSm

            PrimaryButton {
                text: root.running ? qsTr("Solving...") : qsTr("Start Solve")
                iconText: "▶"
                loading: root.running
                enabled: root.canSolve && !root.running
                onClicked: root.startRequested()
            }

            SecondaryButton {
                text: qsTr("Cancel")
                iconName: "stop"
                enabled: root.running
                danger: root.running
                onClicked: root.cancelRequested()
            }

            SecondaryButton {
                text: qsTr("View Results →")
                iconName: "trend-up"
                enabled: root.runComplete
                onClicked: root.resultsRequested()
            }
        }
    }
}

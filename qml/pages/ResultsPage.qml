import QtQuick
import QtQuick.Layouts
import Velmora

/// What the latest solve came to.
ScrollPage {
    id: root

    required property var controller
    required property string boardText
    required property real rakePercent
    required property int rakeCap

    SectionHeader {
        Layout.fillWidth: true
        theme: root.theme
        title: qsTr("Results")
        subtitle: root.controller.resultsSummary
    }

    Card {
        Layout.fillWidth: true
        theme: root.theme

        ColumnLayout {
            anchors.fill: parent
            spacing: root.theme.spaceLg

            BoardDisplay {
                theme: root.theme
                type: root.type
                boardText: root.boardText
                compact: true
                cardScale: 1.35
            }

            Flow {
                Layout.fillWidth: true
                spacing: root.theme.spaceMd

                StatCard {
                    theme: root.theme
                    label: qsTr("EV (OOP)")
                    value: root.controller.resultEvOop.toFixed(3)
                    accentColor: root.theme.actionBet
                }

                StatCard {
                    theme: root.theme
                    label: qsTr("EV (IP)")
                    value: root.controller.resultEvIp.toFixed(3)
                    accentColor: root.theme.info
                }

                StatCard {
                    theme: root.theme
                    label: qsTr("Exploitability")
                    value: root.controller.resultExploitability.toFixed(4)
                    accentColor: root.theme.gold
                }

                StatCard {
                    theme: root.theme
                    label: qsTr("Iterations")
                    value: root.controller.resultIterations.toLocaleString(Qt.locale(), "f", 0)
                }
            }

            CardTitle {
                theme: root.theme
                type: root.type
                text: qsTr("First decision (OOP)")
            }

            ActionBar {
                Layout.fillWidth: true
                theme: root.theme
                actions: root.controller.rootActions
            }
        }
    }
}

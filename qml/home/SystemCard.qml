import QtQuick
import QtQuick.Layouts
import Velmora

/// What this machine offers a solve.
Card {
    id: root

    required property var controller

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceMd

        RowLayout {
            spacing: root.theme.spaceSm

            Icon {
                name: "monitor"
                color: root.theme.textMuted
            }

            CardTitle {
                text: qsTr("System")
            }
        }

        FactGrid {
            Layout.fillWidth: true
            facts: [
                { label: qsTr("Engine"), value: qsTr("Dunmarrow Core") },
                {
                    label: qsTr("Threads"),
                    value: root.controller.systemThreadCount > 0
                           ? qsTr("%1 available").arg(root.controller.systemThreadCount) : "—"
                },
                {
                    label: qsTr("Memory"),
                    value: qsTr("%1 (%2 free)").arg(root.controller.systemMemoryText || "—")
                                               .arg(root.controller.systemAvailableMemoryText || "—")
                }
            ]
        }
    }
}

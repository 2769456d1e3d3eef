import QtQuick
import QtQuick.Layouts
import Velmora

/// What this machine offers a solve.
Card {
    id: root

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
                    value: Controller.systemThreadCount > 0
                           ? qsTr("%1 available").arg(Controller.systemThreadCount) : "—"
                },
                {
                    label: qsTr("Memory"),
                    value: qsTr("%1 (%2 free)").arg(Controller.systemMemoryText || "—")
                                               .arg(Controller.systemAvailableMemoryText || "—")
                }
            ]
        }
    }
}

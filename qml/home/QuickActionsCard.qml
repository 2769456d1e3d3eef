import QtQuick
import QtQuick.Layouts
import Velmora

/// The ways into a solve as large rows.
Card {
    id: root

    signal newProject
    signal quickSolve
    signal importRange

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceSm

        CardTitle {
            text: qsTr("Quick Actions")
        }

        QuickActionRow {
            Layout.fillWidth: true
            text: qsTr("New Solve")
            description: qsTr("Configure board, ranges, tree")
            iconName: "target"
            onClicked: root.newProject()
        }

        QuickActionRow {
            Layout.fillWidth: true
            text: qsTr("Quick Solve")
            description: qsTr("Use default settings")
            iconName: "bolt"
            onClicked: root.quickSolve()
        }

        QuickActionRow {
            Layout.fillWidth: true
            text: qsTr("Import Range")
            description: qsTr("Load from file")
            iconName: "chart"
            onClicked: root.importRange()
        }

        Item {
            Layout.fillHeight: true
        }
    }
}

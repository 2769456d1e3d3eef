import QtQuick
import QtQuick.Layouts
import Velmora

/// The ways into a solve as large rows.
Card {
    id: root

    property Typography type: Fallback.type

    signal newProject
    signal quickSolve
    signal importRange

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceSm

        CardTitle {
            theme: root.theme
            type: root.type
            text: qsTr("Quick Actions")
        }

        QuickActionRow {
            Layout.fillWidth: true
            theme: root.theme
            type: root.type
            text: qsTr("New Solve")
            description: qsTr("Configure board, ranges, tree")
            iconName: "target"
            onClicked: root.newProject()
        }

        QuickActionRow {
            Layout.fillWidth: true
            theme: root.theme
            type: root.type
            text: qsTr("Quick Solve")
            description: qsTr("Use default settings")
            iconName: "bolt"
            onClicked: root.quickSolve()
        }

        QuickActionRow {
            Layout.fillWidth: true
            theme: root.theme
            type: root.type
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

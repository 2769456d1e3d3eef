import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// A year of solves.
Card {
    id: root

    property Typography type: Style.type
    /// The controller's cells, day by day.
    property var cells: []

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceMd

        RowLayout {
            Layout.fillWidth: true
            spacing: root.theme.spaceSm

            Icon {
                name: "calendar"
                color: root.theme.textMuted
            }

            CardTitle {
                Layout.fillWidth: true
                text: qsTr("Solve Activity")
            }

            Label {
                text: qsTr("Last 52 weeks")
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }
        }

        ActivityGrid {
            Layout.fillWidth: true
            cells: root.cells
        }
    }
}

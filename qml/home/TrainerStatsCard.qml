import QtQuick
import QtQuick.Layouts
import Velmora
import "trainer_stats.js" as Stats

/// How the hands against the solution went, today and in total.
Card {
    id: root

    /// The controller's figures.
    property var stats: ({})

    signal clearRequested

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceMd

        RowLayout {
            Layout.fillWidth: true
            spacing: root.theme.spaceSm

            Icon {
                name: "gamepad"
                color: root.theme.textMuted
            }

            CardTitle {
                Layout.fillWidth: true
                text: qsTr("Play vs. Solution")
            }

            SmallButton {
                text: qsTr("Clear")
                danger: true
                Accessible.description: qsTr("Clear Play vs. Solution Stats")
                onClicked: confirmation.open()
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: root.theme.spaceMd

            StatCard {
                Layout.fillWidth: true
                Layout.preferredWidth: 152
                label: qsTr("Hands (Today / Total)")
                value: Stats.handsText(root.stats)
                accentColor: root.theme.info
            }

            StatCard {
                Layout.fillWidth: true
                Layout.preferredWidth: 163
                label: qsTr("Accuracy (Today / Total)")
                value: Stats.accuracyText(root.stats)
                unit: "%"
                accentColor: root.theme.success
            }

            StatCard {
                Layout.fillWidth: true
                Layout.preferredWidth: 180
                label: qsTr("Avg EV Loss (Today / Total)")
                value: Stats.evLossText(root.stats)
                unit: qsTr("EV")
                accentColor: root.theme.gold
            }
        }
    }

    ClearStatsDialog {
        id: confirmation

        onConfirmed: root.clearRequested()
    }
}

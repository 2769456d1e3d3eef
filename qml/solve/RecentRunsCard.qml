pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// The latest runs of this session.
Card {
    id: root

    property Typography type: Style.type
    required property RunHistory history

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceMd

        RowLayout {
            Layout.fillWidth: true

            CardTitle {
                Layout.fillWidth: true
                text: qsTr("Recent Runs")
            }

            SmallButton {
                text: qsTr("Clear")
                enabled: root.history.rows.count > 0
                onClicked: root.history.clear()
            }
        }

        Label {
            Layout.fillWidth: true
            visible: root.history.rows.count === 0
            text: qsTr("No runs yet — click Start Solve to record a run here.")
            color: root.theme.textMuted
            font.pixelSize: root.type.bodySm
            wrapMode: Text.Wrap
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: Math.min(180, 42 + 42 * root.history.rows.count)
            visible: root.history.rows.count > 0
            radius: root.theme.radiusSm
            color: root.theme.surface2
            border.color: list.activeFocus ? root.theme.strokeFocus : root.theme.stroke

            ListView {
                id: list

                anchors.fill: parent
                anchors.margins: root.theme.spaceSm
                clip: true
                spacing: root.theme.spaceXs
                activeFocusOnTab: true
                boundsBehavior: Flickable.StopAtBounds
                model: root.history.rows
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Recent Runs")

                ScrollBar.vertical: AppScrollBar {
                }

                delegate: RunRow {
                    width: list.width
                }
            }
        }
    }
}

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The pages as a column of rows under the program's name.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property int currentIndex: 0

    signal navigate(index: int)

    implicitWidth: 240
    implicitHeight: column.implicitHeight + 2 * theme.spaceLg
    color: theme.bg1
    Accessible.role: Accessible.PageTabList

    Rectangle {
        anchors.right: parent.right
        width: 1
        height: parent.height
        color: root.theme.stroke
    }

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: root.theme.spaceLg
        spacing: root.theme.spaceXs

        RowLayout {
            Layout.bottomMargin: root.theme.spaceLg
            spacing: root.theme.spaceMd

            Rectangle {
                implicitWidth: 40
                implicitHeight: 40
                radius: root.theme.radiusSm
                gradient: Gradient {
                    GradientStop { position: 0; color: root.theme.accent }
                    GradientStop { position: 1; color: root.theme.accentMuted }
                }

                Label {
                    anchors.centerIn: parent
                    text: qsTr("♠")
                    color: "white"
                    font.pixelSize: root.type.displaySm
                }
            }

            ColumnLayout {
                spacing: 0

                Label {
                    text: qsTr("Dunmarrow")
                    color: root.theme.text
                    font.pixelSize: root.type.headingSm
                    font.weight: root.type.weightBold
                }

                Label {
                    text: qsTr("Poker Solver")
                    color: root.theme.textMuted
                    font.pixelSize: root.type.labelMd
                }
            }
        }

        SidebarRow {
            Layout.fillWidth: true
            current: root.currentIndex === 0
            iconName: "home"
            text: qsTr("Home")
            subtitle: qsTr("Overview & quick actions")
            onClicked: root.navigate(0)
        }

        SidebarRow {
            Layout.fillWidth: true
            current: root.currentIndex === 1
            iconName: "clipboard"
            text: qsTr("Setup")
            subtitle: qsTr("Board, ranges, tree")
            onClicked: root.navigate(1)
        }

        SidebarRow {
            Layout.fillWidth: true
            current: root.currentIndex === 2
            iconName: "bolt"
            text: qsTr("Solve")
            subtitle: qsTr("Run solver")
            onClicked: root.navigate(2)
        }

        SidebarRow {
            Layout.fillWidth: true
            current: root.currentIndex === 3
            iconName: "chart"
            text: qsTr("Results")
            subtitle: qsTr("Browse strategies")
            onClicked: root.navigate(3)
        }

        SidebarRow {
            Layout.fillWidth: true
            current: root.currentIndex === 4
            iconName: "gear"
            text: qsTr("Settings")
            subtitle: qsTr("Preferences")
            onClicked: root.navigate(4)
        }

        Item {
            Layout.fillHeight: true
        }

        Label {
            text: qsTr("v0.1.0 dev")
            color: root.theme.textFaint
            font.pixelSize: root.type.labelSm
        }
    }
}

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// The band at the head of the Home page: the name, the first steps and the logo.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type

    property bool busy: false
    property real progress: 0  ///< 0..1, of the file that is worked on while busy.

    signal newProject
    signal saveRequested
    signal openRequested

    implicitHeight: 180
    radius: theme.radiusLg
    border.color: theme.stroke
    gradient: Gradient {
        orientation: Gradient.Horizontal

        GradientStop {
            position: 0
            color: root.theme.surface
        }
        GradientStop {
            position: 1
            color: Qt.darker(root.theme.accent, 2.5)
        }
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: root.theme.space2Xl
        anchors.rightMargin: root.theme.spaceXl
        spacing: root.theme.spaceXl

        ColumnLayout {
            Layout.fillWidth: true
            spacing: root.theme.spaceXs

            Label {
                text: qsTr("Dunmarrow")
                color: root.theme.text
                font.pixelSize: 28
                font.weight: root.type.weightBold
                Accessible.role: Accessible.Heading
            }

            Label {
                Layout.fillWidth: true
                text: qsTr("A modern, high-performance holdem solver")
                color: root.theme.textMuted
                font.pixelSize: root.type.bodyMd
                wrapMode: Text.Wrap
            }

            RowLayout {
                Layout.topMargin: root.theme.spaceLg
                spacing: root.theme.spaceMd

                PrimaryButton {
                    text: qsTr("New Solve")
                    iconText: "+"
                    onClicked: root.newProject()
                }

                SecondaryButton {
                    text: qsTr("Save")
                    iconName: "save"
                    enabled: !root.busy
                    onClicked: root.saveRequested()
                }

                SecondaryButton {
                    text: qsTr("Open File")
                    iconName: "folder-open"
                    enabled: !root.busy
                    onClicked: root.openRequested()
                }

                FileProgress {
                    running: root.busy
                    value: root.progress
                }
            }
        }

        Image {
            Layout.preferredWidth: 280
            Layout.preferredHeight: 150
            source: "../assets/Dunmarrow_logo.png"
            sourceSize.width: 560
            sourceSize.height: 300
            fillMode: Image.PreserveAspectFit
            mipmap: true
            Accessible.ignored: true
        }
    }
}

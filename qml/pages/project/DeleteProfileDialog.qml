import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// Makes sure before a settings profile goes.
AppDialog {
    id: root

    property string profileName: ""

    signal confirmed

    title: qsTr("Delete settings profile")
    width: 380

    ColumnLayout {
        width: parent.width
        spacing: root.theme.spaceSm

        Label {
            Layout.fillWidth: true
            text: qsTr("Are you sure you want to delete this saved profile?")
            color: root.theme.text
            font.pixelSize: root.type.bodyMd
            wrapMode: Text.Wrap
        }

        Label {
            Layout.fillWidth: true
            text: "“" + root.profileName + "”"
            color: root.theme.text
            font.pixelSize: root.type.bodyMd
            font.weight: root.type.weightSemibold
            wrapMode: Text.Wrap
        }

        Label {
            Layout.fillWidth: true
            text: qsTr("This cannot be undone.")
            color: root.theme.textMuted
            font.pixelSize: root.type.bodySm
            wrapMode: Text.Wrap
        }
    }

    footerButtons: [
        SecondaryButton {
            theme: root.theme
            text: qsTr("Cancel")
            focus: true
            onClicked: root.close()
        },
        SecondaryButton {
            theme: root.theme
            text: qsTr("Delete")
            danger: true
            onClicked: {
                root.close()
                root.confirmed()
            }
        }
    ]
}

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// Makes sure before something goes for good.
AppDialog {
    id: root

    property string question: ""
    property string name: ""
    property string note: qsTr("This cannot be undone.")
    property string acceptText: qsTr("Delete")

    signal confirmed

    width: 380

    ColumnLayout {
        width: parent.width
        spacing: root.theme.spaceSm

        Label {
            Layout.fillWidth: true
            text: root.question
            color: root.theme.text
            font.pixelSize: root.type.bodyMd
            wrapMode: Text.Wrap
        }

        Label {
            Layout.fillWidth: true
            visible: root.name !== ""
            text: "“" + root.name + "”"
            color: root.theme.text
            font.pixelSize: root.type.bodyMd
            font.weight: root.type.weightSemibold
            wrapMode: Text.Wrap
        }

        Label {
            Layout.fillWidth: true
            visible: text !== ""
            text: root.note
            color: root.theme.textMuted
            font.pixelSize: root.type.bodySm
            wrapMode: Text.Wrap
        }
    }

    footerButtons: [
        SecondaryButton {
            text: qsTr("Cancel")
            focus: true
            onClicked: root.close()
        },
        SecondaryButton {
            text: root.acceptText
            danger: true
            onClicked: {
                root.close()
                root.confirmed()
            }
        }
    ]
}

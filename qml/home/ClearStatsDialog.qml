import QtQuick
import QtQuick.Controls
import Velmora

/// Makes sure before the trainer's figures go.
AppDialog {
    id: root

    signal confirmed

    title: qsTr("Clear Play vs. Solution Stats")
    width: 440

    Label {
        width: parent.width
        text: qsTr("Clear all Play vs. Solution statistics (today + total)?")
        color: root.theme.text
        font.pixelSize: root.type.bodyMd
        wrapMode: Text.Wrap
    }

    footerButtons: [
        SecondaryButton {
            text: qsTr("Cancel")
            focus: true
            onClicked: root.close()
        },
        SecondaryButton {
            text: qsTr("OK")
            danger: true
            onClicked: {
                root.close()
                root.confirmed()
            }
        }
    ]
}

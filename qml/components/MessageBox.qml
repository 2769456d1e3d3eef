import QtQuick
import QtQuick.Controls
import Velmora

/// A dialog with one message and a button that closes it.
AppDialog {
    id: root

    function report(message: string) {
        text.text = message
        open()
    }

    width: 440

    Label {
        id: text

        width: parent.width
        color: root.theme.text
        font.pixelSize: root.type.bodyMd
        wrapMode: Text.Wrap
    }

    footerButtons: PrimaryButton {
        text: qsTr("OK")
        focus: true
        onClicked: root.close()
    }
}

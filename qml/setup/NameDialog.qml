import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// Asks for the name of something new. It stays open until its user has answered the name with
/// `finish`.
AppDialog {
    id: root

    property string prompt: ""
    property string placeholder: ""
    property string acceptText: qsTr("Save")
    property bool canAccept: true
    /// What is wrong whatever the name is.
    property string fault: ""
    property alias name: field.text

    property string _nameFault: ""

    /// A name, trimmed, was asked to be taken.
    signal nameChosen(string name)

    function ask(suggestion = "") {
        field.text = suggestion
        field.selectAll()
        _nameFault = ""
        open()
    }

    /// Closes, or says why the name is not taken.
    function finish(error: string) {
        _nameFault = error
        if (error === "")
            close()
    }

    width: 420
    onAboutToShow: field.forceActiveFocus()

    ColumnLayout {
        width: parent.width
        spacing: root.theme.spaceSm

        Label {
            text: root.prompt
            color: root.theme.textMuted
            font.pixelSize: root.type.bodySm
        }

        InputField {
            id: field

            Layout.fillWidth: true
            label: root.prompt
            placeholderText: root.placeholder
            focus: true
            onTextEdited: root._nameFault = ""
            onAccepted: root.nameChosen(text.trim())
        }

        Label {
            Layout.fillWidth: true
            visible: text !== ""
            text: root.fault || root._nameFault
            color: root.theme.danger
            font.pixelSize: root.type.labelMd
            wrapMode: Text.Wrap
        }
    }

    footerButtons: [
        SecondaryButton {
            text: qsTr("Cancel")
            onClicked: root.close()
        },
        PrimaryButton {
            text: root.acceptText
            enabled: root.canAccept
            onClicked: root.nameChosen(field.text.trim())
        }
    ]
}

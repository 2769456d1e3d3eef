import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// Asks for the name of a new settings profile.
AppDialog {
    id: root

    readonly property bool _named: nameField.text.trim() !== ""
    property string _error: ""

    signal nameChosen(string name)

    function _accept() {
        if (!_named) {
            _error = qsTr("Please enter a name.")
            return
        }
        nameChosen(nameField.text.trim())
        close()
    }

    title: qsTr("Save Settings Profile")
    width: 420
    onAboutToShow: {
        _error = ""
        nameField.clear()
        nameField.forceActiveFocus()
    }

    ColumnLayout {
        width: parent.width
        spacing: root.theme.spaceSm

        Label {
            text: qsTr("Profile name:")
            color: root.theme.textMuted
            font.pixelSize: root.type.bodySm
        }

        InputField {
            id: nameField

            Layout.fillWidth: true
            theme: root.theme
            type: root.type
            label: qsTr("Profile name:")
            placeholderText: qsTr("e.g., 100bb rake-free (fast)")
            focus: true
            onTextEdited: root._error = ""
            onAccepted: root._accept()
        }

        Label {
            Layout.fillWidth: true
            visible: text !== ""
            text: root._error
            color: root.theme.danger
            font.pixelSize: root.type.labelMd
            wrapMode: Text.Wrap
        }
    }

    footerButtons: [
        SecondaryButton {
            theme: root.theme
            text: qsTr("Cancel")
            onClicked: root.close()
        },
        PrimaryButton {
            theme: root.theme
            text: qsTr("Save")
            enabled: root._named
            onClicked: root._accept()
        }
    ]
}

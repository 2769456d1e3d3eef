pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// Asks one question. Its answers are buttons; Escape and "Cancel" change nothing.
AppDialog {
    id: root

    property string question: ""
    /// Maps of `text`, `kind` ("primary", "danger" or "") and `action`, a function.
    property var answers: []

    function ask(title: string, question: string, answers: var) {
        root.title = title
        root.question = question
        root.answers = answers
        open()
    }

    function _answer(index: int) {
        const action = answers[index].action
        close()
        action()
    }

    width: Math.min(540, parent ? parent.width - 2 * margins : 540)

    Label {
        width: parent.width
        text: root.question
        color: root.theme.text
        font.pixelSize: root.type.bodyMd
        wrapMode: Text.Wrap
    }

    footerButtons: [
        SecondaryButton {
            text: qsTr("Cancel")
            onClicked: root.close()
        },
        Repeater {
            model: root.answers.length

            RowLayout {
                id: entry

                required property int index

                readonly property var answer: root.answers[index]

                PrimaryButton {
                    visible: entry.answer?.kind === "primary"
                    text: entry.answer?.text ?? ""
                    focus: visible
                    onClicked: root._answer(entry.index)
                }

                SecondaryButton {
                    visible: entry.answer?.kind !== "primary"
                    text: entry.answer?.text ?? ""
                    danger: entry.answer?.kind === "danger"
                    onClicked: root._answer(entry.index)
                }
            }
        }
    ]
}

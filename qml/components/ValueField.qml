import QtQuick
import Velmora

/// An input field for a value that lives elsewhere: it hands over each keystroke, and shows `value`
/// wherever that is not what was just typed.
InputField {
    id: root

    property string value: ""
    /// Whether the text stays as it is though it is not `value`.
    property bool heldBack: false
    property bool _typing: false

    signal typed(string text)

    function showValue() {
        text = value
    }

    onTextEdited: {
        _typing = true
        typed(text)
        _typing = false
    }
    onValueChanged: {
        if (activeFocus && !_typing)
            showValue()
    }

    Binding {
        target: root
        property: "text"
        value: root.value
        when: !root.activeFocus && !root.heldBack
        restoreMode: Binding.RestoreNone
    }
}

import QtQuick
import Velmora

/// An input field for a value that lives elsewhere: it shows `value` while nobody types in it, and
/// hands over what was typed when editing finishes.
InputField {
    id: root

    property string value: ""
    /// Whether something was typed since `value` changed; else there is nothing to hand over.
    property bool _edited: false

    signal committed(string text)

    onTextEdited: _edited = true
    onValueChanged: _edited = false
    onEditingFinished: {
        if (_edited)
            committed(text)
        _edited = false
        text = value
    }

    Binding {
        target: root
        property: "text"
        value: root.value
        when: !root.activeFocus
        restoreMode: Binding.RestoreNone
    }
}

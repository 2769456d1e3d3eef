import QtQuick
import Velmora

/// A switch for a value that lives elsewhere: it always shows `value` and asks for the other one.
ToggleSwitch {
    id: root

    property bool value: false

    signal switched(bool on)

    // A click has flipped `checked` by itself; what it shows is the value that came of it.
    onToggled: switched(checked)

    Binding {
        target: root
        property: "checked"
        value: root.value
    }
}

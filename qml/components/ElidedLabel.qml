import QtQuick
import QtQuick.Controls
import Velmora

/// A line of text that is cut off at its end where it is too long, and then shown whole in a note.
Label {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property bool hovered: false

    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter

    AppToolTip {
        visible: root.hovered && root.truncated
        text: root.text
    }
}

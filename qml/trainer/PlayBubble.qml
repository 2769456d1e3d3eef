import QtQuick
import QtQuick.Controls
import Velmora

/// What a player just did.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property string text: ""

    implicitWidth: label.implicitWidth + 2 * theme.spaceMd
    implicitHeight: 30
    radius: height / 2
    opacity: text !== "" ? 1 : 0
    visible: opacity > 0
    color: theme.surface2
    border.color: theme.strokeFocus
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Behavior on opacity {
        NumberAnimation {
            duration: root.theme.durationNormal
        }
    }

    Label {
        id: label

        anchors.centerIn: parent
        color: root.theme.text
        font.pixelSize: root.type.bodySm
        font.weight: root.type.weightSemibold
    }

    // The last words stay while the bubble fades.
    Binding {
        target: label
        property: "text"
        value: root.text
        when: root.text !== ""
        restoreMode: Binding.RestoreNone
    }
}

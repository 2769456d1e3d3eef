pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// Two columns of small text: labels and their values.
GridLayout {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// Maps with `label` and `value`.
    property var facts: []

    columns: 2
    columnSpacing: theme.spaceLg
    rowSpacing: theme.spaceSm
    flow: GridLayout.TopToBottom
    rows: facts.length

    Repeater {
        model: root.facts.length

        Label {
            required property int index

            text: root.facts[index].label
            color: root.theme.textMuted
            font.pixelSize: root.type.labelMd
        }
    }

    Repeater {
        model: root.facts.length

        Label {
            required property int index

            Layout.fillWidth: true
            text: root.facts[index].value
            color: root.theme.text
            font.pixelSize: root.type.labelMd
            wrapMode: Text.Wrap
        }
    }
}

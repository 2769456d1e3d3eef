import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// A setting: what it is called and what it does at the left, its controls at the right.
RowLayout {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property string title
    property string note
    default property alias controls: controls_.data

    Layout.fillWidth: true
    spacing: theme.spaceLg

    ColumnLayout {
        Layout.fillWidth: true
        spacing: 2

        Label {
            Layout.fillWidth: true
            text: root.title
            color: root.theme.text
            font.pixelSize: root.type.bodyMd
            font.weight: root.type.weightMedium
            wrapMode: Text.Wrap
        }

        Label {
            Layout.fillWidth: true
            text: root.note
            color: root.theme.textMuted
            font.pixelSize: root.type.labelMd
            wrapMode: Text.Wrap
        }
    }

    Row {
        id: controls_

        spacing: root.theme.spaceSm
    }
}

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// How often each action is taken at the node on view.
ColumnLayout {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property var actions
    property bool compact: false

    spacing: compact ? theme.spaceSm : theme.spaceMd

    Label {
        text: qsTr("Action Frequencies")
        color: root.theme.text
        font.pixelSize: root.type.bodyMd
        font.weight: root.type.weightBold
        Accessible.role: Accessible.Heading
    }

    ActionBar {
        Layout.fillWidth: true
        Layout.preferredHeight: root.compact ? contentHeight : Math.max(60, contentHeight)
        actions: root.actions
    }
}

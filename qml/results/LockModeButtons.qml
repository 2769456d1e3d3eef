import QtQuick
import QtQuick.Layouts
import Velmora

/// Switches between looking at the grid and locking hands on it.
ColumnLayout {
    id: root

    property Theme theme: Style.theme
    required property NodeLocks locks

    spacing: theme.spaceXs

    SmallButton {
        Layout.fillWidth: true
        text: (root.locks.nodeLockMode ? "" : "✓ ") + qsTr("Standard mode")
        onClicked: root.locks.leaveLockMode()
    }

    SmallButton {
        Layout.fillWidth: true
        text: (root.locks.nodeLockMode ? "✓ " : "") + qsTr("Node-lock mode")
        onClicked: root.locks.enterLockMode()
    }
}

import QtQuick
import Velmora

/// A slim bar for a file that takes longer than a second.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property bool running: false
    property real value: 0  ///< 0..1

    implicitWidth: 160
    implicitHeight: 6
    radius: 3
    visible: running && patience.late
    color: theme.surface3
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("%1%").arg(Math.round(value * 100))
    onRunningChanged: patience.late = false

    Rectangle {
        width: parent.width * Math.max(0, Math.min(1, root.value))
        height: parent.height
        radius: parent.radius
        color: root.theme.accent
    }

    Timer {
        id: patience

        property bool late: false

        interval: 1000
        running: root.running
        onTriggered: late = true
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "../shell/project_keys.js" as ProjectKeys

/// The switches of a row, one a street.
Repeater {
    id: root

    required property ProjectState project
    required property string seat  ///< "oop" or "ip"
    required property string seatName
    required property var streetTitles
    property string title
    property string suffix

    delegate: SizingCell {
        id: cell

        required property int index
        readonly property string key: ProjectKeys.propertyName(root.seat, ProjectKeys.streets[index], root.suffix)

        implicitHeight: toggle.implicitHeight

        BoundSwitch {
            id: toggle

            anchors.centerIn: parent
            value: root.project[cell.key]
            text: root.seatName + " " + root.streetTitles[cell.index] + " " + root.title
            onSwitched: on => root.project.edit("", cell.key, on)
        }
    }
}

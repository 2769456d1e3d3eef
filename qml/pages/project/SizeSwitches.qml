pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "../../logic/project_keys.js" as ProjectKeys

/// The switches of a row, one a street.
Repeater {
    id: root

    required property Theme theme
    required property ProjectState project
    required property string seat  ///< "oop" or "ip"
    required property string seatName
    property string title
    property string suffix

    delegate: SizingCell {
        id: cell

        required property var modelData
        readonly property string key: ProjectKeys.propertyName(root.seat, modelData.key, root.suffix)

        implicitHeight: toggle.implicitHeight

        BoundSwitch {
            id: toggle

            anchors.centerIn: parent
            theme: root.theme
            value: root.project[cell.key]
            text: root.seatName + " " + cell.modelData.title + " " + root.title
            onSwitched: on => root.project.set(cell.key, on)
        }
    }
}

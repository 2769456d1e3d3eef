pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "../shell/project_keys.js" as ProjectKeys

/// The size fields of a row, one a street.
Repeater {
    id: root

    required property ProjectState project
    required property string seat  ///< "oop" or "ip"
    required property string seatName
    required property var streetTitles
    property string title
    property string suffix
    property string placeholder

    delegate: SizingCell {
        id: cell

        required property int index
        readonly property string spotKey: ProjectKeys.configKey(root.seat, ProjectKeys.streets[index], root.suffix)
        readonly property string key: ProjectKeys.propertyName(root.seat, ProjectKeys.streets[index], root.suffix)

        implicitHeight: field.implicitHeight

        ValueField {
            id: field

            anchors.fill: parent
            mono: true
            label: root.seatName + " " + root.streetTitles[cell.index] + " " + root.title
            placeholderText: root.placeholder
            value: root.project[cell.key]
            spotKey: cell.spotKey
            faultBelow: root.suffix === "RaiseSizesText"
            fault: root.project.faultAt(spotKey)
            project: root.project
            onTyped: text => root.project.edit(cell.key, cell.key, text)
            onEditingFinished: root.project.endStep()
        }
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "../../logic/project_keys.js" as ProjectKeys

/// The size fields of a row, one a street.
Repeater {
    id: root

    required property Theme theme
    required property Typography type
    required property ProjectState project
    required property string seat  ///< "oop" or "ip"
    required property string seatName
    property string title
    property string suffix
    property string placeholder

    delegate: SizingCell {
        id: cell

        required property var modelData
        readonly property string key: ProjectKeys.propertyName(root.seat, modelData.key, root.suffix)

        implicitHeight: field.implicitHeight

        ValueField {
            id: field

            anchors.fill: parent
            theme: root.theme
            type: root.type
            mono: true
            label: root.seatName + " " + cell.modelData.title + " " + root.title
            placeholderText: root.placeholder
            value: root.project[cell.key]
            onCommitted: text => root.project.set(cell.key, text)
        }
    }
}

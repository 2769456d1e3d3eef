import QtQuick
import Velmora

/// A button that is its colour.
BaseButton {
    id: root

    property string label: ""
    required property string swatchColor  ///< "#RRGGBB"

    implicitWidth: 28
    implicitHeight: 28
    padding: 0
    Accessible.name: tip.text

    background: Rectangle {
        radius: root.theme.radiusSm
        color: root.swatchColor
        border.width: 2
        border.color: Qt.colorEqual(root.swatchColor, root.theme.accent) ? root.theme.strokeFocus : root.theme.stroke
    }

    AppToolTip {
        id: tip

        visible: root.hovered
        text: qsTr("%1 (%2)").arg(root.label).arg(root.swatchColor)
    }
}

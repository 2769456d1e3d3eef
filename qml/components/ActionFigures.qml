pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora
import "../logic/action_frequencies.js" as Frequencies

/// The line under a bar of actions that tells one action's figures.
Row {
    id: root

    property Theme theme: Fallback.theme
    property Typography type: Fallback.type
    /// `combos`, `equity` (0..1) and `ev`, where known.
    property var action: ({})
    property string name
    property color ink
    property real share: 0
    property bool selected: false

    component Figure: Label {
        anchors.verticalCenter: parent?.verticalCenter
        color: root.theme.textMuted
        font.pixelSize: root.type.labelSm
    }

    height: 18
    rightPadding: theme.space2Xl
    spacing: theme.spaceSm

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 10
        height: 10
        radius: 2
        color: root.ink
    }

    Figure {
        text: root.name
        color: root.theme.text
        font.pixelSize: root.type.labelMd
        font.weight: root.selected ? root.type.weightBold : root.type.weightMedium
    }

    Figure {
        text: qsTr("%1%").arg(Frequencies.percentText(root.share))
        color: root.theme.text
        font.pixelSize: root.type.labelMd
        font.weight: root.type.weightBold
    }

    Figure {
        text: qsTr("%1 combos").arg(Frequencies.combosText(root.action.combos))
    }

    Figure {
        text: qsTr("%1% equity").arg(Frequencies.equityText(root.action.equity))
    }

    Figure {
        text: qsTr("%1 EV").arg(Frequencies.evText(root.action.ev))
    }
}

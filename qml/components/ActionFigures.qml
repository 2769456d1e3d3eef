pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora
import "action_frequencies.js" as Frequencies

/// The figures of one action under a bar of actions: one line, or two where it is narrow.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// `combos`, `equity` (0..1) and `ev`, where known.
    property var action: ({})
    property string name
    property color ink
    property real share: 0
    property bool selected: false
    /// The most that the figures may take, and what stays free after them.
    property real maximumWidth: Infinity
    property real gap: theme.space2Xl

    readonly property real _lineWidth: head.implicitWidth + theme.spaceSm + figures.implicitWidth
    readonly property bool _wrapped: _lineWidth > maximumWidth

    component Figure: Label {
        anchors.verticalCenter: parent?.verticalCenter
        color: root.theme.textMuted
        font.pixelSize: root.type.labelSm
    }

    width: (_wrapped ? maximumWidth : _lineWidth) + gap
    height: _wrapped ? head.height + figures.height : head.height

    Row {
        id: head

        height: 18
        spacing: root.theme.spaceSm

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
    }

    Row {
        id: figures

        x: root._wrapped ? 10 + root.theme.spaceSm : head.width + root.theme.spaceSm
        y: root._wrapped ? head.height : 0
        height: root._wrapped ? 16 : head.height
        spacing: root.theme.spaceSm

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
}

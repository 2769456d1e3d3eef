import QtQuick
import Velmora
import "hand_views.js" as HandViews

/// The chips at a node.
Rectangle {
    id: root

    property Theme theme: Style.theme
    required property var meta
    property bool compact: false

    implicitHeight: facts.implicitHeight + 2 * facts.anchors.margins
    radius: theme.radiusSm
    color: theme.surface2
    border.color: theme.stroke

    FactGrid {
        id: facts

        anchors.fill: parent
        anchors.margins: root.compact ? root.theme.spaceXs : root.theme.spaceSm
        rowSpacing: root.compact ? 2 : root.theme.spaceSm
        facts: [
            { label: qsTr("Pot"), value: String(root.meta.pot ?? 0) },
            { label: qsTr("Stack (%1)").arg(root.meta.player || "—"), value: String(HandViews.stackRemaining(root.meta)) },
            { label: qsTr("To call"), value: String(HandViews.toCallAmount(root.meta)) }
        ]
    }
}

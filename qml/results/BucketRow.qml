import QtQuick
import QtQuick.Controls
import Velmora
import "hand_views.js" as HandViews

/// A hand category: how many combos are in it, and how they are played.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property var bucket
    required property var actions
    property bool selected: false
    property bool focused: false

    signal chosen

    implicitHeight: 48
    radius: theme.radiusXs
    color: selected ? theme.surface3 : hover.hovered ? theme.surfaceHover : theme.surface2
    border.color: focused ? theme.strokeFocus : selected ? theme.accent : theme.stroke
    Accessible.role: Accessible.ListItem
    Accessible.name: title.text + ", " + combos.text
    Accessible.selected: selected
    Accessible.onPressAction: chosen()

    Label {
        id: title

        x: root.theme.spaceSm
        y: 5
        width: parent.width - combos.width - 3 * root.theme.spaceSm
        text: root.bucket?.displayName || root.bucket?.name || ""
        color: root.theme.text
        font.pixelSize: root.type.labelMd
        elide: Text.ElideRight
    }

    Label {
        id: combos

        anchors.right: parent.right
        anchors.rightMargin: root.theme.spaceSm
        anchors.baseline: title.baseline
        text: qsTr("%1 combos").arg(Number(root.bucket?.combos ?? 0).toFixed(1))
        color: root.theme.textMuted
        font.pixelSize: root.type.labelSm
    }

    ActionBar {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: root.theme.spaceSm
        anchors.bottomMargin: 6
        height: 16
        showLabels: false
        actions: HandViews.actionsForProbs(root.actions, root.bucket?.actionProbs)
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        onTapped: root.chosen()
    }
}

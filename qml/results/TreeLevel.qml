pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora

/// One level of the walked path: the actions of an undecided node, the chosen one of a decided node,
/// or the dealt card.
Column {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property TreeWalk walk
    required property int index
    required property int nodeIndex
    required property int selectedActionIndex
    required property bool last
    property bool frequenciesShown: true

    readonly property var meta: walk.nodeMeta(nodeIndex)
    readonly property var actions: walk.nodeActions(nodeIndex)
    readonly property bool chance: meta.nodeType === "chance"
    readonly property bool decided: selectedActionIndex >= 0

    signal cardWanted

    /// Takes an action where one can be taken, and goes back to the choice elsewhere.
    function choose(actionIndex: int) {
        if (walk.locked)
            return
        if (last && !decided)
            walk.selectActionAtLevel(index, actionIndex)
        else
            walk.navigateToBreadcrumb(index)
    }

    function chooseCard() {
        if (walk.locked)
            return
        if (last && !decided)
            cardWanted()
        else
            walk.navigateToBreadcrumb(index)
    }

    spacing: theme.spaceXs

    Rectangle {
        width: parent.width
        height: 22
        visible: root.last && !root.chance && !root.decided && root.actions.length > 1
        radius: root.theme.radiusXs
        color: root.theme.withOpacity(root.theme.info, 0.10)

        Label {
            anchors.left: parent.left
            anchors.leftMargin: root.theme.spaceSm
            anchors.verticalCenter: parent.verticalCenter
            text: "▼ " + qsTr("Available actions")
            color: root.theme.info
            font.pixelSize: root.type.labelSm
        }

        Label {
            anchors.right: parent.right
            anchors.rightMargin: root.theme.spaceSm
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("%1 options").arg(root.actions.length)
            color: root.theme.textMuted
            font.pixelSize: root.type.labelSm
        }
    }

    Repeater {
        model: root.chance ? 0 : root.actions.length

        TreeNode {
            required property int index

            readonly property var info: root.actions[index]
            readonly property var childMeta: root.walk.nodeMeta(info.childIndex)

            width: root.width
            visible: !root.decided || index === root.selectedActionIndex
            nodeType: root.meta.nodeType
            player: root.meta.player
            action: info.name
            actionType: info.actionType
            frequency: root.decided || root.frequenciesShown ? info.frequency : -1
            pot: childMeta.pot ?? root.meta.pot
            hasChildren: root.walk.nodeActions(info.childIndex).length > 0
            selected: index === root.selectedActionIndex
            expanded: selected
            onClicked: root.choose(index)
            onToggleExpand: root.choose(index)
        }
    }

    Repeater {
        model: root.chance ? 1 : 0

        Column {
            width: root.width
            spacing: root.theme.spaceXs

            Rectangle {
                width: parent.width
                height: 1
                color: root.theme.stroke
            }

            TreeNode {
                width: root.width
                nodeType: "chance"
                player: qsTr("Deal %1").arg(root.meta.chanceDeal === "river" ? qsTr("River") : qsTr("Turn"))
                action: root.decided ? root.walk.chosenNameAt(root.index) : ""
                actionType: "chance"
                pot: root.meta.pot ?? 0
                selected: root.last
                onClicked: root.chooseCard()
            }

            Rectangle {
                width: parent.width
                height: 1
                color: root.theme.stroke
            }
        }
    }
}

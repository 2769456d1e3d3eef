pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The strategy grid with its legend, the node's figures, and the lock panel.
ColumnLayout {
    id: root

    property Theme theme: Fallback.theme
    property Typography type: Fallback.type
    required property var controller
    required property TreeWalk walk
    required property NodeView view
    required property NodeLocks locks

    spacing: theme.spaceSm

    Label {
        text: root.view.previews ? qsTr("Strategy by Hand (preview, not solved yet)") : qsTr("Strategy by Hand")
        color: root.theme.text
        font.pixelSize: root.type.bodyMd
        font.weight: root.type.weightBold
        Accessible.role: Accessible.Heading
    }

    HandMatrix {
        id: grid

        theme: root.theme
        label: qsTr("Strategy by Hand")
        cellSize: 28
        weightDisplayMode: "verticalFill"
        selectable: true
        opacity: root.view.waiting ? 0.5 : 1
        weights: root.view.handWeights
        colors: root.view.handColors
        actionTypes: root.view.handActionTypeList
        actionProbs: root.view.handActionProbs
        onHandClicked: hand => {
            if (root.locks.nodeLockMode)
                root.locks.applyNodeLockToHand(root.view.node, hand)
            else
                root.view.toggleHandFilter(hand)
        }

        BusyLabel {
            anchors.centerIn: parent
            visible: root.view.waiting
            theme: root.theme
            type: root.type
        }
    }

    Flow {
        Layout.preferredWidth: grid.implicitWidth
        spacing: root.theme.spaceMd

        Repeater {
            model: root.view.currentActions.length

            Row {
                id: entry

                required property int index

                readonly property var action: root.view.currentActions[index]

                visible: action.frequency > 0.05
                spacing: root.theme.spaceXs

                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 12
                    height: 12
                    radius: 3
                    color: root.theme.actionColor(entry.action.actionType || entry.action.name)
                }

                Label {
                    text: entry.action.name
                    color: root.theme.textMuted
                    font.pixelSize: root.type.labelMd
                }
            }
        }
    }

    RowLayout {
        Layout.preferredWidth: grid.implicitWidth
        spacing: root.theme.spaceMd

        NodeBox {
            Layout.fillWidth: true
            Layout.minimumWidth: 180
            theme: root.theme
            type: root.type
            meta: root.walk.currentMeta
        }

        LockModeButtons {
            Layout.fillWidth: false
            theme: root.theme
            type: root.type
            locks: root.locks
        }
    }

    NodeLockPanel {
        Layout.preferredWidth: grid.implicitWidth
        visible: root.locks.nodeLockMode
        theme: root.theme
        type: root.type
        controller: root.controller
        locks: root.locks
        node: root.view.node
        lockable: root.walk.currentMeta.nodeType === "decision"
        actions: root.walk.currentNodeActions
    }
}

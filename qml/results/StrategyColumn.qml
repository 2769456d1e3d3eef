pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The strategy grid with its legend, and the node's figures. Where space is short the figures by
/// action beside it are legend enough.
ColumnLayout {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property TreeWalk walk
    required property NodeView view
    required property NodeLocks locks
    property bool compact: false
    property alias cellSize: grid.cellSize
    readonly property alias cellSpacing: grid.cellSpacing
    /// The height of all but the grid, with a legend of one line.
    readonly property real fixedHeight: heading.implicitHeight + facts.implicitHeight + 2 * spacing
                                        + (compact ? 0 : 18 + spacing)

    spacing: theme.spaceSm

    Label {
        id: heading

        Layout.preferredWidth: grid.implicitWidth
        text: root.view.previews ? qsTr("Strategy by Hand (preview, not solved yet)") : qsTr("Strategy by Hand")
        wrapMode: Text.Wrap
        color: root.theme.text
        font.pixelSize: root.compact ? root.type.labelMd : root.type.bodyMd
        font.weight: root.type.weightBold
        Accessible.role: Accessible.Heading
    }

    HandMatrix {
        id: grid

        label: qsTr("Strategy by Hand")
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
        }
    }

    Flow {
        Layout.preferredWidth: grid.implicitWidth
        visible: !root.compact
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
        id: facts

        Layout.preferredWidth: grid.implicitWidth
        spacing: root.theme.spaceMd

        NodeBox {
            Layout.fillWidth: true
            Layout.minimumWidth: 180
            meta: root.walk.currentMeta
            compact: root.compact
        }

        LockModeButtons {
            Layout.fillWidth: false
            locks: root.locks
        }
    }
}

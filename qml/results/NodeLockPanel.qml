pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// Chooses what a clicked hand is locked to, and solves again.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property NodeLocks locks
    required property int node
    required property bool lockable
    required property var actions

    implicitHeight: column.implicitHeight + 2 * theme.spaceMd
    radius: theme.radiusSm
    color: theme.surface2
    border.color: theme.stroke

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: root.theme.spaceMd
        spacing: root.theme.spaceSm

        CardTitle {
            text: qsTr("Node-Locking")
        }

        Label {
            Layout.fillWidth: true
            visible: !root.lockable
            text: qsTr("Node-locking is only available on decision nodes.")
            color: root.theme.textMuted
            font.pixelSize: root.type.labelMd
            wrapMode: Text.Wrap
        }

        Flow {
            Layout.fillWidth: true
            visible: root.lockable
            spacing: root.theme.spaceXs

            Repeater {
                // None while the panel is hidden: each step of a walk would make them anew.
                model: root.locks.nodeLockMode && root.lockable ? root.actions.length : 0

                SmallButton {
                    required property int index

                    text: (root.locks.nodeLockSelectedActionIndex === index ? "✓ " : "") + (root.actions[index]?.name ?? "")
                    onClicked: root.locks.nodeLockSelectedActionIndex = index
                }
            }
        }

        Flow {
            Layout.fillWidth: true
            spacing: root.theme.spaceSm

            Label {
                height: weight.height
                verticalAlignment: Text.AlignVCenter
                text: qsTr("Weight")
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }

            InputField {
                id: weight

                width: 70
                label: qsTr("Weight")
                placeholderText: qsTr("0..1")
                onTextEdited: root.locks.nodeLockWeightText = text

                Binding {
                    target: weight
                    property: "text"
                    value: root.locks.nodeLockWeightText
                }
            }

            SmallButton {
                height: weight.height
                text: qsTr("Reset weights")
                onClicked: root.locks.resetNodeLockEdits(root.node)
            }

            SmallButton {
                visible: root.locks.lastReset !== null
                height: weight.height
                text: qsTr("Undo reset")
                onClicked: root.locks.undoReset()
            }

            PrimaryButton {
                height: weight.height
                text: qsTr("Re-solve")
                loading: Controller.running
                enabled: !Controller.running && (Controller.lockCount > 0 || Controller.locksPending)
                onClicked: Controller.reSolveWithNodeLocks()
            }
        }

        Label {
            Layout.fillWidth: true
            visible: text !== ""
            text: root.locks.weightFault
            color: root.theme.danger
            font.pixelSize: root.type.labelSm
            wrapMode: Text.Wrap
        }

        Label {
            Layout.fillWidth: true
            visible: root.lockable
            text: qsTr("Tip: select an action above, then click a hand cell in the matrix to lock it.")
            color: root.theme.textMuted
            font.pixelSize: root.type.labelSm
            wrapMode: Text.Wrap
        }
    }
}

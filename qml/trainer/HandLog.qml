pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The hands that were played, the newest on top. A click shows the details of a hand.
Card {
    id: root

    property Typography type: Style.type
    required property PlayLog log

    /// The user asked for the details of a hand.
    signal handChosen

    function _choose(index: int) {
        log.userSelectPlayLog(index)
        handChosen()
    }

    padding: theme.spaceMd

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceSm

        RowLayout {
            Layout.fillWidth: true

            CardTitle {
                Layout.fillWidth: true
                text: qsTr("Hand Log")
            }

            Label {
                text: qsTr("%1 hands").arg(root.log.playHandLog.count)
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }
        }

        ListView {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            spacing: root.theme.spaceSm
            boundsBehavior: Flickable.StopAtBounds
            model: root.log.playHandLog
            activeFocusOnTab: count > 0
            keyNavigationEnabled: true
            highlightFollowsCurrentItem: true
            highlightMoveDuration: 0
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Hand Log")
            Keys.onReturnPressed: root._choose(currentIndex)
            Keys.onSpacePressed: root._choose(currentIndex)

            ScrollBar.vertical: AppScrollBar {
            }

            add: Transition {
                NumberAnimation {
                    property: "opacity"
                    from: 0
                    to: 1
                    duration: root.theme.durationSlow
                }
            }

            displaced: Transition {
                NumberAnimation {
                    property: "y"
                    duration: root.theme.durationNormal
                    easing.type: Easing.OutCubic
                }
            }

            delegate: HandLogRow {
                required property int index
                required property var model

                width: list.width - root.theme.spaceSm
                entry: model
                selected: index === root.log.playSelectedLogIndex
                focused: list.activeFocus && list.currentIndex === index
                onClicked: {
                    list.currentIndex = index
                    root._choose(index)
                }
            }

            Label {
                anchors.fill: parent
                anchors.topMargin: root.theme.spaceSm
                visible: list.count === 0
                text: qsTr("Hands that you finish are listed here.")
                color: root.theme.textMuted
                font.pixelSize: root.type.bodySm
                wrapMode: Text.Wrap
            }
        }
    }
}

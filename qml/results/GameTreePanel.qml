pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The column "Game Tree": the line that was played, and what can be chosen next.
Card {
    id: root

    required property TreeWalk walk
    /// Whether choices that are open show how often each is taken.
    property bool frequenciesShown: true

    padding: theme.spaceMd

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceMd

        CardTitle {
            text: qsTr("Game Tree")
        }

        ListView {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            spacing: root.theme.spaceSm
            boundsBehavior: Flickable.StopAtBounds
            // All levels of a line are few, and each has its own height.
            cacheBuffer: 10000
            model: root.walk.treeLevels
            Accessible.role: Accessible.Tree
            Accessible.name: qsTr("Game Tree")
            onContentHeightChanged: positionViewAtEnd()

            ScrollBar.vertical: AppScrollBar {
            }

            delegate: TreeLevel {
                width: list.width
                walk: root.walk
                last: index === list.count - 1
                frequenciesShown: root.frequenciesShown
                onCardWanted: picker.openChancePicker(index, nodeIndex)
            }
        }
    }

    ChancePicker {
        id: picker

        walk: root.walk
    }
}

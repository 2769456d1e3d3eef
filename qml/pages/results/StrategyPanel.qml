import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// How the node on view is played: figures by action, the grid, the categories and the combos. In play
/// mode the table stands in their place.
Card {
    id: root

    property Typography type: Fallback.type
    required property var controller
    required property TreeWalk walk
    required property NodeView view
    required property NodeLocks locks
    required property PlaySession play

    padding: theme.spaceXs

    ScrollPage {
        anchors.fill: parent
        theme: root.theme
        type: root.type
        margins: root.theme.spaceSm
        fillsHeight: true
        spacing: root.theme.spaceMd
        minimumContentWidth: 2 * margins + (root.play.playMode ? trainer.Layout.minimumWidth
                                                               : strategy.implicitWidth + 260 + 250 + 2 * 20)

        ResultsHeader {
            Layout.fillWidth: true
            Layout.minimumWidth: 0
            theme: root.theme
            type: root.type
            controller: root.controller
            walk: root.walk
            play: root.play
        }

        PlayPanel {
            id: trainer

            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: root.play.playMode
            theme: root.theme
            type: root.type
            walk: root.walk
            play: root.play
        }

        Label {
            visible: !root.play.playMode
            text: qsTr("Action Frequencies")
            color: root.theme.text
            font.pixelSize: root.type.bodyMd
            font.weight: root.type.weightBold
            Accessible.role: Accessible.Heading
        }

        ActionBar {
            Layout.fillWidth: true
            Layout.preferredHeight: Math.max(60, contentHeight)
            visible: !root.play.playMode
            theme: root.theme
            type: root.type
            actions: root.view.actionFrequenciesActions
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !root.play.playMode
            spacing: 20

            StrategyColumn {
                id: strategy

                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: false
                Layout.fillHeight: true
                theme: root.theme
                type: root.type
                controller: root.controller
                walk: root.walk
                view: root.view
                locks: root.locks
            }

            BucketsCard {
                Layout.preferredWidth: 300
                Layout.minimumWidth: 260
                Layout.fillHeight: true
                theme: root.theme
                type: root.type
                view: root.view
            }

            HandDetailsCard {
                Layout.fillWidth: true
                Layout.minimumWidth: 250
                Layout.fillHeight: true
                theme: root.theme
                type: root.type
                view: root.view
            }
        }
    }
}

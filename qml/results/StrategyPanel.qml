import QtQuick
import QtQuick.Layouts
import Velmora

/// How the node on view is played. In play mode the table stands in the place of the views.
Card {
    id: root

    required property TreeWalk walk
    required property NodeView view
    required property NodeLocks locks
    required property PlaySession play

    /// Below this width the page scrolls sideways.
    readonly property real minimumWidth: page.minimumContentWidth + leftPadding + rightPadding
    /// The height that stays under the head.
    readonly property real _roomHeight: page.height - 2 * page.margins - header.height - page.spacing

    padding: theme.spaceXs

    ScrollPage {
        id: page

        anchors.fill: parent
        margins: root.theme.spaceSm
        fillsHeight: true
        spacing: root.theme.spaceMd
        minimumContentWidth: 2 * margins + Math.max(header.minimumWidth, strategy.minimumWidth, trainer.minimumWidth)

        ResultsHeader {
            id: header

            Layout.fillWidth: true
            Layout.minimumWidth: 0
            walk: root.walk
            play: root.play
        }

        PlayPanel {
            id: trainer

            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: root.play.playMode
            walk: root.walk
            play: root.play
            roomHeight: root._roomHeight
        }

        StrategyViews {
            id: strategy

            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !root.play.playMode
            walk: root.walk
            view: root.view
            locks: root.locks
            roomHeight: root._roomHeight
        }
    }
}

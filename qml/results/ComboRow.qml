pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora
import "hand_views.js" as HandViews

/// One combo: its cards, its EV by action, and how it is played.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property var combo
    required property var actions

    readonly property var _evs: combo ? HandViews.comboEvTexts(combo, actions) : []
    /// The most lines so far: they are kept.
    property int _evCount: 0
    readonly property string _card1: combo?.c1 ?? ""
    readonly property string _card2: combo?.c2 ?? ""

    on_EvsChanged: _evCount = Math.max(_evCount, _evs.length)
    implicitHeight: Math.max(52, evs.implicitHeight + 2 * theme.spaceXs)
    radius: theme.radiusXs
    color: theme.surface2
    border.color: theme.stroke
    Accessible.role: Accessible.ListItem
    Accessible.name: _card1 + " " + _card2 + ", " + qsTr("EV:") + " " + _evs.map(ev => ev.text).join(" / ")

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: root.theme.spaceXs
        anchors.rightMargin: root.theme.spaceSm
        spacing: root.theme.spaceSm

        Row {
            spacing: 2

            PlayingCard {
                rank: root._card1.charAt(0)
                suit: root._card1.charAt(1)
                mini: true
                hoverable: false
            }

            PlayingCard {
                rank: root._card2.charAt(0)
                suit: root._card2.charAt(1)
                mini: true
                hoverable: false
            }
        }

        Label {
            text: qsTr("EV:")
            color: root.theme.textMuted
            font.pixelSize: root.type.labelSm
        }

        Column {
            id: evs

            Repeater {
                model: root._evCount

                Label {
                    required property int index

                    visible: index < root._evs.length
                    text: root._evs[index]?.text ?? ""
                    color: root._evs[index]?.actionType ? root.theme.actionColor(root._evs[index].actionType) : root.theme.text
                    font.family: root.theme.monoFamily
                    font.pixelSize: root.type.labelSm
                }
            }
        }

        ActionBar {
            Layout.fillWidth: true
            Layout.preferredHeight: 16
            showLabels: false
            actions: HandViews.actionsForProbs(root.actions, root.combo?.actionProbs)
        }
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "card_names.js" as CardNames

/// A playing card: face up, face down, or an empty slot while it has no rank and suit.
///
/// Set `activeFocusOnTab` where a click means something; Space and Return then do the same.
Item {
    id: root

    property Theme theme: Style.theme
    property string rank
    property string suit
    property bool faceDown: false
    property bool selected: false
    property bool disabled: false
    property bool mini: false
    property bool hoverable: true
    property bool enableHoverScale: true
    property real sizeScale: 1

    readonly property bool empty: !faceDown && (rank === "" || suit === "")
    readonly property bool faceUp: !faceDown && !empty
    readonly property bool hovered: hoverable && !disabled && hover.hovered

    readonly property real _scale: Math.max(0.1, sizeScale)

    signal clicked

    implicitWidth: (mini ? 32 : 52) * _scale
    implicitHeight: (mini ? 44 : 72) * _scale
    width: implicitWidth
    height: implicitHeight
    enabled: !disabled
    opacity: disabled ? 0.4 : 1
    scale: hovered && enableHoverScale ? 1.05 : 1

    Behavior on scale {
        NumberAnimation {
            duration: root.theme.durationFast
        }
    }

    Accessible.role: activeFocusOnTab ? Accessible.Button : Accessible.Graphic
    Accessible.name: {
        if (faceDown)
            return qsTr("Face-down card")
        return empty ? qsTr("Empty card slot") : CardNames.cardName(rank, suit)
    }
    Accessible.selected: selected
    Accessible.onPressAction: clicked()

    Keys.onSpacePressed: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    CardShadow {
        visible: root.faceUp
    }

    CardFace {
        anchors.fill: parent
        visible: root.faceUp
        rank: root.rank
        suit: root.suit
        selected: root.selected
        mini: root.mini
        sizeScale: root._scale
    }

    // Most cards never show another side than their face, and a list has dozens of them.
    Repeater {
        model: root.faceDown ? 1 : 0

        CardBack {
            anchors.fill: root
        }
    }

    Repeater {
        model: root.empty ? 1 : 0

        Rectangle {
            anchors.fill: root
            color: "transparent"
            opacity: 0.5
            radius: root.theme.radiusSm
            border.color: root.theme.stroke
            border.width: 2

            Text {
                anchors.centerIn: parent
                visible: !root.mini
                text: qsTr("?")
                color: root.theme.textMuted
                font.family: root.theme.uiFamily
                font.pixelSize: 18 * root._scale
            }
        }
    }

    Rectangle {
        visible: root.hovered
        anchors.fill: parent
        radius: root.theme.radiusSm
        color: Qt.rgba(0, 0, 0, 0.05)
    }

    FocusRing {
        radius: root.theme.radiusSm + 3
        active: root.activeFocus
    }

    HoverHandler {
        id: hover

        enabled: root.hoverable
        cursorShape: Qt.PointingHandCursor
    }

    TapHandler {
        onTapped: root.clicked()
    }
}

import QtQuick
import Velmora
import "card_names.js" as CardNames

/// One card of a picker, named by its rank in the ink of its suit.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property string card
    required property color ink
    property bool used: false

    readonly property bool hovered: hover.hovered && !used

    signal selected

    radius: theme.radiusXs
    color: used ? theme.surface3 : hovered ? theme.surfaceHover : theme.surface2
    border.color: hovered ? ink : theme.stroke
    opacity: used ? 0.3 : 1
    scale: hovered ? 1.1 : 1
    z: scale > 1 || activeFocus ? 1 : 0

    Behavior on scale {
        NumberAnimation {
            duration: 80
        }
    }

    Accessible.role: Accessible.Button
    Accessible.name: CardNames.cardName(card.charAt(0), card.charAt(1))
    Accessible.description: used ? qsTr("Already used") : ""
    Accessible.onPressAction: selected()

    Keys.onSpacePressed: selected()
    Keys.onReturnPressed: selected()
    Keys.onEnterPressed: selected()

    Text {
        anchors.centerIn: parent
        text: root.card.charAt(0)
        color: root.ink
        font.family: root.theme.uiFamily
        font.pixelSize: root.type.bodySm
        font.weight: root.type.weightSemibold
    }

    FocusRing {
        radius: root.theme.radiusXs + 3
        active: root.activeFocus
    }

    HoverHandler {
        id: hover

        cursorShape: root.used ? Qt.ForbiddenCursor : Qt.PointingHandCursor
    }

    TapHandler {
        onTapped: root.selected()
    }
}

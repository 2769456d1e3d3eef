import QtQuick
import QtQuick.Templates as T
import Velmora

/// What all push buttons share: an icon or a glyph before the text, a focus ring, and Return and
/// Enter as ways to press them beside Space.
T.Button {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property string iconText: ""
    property string iconName: ""
    property bool loading: false
    property color contentColor: theme.text
    property real contentOpacity: 1

    function press() {
        if (checkable && !(checked && autoExclusive)) {
            toggle()
            toggled()
        }
        clicked()
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 40
    leftPadding: theme.spaceLg
    rightPadding: theme.spaceLg
    spacing: theme.spaceSm
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    font.pixelSize: type.bodyMd
    font.weight: type.weightSemibold
    Accessible.role: Accessible.Button
    Accessible.name: text
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()

    FocusRing {
        radius: root.theme.radiusSm + 3
        active: root.visualFocus
    }

    contentItem: ButtonFace {
        text: root.text
        iconText: root.iconText
        iconName: root.iconName
        loading: root.loading
        color: root.contentColor
        opacity: root.contentOpacity
        spacing: root.spacing
        font: root.font
    }
}

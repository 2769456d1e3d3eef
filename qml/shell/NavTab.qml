import QtQuick
import QtQuick.Templates as T
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// One tab of the top bar. A disabled one still says by a tooltip what would enable it, so it is
/// an item around its button: a disabled control gets no hover.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property alias text: button.text
    property string iconName: ""
    property bool current: false
    property alias tabEnabled: button.enabled
    property string disabledReason: ""

    signal activated

    implicitWidth: button.implicitWidth
    implicitHeight: button.implicitHeight

    T.Button {
        id: button

        implicitWidth: implicitContentWidth + leftPadding + rightPadding
        implicitHeight: 36
        anchors.fill: parent
        leftPadding: root.theme.spaceMd
        rightPadding: root.theme.spaceMd
        opacity: enabled ? 1 : 0.45
        focusPolicy: Qt.StrongFocus
        checkable: false
        Accessible.role: Accessible.PageTab
        Accessible.name: text
        Accessible.description: enabled ? "" : root.disabledReason
        Accessible.checked: root.current
        Keys.onReturnPressed: root.activated()
        Keys.onEnterPressed: root.activated()
        onClicked: root.activated()

        background: Rectangle {
            radius: root.theme.radiusSm
            color: root.current ? root.theme.surface
                                : button.hovered ? root.theme.surfaceHover : "transparent"
            border.width: root.current ? 1 : 0
            border.color: root.theme.stroke

            FocusRing {
                radius: parent.radius
                active: button.visualFocus
            }
        }

        contentItem: RowLayout {
            spacing: root.theme.spaceSm

            Icon {
                name: root.iconName
                size: 16
                color: root.current ? root.theme.accent : root.theme.textMuted
            }

            Label {
                text: button.text
                color: root.current ? root.theme.text : root.theme.textMuted
                font.pixelSize: root.type.bodyMd
                font.weight: root.current ? root.type.weightSemibold : root.type.weightMedium
            }
        }
    }

    HoverHandler {
        id: hover
    }

    AppToolTip {
        visible: hover.hovered && !button.enabled && root.disabledReason !== ""
        text: root.disabledReason
    }
}

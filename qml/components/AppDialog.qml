import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Templates as T
import Velmora

/// A dialog in the middle of the window: a title, what it holds, and the buttons that its user
/// puts into `footerButtons`. Escape closes it.
T.Dialog {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property alias footerButtons: buttons.data

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    dim: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    margins: theme.spaceLg
    padding: theme.spaceLg
    implicitWidth: Math.max(implicitContentWidth + leftPadding + rightPadding,
                            implicitHeaderWidth, implicitFooterWidth)
    implicitHeight: implicitHeaderHeight + implicitContentHeight + topPadding + bottomPadding
                    + implicitFooterHeight

    T.Overlay.modal: Rectangle {
        color: Qt.rgba(0, 0, 0, 0.5)
    }

    header: Label {
        visible: root.title !== ""
        leftPadding: root.theme.spaceLg
        rightPadding: root.theme.spaceLg
        topPadding: root.theme.spaceLg
        text: root.title
        color: root.theme.text
        elide: Text.ElideRight
        font.pixelSize: root.type.headingSm
        font.weight: root.type.weightBold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    footer: Item {
        visible: buttons.children.length > 0
        implicitWidth: buttons.implicitWidth + 2 * root.theme.spaceLg
        implicitHeight: visible ? buttons.implicitHeight + root.theme.spaceLg : 0

        RowLayout {
            id: buttons

            anchors.right: parent.right
            anchors.rightMargin: root.theme.spaceLg
            spacing: root.theme.spaceSm
        }
    }

    background: Item {
        Shadow {
            anchors.fill: parent
            z: -1
            radius: root.theme.radiusMd
            blur: 1
            verticalOffset: 8
            color: Qt.rgba(0, 0, 0, root.theme.shadowOpacity)
        }

        Rectangle {
            anchors.fill: parent
            radius: root.theme.radiusMd
            color: root.theme.surface
            border.width: 1
            border.color: root.theme.stroke
        }
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: root.theme.durationFast }
    }

    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: root.theme.durationFast }
    }
}

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Velmora

/// A range or a folder in the list of a library.
T.ItemDelegate {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// A row of `flattenTree`.
    required property var entry
    property bool selected: false
    property bool focused: false

    implicitHeight: 26
    leftPadding: 10 + 14 * entry.depth
    rightPadding: theme.spaceXs
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    text: entry.displayName
    Accessible.role: Accessible.TreeItem
    Accessible.name: text
    Accessible.description: entry.kind === "range" ? "" : entry.open ? qsTr("Open folder") : qsTr("Folder")
    Accessible.selected: selected

    contentItem: RowLayout {
        spacing: 6

        Icon {
            name: root.entry.kind === "folder" ? "folder-open" : "file-text"
            size: 14
            color: root.entry.open ? root.theme.accent : root.theme.textMuted
        }

        ElidedLabel {
            Layout.fillWidth: true
            hovered: root.hovered
            text: root.text
            color: root.theme.text
            font.pixelSize: root.type.labelSm
        }
    }

    background: Rectangle {
        radius: root.theme.radiusXs
        color: root.selected ? root.theme.surface3 : root.hovered ? root.theme.surfaceHover : "transparent"
        border.width: root.selected ? 1 : 0
        border.color: root.theme.strokeFocus

        FocusRing {
            anchors.margins: 0
            radius: parent.radius
            active: root.focused
        }
    }
}

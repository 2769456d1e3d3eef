import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Templates as T
import Velmora

/// One page in the sidebar: its icon, its name and what is done there.
T.AbstractButton {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property string iconName: ""
    property string subtitle: ""
    property bool current: false

    implicitHeight: 52
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.description: subtitle
    Accessible.selected: current
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Rectangle {
        radius: root.theme.radiusSm
        color: root.current ? root.theme.surface
               : root.hovered ? root.theme.surfaceHover : root.theme.withOpacity(root.theme.surfaceHover, 0)
        border.width: root.current ? 1 : 0
        border.color: root.theme.stroke

        Behavior on color {
            ColorAnimation { duration: root.theme.durationFast }
        }
    }

    contentItem: RowLayout {
        spacing: root.theme.spaceMd

        Icon {
            Layout.leftMargin: root.theme.spaceMd
            name: root.iconName
            size: 18
            color: root.current ? root.theme.accent : root.theme.textMuted
        }

        ColumnLayout {
            spacing: 1

            Label {
                Layout.fillWidth: true
                text: root.text
                color: root.theme.text
                elide: Text.ElideRight
                font.pixelSize: root.type.bodySm
                font.weight: root.type.weightSemibold
            }

            Label {
                Layout.fillWidth: true
                text: root.subtitle
                color: root.theme.textMuted
                elide: Text.ElideRight
                font.pixelSize: root.type.labelSm
            }
        }
    }

    FocusRing {
        radius: root.theme.radiusSm + 3
        active: root.visualFocus
    }
}

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The head of a page: a title, a badge beside it and a line below.
ColumnLayout {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property string title: ""
    property string subtitle: ""
    property string badge: ""
    property color badgeColor: theme.accent

    spacing: theme.spaceXs

    // Placed by hand: a layout that is hidden while the badge changes keeps the width of the old one.
    Item {
        readonly property real badgeSpace: pill.visible ? pill.width + root.theme.spaceMd : 0

        Layout.fillWidth: true
        implicitWidth: Math.ceil(heading.implicitWidth) + badgeSpace
        implicitHeight: Math.max(heading.implicitHeight, pill.height)

        Label {
            id: heading

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(Math.ceil(implicitWidth), parent.width - parent.badgeSpace)
            text: root.title
            color: root.theme.text
            elide: Text.ElideRight
            font.pixelSize: root.type.headingLg
            font.weight: root.type.weightBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Rectangle {
            id: pill

            anchors.left: heading.right
            anchors.leftMargin: root.theme.spaceMd
            anchors.verticalCenter: parent.verticalCenter
            width: badgeLabel.implicitWidth + 2 * root.theme.spaceSm + 4
            height: 22
            visible: root.badge !== ""
            radius: height / 2
            color: root.theme.withOpacity(root.badgeColor, 0.15)
            border.width: 1
            border.color: root.badgeColor

            Label {
                id: badgeLabel

                anchors.centerIn: parent
                text: root.badge
                color: root.badgeColor
                font.pixelSize: root.type.labelSm
                font.weight: root.type.weightSemibold
            }
        }
    }

    Label {
        Layout.fillWidth: true
        visible: root.subtitle !== ""
        text: root.subtitle
        color: root.theme.textMuted
        wrapMode: Text.WordWrap
        font.pixelSize: root.type.bodySm
    }
}

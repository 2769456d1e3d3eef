import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The head of a page: a title, a badge beside it and a line below.
ColumnLayout {
    id: root

    property Theme theme: Fallback.theme
    property Typography type: Fallback.type
    property string title: ""
    property string subtitle: ""
    property string badge: ""
    property color badgeColor: theme.accent

    spacing: theme.spaceXs

    RowLayout {
        Layout.fillWidth: true
        spacing: root.theme.spaceMd

        Label {
            Layout.fillWidth: true
            Layout.maximumWidth: Math.ceil(implicitWidth)
            text: root.title
            color: root.theme.text
            elide: Text.ElideRight
            font.pixelSize: root.type.headingLg
            font.weight: root.type.weightBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        Rectangle {
            implicitWidth: badgeLabel.implicitWidth + 2 * root.theme.spaceSm + 4
            implicitHeight: 22
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

        Item {
            Layout.fillWidth: true
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

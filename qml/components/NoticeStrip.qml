import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// A line across a page that says what its figures belong to, with buttons for what to do about it.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property string text: ""
    property color accentColor: theme.info
    property real progress: -1  ///< 0..1, drawn along the lower edge; none below 0.
    default property alias buttons: row.data

    implicitHeight: Math.max(36, label.implicitHeight + theme.spaceSm, row.implicitHeight + theme.spaceXs)
    radius: theme.radiusSm
    color: Qt.tint(theme.surface, theme.withOpacity(accentColor, 0.12))
    border.color: theme.withOpacity(accentColor, 0.6)
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: root.theme.spaceMd
        anchors.rightMargin: root.theme.spaceXs
        spacing: root.theme.spaceMd

        Rectangle {
            implicitWidth: 8
            implicitHeight: 8
            radius: 4
            color: root.accentColor
        }

        Label {
            id: label

            Layout.fillWidth: true
            text: root.text
            color: root.theme.text
            font.pixelSize: root.type.labelMd
            wrapMode: Text.Wrap
        }

        RowLayout {
            id: row

            spacing: root.theme.spaceXs
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        visible: root.progress >= 0
        width: parent.width * Math.max(0, Math.min(1, root.progress))
        height: 3
        radius: 1.5
        color: root.accentColor
        Accessible.role: Accessible.ProgressBar
        Accessible.name: qsTr("%1%").arg(Math.round(root.progress * 100))
    }
}

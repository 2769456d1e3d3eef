import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// What stands on a button, centred: a spinner, an icon or a glyph, and the text behind it. What is
/// hidden takes no space.
Item {
    id: root

    property Theme theme: Style.theme
    property string text: ""
    property string iconText: ""
    property string iconName: ""
    property bool loading: false
    property color color: theme.text
    property alias font: label.font
    property alias spacing: row.spacing

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight

    RowLayout {
        id: row

        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width)

        Spinner {
            visible: root.loading
            color: root.color
        }

        Icon {
            visible: !root.loading && root.iconName !== ""
            name: root.iconName
            color: root.color
        }

        Label {
            visible: !root.loading && root.iconName === "" && root.iconText !== ""
            text: root.iconText
            color: root.color
            font: label.font
        }

        Label {
            id: label

            Layout.fillWidth: true
            visible: text !== ""
            text: root.text
            color: root.color
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
        }
    }
}

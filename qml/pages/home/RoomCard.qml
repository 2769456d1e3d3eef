import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// A card for figures that are not there yet, with a line that says so.
Card {
    id: root

    property Typography type: Fallback.type
    property string iconName: ""
    property string title: ""
    property string note: ""

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceMd

        RowLayout {
            spacing: root.theme.spaceSm

            Icon {
                name: root.iconName
                color: root.theme.textMuted
            }

            CardTitle {
                theme: root.theme
                type: root.type
                text: root.title
            }
        }

        Label {
            Layout.fillWidth: true
            Layout.fillHeight: true
            verticalAlignment: Text.AlignTop
            text: root.note
            color: root.theme.textMuted
            font.pixelSize: root.type.bodySm
            wrapMode: Text.Wrap
        }
    }
}

import QtQuick
import QtQuick.Layouts
import Velmora

/// A card of settings under its heading.
Card {
    id: root

    property Typography type: Style.type
    property string title
    property string iconName
    default property alias rows: rows_.data

    Layout.fillWidth: true

    ColumnLayout {
        id: rows_

        anchors.fill: parent
        spacing: root.theme.spaceLg

        RowLayout {
            spacing: root.theme.spaceSm

            Icon {
                name: root.iconName
                color: root.theme.textMuted
            }

            CardTitle {
                text: root.title
            }
        }
    }
}

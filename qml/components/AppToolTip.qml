import QtQuick
import QtQuick.Controls
import QtQuick.Templates as T
import Velmora

/// A note that shows up beside its parent.
T.ToolTip {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property color accentColor: theme.stroke

    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: -height - 6
    width: Math.min(implicitWidth, 320)
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    margins: 6
    leftPadding: 10
    rightPadding: 10
    topPadding: 6
    bottomPadding: 6
    delay: 500
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
                 | T.Popup.CloseOnReleaseOutsideParent

    contentItem: Label {
        text: root.text
        color: root.theme.text
        // Lines of their own are short; wrapped text would take the width of all of them in a row.
        wrapMode: root.text.includes("\n") ? Text.NoWrap : Text.WordWrap
        font.pixelSize: root.type.labelMd
    }

    background: Rectangle {
        radius: root.theme.radiusXs + 2
        color: root.theme.surface3
        border.width: 1
        border.color: root.accentColor
    }
}

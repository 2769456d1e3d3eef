import QtQuick
import QtQuick.Controls
import QtQuick.Templates as T
import Velmora

/// A line of text to type in.
T.TextField {
    id: root

    property Theme theme: Fallback.theme
    property Typography type: Fallback.type
    /// The name that assistive tools read.
    property string label: ""
    property bool mono: false

    implicitWidth: 160
    implicitHeight: 32
    leftPadding: 10
    rightPadding: 10
    verticalAlignment: Text.AlignVCenter
    clip: true
    hoverEnabled: true
    selectByMouse: true
    color: enabled ? theme.text : theme.textFaint
    placeholderTextColor: theme.textFaint
    selectionColor: theme.withOpacity(theme.strokeFocus, 0.4)
    selectedTextColor: theme.text
    font.family: mono ? theme.monoFamily : theme.uiFamily
    font.pixelSize: mono ? type.labelMd : type.bodySm
    Accessible.role: Accessible.EditableText
    Accessible.name: label

    Label {
        x: root.leftPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        color: root.placeholderTextColor
        elide: Text.ElideRight
        horizontalAlignment: root.horizontalAlignment
        verticalAlignment: Text.AlignVCenter
        font: root.font
    }

    background: Rectangle {
        radius: root.theme.radiusSm
        color: root.enabled ? root.theme.surface2 : root.theme.surface3
        border.width: 1
        border.color: root.enabled && (root.activeFocus || root.hovered)
                      ? root.theme.strokeFocus : root.theme.stroke

        Behavior on border.color {
            ColorAnimation { duration: root.theme.durationFast }
        }
    }
}

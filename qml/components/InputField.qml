import QtQuick
import QtQuick.Controls
import QtQuick.Templates as T
import Velmora

/// A line of text to type in.
T.TextField {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// The name that assistive tools read.
    property string label: ""
    property bool mono: false
    /// What is wrong with the text, in one sentence, or "".
    property string fault: ""
    /// Where the reason stands: above, unless other fields are there.
    property bool faultBelow: false
    /// The project that the text is part of, if it is: undo and redo then go to all of it, and not to
    /// the text of this field alone.
    property ProjectState project: null
    /// Which value of the project the field is for, as a solve configuration map calls it.
    property string spotKey: ""

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
    Accessible.description: fault
    Keys.onPressed: event => {
        const undoes = project !== null && event.matches(StandardKey.Undo)
        const redoes = project !== null && event.matches(StandardKey.Redo)
        if (undoes)
            project.undo()
        else if (redoes)
            project.redo()
        event.accepted = undoes || redoes
    }

    Connections {
        function onFieldWanted(key: string) {
            if (key === root.spotKey && root.enabled)
                root.forceActiveFocus(Qt.OtherFocusReason)
        }

        target: root.project
    }

    AppToolTip {
        y: root.faultBelow ? root.height + 6 : -height - 6
        delay: 0
        closePolicy: T.Popup.NoAutoClose
        accentColor: root.theme.danger
        visible: root.fault !== "" && root.visible && (root.activeFocus || root.hovered)
        text: root.fault
    }

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
        border.color: root.fault !== "" ? root.theme.danger
                      : root.enabled && (root.activeFocus || root.hovered)
                      ? root.theme.strokeFocus : root.theme.stroke

        Behavior on border.color {
            ColorAnimation { duration: root.theme.durationFast }
        }
    }
}

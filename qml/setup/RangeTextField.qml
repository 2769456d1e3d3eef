import QtQuick
import QtQuick.Controls
import Velmora

/// The text of a range: each edit counts at once. While nobody types in it, it stands centred and
/// cut off at its end.
InputField {
    id: root

    property string rangeText: ""

    signal rangeEdited(string text)

    mono: true
    placeholderText: qsTr("e.g., AA, KK, AKs, QQ+ or 50%")
    color: activeFocus ? theme.text : "transparent"
    onTextEdited: rangeEdited(text)

    Binding {
        target: root
        property: "text"
        value: root.rangeText
    }

    Label {
        anchors.fill: parent
        anchors.leftMargin: root.leftPadding
        anchors.rightMargin: root.rightPadding
        visible: !root.activeFocus
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        text: root.rangeText
        color: root.fault !== "" ? root.theme.danger : root.theme.text
        font: root.font
        elide: Text.ElideRight
        maximumLineCount: 1
        Accessible.ignored: true
    }
}

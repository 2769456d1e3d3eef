import QtQuick

Window {
    id: window

    width: 1540
    height: 1200
    minimumWidth: 1100
    minimumHeight: 700
    visible: true
    title: qsTr("Dunmarrow")
    color: "#080B12"
    flags: Qt.Window | Qt.WindowTitleHint | Qt.WindowSystemMenuHint | Qt.WindowMinMaxButtonsHint
           | Qt.WindowCloseButtonHint

    Text {
        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 2 * font.pixelSize)
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        text: appController.statusText
        color: "#F0F6FC"
        font.pixelSize: 22
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}

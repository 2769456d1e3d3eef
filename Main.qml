import QtQuick
import QtQuick.Controls

/// The window. It takes the width that the pages want, or the screen where that is narrower.
ApplicationWindow {
    id: window

    width: Math.min(Math.max(1540, shell.projectRecommendedWidth), Screen.desktopAvailableWidth)
    height: Math.min(1200, Screen.desktopAvailableHeight)
    minimumWidth: Math.min(1100, Screen.desktopAvailableWidth)
    minimumHeight: Math.min(700, Screen.desktopAvailableHeight)
    visible: true
    title: shell.windowTitle
    color: "#080B12"
    flags: Qt.Window | Qt.WindowTitleHint | Qt.WindowSystemMenuHint | Qt.WindowMinMaxButtonsHint
           | Qt.WindowCloseButtonHint
    font.family: shell.theme.uiFamily
    font.pixelSize: shell.type.bodyMd

    onClosing: close => close.accepted = shell.mayClose()

    AppShell {
        id: shell

        anchors.fill: parent
    }
}

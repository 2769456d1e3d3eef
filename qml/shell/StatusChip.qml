import QtQuick
import QtQuick.Controls
import Velmora

/// The pill that shows on every page whether a solve runs, how far it is, or whether one may start.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property bool running: false
    property bool isFinalizing: false
    property bool canSolve: false
    property int percentage: 0

    readonly property bool lively: running || canSolve
    readonly property string text: isFinalizing ? qsTr("Finalizing") : running ? qsTr("Solving") : qsTr("Ready")

    implicitWidth: row.implicitWidth + 2 * theme.spaceMd
    implicitHeight: 32
    radius: height / 2
    color: lively ? theme.withOpacity(theme.success, 0.15) : theme.surface2
    border.color: lively ? theme.success : theme.stroke
    Accessible.role: Accessible.StaticText
    Accessible.name: running ? qsTr("%1 %2%").arg(text).arg(percentage) : text

    Row {
        id: row

        anchors.centerIn: parent
        spacing: root.theme.spaceSm

        Rectangle {
            width: 8
            height: 8
            radius: 4
            anchors.verticalCenter: parent.verticalCenter
            color: root.lively ? root.theme.success : root.theme.textFaint

            SequentialAnimation on opacity {
                running: root.running
                loops: Animation.Infinite
                alwaysRunToEnd: true

                NumberAnimation {
                    from: 1
                    to: 0.4
                    duration: 500
                }

                NumberAnimation {
                    from: 0.4
                    to: 1
                    duration: 500
                }
            }
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: root.lively ? root.theme.success : root.theme.textMuted
            font.pixelSize: root.type.labelMd
            font.weight: root.type.weightMedium
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.running
            text: qsTr("%1%").arg(root.percentage)
            color: root.theme.success
            font.pixelSize: root.type.labelMd
            font.weight: root.type.weightBold
        }
    }
}

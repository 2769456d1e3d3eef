import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// One run: how it went, when it began, and what it was asked for.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property string status  ///< As in `RunHistory`.
    required property string startedAt
    required property string summary

    readonly property color _color: status === "Running" ? theme.success : status === "Completed" ? theme.info : theme.danger
    readonly property string _statusText: status === "Running" ? qsTr("Running")
        : status === "Completed" ? qsTr("Completed")
        : status === "Failed" ? qsTr("Failed")
        : status === "Refused" ? qsTr("Refused") : qsTr("Cancelled")

    implicitHeight: 34
    Accessible.role: Accessible.ListItem
    Accessible.name: _statusText + ", " + startedAt + ", " + summary

    RowLayout {
        anchors.fill: parent
        spacing: root.theme.spaceMd

        Rectangle {
            Layout.preferredWidth: Math.max(90, statusLabel.implicitWidth + 2 * root.theme.spaceSm)
            Layout.preferredHeight: 18
            radius: height / 2
            color: root.theme.withOpacity(root._color, 0.18)
            border.color: root._color

            Label {
                id: statusLabel

                anchors.centerIn: parent
                text: root._statusText
                color: root._color
                font.pixelSize: root.type.labelSm
                font.weight: root.type.weightSemibold
            }
        }

        Label {
            text: root.startedAt
            color: root.theme.textMuted
            font.family: root.theme.monoFamily
            font.pixelSize: root.type.labelMd
        }

        Label {
            Layout.fillWidth: true
            text: root.summary
            color: root.theme.text
            font.pixelSize: root.type.labelMd
            elide: Text.ElideRight
        }
    }
}

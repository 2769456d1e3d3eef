import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Templates as T
import Velmora

/// A small pill of text that may be clicked, or removed by a button at its end.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property string text: ""
    property color tint: theme.surface2
    property color stroke: theme.stroke
    property color textColor: theme.text
    property string iconText: ""
    property bool removable: false
    property bool clickable: false

    signal clicked()
    signal removeClicked()

    implicitWidth: row.implicitWidth + 2 * theme.spaceMd
    implicitHeight: 28
    scale: body.hovered ? 1.05 : 1

    Behavior on scale {
        NumberAnimation { duration: 80 }
    }

    T.AbstractButton {
        id: body

        anchors.fill: parent
        enabled: root.clickable && !root.removable
        hoverEnabled: true
        focusPolicy: Qt.StrongFocus
        text: root.text
        Accessible.role: enabled ? Accessible.Button : Accessible.StaticText
        Accessible.name: text
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        onClicked: root.clicked()

        background: Rectangle {
            radius: height / 2
            color: body.hovered ? Qt.lighter(root.tint, 1.1) : root.tint
            border.width: 1
            border.color: root.stroke

            Behavior on color {
                ColorAnimation { duration: 100 }
            }
        }

        FocusRing {
            radius: height / 2
            active: body.visualFocus
        }
    }

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: root.theme.spaceMd
        anchors.rightMargin: root.removable ? 6 : root.theme.spaceMd
        spacing: 6

        Label {
            visible: root.iconText !== ""
            text: root.iconText
            color: root.textColor
            font.pixelSize: root.type.labelMd
        }

        Label {
            Layout.fillWidth: true
            text: root.text
            color: root.textColor
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: root.type.labelMd
            font.weight: root.type.weightSemibold
        }

        T.AbstractButton {
            id: remove

            implicitWidth: 16
            implicitHeight: 16
            visible: root.removable
            hoverEnabled: true
            focusPolicy: Qt.StrongFocus
            Accessible.role: Accessible.Button
            Accessible.name: "× " + root.text
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            onClicked: root.removeClicked()

            background: Rectangle {
                radius: height / 2
                color: remove.hovered ? root.theme.danger : root.theme.withOpacity(root.theme.danger, 0)

                Behavior on color {
                    ColorAnimation { duration: root.theme.durationFast }
                }
            }

            contentItem: Label {
                text: qsTr("×")
                color: remove.hovered ? "white" : root.textColor
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: root.type.labelMd
                font.weight: root.type.weightBold
            }

            FocusRing {
                radius: height / 2
                active: remove.visualFocus
            }
        }
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The components of others that the program uses, and the way to their licences.
SettingsCard {
    id: root

    component NoticeRow: Rectangle {
        id: row

        property string name
        property string role
        property string license

        Layout.fillWidth: true
        implicitHeight: 56
        radius: root.theme.radiusSm
        color: root.theme.surface2
        border.color: root.theme.stroke

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: root.theme.spaceLg
            anchors.rightMargin: root.theme.spaceLg

            ColumnLayout {
                spacing: 2

                Label {
                    text: row.name
                    color: root.theme.text
                    font.pixelSize: root.type.bodyMd
                    font.weight: root.type.weightMedium
                }

                Label {
                    Layout.fillWidth: true
                    text: row.role
                    color: root.theme.textMuted
                    font.pixelSize: root.type.labelMd
                    elide: Text.ElideRight
                }
            }

            Chip {
                text: row.license
                tint: root.theme.withOpacity(root.theme.info, 0.15)
                stroke: root.theme.info
                textColor: root.theme.info
            }
        }
    }

    title: qsTr("Licenses")
    iconName: "scroll"

    NoticeRow {
        name: qsTr("Qt Framework")
        role: qsTr("Runtime (dynamic linking)")
        license: qsTr("LGPL v3")
    }

    NoticeRow {
        visible: Controller.useTbb
        name: qsTr("oneTBB")
        role: qsTr("Threading")
        license: qsTr("Apache 2.0")
    }

    Label {
        Layout.fillWidth: true
        text: qsTr("Third-party notices and license texts are included in the 'licenses' folder next to the executable.")
        color: root.theme.textMuted
        font.pixelSize: root.type.labelMd
        wrapMode: Text.Wrap
    }

    Flow {
        Layout.fillWidth: true
        spacing: root.theme.spaceMd

        SecondaryButton {
            text: qsTr("Open licenses folder")
            iconName: "folder-open"
            onClicked: Controller.openLicensesFolder()
        }

        SecondaryButton {
            text: qsTr("Open notices")
            iconName: "file-text"
            onClicked: Controller.openThirdPartyNotices()
        }
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// Which version runs, and whether there is a newer one.
SettingsCard {
    id: root

    required property var updates

    /// Without an address nothing is checked, which is no fault.
    readonly property bool _addressSet: updates.manifestUrl !== ""

    component Line: Label {
        Layout.fillWidth: true
        visible: text !== ""
        color: root.theme.textMuted
        font.pixelSize: root.type.labelMd
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
    }

    function _checkedText(time: var): string {
        return isNaN(time.getTime()) ? "" : qsTr("Last checked: %1").arg(time.toLocaleString(Qt.locale(), Locale.ShortFormat))
    }

    title: qsTr("Updates")
    iconName: "clock"

    ColumnLayout {
        Layout.fillWidth: true
        spacing: root.theme.spaceXs

        Line {
            text: qsTr("Current version: %1").arg(root.updates.currentVersion || qsTr("Unknown"))
        }

        Line {
            text: root._addressSet ? root._checkedText(root.updates.lastCheckedAt) : ""
        }

        Line {
            text: root.updates.lastError
            color: root._addressSet ? root.theme.danger : root.theme.textMuted
        }

        Line {
            text: root.updates.updateAvailable ? qsTr("Update available: %1").arg(root.updates.latestVersion) : ""
            color: root.theme.success
        }

        Line {
            text: root.updates.updateAvailable ? root.updates.releaseNotes.trim() : ""
        }
    }

    Flow {
        Layout.fillWidth: true
        spacing: root.theme.spaceMd

        SecondaryButton {
            text: root.updates.busy ? qsTr("Checking...") : qsTr("Check for updates")
            enabled: !root.updates.busy
            onClicked: root.updates.checkNow()
        }

        PrimaryButton {
            text: qsTr("Download update")
            enabled: root.updates.updateAvailable
            onClicked: root.updates.openDownloadUrl()
        }
    }
}

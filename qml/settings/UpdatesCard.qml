pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// Which version runs, and whether there is a newer one.
SettingsCard {
    id: root

    /// Without an address nothing is checked, which is no fault.
    readonly property bool _addressSet: UpdateService.manifestUrl !== ""

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
            text: qsTr("Current version: %1").arg(UpdateService.currentVersion || qsTr("Unknown"))
        }

        Line {
            text: root._addressSet ? root._checkedText(UpdateService.lastCheckedAt) : ""
        }

        Line {
            text: UpdateService.lastError
            color: root._addressSet ? root.theme.danger : root.theme.textMuted
        }

        Line {
            text: UpdateService.updateAvailable ? qsTr("Update available: %1").arg(UpdateService.latestVersion) : ""
            color: root.theme.success
        }

        Line {
            text: UpdateService.updateAvailable ? UpdateService.releaseNotes.trim() : ""
        }
    }

    Flow {
        Layout.fillWidth: true
        spacing: root.theme.spaceMd

        SecondaryButton {
            text: UpdateService.busy ? qsTr("Checking...") : qsTr("Check for updates")
            enabled: !UpdateService.busy
            onClicked: UpdateService.checkNow()
        }

        PrimaryButton {
            text: qsTr("Download update")
            enabled: UpdateService.updateAvailable
            onClicked: UpdateService.openDownloadUrl()
        }
    }
}

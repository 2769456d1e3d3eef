import QtQuick
import QtQuick.Layouts
import Velmora
import "settings_profiles.js" as SettingsProfiles

/// Keeps everything of a spot but its board and ranges under a name, and brings it back.
Card {
    id: root

    required property ProjectState project

    /// A profile replaced the settings.
    signal profileLoaded

    function currentSettingsSnapshot(): var {
        return SettingsProfiles.snapshot(project)
    }

    /// The street of a board that has one counts more than the profile's.
    function applySettingsSnapshot(data: var) {
        project.endStep()
        project.applyProjectState(SettingsProfiles.projectValues(data, project.startingPot))
        if (BoardText.shownCards(project.boardText).length >= 3)
            project.startingStreet = BoardText.inferStreet(project.boardText)
    }

    /// Keeps the settings under a name. Gives what is wrong with the name, or "".
    function _save(name: string): string {
        if (name === "")
            return qsTr("Please enter a name.")
        store.save(name, currentSettingsSnapshot())
        return ""
    }

    RowLayout {
        anchors.fill: parent
        spacing: root.theme.spaceSm

        SecondaryButton {
            Layout.fillWidth: true
            text: qsTr("Load settings")
            iconName: "folder-open"
            onClicked: loadDialog.open()
        }

        SecondaryButton {
            Layout.fillWidth: true
            text: qsTr("Save settings")
            iconName: "save"
            onClicked: saveDialog.ask()
        }
    }

    ProfileStore {
        id: store
    }

    NameDialog {
        id: saveDialog

        title: qsTr("Save Settings Profile")
        prompt: qsTr("Profile name:")
        placeholder: qsTr("e.g., 100bb rake-free (fast)")
        canAccept: name.trim() !== ""
        onNameChosen: name => finish(root._save(name))
    }

    LoadProfileDialog {
        id: loadDialog

        store: store
        onProfileChosen: data => {
            root.applySettingsSnapshot(data)
            root.profileLoaded()
        }
    }
}

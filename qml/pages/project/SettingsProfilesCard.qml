import QtQuick
import QtQuick.Layouts
import Velmora
import "../../logic/board_text.js" as BoardText
import "../../logic/settings_profiles.js" as SettingsProfiles

/// Keeps everything of a spot but its board and ranges under a name, and brings it back.
Card {
    id: root

    property Typography type: Fallback.type
    required property ProjectState project

    function currentSettingsSnapshot(): var {
        return SettingsProfiles.snapshot(project)
    }

    /// The street of a board that has one counts more than the profile's.
    function applySettingsSnapshot(data: var) {
        project.applyProjectState(SettingsProfiles.projectValues(data, project.startingPot))
        if (BoardText.shownCards(project.boardText).length >= 3)
            project.startingStreet = BoardText.inferStreet(project.boardText)
    }

    RowLayout {
        anchors.fill: parent
        spacing: root.theme.spaceSm

        SecondaryButton {
            Layout.fillWidth: true
            theme: root.theme
            text: qsTr("Load settings")
            iconName: "folder-open"
            onClicked: loadDialog.open()
        }

        SecondaryButton {
            Layout.fillWidth: true
            theme: root.theme
            text: qsTr("Save settings")
            iconName: "save"
            onClicked: saveDialog.open()
        }
    }

    ProfileStore {
        id: store
    }

    SaveProfileDialog {
        id: saveDialog

        theme: root.theme
        type: root.type
        onNameChosen: name => store.save(name, root.currentSettingsSnapshot())
    }

    LoadProfileDialog {
        id: loadDialog

        theme: root.theme
        type: root.type
        store: store
        onProfileChosen: data => root.applySettingsSnapshot(data)
    }
}

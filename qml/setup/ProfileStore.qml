import QtQuick
import Velmora
import "settings_profiles.js" as SettingsProfiles

/// The user's settings profiles, kept in the settings store as one JSON text.
QtObject {
    id: root

    /// Maps with `id`, `name`, `createdAt` and `data`, in the order in which they were saved.
    property var settingsProfiles: []

    // Written by setValue: a property would reach the file half a second later, and not at all if the
    // program died in between.
    readonly property StoredSettings _store: StoredSettings {
        id: store

        category: "settings_profiles"
    }

    function save(name: string, data: var) {
        const taken = settingsProfiles.map(profile => profile.name)
        settingsProfiles = settingsProfiles.concat([{
            id: _newNodeId(),
            name: SettingsProfiles.uniqueName(name.trim(), taken),
            createdAt: new Date().toISOString(),
            data: data
        }])
        persistSettingsProfiles()
    }

    /// The profile of an id, or undefined.
    function find(id: string): var {
        return settingsProfiles.find(profile => profile.id === id)
    }

    function deleteSettingsProfileById(id: string) {
        settingsProfiles = settingsProfiles.filter(profile => profile.id !== id)
        persistSettingsProfiles()
    }

    function persistSettingsProfiles() {
        settingsProfiles = SettingsProfiles.sanitized(settingsProfiles, _newNodeId)
        store.setValue("profilesJson", JSON.stringify(settingsProfiles))
        store.sync()
    }

    function _newNodeId(): string {
        return SettingsProfiles.newNodeId(Date.now(), Math.random)
    }

    Component.onCompleted: settingsProfiles = SettingsProfiles.parse(store.value("profilesJson", ""), _newNodeId)
}

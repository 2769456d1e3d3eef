import Qt.labs.settings

/// A category of the settings store.
Settings {
}

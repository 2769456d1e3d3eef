import QtCore

/// A category of the settings store.
Settings {
}

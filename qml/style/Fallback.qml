pragma Singleton
import QtQuick

/// What a component shows before it is handed a theme and a type scale: the dark tokens.
QtObject {
    readonly property Theme theme: Theme {}
    readonly property Typography type: Typography {}
}

pragma Singleton
import QtQuick

/// The one theme and type scale that everything in the window takes its tokens from. The shell
/// fills the theme from the settings; until then it is the dark one.
QtObject {
    readonly property Theme theme: Theme {}
    readonly property Typography type: Typography {}
}

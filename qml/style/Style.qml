pragma Singleton
import QtQuick
import "font_families.js" as FontFamilies

/// The one theme and type scale that everything in the window takes its tokens from. The shell sets
/// the theme's mode and accent from the settings; until then it is the dark one.
QtObject {
    id: root

    readonly property Theme theme: Theme {
        uiFamily: FontFamilies.firstInstalled(fontFamily, Qt.fontFamilies(), root._systemText.font.family)
        monoFamily: FontFamilies.firstInstalled(fontMono, Qt.fontFamilies(), "monospace")
    }
    readonly property Typography type: Typography {}

    readonly property TextMetrics _systemText: TextMetrics {}
}

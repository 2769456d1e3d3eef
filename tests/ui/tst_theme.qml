import QtQuick
import QtTest
import Velmora

TestCase {
    id: test

    name: "Theme"

    Component {
        id: themeComponent

        Theme {}
    }

    function test_action_colors_data() {
        return [
            { tag: "spaced percent", action: "bet 33 %", like: "Bet 33%" },
            { tag: "past the end of the scale", action: "Raise 250%", like: "raise 200%" },
            { tag: "plain bet", action: "Bet", token: "actionBet" },
            { tag: "plain raise", action: "raise", token: "actionRaise" },
            { tag: "accent", action: "Check", token: "accent" },
            { tag: "all-in, short", action: "allin", token: "actionAllIn" },
            { tag: "all-in, dash", action: "All-In", token: "actionAllIn" },
            { tag: "all-in, underscore", action: "all_in", token: "actionAllIn" },
            { tag: "empty", action: "", token: "textMuted" },
            { tag: "unknown", action: "limp", token: "textMuted" },
            { tag: "nothing", action: undefined, token: "textMuted" },
            // Hue, saturation and lightness as the scale gives them at its ends and its middle.
            { tag: "bet 0", action: "bet 0%", dark: [0.72, 0.70, 0.62], light: [0.72, 0.70, 0.42] },
            { tag: "bet 100", action: "bet 100%", dark: [0.78, 0.70, 0.67], light: [0.78, 0.70, 0.47] },
            { tag: "bet 200", action: "bet 200%", dark: [0.84, 0.70, 0.72], light: [0.84, 0.70, 0.52] },
            { tag: "raise 0", action: "raise 0%", dark: [0.07, 0.78, 0.60], light: [0.07, 0.78, 0.44] },
            { tag: "raise 50", action: "raise 50%", dark: [0.08, 0.78, 0.63], light: [0.08, 0.78, 0.47] },
            { tag: "raise 200", action: "raise 200%", dark: [0.11, 0.78, 0.72], light: [0.11, 0.78, 0.56] }
        ]
    }

    function test_action_colors(data) {
        for (const dark of [true, false]) {
            const theme = createTemporaryObject(themeComponent, test, { dark: dark })
            const color = theme.actionColor(data.action)
            const hsl = dark ? data.dark : data.light
            if (hsl)
                verify(Qt.colorEqual(color, Qt.hsla(hsl[0], hsl[1], hsl[2], 1)), String(color))
            else
                compare(color, data.token ? theme[data.token] : theme.actionColor(data.like))
            compare(color.a, 1)
        }
    }

    function test_accent_override() {
        const theme = createTemporaryObject(themeComponent, test)
        const before = String(theme._defaultAccent)
        compare(String(theme.accent), before)
        theme.accentOverride = "#A371F7"
        theme.useAccentOverride = true
        for (const token of ["accent", "actionCheck", "success", "suitClubs"])
            compare(String(theme[token]), "#a371f7", token)
        compare(theme.accentHover, Qt.lighter("#A371F7", 1.12))
        compare(theme.accentMuted, Qt.darker("#A371F7", 1.6))
        theme.dark = false
        compare(theme.accentMuted, Qt.darker("#A371F7", 1.35))
        theme.dark = true
        compare(String(theme._defaultAccent), before)
    }

    function test_accent_texts_data() {
        return [
            { tag: "blanks around", text: " #a371F7 ", accent: "#a371f7" },
            { tag: "with alpha", text: "#80a371f7", accent: "#80a371f7" },
            { tag: "none", text: "", accent: "" },
            { tag: "too short", text: "#a371f", accent: "#112233" },
            { tag: "a name", text: "red", accent: "#112233" }
        ]
    }

    function test_accent_texts(data) {
        const theme = createTemporaryObject(themeComponent, test, { useAccentOverride: true, accentOverride: "#112233" })
        theme.applyAccentHex(data.text)
        compare(theme.useAccentOverride, data.accent !== "")
        if (data.accent !== "")
            compare(String(theme.accent), data.accent)
    }
}

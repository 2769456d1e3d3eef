import QtQuick
import "color_text.js" as ColorText

/// The colour, shape and motion tokens of the window, in a dark and a light mode.
///
/// The accent recolours buttons, the check action, the success state and the club suit together.
QtObject {
    id: root

    property bool dark: true
    property bool useAccentOverride: false
    property color accentOverride: "#3FB950"

    readonly property color _defaultAccent: dark ? "#3FB950" : "#16A34A"
    readonly property color accent: useAccentOverride ? accentOverride : _defaultAccent
    readonly property color accentHover: Qt.lighter(accent, 1.12)
    readonly property color accentMuted: Qt.darker(accent, dark ? 1.6 : 1.35)

    // Surfaces, borders and text
    readonly property color bg0: dark ? "#080B12" : "#F4F6F9"
    readonly property color bg1: dark ? "#0D1117" : "#FFFFFF"
    readonly property color bg2: dark ? "#161B22" : "#F8FAFC"
    readonly property color surface: dark ? "#1C2128" : "#FFFFFF"
    readonly property color surface2: dark ? "#21262D" : "#F1F5F9"
    readonly property color surface3: dark ? "#2D333B" : "#E2E8F0"
    readonly property color surfaceHover: dark ? "#30363D" : "#E8ECF2"
    readonly property color stroke: dark ? "#30363D" : "#D1D9E0"
    readonly property color strokeLight: dark ? "#21262D" : "#E5E9EF"
    readonly property color strokeFocus: dark ? "#58A6FF" : "#2563EB"
    readonly property color text: dark ? "#F0F6FC" : "#1F2937"
    readonly property color textMuted: dark ? "#8B949E" : "#6B7280"
    readonly property color textFaint: dark ? "#6E7681" : "#9CA3AF"
    readonly property color textInverse: dark ? "#0D1117" : "#FFFFFF"

    // Poker actions
    readonly property color actionFold: dark ? "#E06C75" : "#B91C1C"
    readonly property color actionCheck: accent
    readonly property color actionCall: dark ? "#58A6FF" : "#2563EB"
    readonly property color actionBet: dark ? "#A371F7" : "#7C3AED"
    readonly property color actionRaise: dark ? "#F0883E" : "#EA580C"
    readonly property color actionAllIn: dark ? "#FF7B72" : "#EF4444"

    // Status
    readonly property color gold: dark ? "#F0B429" : "#D97706"
    readonly property color goldMuted: dark ? "#9E6A03" : "#92400E"
    readonly property color info: dark ? "#58A6FF" : "#2563EB"
    readonly property color infoMuted: dark ? "#1F6FEB" : "#1D4ED8"
    readonly property color success: accent
    readonly property color warn: dark ? "#F0883E" : "#D97706"
    readonly property color danger: dark ? "#F85149" : "#DC2626"

    // Suits and cards. Spades stay dark in both modes, because card faces are light in both.
    readonly property color suitSpades: "#1F2937"
    readonly property color suitHearts: dark ? "#F85149" : "#DC2626"
    readonly property color suitDiamonds: dark ? "#58A6FF" : "#2563EB"
    readonly property color suitClubs: accent
    readonly property color cardFace: "#FFFEF5"
    readonly property color cardBack: dark ? "#1C4B82" : "#1E3A5F"
    readonly property color cardBorder: dark ? "#30363D" : "#D1D9E0"

    // Heat maps
    readonly property color heatCold: dark ? "#1F6FEB" : "#3B82F6"
    readonly property color heatWarm: dark ? "#F0883E" : "#F59E0B"
    readonly property color heatHot: dark ? "#F85149" : "#EF4444"

    // Radii and spacing, in pixels
    readonly property int radiusXs: 4
    readonly property int radiusSm: 8
    readonly property int radiusMd: 12
    readonly property int radiusLg: 16
    readonly property int radiusXl: 20
    readonly property int radiusFull: 9999
    readonly property int spaceXs: 4
    readonly property int spaceSm: 8
    readonly property int spaceMd: 12
    readonly property int spaceLg: 16
    readonly property int spaceXl: 24
    readonly property int space2Xl: 32

    // Durations, in milliseconds
    readonly property int durationFast: 100
    readonly property int durationNormal: 200
    readonly property int durationSlow: 300

    // Shadows
    readonly property real shadowOpacity: dark ? 0.5 : 0.15
    readonly property string shadowSm: dark ? "0 1px 2px rgba(0,0,0,0.5)" : "0 1px 2px rgba(0,0,0,0.1)"
    readonly property string shadowMd: dark ? "0 4px 6px rgba(0,0,0,0.5)" : "0 4px 6px rgba(0,0,0,0.1)"
    readonly property string shadowLg: dark ? "0 10px 15px rgba(0,0,0,0.5)" : "0 10px 15px rgba(0,0,0,0.1)"

    // Font families as lists in order of preference; a list is no family, so text takes
    // uiFamily and monoFamily, the first of each list that this machine has.
    readonly property string fontFamily: "Segoe UI, system-ui, -apple-system, sans-serif"
    readonly property string fontMono: "JetBrains Mono, Cascadia Code, Consolas, monospace"
    property string uiFamily: "sans-serif"
    property string monoFamily: "monospace"

    /// Takes an accent as "#RRGGBB" or "#AARRGGBB"; an empty text is the default one, and any other is
    /// not looked at.
    function applyAccentHex(text: var) {
        const accent = String(text).trim()
        if (accent !== "" && !ColorText.isValidHexColor(accent))
            return
        useAccentOverride = accent !== ""
        if (useAccentOverride)
            accentOverride = accent
    }

    /// The colour of a suit given as a letter or a plural name; `text` for anything else.
    function suitColor(suit: string): color {
        switch (String(suit).toLowerCase()) {
        case "s":
        case "spades":
            return suitSpades
        case "h":
        case "hearts":
            return suitHearts
        case "d":
        case "diamonds":
            return suitDiamonds
        case "c":
        case "clubs":
            return suitClubs
        default:
            return text
        }
    }

    /// The colour of an action type; bets run from purple to pink and raises from orange to amber
    /// with their size, up to 200 % of the pot.
    function actionColor(action: var): color {
        if (action === undefined || action === null)
            return textMuted
        const key = String(action).toLowerCase()
        const sized = /^(bet|raise)\s+(\d+(?:\.\d+)?)\s*%/.exec(key)
        if (sized) {
            const t = Math.min(1, Math.max(0, Number(sized[2]) / 200))
            if (sized[1] === "bet")
                return _sizeColor(0.72, 0.84, 0.70, dark ? 0.62 : 0.42, t, 0.10)
            return _sizeColor(0.07, 0.11, 0.78, dark ? 0.60 : 0.44, t, 0.12)
        }
        switch (key) {
        case "fold":
            return actionFold
        case "check":
            return actionCheck
        case "call":
            return actionCall
        case "bet":
            return actionBet
        case "raise":
            return actionRaise
        case "allin":
        case "all-in":
        case "all_in":
            return actionAllIn
        default:
            return textMuted
        }
    }

    function withOpacity(color: var, alpha: real): color {
        const opaque = Qt.color(color)
        return Qt.rgba(opaque.r, opaque.g, opaque.b, alpha)
    }

    function lighten(color: var, amount: real): color {
        return Qt.lighter(color, 1 + amount)
    }

    function darken(color: var, amount: real): color {
        return Qt.darker(color, 1 + amount)
    }

    /// The point t (0..1) of a family of sizes.
    function _sizeColor(hue0: real, hue1: real, saturation: real, lightness0: real, t: real,
                        lightnessSpan: real): color {
        return Qt.hsla(hue0 + (hue1 - hue0) * t, saturation, lightness0 + lightnessSpan * t, 1)
    }
}

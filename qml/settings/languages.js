.pragma library

// The languages that can be chosen. Each names itself; the first follows the system and is named by
// the page.

const CODES = ["system", "en", "es", "fr", "de", "pt_BR", "it", "pl", "ru"]
const OWN_NAMES = ["English", "Español", "Français", "Deutsch", "Português (Brasil)", "Italiano", "Polski", "Русский"]

/// The row of a code; the first for one that can't be chosen.
function indexOf(code) {
    return Math.max(0, CODES.indexOf(code))
}

.pragma library

/// True for "#RRGGBB" and "#AARRGGBB".
function isValidHexColor(text) {
    return /^#([0-9a-f]{6}|[0-9a-f]{8})$/i.test(text)
}

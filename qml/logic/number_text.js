.pragma library

/// A number without trailing zeros, in at most `decimals` decimals: 0.50 reads "0.5".
function plain(value, decimals) {
    return String(Number(Number(value).toFixed(decimals)))
}

/// The number of a text held to low..high, or `fallback` for a text that is none. A decimal comma
/// counts as a point.
function clamped(text, low, high, fallback) {
    const trimmed = String(text).trim().replace(",", ".")
    const value = trimmed === "" ? NaN : Number(trimmed)
    return isFinite(value) ? Math.max(low, Math.min(high, value)) : fallback
}

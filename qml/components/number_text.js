.pragma library

/// A number without trailing zeros, in at most `decimals` decimals: 0.50 reads "0.5".
function plain(value, decimals) {
    return String(Number(Number(value).toFixed(decimals)))
}

/// The number of a text that is written in plain digits, in at most `decimals` decimals; NaN for any
/// other text. A decimal comma counts as a point.
function parsed(text, decimals) {
    const trimmed = String(text).trim()
    const form = decimals > 0 ? new RegExp("^(\\d+([.,]\\d{0," + decimals + "})?|[.,]\\d{1," + decimals + "})$") : /^\d+$/
    return form.test(trimmed) ? Number(trimmed.replace(",", ".")) : NaN
}

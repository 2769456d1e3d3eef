.pragma library

// Texts out of JSON that anybody may have written.

/// The text of a value; "" for what is neither a text nor a number.
function textOf(value) {
    return typeof value === "string" ? value : typeof value === "number" ? String(value) : ""
}

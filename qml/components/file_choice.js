.pragma library

// Names of files as they are typed, and the filters of a file chooser such as "JSON (*.json)".

/// The patterns of a filter: ["*.json"]; none for one that lets all files through.
function patterns(filter) {
    const match = /\(([^)]*)\)\s*$/.exec(filter)
    return (match ? match[1] : "").split(/\s+/).filter(pattern => pattern !== "" && pattern !== "*")
}

function _hasEnding(name, ending) {
    return name.toLowerCase().endsWith(ending.toLowerCase()) && name.length > ending.length
}

/// The name that a file gets: with the ending of the chosen filter, or else `defaultSuffix`, if it has
/// none of those that the filters know.
function withEnding(name, filters, chosen, defaultSuffix) {
    const known = [].concat(...filters.map(patterns)).map(pattern => pattern.replace(/^\*/, ""))
    if (known.some(ending => _hasEnding(name, ending)))
        return name
    const own = patterns(filters[chosen] ?? "")
    if (own.length > 0)
        return name + own[0].replace(/^\*/, "")
    return defaultSuffix === "" || /[^.]\.[^.\s]+$/.test(name) ? name : name + "." + defaultSuffix
}

/// The address of what was typed: a name in `folder`, a path from there, or one from the root or from
/// home ("~"). Folders are addresses.
function resolve(folder, typed, home) {
    const fromHome = typed === "~" || typed.startsWith("~/")
    const from = typed.startsWith("/") ? "" : String(fromHome ? home : folder).replace(/^file:\/\//, "").replace(/\/+$/, "")
    const parts = from.split("/").slice(1)
    for (const part of (fromHome ? typed.slice(1) : typed).split("/")) {
        if (part === "..")
            parts.pop()
        else if (part !== "" && part !== ".")
            parts.push(encodeURIComponent(part))
    }
    return "file:///" + parts.join("/")
}

/// The folder of an address; the root is its own.
function parent(address) {
    const trimmed = String(address).replace(/\/+$/, "")
    const cut = trimmed.lastIndexOf("/")
    return cut <= "file://".length ? "file:///" : trimmed.slice(0, cut)
}

/// The last part of an address, and an address as a path, as they are read.
function name(address) {
    return decodeURIComponent(String(address).replace(/\/+$/, "").split("/").pop())
}

function path(address) {
    return decodeURIComponent(String(address).replace(/^file:\/\//, "")) || "/"
}

.pragma library

/// The first family of a comma-separated list that is among `installed` (a list of family names).
/// "system-ui" and "-apple-system" stand for `systemFamily`; a generic name at the end, such as
/// "sans-serif", is what the platform makes of it.
function firstInstalled(list, installed, systemFamily) {
    const known = {}
    for (const family of installed)
        known[String(family).toLowerCase()] = family
    const generic = ["sans-serif", "serif", "monospace"]
    for (const entry of String(list).split(",")) {
        const name = entry.trim()
        const key = name.toLowerCase()
        if (key === "system-ui" || key === "-apple-system") {
            if (systemFamily)
                return systemFamily
        } else if (generic.includes(key)) {
            return name
        } else if (known[key] !== undefined) {
            return known[key]
        }
    }
    return systemFamily
}

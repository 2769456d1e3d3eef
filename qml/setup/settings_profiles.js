.pragma library
.import "../shell/project_keys.js" as Keys
.import "stored_text.js" as StoredText

// Saved game settings: everything of a spot but its board and its ranges.

/// An id that is unique enough for one user's settings. `now` in milliseconds, `random` gives 0..1.
function newNodeId(now, random) {
    let tail = ""
    for (let i = 0; i < 6; ++i)
        tail += Math.floor(random() * 36).toString(36)
    return "n_" + Math.floor(now).toString(36) + "_" + tail
}

/// The data of a profile, from anything with a project's properties.
function snapshot(state) {
    const data = Keys.bettingMap(state)
    data.starting_pot = state.startingPot
    data.effective_stack = state.effectiveStack
    data.rake_percent = state.rakePercent
    data.rake_cap = state.rakeCap
    data.max_iterations = state.maxIterations
    data.starting_street = state.startingStreet
    data.target_exploitability_pct = state.targetExploitability
    return data
}

/// The project values that a profile's data sets, as a part of a project's map: sizes and switches in
/// any case, empty or off where the data has none. `pot` is what an
/// older profile's target, an amount in chips, is measured against if the data has no pot.
function projectValues(data, pot) {
    const values = {}
    const scalars = {
        starting_pot: "startingPot",
        effective_stack: "effectiveStack",
        rake_percent: "rakePercent",
        rake_cap: "rakeCap",
        max_iterations: "maxIterations",
        starting_street: "startingStreet",
        target_exploitability_pct: "targetExploitability"
    }
    for (const key in scalars) {
        if (data[key] !== undefined)
            values[scalars[key]] = data[key]
    }
    if (data.target_exploitability_pct === undefined && data.target_exploitability !== undefined) {
        const currentPot = values.startingPot === undefined ? pot : Number(StoredText.textOf(values.startingPot))
        const amount = Number(StoredText.textOf(data.target_exploitability))
        values.targetExploitability = currentPot > 0 ? amount * 100 / currentPot : amount
    }
    for (const seat of Keys.seats) {
        for (const street of Keys.streets) {
            const prefix = seat + "_" + street
            values[Keys.propertyName(seat, street, "BetSizesText")] = data[prefix + "_bet_sizes"] ?? ""
            values[Keys.propertyName(seat, street, "RaiseSizesText")] = data[prefix + "_raise_sizes"] ?? ""
            values[Keys.propertyName(seat, street, "AddAllIn")] = data[prefix + "_add_all_in"] ?? false
            if (seat === "oop")
                values[Keys.propertyName(seat, street, "DontDonk")] = data[prefix + "_dont_donk"] ?? false
        }
        // Older profiles have one threshold for both seats.
        const shared = "add_all_in_jam_threshold_"
        values[seat + "AddAllInIfJamLtEnabled"] = data[shared + "enabled"] ?? data[seat + "_" + shared + "enabled"] ?? false
        const percent = data[shared + "pct"] !== undefined
            ? data[shared + "pct"] : data[seat + "_" + shared + "pct"]
        if (percent !== undefined)
            values[seat + "AddAllInIfJamLtPct"] = percent
    }
    return values
}

/// The profiles of a list of whatever was stored; what has no name is dropped. `newId` makes ids.
function sanitized(list, newId) {
    if (!Array.isArray(list))
        return []
    const isMap = value => value !== null && typeof value === "object" && !Array.isArray(value)
    return list.filter(isMap).map(entry => ({
        id: StoredText.textOf(entry.id).trim() === "" ? newId() : StoredText.textOf(entry.id),
        name: StoredText.textOf(entry.name).trim(),
        createdAt: StoredText.textOf(entry.createdAt),
        data: isMap(entry.data) ? entry.data : {}
    })).filter(profile => profile.name !== "")
}

/// The profiles of a stored JSON text; none if it can't be read.
function parse(json, newId) {
    try {
        return sanitized(JSON.parse(json), newId)
    } catch (error) {
        return []
    }
}

/// `name`, or the first of "name (2)", "name (3)", ... that is not among `taken`.
function uniqueName(name, taken) {
    if (!taken.includes(name))
        return name
    let number = 2
    while (taken.includes(name + " (" + number + ")"))
        ++number
    return name + " (" + number + ")"
}

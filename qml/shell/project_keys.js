.pragma library

// The names of a project's values, and what they are called in a solve configuration map.

const seats = ["oop", "ip"]
const streets = ["flop", "turn", "river"]

function capitalised(word) {
    return word.charAt(0).toUpperCase() + word.slice(1)
}

/// Property of a seat's street: propertyName("oop", "flop", "AddAllIn") is "oopFlopAddAllIn".
function propertyName(seat, street, suffix) {
    return seat + capitalised(street) + suffix
}

/// What a property of a seat's street is called in a solve configuration map: configKey("oop", "flop",
/// "BetSizesText") is "oop_flop_bet_sizes".
function configKey(seat, street, suffix) {
    return seat + "_" + street + suffix.replace("Text", "").replace(/[A-Z]/g, letter => "_" + letter.toLowerCase())
}

/// The twelve size texts, in the order in which the controller tests them.
const sizeTexts = []
for (const seat of seats) {
    for (const street of streets)
        sizeTexts.push(propertyName(seat, street, "BetSizesText"), propertyName(seat, street, "RaiseSizesText"))
}

const texts = ["boardText", "oopRangeText", "ipRangeText", "betSizesText", "startingStreet"].concat(sizeTexts)
const integers = ["maxIterations", "startingPot", "effectiveStack", "threadCount", "rakeCap"]
const reals = ["targetExploitability", "rakePercent", "oopAddAllInIfJamLtPct", "ipAddAllInIfJamLtPct"]
const switches = ["oopAddAllInIfJamLtEnabled", "ipAddAllInIfJamLtEnabled"]
for (const street of streets) {
    switches.push(propertyName("oop", street, "AddAllIn"), propertyName("ip", street, "AddAllIn"),
                  propertyName("oop", street, "DontDonk"))
}
const all = texts.concat(integers, reals, switches)
/// What undo brings back.
const undoable = all.filter(key => key !== "threadCount")

/// What a stored value of whatever type means for a key; 0, false or "" for one that means nothing.
function coerced(key, value) {
    if (texts.includes(key))
        return value === undefined || value === null ? "" : String(value)
    if (switches.includes(key))
        return value === true
    const number = Number(value)
    if (!isFinite(number))
        return 0
    if (reals.includes(key))
        return number
    return Math.max(-2147483648, Math.min(2147483647, Math.trunc(number)))
}

/// Assigns a property by its name. It stands here because Qt's compiler for pages, which does not
/// touch libraries, drops such an assignment of a typed value in 6.4.
function assign(state, key, value) {
    state[key] = value
}

/// The betting of a spot, seat by seat and street by street, in a solve configuration map's keys.
/// `state` is anything with a project's properties.
function bettingMap(state) {
    const map = {}
    for (const seat of seats) {
        for (const street of streets) {
            const prefix = seat + "_" + street
            map[prefix + "_bet_sizes"] = state[propertyName(seat, street, "BetSizesText")]
            map[prefix + "_raise_sizes"] = state[propertyName(seat, street, "RaiseSizesText")]
            map[prefix + "_add_all_in"] = state[propertyName(seat, street, "AddAllIn")]
            if (seat === "oop")
                map[prefix + "_dont_donk"] = state[propertyName(seat, street, "DontDonk")]
        }
        map[seat + "_add_all_in_jam_threshold_enabled"] = state[seat + "AddAllInIfJamLtEnabled"]
        map[seat + "_add_all_in_jam_threshold_pct"] = state[seat + "AddAllInIfJamLtPct"]
    }
    return map
}

/// `percent` of `pot`, in chips; 0 for a pot of nothing.
function percentOfPot(pot, percent) {
    return isFinite(pot) && isFinite(percent) && pot > 0 ? pot * percent / 100 : 0
}

/// The solve configuration map of a project.
function solveConfig(state) {
    const map = bettingMap(state)
    map.board = state.boardText
    map.oop_range = state.oopRangeText
    map.ip_range = state.ipRangeText
    map.max_iterations = state.maxIterations
    map.target_exploitability = percentOfPot(state.startingPot, state.targetExploitability)
    map.starting_pot = state.startingPot
    map.effective_stack = state.effectiveStack
    map.rake_percent = state.rakePercent
    map.rake_cap = state.rakeCap
    map.starting_street = state.startingStreet
    map.thread_count = state.threadCount
    return map
}

.pragma library
.import "project_keys.js" as Keys

// Projects to begin with. Each is a whole project, so that applying one leaves nothing behind.

function _empty(threadCount) {
    const preset = {}
    for (const key of Keys.all)
        preset[key] = Keys.coerced(key, undefined)
    preset.startingStreet = "flop"
    preset.threadCount = threadCount
    return preset
}

/// What the program starts with: nothing.
function startupBlankPreset(systemThreadCount) {
    return _empty(systemThreadCount > 0 ? systemThreadCount : 1)
}

/// A new solve: usual game settings, no cards, ranges or sizes.
function newProjectPreset(systemThreadCount) {
    return Object.assign(_empty(systemThreadCount > 0 ? systemThreadCount : 12), {
        maxIterations: 400,
        startingPot: 180,
        effectiveStack: 910,
        targetExploitability: 0.5,
        rakePercent: 5.0,
        rakeCap: 30
    })
}

function _filled(systemThreadCount, oopRange, ipRange) {
    const preset = newProjectPreset(systemThreadCount)
    const bets = { flop: "52", turn: "55", river: "70" }
    for (const seat of Keys.seats) {
        for (const street of Keys.streets) {
            preset[Keys.propertyName(seat, street, "BetSizesText")] = bets[street]
            preset[Keys.propertyName(seat, street, "RaiseSizesText")] = "45"
        }
    }
    preset.boardText = "QsJh2h"
    preset.betSizesText = "52"
    preset.oopRangeText = oopRange
    preset.ipRangeText = ipRange
    return preset
}

/// The quick solve of a developer.
function defaultPreset(systemThreadCount) {
    return _filled(systemThreadCount,
        "88+,A8s+,A5s-A2s:0.5,AJo+,ATo:0.75,K9s+,KQo,KJo:0.75,KTo:0.25,Q9s+,QJo:0.5,J8s+,JTo:0.25,T8s+,T7s:0.45,97s+,96s:0.45,87s,86s:0.75,85s:0.45,75s+:0.75,74s:0.45,65s:0.75,64s:0.5,63s:0.45,54s:0.75,53s:0.5,52s:0.45,43s:0.5,42s:0.45,32s:0.45",
        "AA:0.25,99-22,AJs-A2s,AQo-A8o,K2s+,K9o+,Q2s+,Q9o+,J6s+,J9o+,T6s+,T9o,96s+,95s:0.5,98o,86s+,85s:0.5,75s+,74s:0.5,64s+,63s:0.5,54s,53s:0.5,43s")
}

/// The quick solve of everyone else.
function customerQuickSolvePreset(systemThreadCount) {
    return _filled(systemThreadCount,
        "88+,A8s+,A5s,A4s,A3s-A2s:0.5,AJo+,ATo,K9s+,KQo,KJo:0.75,KTo:0.25,Q9s+,QJo:0.5,J8s+,JTo:0.25,T8s+,T7s:0.45,97s+,96s:0.45,87s,86s:0.75,85s:0.45,75s+:0.75,65s:0.75,64s:0.5,54s:0.75,53s:0.5,43s:0.5,32s:0.45,A9o:0.5,K8s:0.5,Q8s:0.5,77:0.5,66:0.5,55:0.25",
        "AA:0.25,99-22,AJs-A6s,A5s-A4s:0.5,A3s-A2s,AQo-A7o,K2s+,K9o+,Q4s+,Q3s-Q2s:0.5,Q9o+,J6s+,J9o+,T6s+,T9o,96s+,95s:0.5,98o,86s+,85s:0.5,75s+,74s:0.5,64s+,63s:0.5,54s,53s:0.5,43s,QQ:0.25,JJ:0.25,TT:0.5,A5o:0.5,A4o:0.5,J5s:0.5,T5s:0.5")
}

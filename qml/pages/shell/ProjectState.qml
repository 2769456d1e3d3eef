import QtQuick
import "../../logic/project_keys.js" as Keys

/// The one state of the project at hand: the spot, its betting and how it is solved. The shell owns
/// it; pages bind to it and write what the user edits straight into it.
QtObject {
    id: root

    property string boardText: ""  ///< Two characters a card; "__" is a slot not yet set.
    property string oopRangeText: ""
    property string ipRangeText: ""
    property string betSizesText: ""  ///< Kept for project files; no solve reads it.
    property int maxIterations: 0
    property int startingPot: 0  ///< Chips.
    property int effectiveStack: 0  ///< Chips.
    property int threadCount: 1
    property string startingStreet: "flop"  ///< "flop", "turn" or "river".
    property real targetExploitability: 0  ///< Percent of the starting pot.
    property real rakePercent: 0
    property int rakeCap: 0  ///< Chips.

    property string oopFlopBetSizesText: ""
    property string oopFlopRaiseSizesText: ""
    property string oopTurnBetSizesText: ""
    property string oopTurnRaiseSizesText: ""
    property string oopRiverBetSizesText: ""
    property string oopRiverRaiseSizesText: ""
    property string ipFlopBetSizesText: ""
    property string ipFlopRaiseSizesText: ""
    property string ipTurnBetSizesText: ""
    property string ipTurnRaiseSizesText: ""
    property string ipRiverBetSizesText: ""
    property string ipRiverRaiseSizesText: ""

    property bool oopFlopAddAllIn: false
    property bool oopTurnAddAllIn: false
    property bool oopRiverAddAllIn: false
    property bool ipFlopAddAllIn: false
    property bool ipTurnAddAllIn: false
    property bool ipRiverAddAllIn: false
    property bool oopFlopDontDonk: false
    property bool oopTurnDontDonk: false
    property bool oopRiverDontDonk: false

    property bool oopAddAllInIfJamLtEnabled: false
    property bool ipAddAllInIfJamLtEnabled: false
    property real oopAddAllInIfJamLtPct: 0  ///< Percent of the pot.
    property real ipAddAllInIfJamLtPct: 0  ///< Percent of the pot.

    /// Changes exactly when something changes that the memory of a solve depends on.
    readonly property string memoryInputs: {
        const config = solveConfig()
        delete config.max_iterations
        delete config.target_exploitability
        return JSON.stringify(config)
    }

    /// Assigns the property of a name that is put together.
    function set(key: string, value: var) {
        Keys.assign(root, key, value)
    }

    /// The whole state as a map by property name.
    function exportProjectState(): var {
        const state = {}
        for (const key of Keys.all)
            state[key] = root[key]
        return state
    }

    /// Assigns each key that `state` holds and leaves the others as they are. A value of a wrong
    /// type reads as empty, 0 or false.
    function applyProjectState(state: var) {
        for (const key of Keys.all) {
            if (state[key] !== undefined)
                set(key, Keys.coerced(key, state[key]))
        }
    }

    /// The target in chips; 0 while there is no pot.
    function targetExploitabilityAmount(): real {
        return Keys.percentOfPot(startingPot, targetExploitability)
    }

    /// The solve configuration map.
    function solveConfig(): var {
        return Keys.solveConfig(root)
    }
}

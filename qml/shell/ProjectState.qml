import QtQuick
import Velmora
import "project_keys.js" as Keys

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

    /// What keeps the spot from being solved.
    readonly property SpotFaults faults: SpotFaults {
        config: root.solveConfig()
        inputFaults: root.inputFaults
    }
    /// By the key of a solve configuration map, what is wrong with a text that stands in a field and is
    /// no value of its kind. The property then still has its value from before.
    property var inputFaults: ({})

    readonly property bool canUndo: _history.canUndo || _hasInputFaults || _spotText !== _history.current
    readonly property bool canRedo: _history.canRedo && !_hasInputFaults && _spotText === _history.current

    readonly property bool _hasInputFaults: Object.keys(inputFaults).length > 0
    readonly property ProjectHistory _history: ProjectHistory {}
    /// What undo brings back: all but the number of threads, which is no part of the spot.
    readonly property string _spotText: JSON.stringify(Keys.undoable.map(key => root[key]))
    property string _step: ""
    readonly property Timer _recorder: Timer {
        interval: 0
        onTriggered: root._record()
    }

    /// The field of a key of a solve configuration map shall take the focus.
    signal fieldWanted(key: string)

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

    /// The same for something that the user does. Edits of one `step`, such as the keystrokes in a
    /// field, are undone together until `endStep`.
    function edit(step: string, key: string, value: var) {
        if (step !== _step)
            _record()
        _step = step
        set(key, value)
    }

    function endStep() {
        _record()
        _history.closeStep()
    }

    /// Takes the latest step back. A text that a field could not read goes first.
    function undo() {
        if (_hasInputFaults) {
            inputFaults = {}
            return
        }
        _record()
        _restore(_history.undo())
    }

    function redo() {
        _record()
        _restore(_history.redo())
    }

    /// Forgets all steps, as for another project.
    function clearHistory() {
        _step = ""
        _history.clear(_spotText)
    }

    /// What is wrong with a field, by its key in a solve configuration map; "" if nothing is, or if it
    /// is only empty.
    function faultAt(field: string): string {
        return faults.sentences[field] ?? ""
    }

    /// Keeps what is wrong with the text of a field; "" if nothing is any more.
    function setInputFault(field: string, sentence: string) {
        if ((inputFaults[field] ?? "") === sentence)
            return
        const faults = Object.assign({}, inputFaults)
        delete faults[field]
        if (sentence !== "")
            faults[field] = sentence
        inputFaults = faults
    }

    function _record() {
        _history.add(_spotText, _step)
        _step = ""
    }

    function _restore(text: string) {
        const values = JSON.parse(text)
        Keys.undoable.forEach((key, index) => set(key, Keys.coerced(key, values[index])))
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
        inputFaults = {}
    }

    /// The target in chips; 0 while there is no pot.
    function targetExploitabilityAmount(): real {
        return Keys.percentOfPot(startingPot, targetExploitability)
    }

    /// The solve configuration map.
    function solveConfig(): var {
        return Keys.solveConfig(root)
    }

    // What changes together within one event is one step.
    on_SpotTextChanged: _recorder.restart()
    Component.onCompleted: clearHistory()
}

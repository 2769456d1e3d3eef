import QtQuick

/// The states that undo and redo go through. A state is a text; the one that shows is `current`.
QtObject {
    id: root

    property string current: ""
    readonly property bool canUndo: _past.length > 0
    readonly property bool canRedo: _future.length > 0

    property list<string> _past
    property list<string> _future
    property string _openStep: ""

    readonly property int _limit: 500

    /// Forgets everything but a state.
    function clear(state: string) {
        _past = []
        _future = []
        _openStep = ""
        current = state
    }

    /// Takes a new state. It belongs to the same step as the one before if both bear the same name and
    /// the step was not closed in between; an empty name stands for a step of its own.
    function add(state: string, step: string) {
        if (state === current)
            return
        const merges = step !== "" && step === _openStep
        if (merges && _past[_past.length - 1] === state)
            _past = Array.from(_past).slice(0, -1)
        else if (!merges)
            _past = Array.from(_past).concat([current]).slice(-_limit)
        _future = []
        _openStep = step
        current = state
    }

    /// What comes next is another step, whatever its name.
    function closeStep() {
        _openStep = ""
    }

    /// The state before the latest step, which shows from now on.
    function undo(): string {
        if (!canUndo)
            return current
        const state = _past[_past.length - 1]
        _past = Array.from(_past).slice(0, -1)
        _future = Array.from(_future).concat([current])
        return _show(state)
    }

    function redo(): string {
        if (!canRedo)
            return current
        const state = _future[_future.length - 1]
        _future = Array.from(_future).slice(0, -1)
        _past = Array.from(_past).concat([current])
        return _show(state)
    }

    function _show(state: string): string {
        _openStep = ""
        current = state
        return state
    }
}

.pragma library
.import Velmora as Velmora

// What the views of a node make of the controller's answers. Lists may be the controller's own, so
// they are addressed by index and length only.

function _list(list) {
    const copy = []
    for (let i = 0; i < (list ? list.length : 0); ++i)
        copy.push(list[i])
    return copy
}

function _finite(value) {
    return typeof value === "number" && isFinite(value)
}

/// The place of the fold among actions with `name` and `actionType`, or -1.
function foldIndex(actions) {
    return _list(actions).findIndex(action =>
        String(action.actionType) === "fold" || /fold/i.test(String(action.name)))
}

/// EVs relative to folding, where there is a fold with a finite EV; as they are otherwise. `evs` is a
/// list of numbers aligned with `actions`.
function evsAroundFold(evs, actions) {
    const values = _list(evs)
    const fold = foldIndex(actions)
    if (fold < 0 || !_finite(values[fold]))
        return values
    return values.map((ev, index) => index === fold ? 0 : _finite(ev) ? ev - values[fold] : ev)
}

/// The actions of a node with their EVs relative to folding.
function normalizeActionEvsAroundFold(actions) {
    const list = _list(actions)
    const evs = evsAroundFold(list.map(action => action.ev), list)
    return list.map((action, index) => Object.assign({}, action, { ev: evs[index] }))
}

/// The colour keys of a node's actions, exactly `count` of them.
function actionTypeList(definitions, fallbackTypes, count) {
    const types = _list(definitions).map(action => action.actionType || action.name)
    const fallback = _list(fallbackTypes)
    return Array.from({ length: count }, (_, index) => types[index] || fallback[index] || "none")
}

/// How many actions the views of a node have.
function actionCount(definitions, actionProbs, actionTypes) {
    if (definitions && definitions.length > 0)
        return definitions.length
    for (const hand in actionProbs)
        return actionProbs[hand].length
    return actionTypes ? actionTypes.length : 0
}

/// The probabilities by hand with the locks of the node in force. `locks` maps a hand to
/// {actionIndex, actionProb}; the other actions share the rest alike.
function withLocks(actionProbs, locks, count) {
    const probabilities = Object.assign({}, actionProbs)
    for (const hand in locks) {
        const action = locks[hand].actionIndex
        if (!(action >= 0 && action < count))
            continue
        const locked = Number(locks[hand].actionProb)
        const share = count === 1 ? 1 : isFinite(locked) ? Math.max(0, Math.min(1, locked)) : 1
        probabilities[hand] = Array.from({ length: count }, (_, index) =>
            index === action ? share : (1 - share) / (count - 1))
    }
    return probabilities
}

/// The action that a hand takes most, the first on a tie; -1 without probabilities.
function dominantAction(probabilities) {
    const list = _list(probabilities)
    return list.reduce((best, value, index) => best < 0 || value > list[best] ? index : best, -1)
}

/// The combos with the locks of the node in force, as `withLocks` puts them into the grid. A combo that
/// a lock changes has `preview` true.
function combosWithLocks(combos, locks) {
    if (Object.keys(locks).length === 0)
        return combos
    return _list(combos).map(combo => {
        const hand = Velmora.HandText.handClassFromCards(combo.c1, combo.c2)
        if (locks[hand] === undefined)
            return combo
        const probabilities = withLocks({ [hand]: combo.actionProbs }, locks, combo.actionProbs.length)
        return Object.assign({}, combo, { actionProbs: probabilities[hand], preview: true })
    })
}

/// Actions with the probabilities of one hand as their frequencies, over the shorter list.
function actionsForProbs(actions, probabilities) {
    const count = Math.min(actions ? actions.length : 0, probabilities ? probabilities.length : 0)
    return Array.from({ length: count }, (_, index) => ({
        name: actions[index].name,
        actionType: actions[index].actionType,
        frequency: probabilities[index]
    }))
}

/// The weight at or below which a combo is a residue of rounding. It looks at 96 combos at most.
function noiseCutoff(combos) {
    let largest = 0
    for (let i = 0; i < Math.min(96, combos.length); ++i)
        largest = Math.max(largest, combos[i].weight)
    return Math.max(1e-10, largest * 1e-6)
}

/// The combos that pass all filters. `filters` has `boardCards` (how many), `handClass`, `bucket` and
/// `search`, each empty for none.
function visibleHandCombos(combos, filters) {
    const list = _list(combos)
    const cutoff = filters.boardCards >= 4 ? noiseCutoff(list) : -1
    return list.filter(combo =>
        combo.weight > cutoff
        && (filters.handClass === "" || Velmora.HandText.handClassFromCards(combo.c1, combo.c2) === filters.handClass)
        && (filters.bucket === "" || _list(combo.buckets).includes(filters.bucket))
        && Velmora.HandText.matchesSearch(filters.search, combo.c1, combo.c2))
}

/// The EVs of a combo as texts by action: relative to folding where the node has a fold. Without EVs
/// by action, the one of the hand.
function comboEvTexts(combo, definitions) {
    const text = value => _finite(value) ? value.toFixed(2) : "—"
    const actions = _list(definitions)
    const evs = _list(combo.actionEvs)
    if (evs.length === 0)
        return [{ text: text(combo.ev), actionType: "" }]
    const count = Math.min(evs.length, actions.length)
    const shown = evsAroundFold(evs.slice(0, count), actions.slice(0, count))
    return shown.map((ev, index) => ({ text: text(ev), actionType: actions[index].actionType }))
}

/// What a seat still has, and what it has to pay to stay in; 0 for a node without a seat. `meta` is
/// what the controller says of the node.
function stackRemaining(meta) {
    const invested = meta.player === "OOP" ? meta.investedOop : meta.player === "IP" ? meta.investedIp : undefined
    return invested === undefined ? 0 : Math.max(0, meta.effectiveStack - invested)
}

function toCallAmount(meta) {
    const invested = meta.player === "OOP" ? meta.investedOop : meta.player === "IP" ? meta.investedIp : undefined
    return invested === undefined ? 0 : Math.max(0, Math.max(meta.investedOop, meta.investedIp) - invested)
}

/// Whether a text is a probability 0..1.
function isLockWeight(text) {
    return /^\s*(?:0(?:[.,]\d*)?|1(?:[.,]0*)?|[.,]\d+)\s*$/.test(String(text))
}

/// A probability 0..1 of a text; 1 for a text that is no number.
function parseLockWeight(text) {
    const trimmed = String(text).trim().replace(",", ".")
    const value = trimmed === "" ? NaN : Number(trimmed)
    return isFinite(value) ? Math.max(0, Math.min(1, value)) : 1
}

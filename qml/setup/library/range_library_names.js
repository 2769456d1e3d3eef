.pragma library

// How the names of the libraries are shown. They are stored in English; positions stay so.

const _standardWords = new Set([
    QT_TR_NOOP("6-max"), QT_TR_NOOP("Heads up"),
    QT_TR_NOOP("No rake"), QT_TR_NOOP("50nl rake"), QT_TR_NOOP("100nl rake"), QT_TR_NOOP("200nl rake"),
    QT_TR_NOOP("500nl rake"),
    QT_TR_NOOP("RFI"), QT_TR_NOOP("vs RFI"), QT_TR_NOOP("vs 3bet"), QT_TR_NOOP("vs 4bet")
])
/// What a position does, as the second word of a name.
const _actions = new Set([
    QT_TR_NOOP("Call"), QT_TR_NOOP("Fold"), QT_TR_NOOP("RFI"), QT_TR_NOOP("3bet"), QT_TR_NOOP("4bet")
])
const _positions = new Set(["UTG/HJ/CO", "UTG", "HJ", "CO", "BTN", "BU", "SB", "BB"])
const _populationWords = new Set([
    QT_TR_NOOP("Limp"), QT_TR_NOOP("Limp-call"), QT_TR_NOOP("Limp-3b"), QT_TR_NOOP("RFI"), QT_TR_NOOP("Call"),
    QT_TR_NOOP("Call raise"), QT_TR_NOOP("Check back"), QT_TR_NOOP("3b"), QT_TR_NOOP("4b"), QT_TR_NOOP("Call 3b"),
    QT_TR_NOOP("Call 4b"), QT_TR_NOOP("3b cold call"), QT_TR_NOOP("Bomb pot"), QT_TR_NOOP("Weaker regs"),
    QT_TR_NOOP("Tighter reg"), QT_TR_NOOP("Looser reg"), QT_TR_NOOP("Other"), QT_TR_NOOP("Nit"),
    QT_TR_NOOP("Overfolder")
])
const _archetypes = new Set([
    QT_TR_NOOP("Passive"), QT_TR_NOOP("Passive tight"), QT_TR_NOOP("Passive neutral"), QT_TR_NOOP("Passive loose"),
    QT_TR_NOOP("Extreme loose"), QT_TR_NOOP("Loose aggressive"), QT_TR_NOOP("Standard LAG"), QT_TR_NOOP("Maniac"),
    QT_TR_NOOP("Overfolder")
])

function standardName(name) {
    if (_standardWords.has(name))
        return qsTr(name)
    const facingOpen = /^vs (\S+) RFI$/.exec(name)
    if (facingOpen)
        return qsTr("vs %1 RFI").arg(facingOpen[1])
    const facing3Bet = /^(\S+) vs (\S+) 3bet$/.exec(name)
    if (facing3Bet)
        return qsTr("%1 vs %2 3bet").arg(facing3Bet[1]).arg(facing3Bet[2])
    const facing4Bet = /^(\S+) 3bet vs (\S+) 4bet$/.exec(name)
    if (facing4Bet)
        return qsTr("%1 3bet vs %2 4bet").arg(facing4Bet[1]).arg(facing4Bet[2])
    const [position, action, more] = name.split(" ")
    return more === undefined && _actions.has(action) ? qsTr("%1 %2").arg(position).arg(qsTr(action)) : name
}

function populationName(name) {
    if (_positions.has(name))
        return name
    if (_populationWords.has(name))
        return qsTr(name)
    const archetype = /^(.+) \((?:VPIP (.+)|(.+) VPIP)\)$/.exec(name)
    if (archetype) {
        const type = _archetypes.has(archetype[1]) ? qsTr(archetype[1]) : archetype[1]
        return qsTr("%1 (VPIP %2)").arg(type).arg(archetype[2] ?? archetype[3])
    }
    return standardName(name)
}

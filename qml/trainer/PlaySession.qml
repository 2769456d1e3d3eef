import QtQuick
import Velmora
import "trainer_deal.js" as Deal
import "trainer_hand.js" as Hand
import "trainer_score.js" as Score
import "../results/tree_walk.js" as Walk

/// Hands played against the solution: who holds what, whose turn it is, and what becomes of a choice.
/// The walk follows the hand; one timer carries it from step to step.
QtObject {
    id: root

    required property TreeWalk walk
    required property PlayScores scores
    required property PlayLog log

    // The session
    property bool playMode: false
    property string playRole: ""  ///< "OOP", "IP" or "BOTH".
    property bool playSessionStarted: false

    // The hand
    property string playBoardText: ""
    property int playNodeIndex: -1
    property bool playAwaitingUserAction: false
    property bool playHandComplete: false
    property string playActionLine: ""
    property string oopCard1: ""
    property string oopCard2: ""
    property string ipCard1: ""
    property string ipCard2: ""
    /// The opponent's last action, for the bubble.
    property string playLastActionActor: ""
    property string playLastActionText: ""

    // Time and chance
    property int playStepDelayMs: 1000
    property var random: Math.random
    property bool playStopOnSuboptimalAction: true

    // The drill
    property bool playDrillMode: false
    property int playDrillNodeIndex: -1
    property string playDrillActor: ""
    property string playDrillFeedbackText: ""
    property bool playDrillFeedbackWrong: false
    property real playDrillFeedbackEvLoss: NaN

    readonly property int drillDealDelayMs: 450
    readonly property int drillFeedbackMs: 700

    // What the table shows of the node
    readonly property var playMeta: playNodeIndex >= 0 ? walk.nodeMeta(playNodeIndex) : ({})
    readonly property var playActions: playNodeIndex >= 0 ? walk.nodeActions(playNodeIndex) : []
    readonly property bool atDecision: playMeta.nodeType === "decision"
    readonly property bool running: playSessionStarted && !playHandComplete
    readonly property bool canDrill: running && (playDrillMode || atDecision && !scoring)
    /// Nobody holds cards: a project file holds the hands of those nodes only that were looked at.
    readonly property bool dealtNothing: playSessionStarted && oopCard1 === "" && ipCard1 === ""
    /// A choice was made whose figures are still on their way.
    readonly property bool scoring: _chosenActionIndex >= 0
    /// The levels of the walk where turn and river came, by their slot on the board.
    readonly property var chanceLevels: _chanceLevels(walk.treeLevels.count, playNodeIndex)
    /// The slots of the board whose card may be changed now.
    readonly property var changeableSlots: running && !playDrillMode && !scoring ? Object.keys(chanceLevels).map(Number) : []
    /// The log entry of the hand that just ended.
    readonly property var lastHand: playHandComplete && log.playHandLog.count > 0 ? log.playHandLog.get(0) : null

    property int _chosenActionIndex: -1
    property bool _held: false

    readonly property Timer _tick: Timer {
        onTriggered: root.playTick()
    }

    readonly property Timer _feedback: Timer {
        interval: root.drillFeedbackMs
        onTriggered: root._clearDrillFeedback()
    }

    readonly property Connections _scores: Connections {
        function onReady() {
            if (root.scoring)
                root._scoreChoice()
        }

        target: root.scores
    }

    /// Deals the first hand for a role.
    function startPlaySession(role: string) {
        playRole = role
        playSessionStarted = true
        _dealHand()
    }

    /// Another hand with the same role.
    function restartHand() {
        if (playHandComplete)
            _resetToRootAndRestartHand()
    }

    /// The user's choice where the hand waits for one.
    function choosePlayAction(actionIndex: int) {
        if (!playAwaitingUserAction || actionIndex < 0 || actionIndex >= playActions.length)
            return
        playAwaitingUserAction = false
        _chosenActionIndex = actionIndex
        if (scores.isReady(playNodeIndex))
            _scoreChoice()
    }

    /// One step of the hand.
    function playTick() {
        if (playDrillMode) {
            _dealDrillHand()
            return
        }
        switch (playMeta.nodeType) {
        case "terminal":
            _completeHand("terminal", null)
            break
        case "chance":
            _autoHandleChanceNode()
            break
        case "decision":
            if (_isUsersTurn())
                playAwaitingUserAction = true
            else
                _autoHandleOpponentDecision()
            break
        }
    }

    function isHeroSeat(seat: string): bool {
        return playRole === "BOTH" || seat === (playDrillMode ? playDrillActor : playRole)
    }

    /// Both cards of a seat; "" for each that it does not hold.
    function cardsOf(seat: string): list<string> {
        return seat === "IP" ? [ipCard1, ipCard2] : [oopCard1, oopCard2]
    }

    // --- Public cards

    /// Holds the hand while the user looks for another turn or river.
    function holdForCardChange() {
        _held = true
        _tick.stop()
    }

    /// Goes on from the card that the walk was led to.
    function resumeFromCard() {
        _held = false
        playAwaitingUserAction = false
        _chosenActionIndex = -1
        _setLastAction("", "")
        _followWalk()
        _schedulePlayTick(0)
    }

    /// Goes on as before: no card was picked.
    function resumeUnchanged() {
        if (_held && running && !playAwaitingUserAction)
            _schedulePlayTick(playStepDelayMs)
        _held = false
    }

    // --- Drill

    function startDrillSpot() {
        if (!atDecision || playDrillMode)
            return
        _tick.stop()
        playDrillNodeIndex = playNodeIndex
        playDrillActor = playMeta.player
        playDrillMode = true
        if (!scores.isReady(playNodeIndex))
            scores.prepare(playNodeIndex)
        _dealDrillHand()
    }

    /// Lets the hand go on from its node.
    function stopDrillSpot() {
        _leaveDrill()
        playAwaitingUserAction = false
        _chosenActionIndex = -1
        playActionLine = _lineOfWalk()
        _schedulePlayTick(0)
    }

    function drillNoteText(): string {
        return Hand.lastActionOf("OOP", _lineOfWalk()) || "—"
    }

    // --- Flow

    function _schedulePlayTick(delay: int) {
        _tick.stop()
        _tick.interval = delay
        _tick.start()
    }

    function _isUsersTurn(): bool {
        return playRole === "BOTH" || playMeta.player === playRole
    }

    function _resetSession() {
        _tick.stop()
        _leaveDrill()
        scores.forget()
        playSessionStarted = false
        playRole = ""
        playNodeIndex = -1
        playBoardText = ""
        _clearHand()
        walk.resetTreeToRoot()
    }

    function _clearHand() {
        playAwaitingUserAction = false
        playHandComplete = false
        playActionLine = ""
        _chosenActionIndex = -1
        _setLastAction("", "")
        _setHands({ oop: [], ip: [] })
    }

    function _setHands(hands: var) {
        oopCard1 = hands.oop[0] ?? ""
        oopCard2 = hands.oop[1] ?? ""
        ipCard1 = hands.ip[0] ?? ""
        ipCard2 = hands.ip[1] ?? ""
    }

    function _setLastAction(actor: string, action: string) {
        playLastActionActor = actor
        playLastActionText = action
    }

    function _resetToRootAndRestartHand() {
        walk.resetTreeToRoot()
        _dealHand()
    }

    function _dealHand() {
        _clearHand()
        _followWalk()
        _dealToSeats(playNodeIndex)
        _schedulePlayTick(0)
    }

    function _dealToSeats(node: int) {
        const suits = walk.suitsAt(walk.treeLevels.count)
        const combos = seat => Walk.shownCombos(Controller.nodeSeatHandCombos(node, seat), suits)
        _setHands(Deal.dealHands(combos("OOP"), combos("IP"), playBoardText, random))
    }

    /// Takes over where the walk stands, and has the node's figures computed where they will be needed.
    function _followWalk() {
        playNodeIndex = walk.currentNodeIndex
        playBoardText = walk.treeBoardText.replace(/\s+/g, "")
        playActionLine = _lineOfWalk()
        if (atDecision && _isUsersTurn())
            scores.prepare(playNodeIndex)
    }

    function _lineOfWalk(): string {
        const steps = []
        for (let level = 0; level < walk.treeLevels.count; ++level) {
            const meta = walk.nodeMeta(walk.treeLevels.get(level).nodeIndex)
            const name = walk.chosenNameAt(level)
            if (name !== "")
                steps.push(Hand.step(meta.nodeType === "chance" ? Hand.CHANCE : meta.player, name))
        }
        return Hand.lineOf(steps)
    }

    function _chanceLevels(levelCount: int, node: int): var {
        const levels = {}
        for (let level = 0; node >= 0 && level < levelCount; ++level) {
            const deal = walk.nodeMeta(walk.treeLevels.get(level).nodeIndex).chanceDeal
            if (deal === "turn" || deal === "river")
                levels[deal === "turn" ? 3 : 4] = level
        }
        return levels
    }

    /// Moves the walk by an action of the hand's node. A hand whose next node is none stays.
    function _advancePlayByActionIndex(actionIndex: int) {
        const child = playActions[actionIndex]?.childIndex ?? -1
        if (child < 0 || child >= Controller.treeNodeCount() || walk.currentNodeIndex !== playNodeIndex)
            return
        const level = walk.treeLevels.count - 1
        if (playMeta.nodeType === "chance")
            walk.chooseChanceCard(level, actionIndex, "")
        else
            walk.selectActionAtLevel(level, actionIndex)
        _followWalk()
        _schedulePlayTick(playStepDelayMs)
    }

    function _autoHandleChanceNode() {
        const suits = walk.suitsAt(walk.treeLevels.count - 1)
        const names = playActions.map(action => Walk.isCardName(action.name) ? Walk.shownCard(action.name, suits) : "")
        const used = BoardText.usedCards(playBoardText).concat(cardsOf("OOP"), cardsOf("IP"))
        _advancePlayByActionIndex(Deal.pickChanceIndex(playActions, names, used, random))
    }

    function _autoHandleOpponentDecision() {
        const index = Deal.pickWeightedActionIndex(playActions, random)
        if (index < 0)
            return
        _setLastAction(playMeta.player, playActions[index].name)
        _advancePlayByActionIndex(index)
    }

    // --- Scoring

    function _scoreChoice() {
        const chosen = _chosenActionIndex
        _chosenActionIndex = -1
        const actor = playMeta.player
        const info = playStopOnSuboptimalAction || playDrillMode
                     ? scores.suboptimalEvInfoAtNode(playNodeIndex, actor, cardsOf(actor), chosen) : null
        const wrong = scores.isMistake(info)
        if (playDrillMode) {
            _handleDrillChoice(info, wrong)
        } else if (wrong) {
            const steps = [playActionLine, Hand.step(actor, playActions[chosen].name)]
            playActionLine = Hand.lineOf(steps.filter(text => text !== ""))
            _completeHand("suboptimal", {
                actor: actor, action: playActions[chosen].name, chosenIndex: chosen, info: info,
                correctAction: playActions[info.bestIndex]?.name ?? ""
            })
        } else {
            _advancePlayByActionIndex(chosen)
        }
    }

    // --- End of a hand

    function _completeHand(endedReason: string, mistake: var) {
        _tick.stop()
        playHandComplete = true
        _logPlayHand(Hand.logEntry({
            time: new Date().toLocaleTimeString(Qt.locale(), Locale.ShortFormat),
            board: playBoardText, role: playRole, oop: cardsOf("OOP").join(""), ip: cardsOf("IP").join(""),
            line: playActionLine, endedReason: endedReason, meta: playMeta, mistake: mistake
        }))
    }

    function _logPlayHand(entry: var) {
        log.add(entry)
        Controller.recordPlayVsSolutionHand(entry.isMistake, entry.evLoss)
    }

    // --- Drill

    function _dealDrillHand() {
        _dealToSeats(playDrillNodeIndex)
        playActionLine = ""
        _setLastAction("", "")
        playAwaitingUserAction = true
    }

    function _handleDrillChoice(info: var, wrong: bool) {
        if (info !== null)
            _showDrillFeedback(wrong, info)
        _schedulePlayTick(drillDealDelayMs)
    }

    function _showDrillFeedback(wrong: bool, info: var) {
        playDrillFeedbackWrong = wrong
        playDrillFeedbackEvLoss = wrong ? info.evLoss : NaN
        playDrillFeedbackText = wrong
            ? qsTr("Wrong — best: %1 (EV -%2)").arg(playActions[info.bestIndex]?.name || "—").arg(Score.lossText(info.evLoss))
            : qsTr("Correct")
        _feedback.restart()
    }

    function _clearDrillFeedback() {
        _feedback.stop()
        playDrillFeedbackText = ""
        playDrillFeedbackWrong = false
        playDrillFeedbackEvLoss = NaN
    }

    function _leaveDrill() {
        playDrillMode = false
        playDrillNodeIndex = -1
        playDrillActor = ""
        _clearDrillFeedback()
    }

    onPlayModeChanged: _resetSession()
}

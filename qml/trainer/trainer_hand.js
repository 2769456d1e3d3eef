.pragma library
.import Velmora as Velmora
.import "trainer_score.js" as Score

// A played hand: its line, its log entry, and how it ended. A line reads
// "OOP: Bet 33% → IP: Call → Chance: Kd → OOP: Check".

const JOINT = " → "
const CHANCE = "Chance"
const UNKNOWN = "—"

function step(actor, action) {
    return actor + ": " + action
}

function lineOf(steps) {
    return steps.join(JOINT)
}

/// The steps of a line as {actor, action}.
function stepsOf(line) {
    return String(line).split(JOINT).filter(text => text !== "").map(text => {
        const colon = text.indexOf(": ")
        return { actor: text.slice(0, colon), action: text.slice(colon + 2) }
    })
}

/// The last action of a seat along a line; "" if it had none.
function lastActionOf(actor, line) {
    const own = stepsOf(line).filter(step => step.actor === actor)
    return own.length > 0 ? own[own.length - 1].action : ""
}

/// The two cards of a hand text such as "AhKs"; "" for each that is missing.
function cardsOf(hand) {
    return [String(hand).slice(0, 2), String(hand).slice(2, 4)]
}

/// The hand that the log shows for a role.
function heroHand(entry) {
    return entry.role === "IP" ? entry.ip : entry.oop
}

/// What the log keeps of a hand. `hand` has `time`, `board`, `role`, `oop`, `ip` (texts), `line`,
/// `endedReason`, `meta` (the controller's, of the last node) and, where it ended by a mistake,
/// `mistake`: {actor, action, correctAction, chosenIndex, info}, with the EVs in `info`.
function logEntry(hand) {
    const mistake = hand.mistake ?? null
    const info = mistake ? mistake.info : { evLoss: NaN, bestEv: NaN, chosenEv: NaN, bestIndex: -1 }
    return {
        time: hand.time,
        board: hand.board,
        role: hand.role,
        oop: hand.oop,
        ip: hand.ip,
        line: hand.line,
        endedReason: hand.endedReason,
        mistakeActor: mistake ? mistake.actor : "",
        mistakeAction: mistake ? mistake.action : "",
        correctAction: mistake ? mistake.correctAction : "",
        chosenActionIndex: mistake ? mistake.chosenIndex : -1,
        correctActionIndex: info.bestIndex,
        evLoss: info.evLoss,
        bestEv: info.bestEv,
        chosenEv: info.chosenEv,
        pot: hand.meta.pot ?? NaN,
        investedOop: hand.meta.investedOop ?? NaN,
        investedIp: hand.meta.investedIp ?? NaN,
        isMistake: isFinite(info.evLoss) && info.evLoss > 0
    }
}

/// The actions of a line by street: three lists, flop first. `boardText` is the board at the end of
/// the line, so that a spot that starts on the turn has its first actions there.
function actionsByStreet(line, boardText) {
    const steps = stepsOf(line)
    const dealt = steps.filter(step => step.actor === CHANCE).length
    let street = Math.max(0, Math.min(2, Velmora.BoardText.usedCards(boardText).length - dealt - 3))
    const streets = [[], [], []]
    for (const step of steps) {
        if (step.actor === CHANCE)
            street = Math.min(2, street + 1)
        else
            streets[street].push(step.actor + ": " + step.action)
    }
    return streets
}

/// "OOP", "IP" or "TIE"; "" if the winner is unknown. The last fold decides, else the cards:
/// `showdownWinner` gives the winner of a board and two hands.
function winnerOf(entry, showdownWinner) {
    const steps = stepsOf(entry.line)
    for (let i = steps.length - 1; i >= 0; --i) {
        if (step(steps[i].actor, steps[i].action).includes("Fold"))
            return steps[i].actor === "OOP" ? "IP" : "OOP"
    }
    if (Velmora.BoardText.usedCards(entry.board).length !== 5 || entry.oop.length !== 4 || entry.ip.length !== 4)
        return ""
    const winner = showdownWinner(entry.board, entry.oop, entry.ip)
    return ["OOP", "IP", "TIE"].includes(winner) ? winner : ""
}

/// What the winner gains beyond the chips it put in itself; not a number without a winner.
function wonBy(winner, entry) {
    switch (winner) {
    case "OOP":
        return entry.pot - entry.investedOop
    case "IP":
        return entry.pot - entry.investedIp
    case "TIE":
        return 0
    default:
        return NaN
    }
}

/// The rake of a pot: a percentage, under a cap if that is above 0.
function rakeOf(pot, rakePercent, rakeCap) {
    const rake = rakePercent > 0 ? pot * rakePercent / 100 : pot * 0
    return rakeCap > 0 ? Math.min(rake, rakeCap) : rake
}

/// Chips without decimals; a dash for what is no number.
function chipsText(value) {
    return typeof value === "number" && isFinite(value) ? value.toFixed(0) : UNKNOWN
}

/// A logged hand as its details show it: `flop` (cards), `turn`, `river` (a card or ""), `actions` (by
/// street), `oop` and `ip` (cards), and the texts `winner`, `won`, `rake`, `evLost`, `incorrect` and
/// `correct`, the last three for a mistake.
function buildPlayHandDetails(entry, rakePercent, rakeCap, showdownWinner) {
    const cards = Velmora.BoardText.usedCards(entry.board)
    const winner = winnerOf(entry, showdownWinner)
    return {
        flop: cards.slice(0, 3),
        turn: cards[3] ?? "",
        river: cards[4] ?? "",
        actions: actionsByStreet(entry.line, entry.board),
        oop: cardsOf(entry.oop),
        ip: cardsOf(entry.ip),
        winner: winner || UNKNOWN,
        won: chipsText(wonBy(winner, entry)),
        rake: chipsText(rakeOf(entry.pot, rakePercent, rakeCap)),
        isMistake: entry.isMistake,
        evLost: Score.lossText(entry.evLoss),
        incorrect: entry.mistakeAction,
        correct: entry.correctAction || UNKNOWN
    }
}

/// What a seat has left at a node; a dash if it is unknown.
function stackText(meta, invested) {
    return chipsText(Math.max(0, meta.effectiveStack - invested))
}

import QtQuick
import QtTest
import "../../qml/home/solve_activity.js" as Activity
import "../../qml/trainer/trainer_deal.js" as Deal
import "../../qml/trainer/trainer_hand.js" as Hand
import "../../qml/trainer/trainer_score.js" as Score
import "../../qml/home/trainer_stats.js" as Stats
import "../../qml/results/tree_walk.js" as Walk
import "random.js" as Random

TestCase {
    name: "TrainerLogic"

    function test_tolerance_data() {
        return [
            { tag: "a loss of half a percent", best: 100, chosen: 99.5, mistake: false },
            { tag: "a loss of two percent", best: 100, chosen: 98, mistake: true },
            { tag: "tiny EVs", best: 0.00001, chosen: 0, mistake: true },
            { tag: "below the absolute figure", best: 5e-7, chosen: 0, mistake: false },
            { tag: "negative EVs", best: -50, chosen: -50.4, mistake: false },
            { tag: "negative EVs, a larger loss", best: -50, chosen: -50.6, mistake: true },
            { tag: "no loss", best: 0, chosen: 0, mistake: false },
            { tag: "the larger magnitude counts", best: 1, chosen: -200, mistake: true }
        ]
    }

    function test_tolerance(data) {
        const info = Score.evInfo([data.best, data.chosen], 1)
        compare(Score.isMistake(info, 1e-6, 0.01), data.mistake)
        fuzzyCompare(info.evLoss, data.best - data.chosen, 1e-12)
        compare(info.bestIndex, 0)
    }

    function test_the_best_of_known_evs_data() {
        return [
            { tag: "first of equals", evs: [1, 3, 3], chosen: 2, best: 1 },
            { tag: "chosen is best", evs: [1, 2, 3], chosen: 2, best: 2 },
            { tag: "unknown others", evs: [NaN, Infinity, 3, -1], chosen: 3, best: 2 },
            { tag: "chosen unknown", evs: [1, NaN], chosen: 1, best: -1 },
            { tag: "out of range", evs: [1], chosen: 4, best: -1 },
            { tag: "no EVs", evs: undefined, chosen: 0, best: -1 }
        ]
    }

    function test_the_best_of_known_evs(data) {
        const info = Score.evInfo(data.evs, data.chosen)
        compare(info ? info.bestIndex : -1, data.best)
        verify(!Score.isMistake(null, 0, 0))
    }

    function test_evs_are_found_in_both_orders() {
        const evs = Score.evsByCards([{ c1: "2c", c2: "Ah", actionEvs: [1, 2] }])
        compare(evs["2cAh"], [1, 2])
        compare(evs["Ah2c"], [1, 2])
        compare(evs["AhAd"], undefined)
    }

    /// Every pocket of a suit-rich range, with some that can't be dealt.
    function combos(ranks: string): var {
        const cards = []
        for (const rank of ranks)
            for (const suit of "cdhs")
                cards.push(rank + suit)
        const list = [{ c1: "Zz", c2: "Ah", weight: 1 }, { c1: "Ah", c2: "Ah", weight: 1 }, { c1: "2c", c2: "2d", weight: NaN }]
        for (let i = 0; i < cards.length; ++i)
            for (let j = 0; j < i; ++j)
                list.push({ c1: cards[j], c2: cards[i], weight: (i + j) % 7 === 0 ? 0 : 1 + i % 3 })
        return list
    }

    function test_ten_thousand_deals_never_collide() {
        const random = Random.seeded(7)
        const [oop, ip] = [combos("AKQ"), combos("QJA")]
        const board = "AsQd2hKc"
        const counts = {}
        for (let deal = 0; deal < 10000; ++deal) {
            const hands = Deal.dealHands(oop, ip, board, random)
            const out = hands.oop.concat(hands.ip, ["As", "Qd", "2h", "Kc"])
            if (new Set(out).size !== 8)
                fail("collision: " + out.join(" "))
            const key = hands.oop.join("")
            counts[key] = (counts[key] ?? 0) + 1
        }
        // OOP is dealt from its own weights, whatever IP holds.
        const eligible = Deal.eligibleCombosForDeal(oop, ["As", "Qd", "2h", "Kc"])
        const total = eligible.reduce((sum, combo) => sum + combo.weight, 0)
        compare(Object.keys(counts).length, eligible.length)
        for (const combo of eligible) {
            const expected = 10000 * combo.weight / total
            verify(Math.abs(counts[combo.c1 + combo.c2] - expected) < 5 * Math.sqrt(expected), combo.c1 + combo.c2)
        }
    }

    function test_a_seat_without_a_hand_stays_empty() {
        const none = [{ c1: "Ah", c2: "Kh", weight: 0 }, { c1: "2c", c2: "3c", weight: 1 }]
        compare(Deal.dealHands(none, none, "2cQd2h", Random.seeded(1)), { oop: [], ip: [] })
        compare(Deal.dealHands(undefined, none, "Qd2h9s", Random.seeded(1)), { oop: [], ip: ["2c", "3c"] })
    }

    function test_draws_data() {
        return [
            { tag: "first", weights: [1, 3], at: 0, index: 0 }, { tag: "edge", weights: [1, 3], at: 0.25, index: 1 },
            { tag: "last", weights: [1, 3, 0], at: 0.9999999, index: 1 }, { tag: "zero first", weights: [0, 2], at: 0, index: 1 },
            { tag: "bad weights", weights: [NaN, -2, undefined, 1], at: 0.5, index: 3 },
            { tag: "none", weights: [0, NaN], at: 0.5, index: -1 }, { tag: "empty", weights: [], at: 0.5, index: -1 }
        ]
    }

    function test_draws(data) {
        compare(Deal.pickWeightedIndex(data.weights, () => data.at), data.index)
    }

    function test_actions_and_cards_are_drawn() {
        const actions = [{ frequency: 0 }, { frequency: 0 }]
        compare(Deal.pickWeightedActionIndex(actions, () => 0.75), 1)
        compare(Deal.pickWeightedActionIndex([], () => 0.75), -1)
        const cards = [{ frequency: 0.5 }, { frequency: 0.25 }, { frequency: 0.25 }]
        compare(Deal.pickChanceIndex(cards, ["Kd", "4h", "Check"], ["Kd"], () => 0.9), 1)
        compare(Deal.pickChanceIndex(cards, ["Kd", "4h", "5s"], ["Kd", "4h", "5s"], () => 0.9), -1)
    }

    function test_suits_trade_places() {
        // Clubs were picked where the tree has diamonds: from there on each stands for the other.
        const suits = Walk.shownSuits([{ name: "9d", shown: "9c" }, { name: "2h", shown: "2h" }])
        compare(["Ad", "Ac", "Ah", "As", ""].map(card => Walk.shownCard(card, suits)), ["Ac", "Ad", "Ah", "As", ""])
        compare(["Ad", "Ac", "Ah", "As", ""].map(card => Walk.treeCard(card, suits)), ["Ac", "Ad", "Ah", "As", ""])
        // A second pick: what the tree calls diamonds shows as clubs, and hearts as spades.
        const twice = Walk.shownSuits([{ name: "9d", shown: "9c" }, { name: "2h", shown: "2s" }])
        compare(["Ad", "Ac", "Ah", "As"].map(card => Walk.shownCard(card, twice)), ["Ac", "Ad", "As", "Ah"])
        compare(Walk.chanceIndexByCard([{ name: "8d" }, { name: "8h" }], twice), { "8c": 0, "8s": 1 })
        compare(Walk.shownCombos([{ c1: "Ad", c2: "9h", weight: 1 }], twice), [{ c1: "Ac", c2: "9s", weight: 1 }])
        const combos = [{ c1: "Ad", c2: "9h" }]
        verify(Walk.shownCombos(combos, Walk.shownSuits([])) === combos)
    }

    function entry(fields: var): var {
        return Object.assign(Hand.logEntry({
            time: "12:00", board: "QsJh2h9c3d", role: "OOP", oop: "AhKh", ip: "QdQc", line: "OOP: Check", endedReason: "terminal",
            meta: { pot: 250, investedOop: 75, investedIp: 75 }
        }), fields)
    }

    function winner(board: string, oop: string, ip: string): string {
        return board === "QsJh2h9c3d" && oop === "AhKh" && ip === "QdQc" ? "IP" : "UNKNOWN"
    }

    function test_winner_won_and_rake_data() {
        return [
            { tag: "showdown", fields: {}, winner: "IP", won: "175", rake: "0" },
            { tag: "a fold", fields: { line: "OOP: Bet 50% → IP: Fold", investedIp: 25 }, winner: "OOP", won: "175", rake: "0" },
            { tag: "the user's own fold", fields: { line: "OOP: Check → IP: All-in → OOP: Fold", investedIp: 100 }, winner: "IP", won: "150", rake: "0" },
            { tag: "an unfinished board", fields: { board: "QsJh2h9c" }, winner: "—", won: "—", rake: "0" },
            { tag: "an unknown hand", fields: { oop: "" }, winner: "—", won: "—", rake: "0" },
            { tag: "no winner", fields: { oop: "ZzKh" }, winner: "—", won: "—", rake: "0" },
            { tag: "rake", fields: {}, percent: 5, cap: 0, winner: "IP", won: "175", rake: "13" },
            { tag: "rake under a cap", fields: {}, percent: 5, cap: 3, winner: "IP", won: "175", rake: "3" },
            { tag: "no pot", fields: { pot: NaN }, percent: 5, cap: 3, winner: "IP", won: "—", rake: "—" },
            { tag: "a tie", fields: {}, tie: true, winner: "TIE", won: "0", rake: "0" }
        ]
    }

    function test_winner_won_and_rake(data) {
        const details = Hand.buildPlayHandDetails(entry(data.fields), data.percent ?? 0, data.cap ?? 0,
                                                  data.tie ? () => "TIE" : winner)
        compare([details.winner, details.won, details.rake], [data.winner, data.won, data.rake])
        verify(!details.isMistake)
    }

    function test_details_by_street() {
        const details = Hand.buildPlayHandDetails(entry({
            line: "OOP: Check → IP: Bet 33% → OOP: Call → Chance: 9c → OOP: Check → IP: Check → Chance: 3d → OOP: Bet 75%"
        }), 0, 0, winner)
        compare(details.actions, [["OOP: Check", "IP: Bet 33%", "OOP: Call"], ["OOP: Check", "IP: Check"], ["OOP: Bet 75%"]])
        compare(details.flop, ["Qs", "Jh", "2h"])
        compare([details.turn, details.river], ["9c", "3d"])
        compare([details.oop, details.ip], [["Ah", "Kh"], ["Qd", "Qc"]])
        // A hand that ended on the turn, and spots that start there and on the river.
        compare(Hand.actionsByStreet("OOP: Check → IP: Check → Chance: 9c → OOP: Check", "QsJh2h9c"),
                [["OOP: Check", "IP: Check"], ["OOP: Check"], []])
        compare(Hand.actionsByStreet("OOP: Check → Chance: 3d", "QsJh2h9c3d"), [[], ["OOP: Check"], []])
        compare(Hand.actionsByStreet("OOP: Check", "QsJh2h9c3d"), [[], [], ["OOP: Check"]])
        compare(Hand.actionsByStreet("", ""), [[], [], []])
    }

    function test_a_mistake_in_the_log() {
        const made = Hand.logEntry({
            time: "", board: "", role: "IP", oop: "AhKh", ip: "QdQc", line: "", endedReason: "suboptimal", meta: {},
            mistake: { actor: "IP", action: "Call", chosenIndex: 1, correctAction: "Fold", info: Score.evInfo([0, -2.5], 1) }
        })
        compare([made.isMistake, made.evLoss, made.bestEv, made.chosenEv], [true, 2.5, 0, -2.5])
        compare([made.mistakeActor, made.chosenActionIndex, made.correctActionIndex], ["IP", 1, 0])
        compare(Hand.heroHand(made), "QdQc")
        verify(isNaN(made.pot))
        const details = Hand.buildPlayHandDetails(made, 0, 0, winner)
        compare([details.evLost, details.incorrect, details.correct], ["2.500", "Call", "Fold"])
        compare(Hand.lastActionOf("OOP", "OOP: Check → IP: Bet 33% → OOP: Raise 60%"), "Raise 60%")
        compare(Hand.lastActionOf("IP", "OOP: Check"), "")
    }

    function test_figures_on_home_data() {
        return [
            { tag: "nothing", stats: {}, shown: ["0 / 0", "— / —", "— / —"] },
            { tag: "none today", stats: { todayHands: 0, totalHands: 15, todayAccuracyPct: 0, totalAccuracyPct: 86.67, totalAvgEvLoss: 0.1234 },
              shown: ["0 / 15", "— / 87", "— / 0.123"] },
            { tag: "both", stats: { todayHands: 2, totalHands: 4, todayAccuracyPct: 50, totalAccuracyPct: 75, todayAvgEvLoss: 1, totalAvgEvLoss: NaN },
              shown: ["2 / 4", "50 / 75", "1.000 / —"] }
        ]
    }

    function test_figures_on_home(data) {
        compare([Stats.handsText(data.stats), Stats.accuracyText(data.stats), Stats.evLossText(data.stats)], data.shown)
    }

    function test_calendar() {
        const days = ["2025-12-29", "2025-12-30", "2025-12-31", "2026-01-01", "2026-01-02", "2026-01-03", "2026-01-04"]
        const cells = days.map((date, index) => ({ date: date, isPadding: false, isFuture: index > 4, solves: index, avgIterations: 99.6, avgExploitability: 0.12345 }))
        compare(Activity.monthLabelForWeek(cells, 0), "Jan")
        compare(Activity.monthLabelForWeek([{ isPadding: true, date: "2026-02-01" }], 0), "")
        compare(Activity.monthLabelForWeek([], 0), "")
        compare([Activity.weekCount([]), Activity.weekCount({ length: 364 })], [1, 52])
        compare([Activity.cellSide(1400, 52), Activity.cellSide(300, 52)], [26, 14])
        compare([0, 1, 2, 3, 5, -1, "x"].map(solves => Activity.level({ solves: solves })), [0, 1, 2, 3, 3, 0, 0])
        compare(Activity.describe(cells[5]), "2026-01-03 (future)\nSolves: 5\nAvg iters: 100\nAvg expl: 0.1235")
        compare([[0, 0], [0, 25], [19, 139], [20, 0], [0, 140], [-1, 0]].map(p => Activity.indexAt(cells, 20, p[0], p[1])), [0, 1, 6, -1, -1, -1])
        compare([Activity.moved(cells, 3, 7), Activity.moved(cells, 3, -1)], [3, 2])
    }
}

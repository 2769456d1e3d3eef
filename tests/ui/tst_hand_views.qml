import QtQuick
import QtTest
import Velmora
import "../../qml/results/hand_views.js" as HandViews
import "../../qml/results/tree_walk.js" as Walk

TestCase {
    name: "HandViews"

    function test_evs_around_fold_data() {
        const fold = { name: "Fold", actionType: "fold" }
        const call = { name: "Call", actionType: "call" }
        return [
            { tag: "fold first", actions: [fold, call], evs: [-12.5, -10], shown: [0, 2.5] },
            { tag: "fold last", actions: [call, fold], evs: [3, -1], shown: [4, 0] },
            { tag: "fold by name", actions: [{ name: "FOLD", actionType: "" }, call], evs: [-1, 1], shown: [0, 2] },
            { tag: "no fold", actions: [call, call], evs: [-12.5, -10], shown: [-12.5, -10] },
            { tag: "fold unknown", actions: [fold, call], evs: [NaN, 1], shown: [NaN, 1] },
            { tag: "another unknown", actions: [fold, call], evs: [-1, null], shown: [0, null] }
        ]
    }

    function test_evs_around_fold(data) {
        compare(HandViews.evsAroundFold(data.evs, data.actions), data.shown)
    }

    function test_locks_preview_data() {
        return [
            { tag: "three actions", lock: { actionIndex: 1, actionProb: 0.7 }, count: 3, shown: [0.15, 0.7, 0.15] },
            { tag: "one action", lock: { actionIndex: 0, actionProb: 0.3 }, count: 1, shown: [1] },
            { tag: "too much", lock: { actionIndex: 0, actionProb: 7 }, count: 2, shown: [1, 0] },
            { tag: "no number", lock: { actionIndex: 0, actionProb: NaN }, count: 2, shown: [1, 0] },
            { tag: "no such action", lock: { actionIndex: 2, actionProb: 1 }, count: 2, shown: [0.5, 0.5] }
        ]
    }

    function test_locks_preview(data) {
        const before = { AKs: [0.5, 0.5], QQ: [1, 0] }
        const after = HandViews.withLocks(before, { AKs: data.lock }, data.count)
        compare(after.AKs.length, data.shown.length)
        data.shown.forEach((value, index) => fuzzyCompare(after.AKs[index], value, 1e-12))
        compare(after.QQ, [1, 0])
        compare(before.AKs, [0.5, 0.5])
    }

    function test_search_data() {
        return [
            { tag: "JcJd", hits: ["JcJd"] }, { tag: "jdjc", hits: ["JcJd"] },
            { tag: "KA", hits: ["AsKs", "AsKd"] }, { tag: "AKs", hits: ["AsKs"] }, { tag: "KAo", hits: ["AsKd"] },
            { tag: "JJ", hits: ["JcJd"] }, { tag: "AKs, JJ", hits: ["AsKs", "JcJd"] },
            { tag: "AK+", hits: [] }, { tag: "JJs", hits: [] }, { tag: "JxJd", hits: [] }, { tag: "A", hits: [] },
            { tag: "  ", hits: ["AsKs", "AsKd", "JcJd"] }
        ]
    }

    function test_search(data) {
        const combos = [["As", "Ks"], ["As", "Kd"], ["Jc", "Jd"]].map(cards => ({ c1: cards[0], c2: cards[1], weight: 1, buckets: [] }))
        const filters = { boardCards: 3, handClass: "", bucket: "", search: data.tag }
        compare(HandViews.visibleHandCombos(combos, filters).map(combo => combo.c1 + combo.c2), data.hits)
    }

    function test_filters_combine() {
        const combos = [
            { c1: "As", c2: "Ks", weight: 1, buckets: ["flush"] }, { c1: "Ah", c2: "Kh", weight: 1, buckets: [] },
            { c1: "Qs", c2: "Js", weight: 1, buckets: ["flush"] }, { c1: "2s", c2: "3s", weight: 1e-12, buckets: ["flush"] }
        ]
        const visible = (boardCards, handClass, bucket) =>
            HandViews.visibleHandCombos(combos, { boardCards: boardCards, handClass: handClass, bucket: bucket, search: "" }).length
        compare(visible(3, "", ""), 4)
        compare(visible(4, "", ""), 3)
        compare(visible(4, "AKs", ""), 2)
        compare(visible(4, "AKs", "flush"), 1)
        compare(visible(3, "", "flush"), 3)
    }

    function test_labels() {
        compare(["KsAs", "AhKs", "TcTd", "AsAs", "Ax2c"].map(hand => HandText.handClassFromCards(hand.slice(0, 2), hand.slice(2))),
                ["AKs", "AKo", "TT", "", ""])
        compare([0, 1, 13, 14, 168].map(cell => HandText.labels[cell]), ["AA", "AKs", "AKo", "KK", "22"])
        compare(new Set(HandText.labels).size, 169)
    }

    function test_chance_cards_data() {
        return [
            { tag: "listed", card: "Kd", board: "QsJh2h", index: 0 },
            { tag: "the other absent suit", card: "Kc", board: "QsJh2h", index: 0 },
            { tag: "a suit of the board", card: "Ks", board: "QsJh2h", index: -1 },
            { tag: "one suit absent", card: "Kc", board: "QsJh2d", index: -1 },
            { tag: "on the board in place of another", card: "Kd", board: "QsJh2hKd", index: -1 },
            { tag: "rank not listed", card: "3c", board: "QsJh2h", index: -1 }
        ]
    }

    function test_chance_cards(data) {
        const byCard = Walk.chanceIndexByCard([{ name: "Kd" }, { name: "Check" }, { name: "4h" }], Walk.shownSuits([]))
        compare(byCard, { Kd: 0, "4h": 2 })
        compare(Walk.chanceCardIndexForSelection(data.card, byCard, data.board), data.index)
    }

    function test_board_of_a_walk() {
        compare(Walk.boardWithCards(" Qs Jh2h ", ["kD", "3C"]), "QsJh2hKd3c")
        compare(["Kd", "Bet 33%", "xx", "Td"].map(Walk.isCardName), [true, false, false, true])
    }

    function test_chips() {
        const meta = { player: "IP", effectiveStack: 200, investedOop: 50, investedIp: 10 }
        compare(HandViews.stackRemaining(meta), 190)
        compare(HandViews.toCallAmount(meta), 40)
        compare(HandViews.toCallAmount(Object.assign({}, meta, { player: "OOP" })), 0)
        compare(HandViews.stackRemaining({}), 0)
        compare(["0.5", "0,25", "7", "x", ""].map(HandViews.parseLockWeight), [0.5, 0.25, 1, 1, 1])
    }
}

import QtTest
import "../../qml/logic/hand_grid.js" as HandGrid
import "../../qml/logic/range_text.js" as RangeText

TestCase {
    name: "RangeText"

    function test_grid_labels() {
        compare(HandGrid.label(0, 1), "AKs")
        compare(HandGrid.label(1, 0), "AKo")
        compare(new Set(HandGrid.LABELS).size, 169)
        for (let i = 0; i < 169; ++i)
            compare(HandGrid.indexOf(HandGrid.label(Math.floor(i / 13), i % 13)), i)
    }

    function test_expand() {
        const expected = {
            "99-77": "99,88,77", "77-99": "77,88,99", "22-22": "22", "99-XX": "99",
            "A5s-A2s": "A5s,A4s,A3s,A2s", "a2S-a4s": "A2s,A3s,A4s", "A5s-A1s": "A5s",
            "54s-98s": "54s", "A5s-A2o": "A5s", "JJ+": "JJ,QQ,KK,AA", "AA+": "AA", "xx+": "xx",
            "ATs+": "ATs,AJs,AQs,AKs", "k9O+": "K9o,KTo,KJo,KQo", "98s+": "98s", "76s+": "76s",
            "A1s+": "A1s", "89s+": "89s", "ak": "AKs,AKo", "tt": "TT", "aKS": "AKs", "AsKs": "AsKs", "A8+": "A8+"
        }
        for (const expression in expected)
            compare(RangeText.expandHand(expression).join(), expected[expression], expression)
    }

    function test_weights() {
        const expected = {
            "": "", " \n": "", "AA:0.5, AA": "AA 1", "AA, AA:0.5": "AA 0.5", "AA:abc": "AA 1", "AA:": "AA 1",
            "AK:2": "AKo 1,AKs 1", "AA:-1": "AA 0", "QQ+:.25\tA": "AA 0.25,KK 0.25,QQ 0.25", "AA 7 KK": "AA 1,KK 1"
        }
        for (const text in expected) {
            const weights = RangeText.parseRangeWeights(text)
            compare(Object.keys(weights).sort().map(hand => hand + " " + weights[hand]).join(), expected[text], text)
        }
        const percentages = { "50%": 0.5, " 12.5 % ": 0.125, "0%": 0 }
        for (const text in percentages) {
            const weights = RangeText.parseRangeWeights(text)
            verify(HandGrid.LABELS.every(label => weights[label] === percentages[text]), text)
        }
    }

    function test_toggle_data() {
        return [
            { tag: "half weight", text: "AA", hand: "88", weight: 0.5, expected: "AA, 88:0.5" },
            { tag: "three decimals", text: "", hand: "88", weight: 0.33333, expected: "88:0.333" },
            { tag: "nearly full", text: "AA", hand: "88", weight: 0.9995, expected: "AA, 88" },
            { tag: "above 1", text: "AA", hand: "88", weight: 7, expected: "AA, 88" },
            { tag: "no number", text: "AA", hand: "88", weight: NaN, expected: "AA, 88" },
            { tag: "separators", text: "AA KK\nQQ,,JJ", hand: "88", weight: 1, expected: "AA, KK, QQ, JJ, 88" },
            { tag: "onto a percentage", text: "0%", hand: "AKs", weight: 0.5, expected: "AKs:0.5" },
            { tag: "off a percentage", text: "100%", hand: "AKs", current: 1, expected: "" },
            { tag: "whole plus token", text: "22+, AKs", hand: "77", current: 1, expected: "AKs" },
            { tag: "whole dash token", text: "KK A5s-A2s:0.5", hand: "A3s", current: 0.5, expected: "KK" },
            { tag: "both suits", text: "AK, AA", hand: "AKo", current: 1, expected: "AA" },
            { tag: "all of a hand", text: "foo, AA, KK, AA:0.5", hand: "AA", current: 0.5, expected: "foo, KK" }
        ]
    }

    function test_toggle(data) {
        compare(RangeText.toggleHand(data.text, data.hand, data.current ?? 0, data.weight), data.expected)
    }

    function test_import() {
        const expected = {
            "AA, KK, QQ:0.5": "AA:0.5, KK:0.5, QQ:0.5", "AA:0.5\r\nKK\rQQ": "AA:0.5, KK, QQ",
            "AA KK :0.25": "AA:0.25, KK:0.25", "AA:x KK": "AA, KK", "AA:3 KK:-1": "AA, KK:0",
            "ak:0.3336": "ak:0.334", "# my range\n- 100": "", "hero: AsKs AA": "AA"
        }
        for (const text in expected)
            compare(RangeText.normalizeImportedRangeText(text), expected[text], text)
    }
}

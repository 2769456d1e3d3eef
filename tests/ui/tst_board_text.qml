import QtTest
import Velmora

TestCase {
    name: "BoardText"

    function test_reading_data() {
        return [
            { tag: "flop", text: "AhKd2c", used: "Ah,Kd,2c", street: "flop" },
            { tag: "any case, spaces", text: " aH kD\t2c tS ", used: "Ah,Kd,2c,Ts", street: "turn" },
            { tag: "river", text: "AhKd2cTs9s", used: "Ah,Kd,2c,Ts,9s", street: "river" },
            { tag: "turn first", text: "______Kd", used: "Kd", street: "flop" },
            { tag: "gap", text: "Ah__2cTs9s", used: "Ah,2c,Ts,9s", street: "turn" },
            { tag: "two cards", text: "AhKd", used: "Ah,Kd", street: "flop" },
            { tag: "odd length", text: "AhKd2cT", used: "Ah,Kd,2c", street: "flop" },
            { tag: "no rank", text: "AhKd1c", used: "Ah,Kd", street: "flop" },
            { tag: "six cards", text: "AhKd2cTs9s8s", used: "Ah,Kd,2c,Ts,9s,8s", street: "river" }
        ]
    }

    function test_reading(data) {
        compare(BoardText.usedCards(data.text).join(), data.used)
        compare(BoardText.inferStreet(data.text), data.street)
    }

    function test_slots() {
        compare(["kD", "1c", "K", "Kdx", ""].map(card => BoardText.normalizeCard(card)), ["Kd", "", "", "", ""])
        compare(BoardText.shownCards("__kDXxAh"), ["", "Kd", "", "Ah", ""])
        compare(BoardText.shownCards("AhKd2cTs9s8s").length, 5)
        compare(BoardText.setCardAt("", 3, "Kd"), "______Kd")
        compare(BoardText.setCardAt("Ah__2c", 1, "Qd"), "AhQd2c")
        compare(BoardText.setCardAt("Ah__2c", 2, ""), "Ah")
        compare(BoardText.setCardAt("__Kd", 1, ""), "")
        compare(BoardText.clearFrom("AhKd2cTs9s", 1), "Ah")
        compare(BoardText.clearFrom("Ah__2c", 2), "Ah")
        compare(BoardText.clearFrom("AhKd2c", 0), "")
    }
}

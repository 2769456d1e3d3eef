import QtTest
import "../../qml/components/board_text.js" as BoardText

TestCase {
    name: "BoardText"

    function test_reading_data() {
        return [
            { tag: "flop", text: "AhKd2c", used: "Ah,Kd,2c", street: "flop", valid: true },
            { tag: "any case, spaces", text: " aH kD\t2c tS ", used: "Ah,Kd,2c,Ts", street: "turn", valid: true },
            { tag: "river", text: "AhKd2cTs9s", used: "Ah,Kd,2c,Ts,9s", street: "river", valid: true },
            { tag: "turn first", text: "______Kd", used: "Kd", street: "flop", valid: false },
            { tag: "gap", text: "Ah__2cTs9s", used: "Ah,2c,Ts,9s", street: "turn", valid: false },
            { tag: "two cards", text: "AhKd", used: "Ah,Kd", street: "flop", valid: false },
            { tag: "odd length", text: "AhKd2cT", used: "Ah,Kd,2c", street: "flop", valid: false },
            { tag: "no rank", text: "AhKd1c", used: "Ah,Kd", street: "flop", valid: false },
            { tag: "six cards", text: "AhKd2cTs9s8s", used: "Ah,Kd,2c,Ts,9s,8s", street: "river", valid: false }
        ]
    }

    function test_reading(data) {
        compare(BoardText.usedCards(data.text).join(), data.used)
        compare(BoardText.inferStreet(data.text), data.street)
        compare(BoardText.validBoard(data.text), data.valid)
    }

    function test_slots() {
        compare(BoardText.boardCards("__ Kd"), ["", "Kd", "", "", ""])
        compare(BoardText.shownCards("__kDXxAh"), ["", "Kd", "", "Ah", ""])
        compare(BoardText.shownCards("AhKd2cTs9s8s").length, 5)
    }

    function test_writing() {
        compare(BoardText.setCardAt("", 3, "Kd"), "______Kd")
        compare(BoardText.setCardAt("Ah__2c", 1, "Qd"), "AhQd2c")
        compare(BoardText.setCardAt("Ah__2c", 2, ""), "Ah")
        compare(BoardText.setCardAt("__Kd", 1, ""), "")
        compare(BoardText.clearFrom("AhKd2cTs9s", 1), "Ah")
        compare(BoardText.clearFrom("Ah__2c", 2), "Ah")
        compare(BoardText.clearFrom("AhKd2c", 0), "")
    }
}

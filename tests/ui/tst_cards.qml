import QtQuick
import QtTest
import Velmora

TestCase {
    id: test

    name: "Cards"
    when: windowShown
    visible: true
    width: 600
    height: 300

    Theme {
        id: plain
    }

    SignalSpy {
        id: spy
    }

    /// Makes an item of a type, whose signal the spy records.
    function make(type, signalName, properties) {
        const item = createTemporaryQmlObject("import Velmora; " + type + " {}", test)
        Object.assign(item, { theme: plain }, properties)
        spy.target = null
        spy.signalName = signalName
        spy.target = item
        spy.clear()
        return item
    }

    /// The first arguments of the recorded signals.
    function signalled() {
        return spy.signalArguments.map(call => call[0]).join()
    }

    /// The visible items under `item` that have a property, in layout order.
    function found(item, property) {
        const result = []
        for (let i = 0; i < item.children.length; ++i) {
            const child = item.children[i]
            if (child.visible)
                result.push(...(child[property] === undefined ? [] : [child]), ...found(child, property))
        }
        return result
    }

    function test_card_faces_data() {
        return [
            { tag: "up", set: { rank: "T", suit: "h" }, ground: "cardFace", name: "Ten of hearts", texts: "T♥♥T♥" },
            { tag: "mini", set: { rank: "T", suit: "h", mini: true }, ground: "cardFace", name: "Ten of hearts", texts: "T♥" },
            { tag: "down", set: { rank: "A", suit: "s", faceDown: true }, ground: "cardBack", name: "Face-down card", texts: "" },
            { tag: "no suit", set: { rank: "A" }, name: "Empty card slot", texts: "?" },
            { tag: "mini slot", set: { mini: true }, name: "Empty card slot", texts: "" }
        ]
    }

    function test_card_faces(data) {
        const card = make("PlayingCard", "clicked", data.set)
        compare(found(card, "text").map(child => child.text).join(""), data.texts)
        compare(card.Accessible.name, data.name)
        compare(card.width + card.height, data.set.mini ? 32 + 44 : 52 + 72)
        if (data.ground) {
            // A spot between the glyphs and off the lines of the back.
            const seen = grabImage(card).pixel(card.width - 5, card.mini ? 30 : 7)
            fuzzyCompare(seen.r, plain[data.ground].r, 0.03)
            fuzzyCompare(seen.b, plain[data.ground].b, 0.03)
        }
    }

    function test_card_reacts() {
        const card = make("PlayingCard", "clicked", { rank: "A", suit: "s", activeFocusOnTab: true })
        mouseClick(card)
        mouseMove(card, 20, 20)
        tryCompare(card, "scale", 1.05)
        card.forceActiveFocus()
        keyClick(Qt.Key_Space)
        keyClick(Qt.Key_Return)
        compare(spy.count, 3)
        card.disabled = true
        mouseClick(card)
        keyClick(Qt.Key_Space)
        compare(spy.count, 3)
        tryCompare(card, "scale", 1)
    }

    function test_board_data() {
        return [
            { tag: "river", set: { boardText: "ah kd 2c ts 9s", editable: true }, street: "River", shown: "Ah Kd 2c Ts 9s", clicked: "0,1,2,3,4" },
            { tag: "second slot", set: { boardText: "__Kd", editable: true }, street: "Preflop", shown: " Kd   ", clicked: "0,1,2,3" },
            { tag: "turn first", set: { boardText: "______Kd", editable: true }, street: "Preflop", shown: "   Kd ", clicked: "0,1,2,3,4" },
            { tag: "no card", set: { boardText: "AhXxK", editable: true }, street: "Preflop", shown: "Ah    ", clicked: "0,1,2,3" },
            { tag: "some slots", set: { editable: true, clickableIndices: [1, 3, 4] }, street: "Preflop", shown: "    ", clicked: "1,3" },
            { tag: "for show", set: { boardText: "AhKd2cTs" }, street: "Turn", shown: "Ah Kd 2c Ts ", clicked: "" },
            { tag: "empty", set: {}, street: "Preflop", shown: " ", clicked: "" },
            { tag: "compact", set: { boardText: "AhKd2c", compact: true }, shown: "Ah Kd 2c", clicked: "" },
            { tag: "compact, first empty", set: { boardText: "__Kd", compact: true }, shown: "", clicked: "" },
            { tag: "compact, editable", set: { compact: true, editable: true }, shown: "    ", clicked: "0,1,2,3" }
        ]
    }

    function test_board(data) {
        const board = make("BoardDisplay", "cardClicked", data.set)
        const cards = found(board, "faceDown")
        compare(cards.map(card => card.rank + card.suit).join(" "), data.shown)
        compare(found(board, "text").find(child => child.font.capitalization === Font.AllUppercase)?.text, data.street)
        waitForRendering(board)
        cards.forEach(card => mouseClick(card))
        compare(signalled(), data.clicked)
        spy.clear()
        for (const card of cards.filter(card => card.activeFocusOnTab)) {
            card.forceActiveFocus()
            keyClick(Qt.Key_Space)
        }
        compare(signalled(), data.clicked)
    }

    function test_picker() {
        const picker = make("CardPicker", "cardSelected", { usedCards: ["aH", "KD", "Qh"] })
        waitForRendering(picker)
        const tiles = {}
        found(picker, "card").forEach(tile => tiles[tile.card] = tile)
        compare(Object.keys(tiles).slice(11, 15).join(), "3s,2s,Ah,Kh")
        for (const card of ["Ah", "Kd", "Ts", "2c"])
            mouseClick(tiles[card])
        compare(signalled(), "Ts,2c")
        compare(tiles.Ah.opacity, 0.3)
        compare(tiles.Ah.Accessible.name, "Ace of hearts")
        mouseMove(tiles.Kh)
        tryCompare(tiles.Kh, "scale", 1.1)
        compare(tiles.Kh.border.color, plain.suitHearts)
        compare(tiles.As.ink, plain.text)
        plain.dark = false
        compare(tiles.As.ink, plain.suitSpades)
        plain.dark = true

        picker.forceActiveFocus()
        spy.clear()
        const keys = [Qt.Key_Up, Qt.Key_Space, Qt.Key_Right, Qt.Key_Right, Qt.Key_Down, Qt.Key_Return]
        keys.forEach(key => keyClick(key))
        compare(signalled(), "As,Qd")
        picker.usedCards = ["Qd"]
        keyClick(Qt.Key_Space)
        compare(spy.count, 2)
    }
}

.pragma library

/// The suits in the order in which they are listed, and their glyphs.
const SUITS = ["s", "h", "d", "c"]
const GLYPHS = { s: "♠", h: "♥", d: "♦", c: "♣" }

/// The glyph of a suit letter in either case; "" for anything else.
function suitGlyph(suit) {
    return GLYPHS[String(suit).toLowerCase()] ?? ""
}

/// A suit in words, in the language of the window.
function suitName(suit) {
    switch (String(suit).toLowerCase()) {
    case "s":
        return qsTr("spades")
    case "h":
        return qsTr("hearts")
    case "d":
        return qsTr("diamonds")
    case "c":
        return qsTr("clubs")
    default:
        return ""
    }
}

/// A rank in words, in the language of the window.
function rankName(rank) {
    switch (String(rank).toUpperCase()) {
    case "A":
        return qsTr("Ace")
    case "K":
        return qsTr("King")
    case "Q":
        return qsTr("Queen")
    case "J":
        return qsTr("Jack")
    case "T":
        return qsTr("Ten")
    case "9":
        return qsTr("Nine")
    case "8":
        return qsTr("Eight")
    case "7":
        return qsTr("Seven")
    case "6":
        return qsTr("Six")
    case "5":
        return qsTr("Five")
    case "4":
        return qsTr("Four")
    case "3":
        return qsTr("Three")
    case "2":
        return qsTr("Two")
    default:
        return ""
    }
}

/// A card in words for assistive tools, such as "Ten of hearts".
function cardName(rank, suit) {
    return qsTr("%1 of %2").arg(rankName(rank)).arg(suitName(suit))
}

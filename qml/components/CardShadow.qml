import QtQuick
import Velmora

/// The soft shadow that a playing card throws on what it lies on, laid out behind it. It is one picture
/// whose corners keep their size: a list has dozens of cards, and an effect for each is slow to make
/// and to draw.
BorderImage {
    property Theme theme: Style.theme

    /// How far the picture reaches beyond the card, and where its corners end.
    readonly property int reach: 13
    readonly property int corner: 25

    x: -reach
    y: 2 - reach
    z: -1
    width: parent.width + 2 * reach
    height: parent.height + 2 * reach
    opacity: theme.shadowOpacity
    source: "../assets/card_shadow.png"
    border.left: corner
    border.right: corner
    border.top: corner
    border.bottom: corner
}

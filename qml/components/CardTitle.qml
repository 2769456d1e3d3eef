import QtQuick
import QtQuick.Controls
import Velmora

/// The heading of a card.
Label {
    property Theme theme: Style.theme
    property Typography type: Style.type

    color: theme.text
    font.pixelSize: type.bodyLg
    font.weight: type.weightBold
    elide: Text.ElideRight
    Accessible.role: Accessible.Heading
}

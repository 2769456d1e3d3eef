import QtQuick
import Velmora
import "../logic/number_text.js" as NumberText

/// A value field for a number in a range. With no decimals it takes whole numbers only.
ValueField {
    id: root

    property real number: 0
    property real low: 0
    property real high: 100
    property int decimals: 0
    property real fallback: 0  ///< What a text that is no number means.

    signal numberCommitted(real number)

    value: NumberText.plain(number, decimals)
    horizontalAlignment: TextInput.AlignRight
    inputMethodHints: decimals > 0 ? Qt.ImhFormattedNumbersOnly : Qt.ImhDigitsOnly
    validator: RegularExpressionValidator {
        regularExpression: root.decimals > 0 ? new RegExp("\\d*(?:[.,]\\d{0," + root.decimals + "})?") : /\d*/
    }
    onCommitted: text => numberCommitted(NumberText.clamped(text, low, high, fallback))
}

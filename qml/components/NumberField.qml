import QtQuick
import Velmora
import "number_text.js" as NumberText

/// A value field for a number in a range, which hands over each keystroke that makes one. With no
/// decimals it takes whole numbers only. A text that is no such number changes nothing; it stands with
/// the reason until it is mended or taken back.
ValueField {
    id: root

    property real number: 0
    property real low: 0
    property real high: 100
    property int decimals: 0
    property real fallback: 0  ///< What an empty field means once it is left.
    /// What is wrong with the text that stands here. The owner keeps what `checked` says.
    property string inputFault: ""

    /// The number from before the typing that goes on, to go back to if it comes to nothing.
    property real _before: 0
    property bool _underWay: false

    readonly property string _rule: decimals > 0
        ? qsTr("Enter a number from %1 to %2 with at most %3 decimals.").arg(low).arg(high).arg(decimals)
        : qsTr("Enter a whole number from %1 to %2.").arg(low).arg(high)

    signal numberCommitted(real number)
    signal checked(string sentence)

    function _take(text: string) {
        if (!_underWay)
            _before = number
        _underWay = true
        const typedNumber = NumberText.parsed(text, decimals)
        const fits = typedNumber >= low && typedNumber <= high
        numberCommitted(fits ? typedNumber : _before)
        checked(fits ? "" : _rule)
    }

    /// A number out of range is held to it and an empty field gets its fallback; anything else stays.
    function _leave() {
        _underWay = false
        if (text === value)
            return
        const typedNumber = text.trim() === "" ? fallback : NumberText.parsed(text, decimals)
        if (isNaN(typedNumber))
            return
        numberCommitted(Math.max(low, Math.min(high, typedNumber)))
        checked("")
        showValue()
    }

    value: NumberText.plain(number, decimals)
    heldBack: inputFault !== ""
    fault: inputFault
    horizontalAlignment: TextInput.AlignRight
    inputMethodHints: decimals > 0 ? Qt.ImhFormattedNumbersOnly : Qt.ImhDigitsOnly
    onTyped: text => _take(text)
    onEditingFinished: _leave()
    onEnabledChanged: {
        if (!enabled)
            checked("")
    }
    onNumberChanged: {
        if (!_typing)
            _underWay = false
    }
    onInputFaultChanged: {
        if (inputFault === "" && !_typing)
            showValue()
    }
}

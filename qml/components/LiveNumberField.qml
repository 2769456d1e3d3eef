import QtQuick
import Velmora
import "../logic/number_text.js" as NumberText

/// A number field that hands over each keystroke that makes a number in its range.
NumberField {
    id: root

    onTextEdited: {
        const typed = NumberText.clamped(text, -Infinity, Infinity, NaN)
        if (typed >= low && typed <= high)
            numberCommitted(typed)
    }
}

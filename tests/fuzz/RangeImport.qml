import QtQml
import "../../qml/logic/hand_grid.js" as HandGrid
import "../../qml/logic/range_text.js" as RangeText

// What the window makes of an imported range file and of a text that somebody types.
QtObject {
    function _fault(what: string, text: string): string {
        return "fault: " + what + ": " + text
    }

    function _badWeights(text: string): string {
        const weights = RangeText.parseRangeWeights(text)
        for (const label in weights) {
            const weight = weights[label]
            // A percentage is taken as it stands: the solve refuses one above 100.
            if (typeof weight !== "number" || !(weight >= 0) || (weight > 1 && !RangeText.PERCENT.test(text)))
                return label
        }
        return ""
    }

    /// The normalised text, with the shape of what was read behind a line feed.
    function check(text: string): string {
        const normal = RangeText.normalizeImportedRangeText(text)
        for (const token of normal === "" ? [] : normal.split(", ")) {
            if (!/^[^,\s:]*[AKQJT98765432]{2}[^,\s:]*(:(0|1|0\.\d{1,3}))?$/i.test(token))
                return _fault("no token", token)
        }
        for (const range of [text, normal]) {
            const label = _badWeights(range)
            if (label !== "")
                return _fault("no weight", label)
        }
        for (const hand of ["AA", "AKs", "72o"]) {
            const added = RangeText.toggleHand(text, hand, 0, 0.5)
            if (RangeText.parseRangeWeights(added)[hand] !== 0.5)
                return _fault("not added", hand)
            if (RangeText.parseRangeWeights(RangeText.toggleHand(added, hand, 1, 1))[hand] !== undefined)
                return _fault("not removed", hand)
        }
        const weights = RangeText.parseRangeWeights(normal)
        const known = HandGrid.LABELS.filter(label => weights[label] !== undefined)
        return normal + "\n" + known.join()
    }
}

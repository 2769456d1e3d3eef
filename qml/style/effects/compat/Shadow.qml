import QtQuick
import Qt5Compat.GraphicalEffects

/// A soft shadow of a rounded rectangle. It is laid out as the sibling behind the item that throws
/// it, with the item's geometry, so that the item itself needs no layer and shows without shaders.
Item {
    id: root

    property color color: "black"
    property real radius: 0
    /// How far the shadow spreads, 0..1 of 32 pixels.
    property real blur: 0.5
    property real verticalOffset: 4

    RectangularGlow {
        width: root.width
        height: root.height
        y: root.verticalOffset
        glowRadius: 32 * root.blur
        spread: 0
        color: root.color
        cornerRadius: root.radius + glowRadius
        cached: false
    }
}

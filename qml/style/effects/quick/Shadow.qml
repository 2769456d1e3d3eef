import QtQuick
import QtQuick.Effects

/// A soft shadow of a rounded rectangle. It is laid out as the sibling behind the item that throws
/// it, with the item's geometry, so that the item itself needs no layer and shows without shaders.
Item {
    id: root

    property color color: "black"
    property real radius: 0
    /// How far the shadow spreads, 0..1 of 32 pixels.
    property real blur: 0.5
    property real verticalOffset: 4

    Rectangle {
        id: caster

        anchors.fill: parent
        radius: root.radius
        visible: false
    }

    MultiEffect {
        anchors.fill: parent
        source: caster
        autoPaddingEnabled: true
        shadowEnabled: true
        shadowColor: root.color
        shadowBlur: root.blur
        // A Gaussian is faint at its rim: it takes twice the radius to be seen as far.
        blurMax: 64
        shadowVerticalOffset: root.verticalOffset
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "hand_grid.js" as HandGrid

/// One hand of a matrix. Its fill covers the weight of the hand, from the left or from the bottom, in
/// one colour or split by action.
///
/// The fill is scaled to the weight and not clipped, so that the cells of a matrix are drawn in a few
/// batches and a new weight moves one item of a cell.
Item {
    id: root

    property Theme theme: Style.theme
    required property string label
    property color baseColor: theme.surface
    property color solidColor: theme.accent
    /// 0..1.
    property real weight: 0
    /// One probability for each of `segmentColors`; a list of any other length gives no split.
    property var probabilities: null
    property var segmentColors: []
    /// How many segments are kept ready, at least as many as there are colours.
    property int segmentCount: segmentColors.length
    property bool fillsFromBottom: false
    property bool hovered: false
    /// Whether base and border of a cell at rest are drawn elsewhere, for all cells at once.
    property bool grounded: false
    property bool labelShown: true
    property real labelPointSize: 10

    readonly property bool framed: hovered || scale > 1 || !grounded
    readonly property bool split: weight > 0 && segmentColors.length > 0
                                  && probabilities?.length === segmentColors.length
    readonly property var segmentEdges: split ? HandGrid.segmentEdges(probabilities) : []

    z: hovered ? 2 : scale > 1 ? 1 : 0
    scale: hovered ? 1.1 : 1

    Behavior on scale {
        NumberAnimation {
            duration: 80
            easing.type: Easing.OutCubic
        }
    }

    Rectangle {
        visible: root.framed
        anchors.fill: parent
        radius: root.theme.radiusXs
        color: root.baseColor
    }

    Item {
        id: mask

        x: 1
        y: 1
        width: root.width - 2
        height: root.height - 2
        visible: root.weight > 0
        transform: Scale {
            origin.y: mask.height
            xScale: root.fillsFromBottom ? 1 : root.weight
            yScale: root.fillsFromBottom ? root.weight : 1
        }

        Rectangle {
            visible: !root.split
            width: mask.width
            height: mask.height
            color: root.solidColor
        }

        Repeater {
            model: root.segmentCount

            Rectangle {
                required property int index

                x: mask.width * (root.segmentEdges[index] ?? 1)
                width: mask.width * (root.segmentEdges[index + 1] ?? 1) - x
                height: mask.height
                color: root.segmentColors[index] ?? "transparent"
            }
        }
    }

    Rectangle {
        visible: root.framed
        anchors.fill: parent
        radius: root.theme.radiusXs
        color: "transparent"
        border.color: root.hovered ? root.theme.strokeFocus : root.theme.strokeLight
        border.width: root.hovered ? 2 : 1
    }

    Text {
        anchors.centerIn: parent
        visible: root.labelShown || root.weight > 0
        text: root.label
        color: root.theme.text
        opacity: root.weight > 0 ? 1 : 0.6
        font.family: root.theme.monoFamily
        font.pointSize: root.labelPointSize
        font.weight: Font.Normal
        renderType: Text.NativeRendering
    }
}

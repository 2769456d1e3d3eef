pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "action_frequencies.js" as Frequencies

/// A rounded strip, split by share. It is made of rectangles that live on when the shares change: a
/// list has dozens of strips, and a canvas each would be painted anew with every step of a walk.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// Shares 0..1 of the width, and a colour for each.
    property list<real> shares
    property list<color> colors
    /// The index of a segment that is marked; -1 for none.
    property int marked: -1

    readonly property var _segments: Frequencies.segments(shares, width, height, radius)
    readonly property var _markedSegment: _segments.find(segment => segment.index === marked)
    /// The most segments so far.
    property int _segmentCount: 0

    radius: theme.radiusSm
    color: theme.surface2
    on_SegmentsChanged: _segmentCount = Math.max(_segmentCount, _segments.length)

    Repeater {
        model: root._segmentCount

        Item {
            id: segment

            required property int index
            readonly property var place: root._segments[index]
            readonly property real share: place ? root.shares[place.index] : 0

            x: place?.x ?? 0
            width: place?.width ?? 0
            height: root.height
            visible: place !== undefined

            // One rectangle has the round ends, the other covers those that are not.
            Rectangle {
                width: parent.width
                height: parent.height
                radius: Math.max(segment.place?.leftRadius ?? 0, segment.place?.rightRadius ?? 0)
                visible: radius > 0
                color: straight.color
            }

            Rectangle {
                id: straight

                x: segment.place?.leftRadius ?? 0
                width: Math.max(0, parent.width - x - (segment.place?.rightRadius ?? 0))
                height: parent.height
                color: root.colors[segment.place?.index ?? 0] ?? "transparent"
            }

            Text {
                anchors.centerIn: parent
                visible: segment.width > 35 && Math.round(segment.share * 100) > 0 && implicitWidth + 8 <= segment.width
                text: Frequencies.percentText(segment.share) + "%"
                color: root.theme.withOpacity("white", 0.92)
                font.family: root.theme.uiFamily
                font.pixelSize: 10
                font.bold: true
            }
        }
    }

    Rectangle {
        readonly property var place: root._markedSegment

        x: place ? place.x + place.leftRadius : 0
        y: root.height - 4
        width: place ? place.width - place.leftRadius - place.rightRadius : 0
        height: 2
        visible: place !== undefined
        color: root.theme.withOpacity("white", 0.92)
    }
}

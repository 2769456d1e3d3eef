pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "hand_grid.js" as HandGrid

/// The 169 starting hands as a grid: a range to paint on, or a strategy split by action.
Item {
    id: root

    property Theme theme: Style.theme
    /// The name that assistive tools read.
    property string label: qsTr("Hands")
    /// A map from label to weight 0..1; a missing hand is 0.
    property var weights: ({})
    /// A map from label to the fill colour of a hand without an action split.
    property var colors: ({})
    /// "horizontalSpan" fills cells from the left, "verticalFill" from the bottom.
    property string weightDisplayMode: "horizontalSpan"
    /// The colour keys of the actions of a split.
    property var actionTypes: []
    /// A map from label to a list of probabilities, aligned with `actionTypes`.
    property var actionProbs: ({})
    property bool editable: false
    property bool selectable: false
    property bool showLabels: true
    property real cellSize: 32
    property real cellSpacing: 2

    /// The cell 0..168 under the pointer and the one that the keyboard stands on; -1 for none.
    readonly property int hoveredIndex: pointer.containsMouse ? _indexAt(pointer.mouseX, pointer.mouseY) : -1
    property int currentIndex: 0

    readonly property real _step: cellSize + cellSpacing
    readonly property bool _active: editable || selectable
    readonly property var _segmentColors: Array.from(actionTypes ?? [], key => theme.withOpacity(theme.actionColor(key), 0.85))
    /// The most segments of a cell so far: they are kept, so that a walk through decisions with two
    /// to five actions builds no cell anew.
    property int _segmentCount: 0
    readonly property var _baseColors: Array.from(HandText.labels,
        hand => hand.length === 2 ? theme.surface3 : hand.endsWith("s") ? theme.surface2 : theme.surface)
    readonly property color _plainColor: theme.withOpacity(theme.accent, 0.8)

    signal handClicked(hand: string, currentWeight: real)
    signal handPainted(hand: string, desiredOn: bool, currentWeight: real)
    /// A drag over the cells, or a keystroke that painted one, is over.
    signal paintingEnded
    signal handHovered(hand: string, weight: real)

    /// The weight 0..1 of a hand.
    function weightOf(hand: string): real {
        const weight = Number(weights?.[hand])
        return weight > 0 ? Math.min(1, weight) : 0
    }

    function _indexAt(x: real, y: real): int {
        return HandGrid.cellAt(x, y, cellSize, cellSpacing)
    }

    function _reportHovered(index: int) {
        if (index >= 0)
            handHovered(HandText.labels[index], weightOf(HandText.labels[index]))
    }

    /// Asks for a hand to be on or off, if it is not so yet.
    function _paint(index: int, desiredOn: bool) {
        const hand = HandText.labels[index]
        const weight = weightOf(hand)
        if ((weight > 0) !== desiredOn)
            handPainted(hand, desiredOn, weight)
    }

    /// What a click on a cell means: to paint it over, or to choose it.
    function _activate(index: int) {
        const hand = HandText.labels[index]
        const weight = weightOf(hand)
        if (editable) {
            handPainted(hand, !(weight > 0), weight)
            paintingEnded()
        } else if (selectable) {
            handClicked(hand, weight)
        }
    }

    implicitWidth: _step * 13 - cellSpacing
    implicitHeight: implicitWidth
    activeFocusOnTab: _active

    Accessible.role: Accessible.Table
    Accessible.name: label
    Accessible.description: qsTr("%1, weight %2%").arg(HandText.labels[currentIndex])
        .arg(Math.round(weightOf(HandText.labels[currentIndex]) * 1000) / 10)
    Accessible.focusable: _active

    Keys.enabled: _active
    Keys.onLeftPressed: currentIndex = HandGrid.neighbour(currentIndex, 0, -1)
    Keys.onRightPressed: currentIndex = HandGrid.neighbour(currentIndex, 0, 1)
    Keys.onUpPressed: currentIndex = HandGrid.neighbour(currentIndex, -1, 0)
    Keys.onDownPressed: currentIndex = HandGrid.neighbour(currentIndex, 1, 0)
    Keys.onSpacePressed: _activate(currentIndex)
    Keys.onReturnPressed: _activate(currentIndex)
    Keys.onEnterPressed: _activate(currentIndex)

    onHoveredIndexChanged: _reportHovered(hoveredIndex)

    on_SegmentColorsChanged: _segmentCount = Math.max(_segmentCount, _segmentColors.length)

    HandGround {
        id: bases

        anchors.fill: parent
        cellSize: root.cellSize
        cellSpacing: root.cellSpacing
        fills: root._baseColors
    }

    Repeater {
        model: HandText.labels

        HandCell {
            required property int index
            required property string modelData

            label: modelData
            x: root._step * (index % 13)
            y: root._step * Math.floor(index / 13)
            width: root.cellSize
            height: root.cellSize
            baseColor: root._baseColors[index]
            solidColor: root.colors?.[modelData] ?? root._plainColor
            weight: root.weightOf(modelData)
            probabilities: root.actionProbs?.[modelData]
            segmentColors: root._segmentColors
            segmentCount: root._segmentCount
            fillsFromBottom: root.weightDisplayMode === "verticalFill"
            hovered: root.hoveredIndex === index
            grounded: bases.ready && borders.ready
            labelShown: root.showLabels
            labelPointSize: (root.cellSize > 28 ? Math.max(9, Math.min(14, root.cellSize / 4)) : 8) * 1.25
        }
    }

    HandGround {
        id: borders

        anchors.fill: parent
        cellSize: root.cellSize
        cellSpacing: root.cellSpacing
    }

    Item {
        x: root._step * (root.currentIndex % 13)
        y: root._step * Math.floor(root.currentIndex / 13)
        z: 3
        width: root.cellSize
        height: root.cellSize

        FocusRing {
            radius: root.theme.radiusXs + 3
            active: root.activeFocus
        }
    }

    MouseArea {
        id: pointer

        property int pressedIndex: -1
        property bool desiredOn: false
        property point last

        function press(x: real, y: real) {
            pressedIndex = root._indexAt(x, y)
            last = Qt.point(x, y)
            root._reportHovered(pressedIndex)
            root.forceActiveFocus(Qt.MouseFocusReason)
            if (pressedIndex < 0)
                return
            root.forceActiveFocus(Qt.MouseFocusReason)
            root.currentIndex = pressedIndex
            desiredOn = !(root.weightOf(HandText.labels[pressedIndex]) > 0)
            if (root.editable)
                root._paint(pressedIndex, desiredOn)
        }

        /// Paints the cells on the way to a point: a fast drag reports only some of its points.
        function drag(x: real, y: real) {
            const cells = HandGrid.cellsBetween(last.x, last.y, x, y, root.cellSize, root.cellSpacing)
            last = Qt.point(x, y)
            for (const cell of cells) {
                if (cell !== root.currentIndex) {
                    root.currentIndex = cell
                    root._paint(cell, desiredOn)
                }
            }
        }

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: root.editable
        acceptedButtons: root._active ? Qt.LeftButton : Qt.NoButton
        cursorShape: root._active && root.hoveredIndex >= 0 ? Qt.PointingHandCursor : Qt.ArrowCursor
        onPressed: mouse => press(mouse.x, mouse.y)
        onPositionChanged: mouse => {
            if (pressed && root.editable && pressedIndex >= 0)
                drag(mouse.x, mouse.y)
        }
        function end() {
            pressedIndex = -1
            if (root.editable)
                root.paintingEnded()
        }

        onReleased: end()
        onCanceled: end()
        onClicked: mouse => {
            if (!root.editable && root._indexAt(mouse.x, mouse.y) === root.currentIndex)
                root._activate(root.currentIndex)
        }
    }
}

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// A page whose rows stand under each other and scroll where the window is too small for them. It
/// never gets narrower than `minimumContentWidth`; below that it scrolls sideways.
FocusScope {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property real minimumContentWidth: 0
    property real margins: theme.spaceXl
    /// Whether the rows share the height of the page where they need less.
    property bool fillsHeight: false
    /// What of a row shows without scrolling sideways.
    readonly property real viewWidth: width - 2 * margins
    property alias spacing: column.spacing
    default property alias rows: column.data

    spacing: theme.spaceXl

    /// Moves the view by pixels, as far as there is content.
    function scrollBy(dx: real, dy: real) {
        flickable.contentX = Math.max(0, Math.min(flickable.contentWidth - flickable.width, flickable.contentX + dx))
        flickable.contentY = Math.max(0, Math.min(flickable.contentHeight - flickable.height, flickable.contentY + dy))
    }

    /// Brings an item into view, for one that got the focus by keyboard.
    function reveal(item: Item) {
        const place = item.mapToItem(flickable, 0, 0)
        const margin = root.theme.spaceLg
        const overlap = (start, size, view) => start < margin ? start - margin
            : Math.max(0, Math.min(start - margin, start + size + margin - view))
        scrollBy(overlap(place.x, item.width, flickable.width), overlap(place.y, item.height, flickable.height))
    }

    function _isBelow(item: Item): bool {
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === column)
                return true
        }
        return false
    }

    Keys.onPressed: event => {
        const page = event.key === Qt.Key_PageDown ? 1 : event.key === Qt.Key_PageUp ? -1 : 0
        if (page !== 0) {
            scrollBy(0, page * 0.9 * flickable.height)
            event.accepted = true
        }
    }

    Connections {
        function onActiveFocusItemChanged() {
            const item = root.Window.activeFocusItem
            if (item && root.visible && root._isBelow(item))
                root.reveal(item)
        }

        target: root.Window.window
    }

    Flickable {
        id: flickable

        anchors.fill: parent
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        contentWidth: Math.max(width, root.minimumContentWidth)
        contentHeight: column.height + 2 * root.margins
        // Dragging paints ranges; the wheel and the bars scroll.
        interactive: false

        ColumnLayout {
            id: column

            x: root.margins
            y: root.margins
            width: flickable.contentWidth - 2 * root.margins
            height: root.fillsHeight ? Math.max(implicitHeight, flickable.height - 2 * root.margins) : implicitHeight
        }

        ScrollBar.vertical: AppScrollBar {
            policy: flickable.contentHeight > flickable.height + 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        }
        ScrollBar.horizontal: AppScrollBar {
            policy: flickable.contentWidth > flickable.width + 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        }
    }

    // Above the rows, so that the page scrolls wherever the pointer is; what is under the pointer
    // gets the wheel as well, but for a sideways move.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton
        // A click beside a text field ends typing in it, whatever else the click does.
        onPressed: mouse => {
            const item = root.Window.activeFocusItem as TextInput
            if (item && root._isBelow(item) && !item.contains(mapToItem(item, mouse.x, mouse.y)))
                forceActiveFocus(Qt.MouseFocusReason)
            mouse.accepted = false
        }
        onWheel: wheel => {
            const delta = (wheel.angleDelta.y !== 0 ? wheel.angleDelta.y : wheel.angleDelta.x) / 2
            const sideways = (wheel.modifiers & Qt.ShiftModifier) !== 0
            root.scrollBy(sideways ? -delta : 0, sideways ? 0 : -delta)
            wheel.accepted = sideways
        }
    }
}

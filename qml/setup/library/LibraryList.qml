pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora

/// The rows of the library that a seat shows, by mouse and keyboard: the arrows move a cursor, Return
/// and Space do what a click does, Escape selects nothing.
ListView {
    id: root

    required property SeatLibrary library
    property string label: ""

    signal deletionWanted

    /// Lets the cursor stand on the selected row, and that row be seen.
    function _followSelection() {
        const index = library.rows.findIndex(row => row.id === library.selectedId)
        currentIndex = index >= 0 ? index : Math.min(Math.max(currentIndex, 0), count - 1)
        positionViewAtIndex(currentIndex, ListView.Contain)
    }

    function _activateCurrent() {
        if (currentIndex >= 0)
            library.activate(library.rows[currentIndex].id)
    }

    function _selectNothing() {
        library.selectedId = ""
        currentIndex = -1
    }

    /// Opens a closed folder, or closes an open one.
    function _setOpen(open: bool) {
        const row = library.rows[currentIndex]
        if (row?.kind === "folder" && row.open !== open)
            library.activate(row.id)
    }

    clip: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: true
    highlightFollowsCurrentItem: false
    model: library.rows
    Accessible.role: Accessible.Tree
    Accessible.name: label
    Accessible.description: currentItem ? (currentItem as LibraryRow).text : ""
    Keys.onReturnPressed: _activateCurrent()
    Keys.onEnterPressed: _activateCurrent()
    Keys.onSpacePressed: _activateCurrent()
    Keys.onRightPressed: _setOpen(true)
    Keys.onLeftPressed: _setOpen(false)
    Keys.onEscapePressed: _selectNothing()
    Keys.onDeletePressed: deletionWanted()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
            currentIndex = event.key === Qt.Key_Home ? 0 : count - 1
            event.accepted = true
        }
    }
    onModelChanged: _followSelection()
    onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)

    // Beside the rows a click selects nothing, so that what is saved next goes to the top level.
    TapHandler {
        onTapped: point => {
            if (root.indexAt(point.position.x, point.position.y + root.contentY) < 0)
                root._selectNothing()
        }
    }

    ScrollBar.vertical: AppScrollBar {
    }

    delegate: LibraryRow {
        required property int index
        required property var modelData

        width: ListView.view.width
        entry: modelData
        selected: modelData.id === root.library.selectedId
        focused: root.activeFocus && ListView.isCurrentItem
        onClicked: {
            root.forceActiveFocus()
            root.currentIndex = index
            root.library.activate(modelData.id)
        }
    }
}

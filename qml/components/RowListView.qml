import QtQuick
import QtQuick.Controls
import Velmora

/// A list of `rowCount` rows, whose delegates take their data by `index`. Rows come and go at the
/// end, so that a delegate lives on when the data under it changes, and those that are not needed
/// wait for the next longer list.
ListView {
    id: root

    property Theme theme: Style.theme
    property int rowCount: 0

    function _fitRows() {
        if (rows.count > rowCount)
            rows.remove(rowCount, rows.count - rowCount)
        else if (rows.count < rowCount)
            rows.append(Array.from({ length: rowCount - rows.count }, () => ({ row: 0 })))
    }

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    reuseItems: true
    // Rows at the edge are at hand already. A row that is still being made ahead of the edge when the
    // list runs empty brings newer versions of Qt to a warning.
    cacheBuffer: 0
    spacing: theme.spaceXs
    Accessible.role: Accessible.List

    model: ListModel {
        id: rows
    }

    ScrollBar.vertical: AppScrollBar {
    }

    onRowCountChanged: _fitRows()
    Component.onCompleted: _fitRows()
}

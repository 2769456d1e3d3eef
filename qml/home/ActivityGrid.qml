pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora
import "solve_activity.js" as Activity

/// A calendar whose columns are weeks and whose rows are weekdays. The pointer or the arrow keys
/// choose the day whose figures are shown.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property var cells: []

    readonly property int weeks: Activity.weekCount(cells)
    readonly property int side: Activity.cellSide(width - _labelWidth, weeks)
    readonly property int _labelWidth: 34
    readonly property int _labelHeight: 16
    /// The day that the tooltip is about, or -1.
    readonly property int _shownCell: hover.hovered ? _cellUnder : activeFocus ? _keyCell : -1
    readonly property int _cellUnder: Activity.indexAt(cells, side, hover.point.position.x, hover.point.position.y)
    property int _keyCell: -1

    function cellColor(cell: var): color {
        if (cell.isPadding)
            return "transparent"
        return [theme.surface2, theme.withOpacity(theme.accent, 0.55), theme.accentMuted, theme.accent][Activity.level(cell)]
    }

    function borderColor(cell: var): color {
        if (cell.isPadding)
            return "transparent"
        return Activity.level(cell) === 0 ? theme.stroke : Qt.darker(theme.accent, 1.35)
    }

    function _moveBy(days: int) {
        _keyCell = Activity.moved(cells, _keyCell, days)
    }

    implicitHeight: _labelHeight + 7 * side
    activeFocusOnTab: cells.length > 0
    Accessible.role: Accessible.Table
    Accessible.name: qsTr("Solve Activity")
    Accessible.description: _shownCell >= 0 ? Activity.describe(cells[_shownCell]) : qsTr("Last 52 weeks")
    Accessible.focusable: true
    onActiveFocusChanged: {
        if (activeFocus && (_keyCell < 0 || _keyCell >= cells.length))
            _keyCell = cells.length - 1
    }
    Keys.onLeftPressed: _moveBy(-7)
    Keys.onRightPressed: _moveBy(7)
    Keys.onUpPressed: _moveBy(-1)
    Keys.onDownPressed: _moveBy(1)

    Repeater {
        model: root.weeks

        Label {
            required property int index

            x: root._labelWidth + index * root.side
            text: Activity.monthLabelForWeek(root.cells, index)
            color: root.theme.textMuted
            font.pixelSize: root.type.labelSm - 1
        }
    }

    Repeater {
        model: Activity.weekdayNames()

        Label {
            required property int index
            required property string modelData

            y: root._labelHeight + index * root.side
            width: root._labelWidth
            height: root.side - 2
            verticalAlignment: Text.AlignVCenter
            text: modelData
            color: root.theme.textMuted
            font.pixelSize: root.type.labelSm - 1
        }
    }

    Item {
        x: root._labelWidth
        y: root._labelHeight
        width: root.weeks * root.side
        height: 7 * root.side

        HoverHandler {
            id: hover
        }

        Repeater {
            model: root.cells.length

            Rectangle {
                required property int index
                readonly property var cell: root.cells[index]

                x: Math.floor(index / 7) * root.side
                y: index % 7 * root.side
                width: Math.max(10, root.side - 2)
                height: width
                radius: 3
                opacity: cell.isFuture ? 0.45 : 1
                color: root.cellColor(cell)
                border.color: root.borderColor(cell)
            }
        }

        Rectangle {
            id: mark

            x: Math.floor(root._shownCell / 7) * root.side - 1
            y: root._shownCell % 7 * root.side - 1
            width: Math.max(10, root.side - 2) + 2
            height: width
            radius: 4
            visible: root._shownCell >= 0
            color: "transparent"
            border.color: root.theme.strokeFocus
            border.width: 2

            AppToolTip {
                delay: 150
                visible: mark.visible
                text: root._shownCell >= 0 ? Activity.describe(root.cells[root._shownCell]) : ""
            }
        }
    }
}

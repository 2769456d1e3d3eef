import QtQuick
import QtQuick.Layouts
import Velmora

/// The views of a node: the figures by action, the grid, the categories, the combos and the lock panel.
///
/// Where there is space, the figures stand above three columns. Where there is little, they stand beside
/// the grid, and categories and combos share the place under them. The grid grows with the space.
Item {
    id: root

    property Theme theme: Style.theme
    required property TreeWalk walk
    required property NodeView view
    required property NodeLocks locks
    /// The height that the page has for the views without scrolling.
    property real roomHeight: 0

    readonly property int smallestCell: 27
    readonly property int largestCell: 72
    /// Below this width something is cut off.
    readonly property real minimumWidth: _smallestGrid + _gap + _onlyListWidth
    readonly property bool compact: width < _smallestGrid + 2 * _gap + 2 * _listWidth
                                    || roomHeight < _aroundGrid + _smallestGrid
    /// Whether categories and combos share one place.
    readonly property bool tabbed: lists.width < 2 * _listWidth + _gap
    /// Whether the combos have that place.
    property bool combosShown: true

    readonly property int _gap: 20
    readonly property int _listWidth: 260
    readonly property int _onlyListWidth: 330
    /// What stands above and under the grid where figures and legend take a line or two.
    readonly property int _aroundGrid: 260
    readonly property real _smallestGrid: 13 * smallestCell + 12 * column.cellSpacing
    readonly property real _top: compact ? 0 : frequencies.height + theme.spaceMd
    readonly property real _panelHeight: lockPanel.visible ? lockPanel.height + theme.spaceSm : 0
    /// Whether the lock panel stands above the lists: under the grid it would have to be scrolled to.
    readonly property bool _panelBeside: compact || roomHeight < _top + column.fixedHeight + _smallestGrid
                                         + theme.spaceSm + lockPanel.implicitHeight
    readonly property real _panelBelow: _panelBeside ? 0 : _panelHeight
    readonly property int _cellSize: {
        const listsWidth = compact ? _onlyListWidth : Math.max(600, 0.4 * width)
        const side = Math.min(width - _gap - listsWidth, roomHeight - _top - column.fixedHeight - _panelBelow)
        return Math.max(smallestCell, Math.min(largestCell, Math.floor((side - 12 * column.cellSpacing) / 13)))
    }

    implicitWidth: minimumWidth
    implicitHeight: compact ? Math.max(column.fixedHeight + _smallestGrid, lists.y + 200)
                            : _top + column.fixedHeight + _smallestGrid + _panelBelow

    // What a chosen hand holds is what the click was for.
    Connections {
        function onSelectedHandClassChanged() {
            if (root.view.selectedHandClass !== "")
                root.combosShown = true
        }

        target: root.view
    }

    ActionFrequencies {
        id: frequencies

        x: root.compact ? lists.x : 0
        width: root.width - x
        compact: root.compact
        actions: root.view.actionFrequenciesActions
    }

    StrategyColumn {
        id: column

        y: root._top
        width: implicitWidth
        compact: root.compact
        cellSize: root._cellSize
        walk: root.walk
        view: root.view
        locks: root.locks
    }

    NodeLockPanel {
        id: lockPanel

        x: root._panelBeside ? lists.x : 0
        y: root._panelBeside ? (root.compact ? frequencies.height + root.theme.spaceMd : root._top)
                             : column.y + column.height + root.theme.spaceSm
        width: root._panelBeside ? lists.width : column.width
        visible: root.locks.nodeLockMode
        locks: root.locks
        node: root.view.node
        lockable: root.walk.currentMeta.nodeType === "decision"
        actions: root.walk.currentNodeActions
    }

    ColumnLayout {
        id: lists

        x: column.width + root._gap
        y: (root.compact ? frequencies.height + root.theme.spaceMd : root._top)
           + (root._panelBeside ? root._panelHeight : 0)
        width: root.width - x
        height: root.height - y
        spacing: root.theme.spaceSm

        TabStrip {
            Layout.fillWidth: true
            visible: root.tabbed
            labels: [qsTr("Buckets"), qsTr("Hand Details")]
            currentIndex: root.combosShown ? 1 : 0
            onChosen: index => root.combosShown = index === 1
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: root._gap

            BucketsCard {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 300
                Layout.maximumWidth: root.tabbed ? root.width : 400
                Layout.minimumWidth: root.tabbed ? 0 : root._listWidth
                visible: !root.tabbed || !root.combosShown
                view: root.view
            }

            HandDetailsCard {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 300
                Layout.minimumWidth: root.tabbed ? 0 : root._listWidth
                visible: !root.tabbed || root.combosShown
                view: root.view
            }
        }
    }
}

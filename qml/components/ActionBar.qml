pragma ComponentBehavior: Bound

import QtQuick
import Velmora
import "action_frequencies.js" as Frequencies

/// How often each action is taken: a strip of coloured segments and a line of figures for each.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// Maps of `name`, `actionType`, `frequency` and, where known, `color`, `combos`, `equity` (0..1)
    /// and `ev`. The frequencies need not sum to 1.
    property var actions: []
    property bool showLabels: true
    property bool interactive: false
    property int selectedAction: -1
    /// The height that all lines of figures take with the strip.
    readonly property real contentHeight: showLabels ? legend.y + legend.height : strip.height

    readonly property list<real> _shares: Frequencies.shares(actions)
    /// The most actions so far: their lines of figures are kept.
    property int _lineCount: 0

    signal actionClicked(index: int, name: string)
    signal actionHovered(index: int, name: string, frequency: real)

    function _color(index: int): color {
        const action = actions[index]
        if (action.color !== undefined && action.color !== null && action.color !== "")
            return action.color
        return theme.actionColor(action.actionType ? action.actionType : action.name)
    }

    function _name(index: int): string {
        return actions[index].name ?? ""
    }

    function _summary(): string {
        return Array.from(_shares, (share, i) => _name(i) + " " + Frequencies.percentText(share) + "%").join(", ")
    }

    function _hoverAt(x: real) {
        const index = Frequencies.indexAt(_shares, strip.width, x)
        if (index >= 0)
            actionHovered(index, _name(index), _shares[index])
    }

    function _step(step: int) {
        const next = Frequencies.neighbour(_shares, selectedAction, step)
        if (next !== selectedAction)
            _click(next)
    }

    function _click(index: int) {
        if (index >= 0 && index < _shares.length)
            actionClicked(index, _name(index))
    }

    on_SharesChanged: _lineCount = Math.max(_lineCount, _shares.length)
    implicitWidth: 300
    implicitHeight: showLabels ? 40 : 24
    activeFocusOnTab: interactive
    Accessible.role: Accessible.Graphic
    Accessible.name: _summary()
    Accessible.focusable: interactive
    Keys.enabled: interactive
    Keys.onLeftPressed: _step(-1)
    Keys.onRightPressed: _step(1)

    ActionStrip {
        id: strip

        width: parent.width
        height: root.showLabels ? 20 : parent.height
        shares: root._shares
        colors: Array.from(root._shares, (share, i) => root._color(i))
        marked: root.selectedAction

        FocusRing {
            radius: root.theme.radiusSm + 3
            active: root.activeFocus
        }

        HoverHandler {
            cursorShape: root.interactive ? Qt.PointingHandCursor : Qt.ArrowCursor
            onPointChanged: if (hovered) root._hoverAt(point.position.x)
        }

        TapHandler {
            enabled: root.interactive
            onTapped: root._click(Frequencies.indexAt(root._shares, strip.width, point.position.x))
        }
    }

    // A flow has one spacing for both directions, so the gap to the next action is part of each.
    Flow {
        id: legend

        y: strip.height + root.theme.spaceXs
        width: parent.width + root.theme.space2Xl
        visible: root.showLabels

        Repeater {
            model: root.showLabels ? root._lineCount : 0

            ActionFigures {
                required property int index

                visible: index < root._shares.length
                action: root.actions[index] ?? ({})
                name: visible ? root._name(index) : ""
                ink: visible ? root._color(index) : "transparent"
                share: root._shares[index] ?? 0
                selected: index === root.selectedAction
                maximumWidth: root.width
            }
        }
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora
import "../logic/action_frequencies.js" as Frequencies

/// How often each action is taken: a strip of coloured segments and a line of figures for each.
Item {
    id: root

    property Theme theme: Fallback.theme
    property Typography type: Fallback.type
    /// Maps of `name`, `actionType`, `frequency` and, where known, `color`, `combos`, `equity` (0..1)
    /// and `ev`. The frequencies need not sum to 1.
    property var actions: []
    property bool showLabels: true
    property bool interactive: false
    property int selectedAction: -1
    /// The height that all lines of figures take with the strip.
    readonly property real contentHeight: showLabels ? legend.y + legend.height : strip.height

    readonly property list<real> _shares: Frequencies.shares(actions)

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

    implicitWidth: 300
    implicitHeight: showLabels ? 40 : 24
    activeFocusOnTab: interactive
    Accessible.role: Accessible.Graphic
    Accessible.name: _summary()
    Accessible.focusable: interactive
    Keys.enabled: interactive
    Keys.onLeftPressed: _step(-1)
    Keys.onRightPressed: _step(1)

    Canvas {
        id: strip

        readonly property list<color> colors: Array.from(root._shares, (share, i) => root._color(i))
        readonly property color trackColor: root.theme.surface2
        readonly property int selectedAction: root.selectedAction
        readonly property real cornerRadius: root.theme.radiusSm

        function paintSegment(context: var, segment: var) {
            Frequencies.trace(context, segment, height)
            context.fillStyle = colors[segment.index]
            context.fill()
            if (segment.index === selectedAction) {
                context.fillStyle = Qt.rgba(1, 1, 1, 0.92)
                context.fillRect(segment.x + segment.leftRadius, height - 4,
                                 segment.width - segment.leftRadius - segment.rightRadius, 2)
            }
            const percent = Frequencies.percentText(root._shares[segment.index])
            const label = percent + "%"
            if (segment.width > 35 && percent !== "0" && context.measureText(label).width + 8 <= segment.width) {
                context.fillStyle = Qt.rgba(1, 1, 1, 0.92)
                context.fillText(label, segment.x + segment.width / 2, height / 2)
            }
        }

        width: parent.width
        height: root.showLabels ? 20 : parent.height
        onColorsChanged: requestPaint()
        onTrackColorChanged: requestPaint()
        onSelectedActionChanged: requestPaint()
        onPaint: {
            const context = getContext("2d")
            context.reset()
            context.font = "bold 10px sans-serif"
            context.textAlign = "center"
            context.textBaseline = "middle"
            context.fillStyle = trackColor
            context.roundedRect(0, 0, width, height, cornerRadius, cornerRadius)
            context.fill()
            for (const segment of Frequencies.segments(root._shares, width, height, cornerRadius))
                paintSegment(context, segment)
        }

        FocusRing {
            theme: root.theme
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
            model: root.showLabels ? root._shares.length : 0

            Row {
                id: line

                required property int index
                readonly property var action: root.actions[index] ?? ({})

                height: 18
                rightPadding: root.theme.space2Xl
                spacing: root.theme.spaceSm

                Rectangle {
                    anchors.verticalCenter: line.verticalCenter
                    width: 10
                    height: 10
                    radius: 2
                    color: root._color(line.index)
                }

                Label {
                    anchors.verticalCenter: line.verticalCenter
                    text: root._name(line.index)
                    color: root.theme.text
                    font.pixelSize: root.type.labelMd
                    font.weight: line.index === root.selectedAction ? root.type.weightBold : root.type.weightMedium
                }

                Label {
                    anchors.verticalCenter: line.verticalCenter
                    text: qsTr("%1%").arg(Frequencies.percentText(root._shares[line.index]))
                    color: root.theme.text
                    font.pixelSize: root.type.labelMd
                    font.weight: root.type.weightBold
                }

                Repeater {
                    model: [
                        qsTr("%1 combos").arg(Frequencies.combosText(line.action.combos)),
                        qsTr("%1% equity").arg(Frequencies.equityText(line.action.equity)),
                        qsTr("%1 EV").arg(Frequencies.evText(line.action.ev))
                    ]

                    Label {
                        required property string modelData

                        anchors.verticalCenter: line.verticalCenter
                        text: modelData
                        color: root.theme.textMuted
                        font.pixelSize: root.type.labelSm
                    }
                }
            }
        }
    }
}

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Templates as T
import Velmora

/// One step of the game tree: an action of a player, a card that is dealt, or an end.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// "decision", "chance" or "terminal".
    property string nodeType: "decision"
    property string player: "OOP"
    /// The action as it is read, such as "Bet 75%".
    property string action: ""
    /// The action's machine name, with or without its size: "check", "bet 33%", "raise".
    property string actionType: ""
    property real pot: 0
    property real ev: 0
    /// How often the action is taken, 0..1; below 0 it is not shown.
    property real frequency: -1
    property bool selected: false
    property bool expanded: false
    property bool hasChildren: true
    property int depth: 0

    readonly property color _actionColor: theme.actionColor(_hasBareSize() ? action : actionType)
    readonly property color _tileColor: nodeType === "terminal" ? theme.surface3
                                        : nodeType === "chance" ? _mix(theme.surface2, theme.gold, 0.22)
                                        : _mix(theme.surface2, _actionColor, 0.28)
    readonly property color _dotColor: nodeType === "terminal" ? theme.textFaint
                                       : nodeType === "chance" ? theme.gold
                                       : player === "IP" ? theme.info : theme.actionBet
    readonly property bool _expandable: hasChildren && nodeType === "decision"
    // The inks on a light ground, in either mode.
    readonly property color _darkInk: "#0B0F14"
    readonly property color _darkInkMuted: "#2D333B"
    readonly property color _mutedColor: _luminance(_tileColor) >= 0.62 ? _darkInkMuted : theme.textMuted

    signal clicked()
    signal toggleExpand()

    function _expand(event: var, wanted: bool) {
        event.accepted = _expandable && expanded !== wanted
        if (event.accepted)
            toggleExpand()
    }

    function _hasBareSize(): bool {
        return (actionType === "bet" || actionType === "raise") && action.includes("%")
    }

    function _mix(from: color, to: color, share: real): color {
        return Qt.rgba(from.r + (to.r - from.r) * share, from.g + (to.g - from.g) * share,
                       from.b + (to.b - from.b) * share, 1)
    }

    function _luminance(ground: color): real {
        return 0.2126 * ground.r + 0.7152 * ground.g + 0.0722 * ground.b
    }

    /// The text colour on a ground. Light mode's text is dark too, so it gives way on a deep ground.
    function _ink(ground: color): color {
        const luminance = _luminance(ground)
        if (luminance >= 0.62)
            return _darkInk
        return theme.dark || luminance >= 0.45 ? theme.text : theme.textInverse
    }

    implicitWidth: 200
    implicitHeight: 48
    scale: hover.hovered ? 1.02 : 1
    activeFocusOnTab: true
    Accessible.role: Accessible.TreeItem
    Accessible.name: (action + " " + title.text).trim()
    Accessible.description: Array.from([potLabel, frequencyLabel, evLabel]).filter(label => label.visible).map(label => label.text).join(", ")
    Accessible.selected: selected
    Accessible.focusable: true
    Accessible.onPressAction: clicked()
    Keys.onSpacePressed: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onRightPressed: event => _expand(event, true)
    Keys.onLeftPressed: event => _expand(event, false)

    Behavior on scale {
        NumberAnimation { duration: 100 }
    }

    HoverHandler {
        id: hover

        cursorShape: Qt.PointingHandCursor
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.clicked()
    }

    Rectangle {
        objectName: "tile"
        anchors.fill: parent
        radius: root.theme.radiusSm
        color: root._tileColor
        border.width: root.selected ? 2 : 1
        border.color: root.selected ? root.theme.accent
                      : hover.hovered ? root.theme.strokeFocus : root.theme.stroke

        Behavior on border.color {
            ColorAnimation { duration: 100 }
        }
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -2
        visible: root.selected
        radius: root.theme.radiusSm + 2
        color: "transparent"
        border.width: 2
        border.color: root.theme.accent
        opacity: 0.5
    }

    FocusRing {
        radius: root.theme.radiusSm + 3
        active: root.activeFocus
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: root.theme.spaceSm
        anchors.rightMargin: root.theme.spaceSm
        spacing: root.theme.spaceSm

        T.AbstractButton {
            id: expander

            objectName: "expander"
            implicitWidth: 20
            implicitHeight: 20
            visible: root._expandable
            hoverEnabled: true
            // The keys of the tile do the same.
            focusPolicy: Qt.NoFocus
            text: root.expanded ? "−" : "+"
            Accessible.role: Accessible.Button
            Accessible.name: (root.expanded ? qsTr("Collapse %1") : qsTr("Expand %1")).arg(root.action || title.text)
            onClicked: root.toggleExpand()

            background: Rectangle {
                radius: root.theme.radiusXs
                color: expander.hovered ? root.theme.surfaceHover : root.theme.surface
                border.width: 1
                border.color: root.theme.stroke
            }

            contentItem: Label {
                text: expander.text
                color: root.theme.text
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: root.type.bodySm
                font.weight: root.type.weightBold
            }
        }

        Rectangle {
            implicitWidth: 8
            implicitHeight: 8
            visible: !root._expandable
            radius: 4
            color: root._dotColor
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 3

            RowLayout {
                spacing: 6

                Item {
                    Layout.maximumWidth: implicitWidth
                    Layout.fillWidth: true
                    implicitWidth: Math.ceil(chipLabel.implicitWidth) + 12
                    implicitHeight: 18
                    visible: root.action !== ""

                    Rectangle {
                        anchors.fill: parent
                        radius: root.theme.radiusXs
                        color: root._actionColor
                        opacity: 0.8
                    }

                    Label {
                        id: chipLabel

                        anchors.fill: parent
                        anchors.leftMargin: 6
                        anchors.rightMargin: 6
                        text: root.action
                        color: root._ink(root._mix(root._tileColor, root._actionColor, 0.8))
                        elide: Text.ElideRight
                        verticalAlignment: Text.AlignVCenter
                        font.pixelSize: root.type.labelSm
                        font.weight: root.type.weightSemibold
                    }
                }

                Label {
                    id: title

                    objectName: "title"
                    Layout.fillWidth: true
                    text: root.nodeType === "terminal" ? qsTr("Terminal")
                          : root.nodeType === "chance" && root.player === "" ? qsTr("Deal") : root.player
                    color: root._ink(root._tileColor)
                    elide: Text.ElideRight
                    font.pixelSize: root.type.labelMd
                    font.weight: root.type.weightSemibold
                }
            }

            RowLayout {
                spacing: 6
                visible: root.pot > 0 || root.frequency >= 0 || root.ev !== 0

                Label {
                    id: potLabel

                    objectName: "pot"
                    visible: root.pot > 0
                    text: qsTr("Pot: %1").arg(root.pot.toFixed(0))
                    color: root._mutedColor
                    font.pixelSize: root.type.labelSm - 1
                }

                Label {
                    id: frequencyLabel

                    objectName: "frequency"
                    visible: root.frequency >= 0
                    text: qsTr("Freq: %1%").arg(Math.min(100, Math.round(root.frequency * 100)))
                    color: root._mutedColor
                    font.pixelSize: root.type.labelSm - 1
                }

                Label {
                    id: evLabel

                    objectName: "ev"
                    Layout.fillWidth: true
                    visible: root.ev !== 0
                    text: qsTr("EV: %1%2").arg(root.ev >= 0 ? "+" : "").arg(root.ev.toFixed(2))
                    color: root.ev >= 0 ? root.theme.success : root.theme.danger
                    elide: Text.ElideRight
                    font.pixelSize: root.type.labelSm - 1
                }
            }
        }
    }
}

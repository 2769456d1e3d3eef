import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// Play mode: the table with the details of a hand under it, and the log of the hands. Where there is
/// little space, log and details share the place beside the table.
FocusScope {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property TreeWalk walk
    required property PlaySession play

    /// The height that the page has for it without scrolling.
    property real roomHeight: 0

    /// Below this width something is cut off.
    readonly property real minimumWidth: _minimumTableWidth + _logMinimumWidth + theme.spaceSm
    /// Whether log and details of a hand share a place.
    readonly property bool compact: width < details.fullWidth + _logMinimumWidth + theme.spaceSm
                                    || roomHeight < _detailsHeight + _roomyTableHeight

    readonly property int _minimumTableWidth: 404
    readonly property int _roomyTableHeight: 440
    readonly property int _logMinimumWidth: 300
    readonly property int _detailsHeight: 260
    readonly property real _asideTop: compact ? tabs.height + theme.spaceSm : 0
    property bool _detailsChosen: false

    implicitHeight: column.implicitHeight
    onVisibleChanged: {
        if (visible)
            forceActiveFocus()
    }

    ColumnLayout {
        id: column

        anchors.fill: parent
        spacing: root.theme.spaceSm

        RowLayout {
            Layout.fillWidth: true
            spacing: root.theme.spaceLg

            Label {
                text: qsTr("Play vs. Solution")
                color: root.theme.text
                font.pixelSize: root.type.bodyLg
                font.weight: root.type.weightBold
                Accessible.role: Accessible.Heading
            }

            Label {
                Layout.fillWidth: !note.visible
                text: root.play.playSessionStarted ? qsTr("Role: %1").arg(root.play.playRole)
                                                   : qsTr("Choose a role to start")
                color: root.theme.textMuted
                font.pixelSize: root.type.bodySm
                elide: Text.ElideRight
            }

            Label {
                id: note

                Layout.fillWidth: true
                visible: root.play.dealtNothing
                text: qsTr("No hands can be dealt here. Solve the spot again to play it.")
                color: root.theme.warn
                font.pixelSize: root.type.bodySm
                elide: Text.ElideRight
            }
        }

        Item {
            id: content

            Layout.fillWidth: true
            Layout.fillHeight: true
            implicitHeight: root._minimumTableWidth * table.pictureRatio
                            + (root.compact ? 0 : root._detailsHeight + root.theme.spaceSm)

            PlayTable {
                id: table

                width: content.width - log.width - root.theme.spaceSm
                height: content.height - (!root.compact && details.visible ? details.height + root.theme.spaceSm : 0)
                walk: root.walk
                play: root.play
                onCardChangeWanted: (levelIndex, nodeIndex) => picker.openChancePicker(levelIndex, nodeIndex)
            }

            TabStrip {
                id: tabs

                x: content.width - width
                width: log.width
                visible: root.compact
                labels: [qsTr("Hand Log"), qsTr("Hand details")]
                currentIndex: root._detailsChosen ? 1 : 0
                onChosen: index => root._detailsChosen = index === 1
            }

            HandLog {
                id: log

                // It gives way to the details, which need some width.
                readonly property real space: content.width - root.theme.spaceSm
                                             - (root.compact ? 1.6 * root._minimumTableWidth : details.fullWidth)

                x: content.width - width
                y: root._asideTop
                width: Math.max(root._logMinimumWidth, Math.min(340, space))
                height: content.height - y
                visible: !root.compact || !root._detailsChosen
                log: root.play.log
                onHandChosen: root._detailsChosen = true
            }

            HandDetails {
                id: details

                x: root.compact ? log.x : 0
                y: root.compact ? root._asideTop : content.height - height
                width: root.compact ? log.width : table.width
                height: root.compact ? log.height : root._detailsHeight
                visible: root.play.log.playHandDetails !== null && (!root.compact || root._detailsChosen)
                details: root.play.log.playHandDetails
                onCloseRequested: {
                    root._detailsChosen = false
                    root.play.log.closeHandDetails()
                }
            }

            Label {
                x: log.x
                y: root._asideTop + root.theme.spaceSm
                width: log.width
                visible: root.compact && root._detailsChosen && !details.visible
                text: qsTr("Choose a hand in the log.")
                color: root.theme.textMuted
                font.pixelSize: root.type.bodySm
                wrapMode: Text.Wrap
            }
        }
    }

    ChancePicker {
        id: picker

        walk: root.walk
        onCardDealt: root.play.resumeFromCard()
        onClosed: root.play.resumeUnchanged()
    }
}

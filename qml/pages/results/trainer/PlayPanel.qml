import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// Play mode: the table with the details of a hand under it, and the log of the hands.
FocusScope {
    id: root

    property Theme theme: Fallback.theme
    property Typography type: Fallback.type
    required property TreeWalk walk
    required property PlaySession play

    readonly property int _minimumTableWidth: 404

    Layout.minimumWidth: _minimumTableWidth + log.Layout.minimumWidth + content.spacing
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

        RowLayout {
            id: content

            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: root.theme.spaceSm

            Item {
                id: left

                readonly property real detailsHeight: details.visible ? details.height + root.theme.spaceSm : 0

                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.minimumWidth: root._minimumTableWidth
                Layout.minimumHeight: root._minimumTableWidth * table.pictureRatio + detailsHeight
                implicitHeight: Layout.minimumHeight

                PlayTable {
                    id: table

                    width: left.width
                    height: left.height - left.detailsHeight
                    theme: root.theme
                    type: root.type
                    walk: root.walk
                    play: root.play
                    onCardChangeWanted: (levelIndex, nodeIndex) => picker.openChancePicker(levelIndex, nodeIndex)
                }

                HandDetails {
                    id: details

                    y: table.height + root.theme.spaceSm
                    width: left.width
                    height: 260
                    visible: root.play.log.playHandDetails !== null
                    theme: root.theme
                    type: root.type
                    details: root.play.log.playHandDetails
                    onCloseRequested: root.play.log.closeHandDetails()
                }
            }

            HandLog {
                id: log

                // It gives way to the details, which need some width.
                Layout.preferredWidth: Math.max(Layout.minimumWidth, Math.min(340, content.width - content.spacing - details.fullWidth))
                Layout.minimumWidth: 300
                Layout.fillHeight: true
                implicitHeight: 0
                theme: root.theme
                type: root.type
                log: root.play.log
            }
        }
    }

    ChancePicker {
        id: picker

        theme: root.theme
        type: root.type
        walk: root.walk
        onCardDealt: root.play.resumeFromCard()
        onClosed: root.play.resumeUnchanged()
    }
}

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

    readonly property int _minimumTableWidth: 456

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
                Layout.fillWidth: true
                text: root.play.playSessionStarted ? qsTr("Role: %1").arg(root.play.playRole)
                                                   : qsTr("Choose a role to start")
                color: root.theme.textMuted
                font.pixelSize: root.type.bodySm
                elide: Text.ElideRight
            }
        }

        RowLayout {
            id: content

            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: root.theme.spaceSm

            ColumnLayout {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.minimumWidth: root._minimumTableWidth
                spacing: root.theme.spaceSm

                PlayTable {
                    id: table

                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    Layout.minimumHeight: root._minimumTableWidth * pictureRatio
                    implicitWidth: root._minimumTableWidth
                    theme: root.theme
                    type: root.type
                    walk: root.walk
                    play: root.play
                    onCardChangeWanted: (levelIndex, nodeIndex) => picker.openChancePicker(levelIndex, nodeIndex)
                }

                HandDetails {
                    Layout.fillWidth: true
                    Layout.preferredHeight: 260
                    Layout.minimumHeight: 260
                    implicitWidth: 0
                    visible: root.play.log.playHandDetails !== null
                    theme: root.theme
                    type: root.type
                    details: root.play.log.playHandDetails
                    onCloseRequested: root.play.log.closeHandDetails()
                }
            }

            HandLog {
                id: log

                Layout.preferredWidth: 340
                Layout.minimumWidth: 300
                Layout.maximumWidth: 340
                Layout.fillWidth: true
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

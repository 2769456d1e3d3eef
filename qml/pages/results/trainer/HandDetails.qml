pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// A played hand street by street, both holdings, and what came of it.
Card {
    id: root

    property Typography type: Fallback.type
    /// What `Hand.buildPlayHandDetails` makes.
    required property var details

    readonly property int _columnWidth: Math.max(170, Math.floor((area.width - 4 * _gap) / 5))
    readonly property int _gap: 2 * theme.spaceMd + 1

    signal closeRequested

    padding: theme.spaceMd

    component Column5: ColumnLayout {
        id: column

        property string title: ""

        Layout.preferredWidth: root._columnWidth
        Layout.maximumWidth: root._columnWidth
        Layout.fillHeight: true
        spacing: root.theme.spaceSm

        Label {
            text: column.title
            color: root.theme.textMuted
            font.pixelSize: root.type.labelMd
            font.weight: root.type.weightSemibold
        }
    }

    component Divider: Rectangle {
        Layout.preferredWidth: 1
        Layout.fillHeight: true
        Layout.leftMargin: root.theme.spaceMd
        Layout.rightMargin: root.theme.spaceMd
        color: root.theme.stroke
    }

    component Cards: Row {
        id: cardRow

        property list<string> cards

        height: 44
        Layout.preferredHeight: 44
        spacing: root.theme.spaceXs

        Repeater {
            model: Array.from(cardRow.cards).filter(card => card !== "")

            PlayingCard {
                required property string modelData

                theme: root.theme
                rank: modelData.charAt(0)
                suit: modelData.charAt(1)
                mini: true
                hoverable: false
            }
        }
    }

    component Holding: Row {
        id: holding

        property string seat: ""
        property alias cards: held.cards

        spacing: root.theme.spaceSm

        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: 36
            text: holding.seat
            color: holding.seat === "IP" ? root.theme.info : root.theme.actionBet
            font.pixelSize: root.type.labelMd
            font.weight: root.type.weightBold
        }

        Cards {
            id: held
        }
    }

    component Street: Column5 {
        id: street

        property list<string> cards
        property list<string> actions

        Cards {
            cards: street.cards
        }

        ListView {
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            spacing: 2
            boundsBehavior: Flickable.StopAtBounds
            model: street.actions.length > 0 ? Array.from(street.actions) : ["—"]

            ScrollBar.vertical: AppScrollBar {
                theme: root.theme
            }

            delegate: Label {
                required property string modelData

                text: modelData
                color: root.theme.text
                font.pixelSize: root.type.bodySm
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceSm

        RowLayout {
            Layout.fillWidth: true

            CardTitle {
                Layout.fillWidth: true
                theme: root.theme
                type: root.type
                text: qsTr("Hand details")
            }

            SmallButton {
                theme: root.theme
                type: root.type
                text: qsTr("Close")
                onClicked: root.closeRequested()
            }
        }

        Flickable {
            id: area

            Layout.fillWidth: true
            Layout.fillHeight: true
            implicitHeight: 0
            clip: true
            contentWidth: Math.max(width, columns.implicitWidth)
            contentHeight: height
            boundsBehavior: Flickable.StopAtBounds

            ScrollBar.horizontal: AppScrollBar {
                theme: root.theme
                policy: area.contentWidth > area.width + 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
            }

            RowLayout {
                id: columns

                width: area.contentWidth
                height: area.height
                spacing: 0

                Street {
                    title: qsTr("Flop")
                    cards: root.details?.flop ?? []
                    actions: root.details?.actions[0] ?? []
                }

                Divider {}

                Street {
                    title: qsTr("Turn")
                    cards: [root.details?.turn ?? ""]
                    actions: root.details?.actions[1] ?? []
                }

                Divider {}

                Street {
                    title: qsTr("River")
                    cards: [root.details?.river ?? ""]
                    actions: root.details?.actions[2] ?? []
                }

                Divider {}

                Column5 {
                    title: qsTr("Hands")

                    Holding {
                        seat: "IP"
                        cards: root.details?.ip ?? []
                    }

                    Holding {
                        seat: "OOP"
                        cards: root.details?.oop ?? []
                    }

                    Item {
                        Layout.fillHeight: true
                    }
                }

                Divider {}

                Column5 {
                    title: qsTr("Summary")

                    HandSummary {
                        Layout.fillWidth: true
                        theme: root.theme
                        type: root.type
                        details: root.details
                    }

                    Item {
                        Layout.fillHeight: true
                    }
                }
            }
        }
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// A played hand street by street, both holdings, and what came of it: in columns, or one under the
/// other where it is narrow.
Card {
    id: root

    property Typography type: Style.type
    /// What `Hand.buildPlayHandDetails` makes.
    required property var details

    /// The width at which the columns fit side by side.
    readonly property int fullWidth: 5 * _minimumColumnWidth
    readonly property bool stacked: width < fullWidth
    readonly property int _minimumColumnWidth: 165
    readonly property int _columnWidth: stacked ? area.width : Math.floor(area.width / 5)

    signal closeRequested

    topPadding: theme.spaceMd
    bottomPadding: theme.spaceMd
    leftPadding: 0
    rightPadding: 0

    component Section: Item {
        id: section

        property string title: ""
        property bool divided: true
        default property alias content: column.data

        width: root._columnWidth
        height: root.stacked ? column.implicitHeight + 2 * root.theme.spaceMd : area.height

        Rectangle {
            width: root.stacked ? parent.width : 1
            height: root.stacked ? 1 : parent.height
            visible: section.divided
            color: root.theme.stroke
        }

        ColumnLayout {
            id: column

            anchors.fill: parent
            anchors.topMargin: root.stacked ? root.theme.spaceSm : 0
            anchors.leftMargin: root.theme.spaceMd
            anchors.rightMargin: root.theme.spaceSm
            spacing: root.theme.spaceSm

            Label {
                text: section.title
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
                font.weight: root.type.weightSemibold
            }
        }
    }

    component Cards: Row {
        id: cardRow

        property list<string> cards

        height: 44
        Layout.preferredHeight: 44
        visible: !root.stacked || Array.from(cards).some(card => card !== "")
        spacing: root.theme.spaceXs

        Repeater {
            model: Array.from(cardRow.cards).filter(card => card !== "")

            PlayingCard {
                required property string modelData

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

    component Street: Section {
        id: street

        property list<string> cards
        property list<string> actions

        Cards {
            cards: street.cards
        }

        ListView {
            Layout.fillWidth: true
            Layout.fillHeight: !root.stacked
            implicitHeight: root.stacked ? contentHeight : 0
            clip: true
            spacing: 2
            boundsBehavior: Flickable.StopAtBounds
            model: street.actions.length > 0 ? Array.from(street.actions) : ["—"]

            ScrollBar.vertical: AppScrollBar {
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
            Layout.leftMargin: root.theme.spaceMd
            Layout.rightMargin: root.theme.spaceMd

            CardTitle {
                Layout.fillWidth: true
                text: qsTr("Hand details")
            }

            SmallButton {
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
            contentWidth: width
            contentHeight: root.stacked ? columns.height : height
            boundsBehavior: Flickable.StopAtBounds

            ScrollBar.vertical: AppScrollBar {
            }

            Grid {
                id: columns

                columns: root.stacked ? 1 : 5

                Street {
                    title: qsTr("Flop")
                    divided: false
                    cards: root.details?.flop ?? []
                    actions: root.details?.actions[0] ?? []
                }

                Street {
                    title: qsTr("Turn")
                    cards: [root.details?.turn ?? ""]
                    actions: root.details?.actions[1] ?? []
                }

                Street {
                    title: qsTr("River")
                    cards: [root.details?.river ?? ""]
                    actions: root.details?.actions[2] ?? []
                }

                Section {
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

                Section {
                    title: qsTr("Summary")

                    HandSummary {
                        Layout.fillWidth: true
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

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora
import "../../logic/range_facts.js" as RangeFacts
import "../../logic/range_text.js" as RangeText

/// The range of one seat, painted on a matrix or typed under it. The text is the range; the matrix
/// shows what it can read of it.
Card {
    id: root

    property Typography type: Fallback.type
    required property ProjectState project
    required property RangeLibraries libraries
    required property string seat  ///< "oop" or "ip"
    property bool developerMode: false
    property real clickWeightPct: 100.0  ///< What a newly painted hand weighs.

    readonly property string rangeText: project[seat + "RangeText"]
    readonly property SeatLibrary _library: libraries.seatLibrary(seat)
    readonly property var _facts: RangeFacts.ofWeights(matrix.weights)

    signal importRequested

    function setRangeText(text: string) {
        project.set(seat + "RangeText", text)
    }

    function _paint(hand: string, desiredOn: bool, currentWeight: real) {
        setRangeText(RangeText.toggleHand(rangeText, hand, desiredOn ? 0 : currentWeight, clickWeightPct / 100))
    }

    Connections {
        function onRangeChosen(text: string) {
            root.setRangeText(text)
        }

        target: root._library
    }

    GridLayout {
        anchors.fill: parent
        columns: 2
        columnSpacing: root.theme.spaceMd
        rowSpacing: root.theme.spaceSm

        RowLayout {
            Layout.maximumWidth: matrix.implicitWidth
            spacing: root.theme.spaceSm

            Rectangle {
                Layout.preferredWidth: 8
                Layout.preferredHeight: 8
                radius: 4
                color: root.seat === "oop" ? root.theme.actionBet : root.theme.info
            }

            CardTitle {
                Layout.fillWidth: true
                theme: root.theme
                type: root.type
                text: root.seat === "oop" ? qsTr("OOP Range") : qsTr("IP Range")
            }

            Label {
                text: root._facts.hands === 0 ? ""
                    : qsTr("%1 combos (%2%)").arg(root._facts.combos.toFixed(1)).arg((root._facts.share * 100).toFixed(1))
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }

            SmallButton {
                theme: root.theme
                type: root.type
                text: qsTr("Clear")
                enabled: root.rangeText !== ""
                onClicked: root.setRangeText("")
            }
        }

        LibraryColumn {
            Layout.rowSpan: 2
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.minimumWidth: 180
            theme: root.theme
            type: root.type
            libraries: root.libraries
            library: root._library
            rangeText: root.rangeText
            developerMode: root.developerMode
            onImportRequested: root.importRequested()
        }

        HandMatrix {
            id: matrix

            theme: root.theme
            label: root.seat === "oop" ? qsTr("OOP Range") : qsTr("IP Range")
            cellSize: 36
            editable: true
            weights: RangeText.parseRangeWeights(root.rangeText)
            onHandPainted: (hand, desiredOn, currentWeight) => root._paint(hand, desiredOn, currentWeight)
        }

        RowLayout {
            Layout.maximumWidth: matrix.implicitWidth
            spacing: root.theme.spaceSm

            Label {
                text: qsTr("Weight")
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }

            LiveNumberField {
                Layout.preferredWidth: 70
                theme: root.theme
                type: root.type
                label: qsTr("Weight")
                placeholderText: "100"
                decimals: 3
                fallback: 100
                number: root.clickWeightPct
                onNumberCommitted: number => root.clickWeightPct = number
            }

            Label {
                text: qsTr("%")
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }

            RangeTextField {
                Layout.fillWidth: true
                theme: root.theme
                type: root.type
                label: root.seat === "oop" ? qsTr("OOP Range") : qsTr("IP Range")
                rangeText: root.rangeText
                onRangeEdited: text => root.setRangeText(text)
            }
        }
    }
}

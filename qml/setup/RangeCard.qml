import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// The range of one seat, painted on a matrix or typed under it. The text is the range, and all that
/// shows of it comes from the parser that the solve reads it with.
Card {
    id: root

    property Typography type: Style.type
    required property ProjectState project
    required property RangeLibraries libraries
    required property string seat  ///< "oop" or "ip"
    property bool developerMode: false
    property real clickWeightPct: 100.0  ///< What a newly painted hand weighs.

    /// How high the card may get before the page has to scroll.
    property real heightLimit: 0

    readonly property string rangeText: project[seat + "RangeText"]
    /// What is wrong with the range, by itself or beside the rest of the spot.
    readonly property string fault: project.faultAt(seat + "_range") || project.faultAt("spot")
    readonly property SeatLibrary _library: libraries.seatLibrary(seat)
    readonly property string _key: seat + "RangeText"
    readonly property real _combos: RangeText.combos(rangeText)
    readonly property real _smallestCell: 36
    readonly property real _largestCell: 64
    readonly property real _smallestMatrix: 13 * (_smallestCell + matrix.cellSpacing) - matrix.cellSpacing
    readonly property real _libraryWidth: Math.max(180, availableWidth / 4)
    readonly property real _cellByWidth: _cellOf(availableWidth - _libraryWidth - grid.columnSpacing)
    readonly property real _cellByHeight: _cellOf(heightLimit - topPadding - bottomPadding - titleRow.implicitHeight
                                                  - fieldRow.implicitHeight - 2 * grid.rowSpacing)
    property string _weightFault: ""

    signal importRequested

    function setRangeText(text: string) {
        project.edit("", _key, text)
    }

    function _paint(hand: string, desiredOn: bool) {
        project.edit("painting " + seat, _key, RangeText.painted(rangeText, hand, desiredOn, clickWeightPct / 100))
    }

    /// The cell of a matrix of that side, in whole pixels.
    function _cellOf(side: real): real {
        return Math.floor((side + matrix.cellSpacing) / 13) - matrix.cellSpacing
    }

    // The page asks for no more width than the smallest matrix needs.
    contentWidth: _smallestMatrix + grid.columnSpacing + Math.max(180, libraryColumn.implicitWidth)

    Connections {
        function onRangeChosen(text: string) {
            root.setRangeText(text)
        }

        target: root._library
    }

    GridLayout {
        id: grid

        anchors.fill: parent
        columns: 2
        columnSpacing: root.theme.spaceMd
        rowSpacing: root.theme.spaceSm

        RowLayout {
            id: titleRow

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
                text: root.seat === "oop" ? qsTr("OOP Range") : qsTr("IP Range")
            }

            Label {
                text: root._combos === 0 ? ""
                    : qsTr("%1 combos (%2%)").arg(root._combos.toFixed(1)).arg((root._combos / 1326 * 100).toFixed(1))
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }

            SmallButton {
                text: qsTr("Clear")
                enabled: root.rangeText !== ""
                onClicked: root.setRangeText("")
            }
        }

        LibraryColumn {
            id: libraryColumn

            Layout.rowSpan: 2
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.minimumWidth: 180
            libraries: root.libraries
            library: root._library
            rangeText: root.rangeText
            developerMode: root.developerMode
            onImportRequested: root.importRequested()
        }

        HandMatrix {
            id: matrix

            label: root.seat === "oop" ? qsTr("OOP Range") : qsTr("IP Range")
            cellSize: Math.max(root._smallestCell, Math.min(root._largestCell, root._cellByWidth, root._cellByHeight))
            editable: true
            weights: RangeText.weights(root.rangeText)
            onHandPainted: (hand, desiredOn) => root._paint(hand, desiredOn)
            onPaintingEnded: root.project.endStep()
        }

        RowLayout {
            id: fieldRow

            Layout.maximumWidth: matrix.implicitWidth
            spacing: root.theme.spaceSm

            Label {
                text: qsTr("Weight")
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }

            NumberField {
                Layout.preferredWidth: 70
                label: qsTr("Weight")
                placeholderText: "100"
                decimals: 3
                fallback: 100
                number: root.clickWeightPct
                inputFault: root._weightFault
                onChecked: sentence => root._weightFault = sentence
                onNumberCommitted: number => root.clickWeightPct = number
            }

            Label {
                text: qsTr("%")
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }

            RangeTextField {
                Layout.fillWidth: true
                label: root.seat === "oop" ? qsTr("OOP Range") : qsTr("IP Range")
                rangeText: root.rangeText
                spotKey: root.seat + "_range"
                fault: root.fault
                project: root.project
                onRangeEdited: text => root.project.edit(root._key, root._key, text)
                onEditingFinished: root.project.endStep()
            }
        }
    }
}

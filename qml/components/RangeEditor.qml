pragma ComponentBehavior: Bound

import QtQuick
import Velmora

/// A range as a text and as a matrix to paint on. It asks for a new text with `rangeChanged`; the
/// owner sets `rangeText`.
Item {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property string rangeText
    property string label: qsTr("Range")

    readonly property var weights: RangeText.weights(rangeText)
    readonly property int handCount: _hands().length

    signal rangeChanged(newRange: string)

    /// The labels with a weight above 0, in grid order.
    function _hands(): var {
        return Array.from(HandText.labels).filter(hand => weights[hand] > 0)
    }

    /// The range text with a hand on or off; all hands that are on have weight 1.
    function _painted(hand: string, on: bool): string {
        const hands = _hands()
        return HandText.labels.filter(other => other === hand ? on : hands.includes(other)).join(", ")
    }

    implicitWidth: column.implicitWidth
    implicitHeight: column.implicitHeight

    Column {
        id: column

        spacing: root.theme.spaceSm

        Item {
            width: matrix.width
            height: presets.height

            Row {
                anchors.verticalCenter: parent.verticalCenter
                spacing: root.theme.spaceSm

                Text {
                    anchors.baseline: count.baseline
                    text: root.label
                    color: root.theme.text
                    font.family: root.theme.uiFamily
                    font.pixelSize: root.type.bodyMd
                    font.weight: root.type.weightBold
                }

                Text {
                    id: count

                    text: qsTr("%1 hands").arg(root.handCount)
                    color: root.theme.textMuted
                    font.family: root.theme.uiFamily
                    font.pixelSize: root.type.labelSm
                }
            }

            Row {
                id: presets

                anchors.right: parent.right
                spacing: root.theme.spaceXs

                Repeater {
                    model: ["100%", "50%", "25%"]

                    SmallButton {
                        required property string modelData

                        objectName: modelData
                        text: modelData
                        onClicked: root.rangeChanged(modelData)
                    }
                }

                SmallButton {
                    objectName: "clear"
                    text: qsTr("Clear")
                    onClicked: root.rangeChanged("")
                }
            }
        }

        HandMatrix {
            id: matrix

            objectName: "matrix"
            label: root.label
            cellSize: 30
            editable: true
            weights: root.weights
            width: implicitWidth
            height: implicitHeight
            onHandPainted: (hand, desiredOn) => root.rangeChanged(root._painted(hand, desiredOn))
        }

        InputField {
            objectName: "field"
            width: matrix.width
            mono: true
            label: root.label
            placeholderText: qsTr("e.g., AA, KK, AKs, QQ+ or 50%")
            fault: RangeText.fault(root.rangeText)
            onTextEdited: root.rangeChanged(text)

            Binding on text {
                value: root.rangeText
            }
        }
    }
}

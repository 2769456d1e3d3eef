import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// One figure with its name, its unit and the way it is going.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property string label: ""
    property string value: ""
    property string unit: ""
    /// "up", "down" or empty.
    property string trend: ""
    property color accentColor: theme.accent
    property bool compact: false
    /// One line: the name at the left, the figure at the right.
    property bool inline: false

    implicitWidth: inline ? 180 : compact ? 120 : 160
    implicitHeight: inline ? 20 : compact ? 64 : 80
    radius: inline ? theme.radiusXs : theme.radiusMd
    color: theme.surface
    border.width: 1
    border.color: theme.stroke
    Accessible.role: Accessible.StaticText
    Accessible.name: (label + " " + value + " " + unit).trim()

    GridLayout {
        anchors.fill: parent
        anchors.leftMargin: root.inline ? root.theme.spaceSm : root.compact ? root.theme.spaceMd : root.theme.spaceLg
        anchors.rightMargin: anchors.leftMargin
        anchors.topMargin: root.inline ? 0 : root.compact ? 10 : 14
        anchors.bottomMargin: anchors.topMargin
        columns: root.inline ? 2 : 1
        columnSpacing: root.theme.spaceSm
        rowSpacing: 2

        RowLayout {
            Layout.fillWidth: true
            spacing: 6

            Rectangle {
                implicitWidth: 6
                implicitHeight: 6
                radius: 3
                visible: !root.compact
                color: root.accentColor
            }

            Label {
                Layout.fillWidth: true
                text: root.label
                color: root.theme.textMuted
                elide: Text.ElideRight
                font.pixelSize: root.compact ? root.type.labelSm - 1 : root.type.labelSm
                font.capitalization: Font.AllUppercase
                font.letterSpacing: 0.5
            }
        }

        RowLayout {
            Layout.fillWidth: !root.inline
            Layout.fillHeight: true
            spacing: root.theme.spaceXs

            Label {
                id: valueLabel

                Layout.fillWidth: true
                Layout.maximumWidth: Math.ceil(implicitWidth)
                text: root.value
                color: root.theme.text
                elide: Text.ElideRight
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: root.type.labelMd
                font.pixelSize: root.inline ? root.type.labelMd : root.compact ? root.type.headingMd : root.type.displaySm
                font.weight: root.type.weightBold
            }

            Label {
                objectName: "unit"
                Layout.alignment: Qt.AlignBaseline
                visible: root.unit !== ""
                text: root.unit
                color: root.theme.textMuted
                font.pixelSize: root.compact ? root.type.labelMd : root.type.bodyMd
            }

            Label {
                Layout.alignment: Qt.AlignBaseline
                visible: text !== ""
                text: root.trend === "up" ? "↑" : root.trend === "down" ? "↓" : ""
                color: root.trend === "up" ? root.theme.success : root.theme.danger
                font.pixelSize: valueLabel.font.pixelSize - 6
                font.weight: root.type.weightBold
            }

            Item {
                Layout.fillWidth: true
                visible: !root.inline
            }
        }
    }
}

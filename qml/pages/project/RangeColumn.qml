import QtQuick
import QtQuick.Layouts
import Velmora
import "../../logic/range_facts.js" as RangeFacts

/// The column beside a matrix: how large the range is, and ways to fill it.
Rectangle {
    id: root

    property Theme theme: Fallback.theme
    property Typography type: Fallback.type
    property var weights: ({})

    readonly property var _facts: RangeFacts.ofWeights(weights)

    signal importRequested

    radius: theme.radiusSm
    color: theme.surface2
    border.color: theme.stroke

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: root.theme.spaceMd
        spacing: root.theme.spaceMd

        FactGrid {
            Layout.fillWidth: true
            theme: root.theme
            type: root.type
            facts: [
                { label: qsTr("Hands"), value: String(root._facts.hands) },
                { label: qsTr("Combos"), value: root._facts.combos.toFixed(1) },
                { label: qsTr("Share"), value: qsTr("%1%").arg((root._facts.share * 100).toFixed(1)) }
            ]
        }

        Item {
            Layout.fillHeight: true
        }

        SmallButton {
            Layout.fillWidth: true
            theme: root.theme
            type: root.type
            text: qsTr("Import range…")
            onClicked: root.importRequested()
        }
    }
}

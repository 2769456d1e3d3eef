import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// The head of the Setup page: whether the board is set, what a solve takes, and the way on.
RowLayout {
    id: root

    property Theme theme: Fallback.theme
    property Typography type: Fallback.type
    required property var controller
    required property bool boardReady
    required property bool canSolve

    readonly property bool _tooLarge: controller.solveRequiredMemoryBytes > 0
        && controller.effectiveAvailableMemoryBytes > 0
        && controller.solveRequiredMemoryBytes > controller.effectiveAvailableMemoryBytes

    signal goToSolve

    spacing: theme.spaceLg

    SectionHeader {
        Layout.fillWidth: true
        theme: root.theme
        title: qsTr("Project Setup")
        badge: root.boardReady ? qsTr("Ready") : qsTr("Setup Required")
        badgeColor: root.boardReady ? root.theme.success : root.theme.warn
    }

    ColumnLayout {
        spacing: 2

        Label {
            Layout.alignment: Qt.AlignRight
            text: qsTr("Solve RAM: %1").arg(root.controller.solveRequiredMemoryText || "—")
            color: root._tooLarge ? root.theme.danger : root.theme.textMuted
            font.pixelSize: root.type.labelSm
        }

        Label {
            Layout.alignment: Qt.AlignRight
            text: qsTr("Available RAM: %1").arg(root.controller.effectiveAvailableMemoryText || "—")
            color: root.theme.textMuted
            font.pixelSize: root.type.labelSm
        }
    }

    PrimaryButton {
        theme: root.theme
        text: qsTr("Continue to Solve →")
        enabled: root.canSolve
        onClicked: root.goToSolve()
    }
}

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// The head of the Setup page: whether the spot is ready or what it lacks, what a solve takes, the way
/// back over the last steps, and the way on.
RowLayout {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property ProjectState project
    required property bool canSolve
    /// The memory figure is of the spot as it was before the latest edit.
    required property bool estimatePending

    readonly property bool _tooLarge: Controller.solveRequiredMemoryBytes > 0
        && Controller.effectiveAvailableMemoryBytes > 0
        && Controller.solveRequiredMemoryBytes > Controller.effectiveAvailableMemoryBytes

    signal goToSolve
    /// The way on was asked for while there is none.
    signal refused

    spacing: theme.spaceLg

    SectionHeader {
        Layout.fillWidth: true
        Layout.minimumWidth: implicitWidth
        title: qsTr("Project Setup")
        badge: root.project.faults.ready ? qsTr("Ready") : qsTr("Setup Required")
        badgeColor: root.project.faults.ready ? root.theme.success : root.theme.warn
    }

    ColumnLayout {
        Layout.fillWidth: true
        Layout.preferredWidth: 340
        Layout.minimumWidth: 180
        Layout.maximumWidth: 460
        spacing: 2

        Label {
            id: reason

            Layout.fillWidth: true
            visible: !root.project.faults.ready
            horizontalAlignment: Text.AlignRight
            text: root.project.faults.refusal
            color: Object.keys(root.project.faults.sentences).length > 0 ? root.theme.danger : root.theme.warn
            font.pixelSize: root.type.labelMd
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight

            HoverHandler {
                id: hover
            }

            AppToolTip {
                visible: hover.hovered && reason.truncated
                text: reason.text
            }
        }

        Label {
            Layout.fillWidth: true
            visible: root.project.faults.ready
            horizontalAlignment: Text.AlignRight
            text: root.estimatePending ? qsTr("Solve RAM: being estimated…")
                : qsTr("Solve RAM: %1").arg(Controller.solveRequiredMemoryText || "—")
            color: !root.estimatePending && root._tooLarge ? root.theme.danger : root.theme.textMuted
            font.pixelSize: root.type.labelSm
            elide: Text.ElideRight
        }

        Label {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignRight
            text: qsTr("Available RAM: %1").arg(Controller.effectiveAvailableMemoryText || "—")
            color: root.theme.textMuted
            font.pixelSize: root.type.labelSm
            elide: Text.ElideRight
        }
    }

    RowLayout {
        spacing: root.theme.spaceXs

        SmallButton {
            id: undoButton

            text: qsTr("Undo")
            enabled: root.project.canUndo
            onClicked: root.project.undo()

            AppToolTip {
                visible: undoButton.hovered
                text: qsTr("Take back the last change (Ctrl+Z)")
            }
        }

        SmallButton {
            id: redoButton

            text: qsTr("Redo")
            enabled: root.project.canRedo
            onClicked: root.project.redo()

            AppToolTip {
                visible: redoButton.hovered
                text: qsTr("Bring back what was undone (Ctrl+Shift+Z)")
            }
        }
    }

    PrimaryButton {
        text: qsTr("Continue to Solve →")
        onClicked: {
            if (root.canSolve)
                root.goToSolve()
            else
                root.refused()
        }
    }
}

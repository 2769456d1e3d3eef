import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora
import "solve_status.js" as SolveStatus

/// What a solve may use of the machine.
Card {
    id: root

    property Typography type: Style.type
    required property ProjectState project
    required property int systemThreadCount

    readonly property int _threads: Math.max(1, systemThreadCount)
    readonly property var _threadChoiceModel: SolveStatus.threadChoices(_threads)

    function chooseThreads(choice: string) {
        project.threadCount = choice === "Max" ? _threads : Number(choice)
    }

    function _holdThreadCount() {
        project.threadCount = SolveStatus.validThreadCount(project.threadCount, _threads)
    }

    on_ThreadsChanged: _holdThreadCount()
    Component.onCompleted: _holdThreadCount()

    Connections {
        function onThreadCountChanged() {
            root._holdThreadCount()
        }

        target: root.project
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceMd

        CardTitle {
            text: qsTr("Compute")
        }

        GridLayout {
            Layout.fillWidth: true
            columns: 2
            columnSpacing: root.theme.spaceMd
            rowSpacing: root.theme.spaceSm

            Label {
                Layout.fillWidth: true
                text: qsTr("Threads")
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }

            ChoiceBox {
                Layout.preferredWidth: 160
                label: qsTr("Threads")
                // "Max" is a key; what is shown for it is translated.
                model: root._threadChoiceModel.map(choice => choice === "Max" ? qsTr("Max") : choice)
                choice: root.project.threadCount === root._threads
                        ? 0 : Math.max(0, root._threadChoiceModel.indexOf(String(root.project.threadCount)))
                onActivated: index => root.chooseThreads(root._threadChoiceModel[index])
            }

            Label {
                Layout.fillWidth: true
                text: qsTr("Precision")
                color: root.theme.textMuted
                font.pixelSize: root.type.labelMd
            }

            ChoiceBox {
                id: precisionBox

                Layout.preferredWidth: 160
                label: qsTr("Precision")
                model: ["Float32", "Float64"]
                Accessible.description: precisionTip.text

                AppToolTip {
                    id: precisionTip

                    visible: precisionBox.hovered && !precisionBox.popup.visible
                    text: qsTr("The solver computes in Float32, whatever is chosen here.")
                }
            }
        }
    }
}

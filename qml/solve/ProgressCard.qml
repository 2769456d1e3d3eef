import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora
import "solve_status.js" as SolveStatus

/// Follows a running solve: the ring, the status line, the bar and the metrics.
Card {
    id: root

    property Typography type: Style.type
    required property SolveFollower follower
    required property SolveClock clock
    readonly property int iterationWindowSize: 10

    readonly property int iterationWindowValue: follower.running
        ? SolveStatus.iterationWindowValue(follower.currentIteration, iterationWindowSize) : 0

    function _statusLine(): string {
        if (!follower.running)
            return follower.shownStatus || qsTr("Ready to solve")
        if (follower.isFinalizing)
            return follower.shownStatus || qsTr("Finalizing…")
        if (follower.currentIteration > 0)
            return qsTr("Iteration %1 | exploitability=%2").arg(follower.currentIteration)
                   .arg(SolveStatus.formatExploitabilityForUi(follower.currentIteration, follower.currentExploitabilityValue))
        return follower.shownStatus
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceLg

        CardTitle {
            text: qsTr("Progress")
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: root.theme.spaceXl

            ProgressRing {
                Layout.preferredWidth: 140
                Layout.preferredHeight: 140
                strokeWidth: 10
                value: root.follower.progressWheelValue
                indeterminate: root.follower.running && root.follower.currentIteration <= 0
            }

            ColumnLayout {
                Layout.fillWidth: true
                spacing: root.theme.spaceSm

                Label {
                    Layout.fillWidth: true
                    text: root._statusLine()
                    color: root.theme.text
                    font.pixelSize: root.type.headingSm
                    font.weight: root.type.weightSemibold
                    wrapMode: Text.Wrap
                }

                Label {
                    Layout.fillWidth: true
                    visible: root.follower.isFinalizing
                    text: qsTr("Solver converged — finalizing results…")
                    color: root.theme.textMuted
                    font.pixelSize: root.type.bodySm
                    wrapMode: Text.Wrap
                }

                Rectangle {
                    Layout.fillWidth: true
                    Layout.topMargin: root.theme.spaceXs
                    Layout.preferredHeight: 8
                    radius: 4
                    color: root.theme.surface3
                    Accessible.role: Accessible.ProgressBar
                    Accessible.name: windowLabel.text

                    Rectangle {
                        width: parent.width * root.iterationWindowValue / root.iterationWindowSize
                        height: parent.height
                        radius: parent.radius
                        color: root.theme.accent

                        Behavior on width {
                            NumberAnimation {
                                duration: 200
                            }
                        }
                    }
                }

                Label {
                    id: windowLabel

                    text: root.follower.running
                          ? qsTr("Window %1/%2").arg(root.iterationWindowValue).arg(root.iterationWindowSize)
                          : qsTr("Iterations: %1").arg(root.follower.currentIteration.toLocaleString(Qt.locale(), "f", 0))
                    color: root.theme.textMuted
                    font.pixelSize: root.type.labelMd
                }
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 1
            color: root.theme.stroke
        }

        CardTitle {
            text: qsTr("Metrics")
        }

        GridLayout {
            Layout.fillWidth: true
            columns: width >= 4 * 120 + 3 * columnSpacing ? 4 : 2
            columnSpacing: root.theme.spaceMd
            rowSpacing: root.theme.spaceMd

            StatCard {
                Layout.fillWidth: true
                compact: true
                label: qsTr("Elapsed")
                value: root.clock.elapsedTime
            }

            StatCard {
                Layout.fillWidth: true
                compact: true
                label: qsTr("Remaining")
                value: root.clock.estimatedRemaining
            }

            StatCard {
                Layout.fillWidth: true
                compact: true
                label: qsTr("Speed")
                value: root.clock.iterationsPerSec > 0 ? root.clock.iterationsPerSec.toFixed(0) : "—"
                unit: qsTr("it/s")
            }

            StatCard {
                Layout.fillWidth: true
                compact: true
                accentColor: root.theme.gold
                label: qsTr("Exploitability")
                value: root.follower.currentExploitabilityValue !== undefined
                       ? root.follower.currentExploitabilityValue.toFixed(4)
                       : root.follower.running ? qsTr("Measuring...") : "—"
            }
        }
    }
}

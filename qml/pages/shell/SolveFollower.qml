import QtQuick
import "../../logic/solve_status.js" as SolveStatus

/// Follows a solve by the controller's properties: its iteration, its exploitability and where its
/// progress wheel stands. The top bar and the Solve page show the same one.
QtObject {
    id: root

    required property var controller
    required property int maxIterations
    required property real targetExploitability  ///< Percent of the starting pot.

    readonly property bool running: controller.running
    readonly property string statusText: controller.statusText
    readonly property bool isFinalizing: running && SolveStatus.isFinalizingText(statusText)
    readonly property bool runComplete: !running && controller.resultIterations > 0
    property int lastIterationSeen: 0

    readonly property int currentIteration: {
        if (!running)
            return controller.resultIterations
        if (isFinalizing && lastIterationSeen > 0)
            return lastIterationSeen
        const iteration = SolveStatus.parseIterationFromStatusText(statusText)
        if (iteration > 0)
            return iteration
        return Math.max(0, Math.floor(controller.progress * Math.max(1, maxIterations)))
    }
    readonly property int progressWheelTotalIterations:
        SolveStatus.progressWheelTotalIterations(targetExploitability, maxIterations)
    readonly property real progressWheelValue: running
        ? Math.min(1, Math.max(0, currentIteration / Math.max(1, progressWheelTotalIterations)))
        : (runComplete ? 1 : 0)
    readonly property int percentage: Math.round(progressWheelValue * 100)

    /// Chips, or undefined while there is none: what a run tells before its first measure is no value.
    readonly property var currentExploitabilityValue: {
        if (running)
            return currentIteration > SolveStatus.firstMeasure
                ? SolveStatus.parseExploitabilityFromStatusText(statusText) : undefined
        return controller.resultExploitability > 0 ? controller.resultExploitability : undefined
    }

    onStatusTextChanged: {
        const iteration = SolveStatus.parseIterationFromStatusText(statusText)
        if (running && iteration > 0)
            lastIterationSeen = iteration
    }
    onRunningChanged: {
        if (!running)
            lastIterationSeen = 0
    }
}

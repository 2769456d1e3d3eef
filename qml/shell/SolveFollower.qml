import QtQuick
import Velmora
import "../solve/solve_status.js" as SolveStatus

/// Follows a solve by the controller's properties: its iteration, its exploitability and where its
/// progress wheel stands. The top bar and the Solve page show the same one.
QtObject {
    id: root

    required property int maxIterations
    required property real targetExploitability  ///< Percent of the starting pot.

    readonly property bool running: Controller.running
    readonly property string statusText: Controller.statusText
    /// The status in the user's language.
    readonly property string shownStatus: Controller.iteration > 0
        ? qsTr("Iteration %1 | exploitability=%2").arg(Controller.iteration)
          .arg(Controller.iteration > SolveStatus.firstMeasure ? Controller.exploitability.toFixed(4) : "—")
        : _shown(statusText)
    readonly property bool isFinalizing: running && statusText.startsWith("Finalizing:")
    readonly property bool runComplete: !running && Controller.resultIterations > 0
    property int lastIterationSeen: 0

    readonly property int currentIteration: {
        if (!running)
            return Controller.resultIterations
        if (isFinalizing && lastIterationSeen > 0)
            return lastIterationSeen
        if (Controller.iteration > 0)
            return Controller.iteration
        return Math.max(0, Math.floor(Controller.progress * Math.max(1, maxIterations)))
    }
    readonly property int progressWheelTotalIterations:
        SolveStatus.progressWheelTotalIterations(targetExploitability, maxIterations)
    readonly property real progressWheelValue: running
        ? Math.min(1, Math.max(0, currentIteration / Math.max(1, progressWheelTotalIterations)))
        : (runComplete ? 1 : 0)
    readonly property int percentage: Math.round(progressWheelValue * 100)

    /// Chips, or undefined while there is none. That of a run has the four decimals of its status, so
    /// that a shorter form of it is rounded alike everywhere.
    readonly property var currentExploitabilityValue: {
        if (!running)
            return Controller.resultExploitability > 0 ? Controller.resultExploitability : undefined
        return currentIteration > SolveStatus.firstMeasure && isFinite(Controller.exploitability)
            ? Number(Controller.exploitability.toFixed(4)) : undefined
    }

    function _shown(text: string): string {
        if (text.startsWith("Error: "))
            return qsTr("Error: %1").arg(text.slice(7))
        switch (text) {
        case "Done":
            return qsTr("Done")
        case "Done: node locks keep the exploitability from falling":
            return qsTr("Done: node locks keep the exploitability from falling")
        case "Cancelled":
            return qsTr("Cancelled")
        case "Init: building game object...":
            return qsTr("Building the cards and the tree...")
        case "Init: building game tree structures...":
            return qsTr("Preparing the solver...")
        case "Init: starting solver...":
            return qsTr("Starting the solver...")
        case "Finalizing: computing results...":
            return qsTr("Computing the results...")
        case "Finalizing: building result snapshot...":
            return qsTr("Collecting the tree...")
        default:
            return text
        }
    }

    onStatusTextChanged: {
        if (running && Controller.iteration > 0)
            lastIterationSeen = Controller.iteration
    }
    onRunningChanged: {
        if (!running)
            lastIterationSeen = 0
    }
}

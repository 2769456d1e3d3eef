import QtQuick
import "solve_status.js" as SolveStatus

/// The time of a run in seconds, its average speed, and what the rest of its iterations would take.
/// The figures of a run begin anew with it.
Timer {
    id: root

    required property int currentIteration
    required property int maxIterations
    property string elapsedTime: "00:00"
    property string estimatedRemaining: "--:--"
    property real iterationsPerSec: 0
    property int _seconds: 0

    interval: 1000
    repeat: true
    onTriggered: {
        ++_seconds
        elapsedTime = SolveStatus.formatMinutesSeconds(_seconds)
        if (currentIteration > 0) {
            iterationsPerSec = currentIteration / _seconds
            estimatedRemaining = SolveStatus.formatMinutesSeconds((maxIterations - currentIteration) / iterationsPerSec)
        }
    }
    onRunningChanged: {
        estimatedRemaining = running ? "--:--" : "00:00"
        if (running) {
            _seconds = 0
            elapsedTime = "00:00"
            iterationsPerSec = 0
        }
    }
}

import QtQuick

/// The latest runs started from the Solve page, the newest first. It lives as long as the program.
QtObject {
    id: root

    readonly property int limit: 10
    property bool running: false
    /// Rows with `runId`, `startedAt`, `status` ("Running", "Completed" or "Cancelled") and `summary`.
    readonly property ListModel rows: ListModel {}
    property int _nextRunId: 1
    property int _activeRunId: -1

    /// Adds a run of a project, which becomes the active one.
    function append(project: ProjectState) {
        _activeRunId = _nextRunId++
        rows.insert(0, {
            runId: _activeRunId,
            startedAt: Qt.formatTime(new Date(), "HH:mm:ss"),
            status: "Running",
            summary: qsTr("Iterations %1 • Target %2% (≈ %3) • Threads %4")
                     .arg(project.maxIterations.toLocaleString(Qt.locale(), "f", 0))
                     .arg(project.targetExploitability)
                     .arg(project.targetExploitabilityAmount().toFixed(2))
                     .arg(project.threadCount)
        })
        if (rows.count > limit)
            rows.remove(limit, rows.count - limit)
    }

    function markCancelled() {
        _setActiveStatus("Cancelled")
    }

    function clear() {
        rows.clear()
    }

    function _setActiveStatus(status: string) {
        for (let i = 0; i < rows.count; ++i) {
            if (rows.get(i).runId === _activeRunId && rows.get(i).status === "Running")
                rows.setProperty(i, "status", status)
        }
    }

    onRunningChanged: {
        if (!running) {
            _setActiveStatus("Completed")
            _activeRunId = -1
        }
    }
}

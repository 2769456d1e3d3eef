import QtQuick
import Velmora

/// The latest runs of this session, the newest first, however each was started.
QtObject {
    id: root

    readonly property int limit: 10
    /// Rows with `runId`, `startedAt`, `status` ("Running", "Completed", "Cancelled", "Failed" or
    /// "Refused") and `summary`.
    readonly property ListModel rows: ListModel {}
    property int _nextRunId: 1
    property string _asked: ""

    readonly property Connections _runs: Connections {
        function onRunStarted(cfg) {
            root._append(cfg)
        }

        function onRunEnded(outcome, text, iterations) {
            root._end(outcome, text, iterations)
        }

        target: Controller
    }

    function clear() {
        rows.clear()
    }

    function _count(iterations: int): string {
        return Number(iterations).toLocaleString(Qt.locale(), "f", 0)
    }

    /// Adds the run of a solve configuration map.
    function _append(cfg: var) {
        const target = Number(cfg.target_exploitability ?? 0)
        const pot = Number(cfg.starting_pot ?? 0)
        _asked = qsTr("Target %1% (≈ %2) • Threads %3")
                 .arg(pot > 0 ? Number((target / pot * 100).toFixed(3)) : 0).arg(target.toFixed(2))
                 .arg(cfg.thread_count ?? 1)
        rows.insert(0, {
            runId: _nextRunId++,
            startedAt: Qt.formatTime(new Date(), "HH:mm:ss"),
            status: "Running",
            summary: qsTr("At most %1 iterations").arg(_count(cfg.max_iterations ?? 0)) + " • " + _asked
        })
        if (rows.count > limit)
            rows.remove(limit, rows.count - limit)
    }

    function _end(outcome: string, text: string, iterations: int) {
        if (rows.count === 0 || rows.get(0).status !== "Running")
            return
        const summary = outcome === "Completed" ? qsTr("%1 iterations").arg(_count(iterations)) + " • " + _asked
                                                : text !== "" ? text : rows.get(0).summary
        rows.set(0, { status: outcome, summary: summary })
    }
}

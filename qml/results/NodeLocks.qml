import QtQuick
import Velmora
import "hand_views.js" as HandViews

/// The controls to set node locks with. The locks themselves are the controller's, which keeps them
/// with the tree that they were set on.
QtObject {
    id: root

    property bool nodeLockMode: false
    property int nodeLockSelectedActionIndex: -1
    property string nodeLockWeightText: "1.0"
    /// Why the weight can't be taken; empty for a number from 0 to 1.
    readonly property string weightFault: HandViews.isLockWeight(nodeLockWeightText)
                                          ? "" : qsTr("The weight must be a number from 0 to 1")
    /// The node whose locks were reset last, and what they were: {node, locks}; null for none.
    property var lastReset: null

    /// The locks of a node changed. All of them change with the results only.
    signal changed(int node)

    readonly property Connections _table: Connections {
        function onLocksChanged(node) {
            if (node >= 0)
                root.changed(node)
        }

        function onResultsChanged() {
            root.lastReset = null
            root.nodeLockSelectedActionIndex = -1
        }

        target: Controller
    }

    /// By hand label: {actionIndex, actionProb}.
    function ofNode(node: int): var {
        const locks = {}
        for (const lock of Controller.nodeLocks(node))
            locks[lock.hand] = lock
        return locks
    }

    /// The locks that views of a node draw over the solved strategy: those that are not solved yet,
    /// where all views can draw them.
    function previewOf(node: int): var {
        return Controller.nodeLocksPending(node) && Controller.resultHasTables ? ofNode(node) : {}
    }

    /// Locks a hand to the selected action; false if there is nothing to lock it to.
    function applyNodeLockToHand(node: int, hand: string): bool {
        if (!nodeLockMode || nodeLockSelectedActionIndex < 0 || weightFault !== "")
            return false
        Controller.setNodeLock(node, hand, nodeLockSelectedActionIndex,
                               HandViews.parseLockWeight(nodeLockWeightText))
        return true
    }

    /// Drops the locks of a node and what was chosen for the next one.
    function resetNodeLockEdits(node: int) {
        const locks = Controller.nodeLocks(node)
        nodeLockSelectedActionIndex = -1
        nodeLockWeightText = "1.0"
        Controller.clearNodeLocks(node)
        lastReset = locks.length > 0 ? { node: node, locks: locks } : null
    }

    /// Sets the locks again that were reset last.
    function undoReset() {
        if (lastReset === null)
            return
        for (const lock of lastReset.locks)
            Controller.setNodeLock(lastReset.node, lock.hand, lock.actionIndex, lock.actionProb)
        lastReset = null
    }

    function enterLockMode() {
        nodeLockMode = true
        nodeLockSelectedActionIndex = -1
    }

    function leaveLockMode() {
        nodeLockMode = false
    }
}

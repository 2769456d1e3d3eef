import QtQuick
import "../../logic/hand_views.js" as HandViews

/// The node locks that were set here, node by node, and the controls to set another. The controller
/// keeps its own table, which the next re-solve takes.
QtObject {
    id: root

    required property var controller
    property bool nodeLockMode: false
    property int nodeLockSelectedActionIndex: -1
    property string nodeLockWeightText: "1.0"
    /// By node index as text, by hand label: {actionIndex, actionProb}.
    property var nodeLocksByNode: ({})

    /// The locks of a node changed.
    signal changed(int node)

    /// By hand label: {actionIndex, actionProb}.
    function ofNode(node: int): var {
        return nodeLocksByNode[String(node)] ?? {}
    }

    /// Locks a hand to the selected action; false if there is nothing to lock it to.
    function applyNodeLockToHand(node: int, hand: string): bool {
        if (!nodeLockMode || nodeLockSelectedActionIndex < 0)
            return false
        const probability = HandViews.parseLockWeight(nodeLockWeightText)
        const locks = Object.assign({}, nodeLocksByNode)
        locks[String(node)] = Object.assign({}, ofNode(node))
        locks[String(node)][hand] = { actionIndex: nodeLockSelectedActionIndex, actionProb: probability }
        nodeLocksByNode = locks
        controller.setNodeLock(node, hand, nodeLockSelectedActionIndex, probability)
        changed(node)
        return true
    }

    /// Drops the locks of a node and what was chosen for the next one.
    function resetNodeLockEdits(node: int) {
        const locks = Object.assign({}, nodeLocksByNode)
        delete locks[String(node)]
        nodeLocksByNode = locks
        nodeLockSelectedActionIndex = -1
        nodeLockWeightText = "1.0"
        controller.clearNodeLocks(node)
        changed(node)
    }

    function enterLockMode() {
        nodeLockMode = true
        nodeLockSelectedActionIndex = -1
    }

    function leaveLockMode(node: int) {
        nodeLockMode = false
        resetNodeLockEdits(node)
    }
}

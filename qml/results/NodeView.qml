import QtQuick
import Velmora
import "hand_views.js" as HandViews
import "tree_walk.js" as Walk

/// What the views show of the node on view: figures by action, the grid, the categories, the combos,
/// the filters and the locks. The figures are the controller's; they are computed away from the
/// window's thread, and `loading` is true until they are there.
QtObject {
    id: root

    property Theme theme: Style.theme
    required property TreeWalk walk
    required property NodeLocks locks

    readonly property int node: walk.currentNodeIndex
    readonly property bool isChance: walk.currentMeta.nodeType === "chance"
    property bool loading: false
    /// Whether it has taken so long that the window should say so. Most nodes are there before.
    property bool waiting: false
    /// While it is true nobody looks: steps of the walk ask for nothing.
    property bool paused: false
    /// Whether locks that are not solved yet are drawn over the strategy of the node.
    property bool previews: false
    /// Why figures of the node are missing; empty if they are not.
    property string nodeError: ""

    // Filters
    property string selectedHandClass: ""
    property string handSearchText: ""
    property string selectedBucket: ""

    // Actions
    property var currentActions: []
    readonly property var actionFrequenciesActions: HandViews.normalizeActionEvsAroundFold(currentActions)

    // Grid
    property var handWeights: ({})
    property var handColors: ({})
    property var handActionTypeList: []
    property var handActionProbs: ({})

    // Categories and combos
    property var buckets: []
    property bool _handCombosLoading: false
    property var _loadedHandCombos: []
    readonly property var visibleHandCombos: HandViews.visibleHandCombos(_loadedHandCombos, {
        boardCards: BoardText.usedCards(walk.treeBoardText).length,
        handClass: selectedHandClass,
        bucket: selectedBucket,
        search: handSearchText
    })

    readonly property Timer _combosTimer: Timer {
        interval: 60
        onTriggered: {
            // A board that shows another suit than the tree holds shows the hands in that suit too.
            const suits = root.walk.suitsAt(root.walk.treeLevels.count)
            root._loadedHandCombos = HandViews.combosWithLocks(
                Walk.shownCombos(Controller.nodeHandCombos(root.node), suits), root.locks.previewOf(root.node))
            root._handCombosLoading = false
        }
    }

    readonly property Timer _waitTimer: Timer {
        interval: 120
        onTriggered: {
            root.currentActions = root.isChance ? [root._chanceAction()] : Controller.nodeActions(root.node)
            root.waiting = true
        }
    }

    readonly property Connections _answers: Connections {
        function onNodeAnswersReady(node) {
            if (node === root.node)
                root._showAnswers()
        }

        function onNodeAnswersFailed(node, error) {
            if (node === root.node)
                root.nodeError = error
        }

        target: Controller
    }

    // The names in the answers of calls don't follow the language by themselves.
    readonly property string _language: Qt.uiLanguage

    function toggleHandFilter(hand: string) {
        selectedHandClass = selectedHandClass === hand ? "" : hand
    }

    function toggleBucketFilter(bucket: string) {
        selectedBucket = selectedBucket === bucket ? "" : bucket
    }

    /// Starts to look at the node on view. The views change when its figures are ready; what is known
    /// at once shows if that takes a while.
    function look() {
        if (paused)
            return
        // First, so that the views keep still while the filters go.
        loading = true
        nodeError = ""
        _combosTimer.stop()
        _handCombosLoading = true
        _loadedHandCombos = []
        selectedHandClass = ""
        selectedBucket = ""
        handSearchText = ""
        if (Controller.treeNodeCount() === 0) {
            _showAnswers()
            return
        }
        _waitTimer.restart()
        Controller.prepareNodeAnswers(node)
    }

    /// Shows nothing: what is there belongs to a result that has gone.
    function forget() {
        currentActions = []
        handWeights = {}
        handActionProbs = {}
        buckets = []
        _loadedHandCombos = []
        previews = false
    }

    /// Runs again at a change of the node, the category filter, the locks and at new results.
    function refreshHandMatrix() {
        if (!loading)
            _fillGrid()
    }

    /// Draws all that depends on the locks anew.
    function refreshLocks() {
        if (loading || paused)
            return
        _fillGrid()
        buckets = Controller.nodeHandBuckets(node)
        _scheduleHandCombosLoad()
    }

    function _fillGrid() {
        const { actionProbs, weights, actionTypeList, dominantActionTypes } = Controller.nodeHandStrategy(node)
        // The actions are asked for here: a binding may still hold those of the node before.
        const definitions = _definitions()
        const { actionProbs: reachProbs, weights: reachWeights } = Controller.nodeHandStrategyReach169(node, selectedBucket)
        const count = HandViews.actionCount(definitions, reachProbs ?? actionProbs, actionTypeList)
        const preview = locks.previewOf(node)
        previews = Object.keys(preview).length > 0
        const probabilities = HandViews.withLocks(reachProbs ?? actionProbs ?? {}, preview, count)
        const shownWeights = reachWeights ?? weights ?? {}
        const colors = {}
        for (const hand in shownWeights) {
            const action = definitions[HandViews.dominantAction(probabilities[hand])]
            const dominant = dominantActionTypes?.[hand]
            colors[hand] = action ? theme.actionColor(action.actionType || action.name)
                                  : dominant ? theme.actionColor(dominant) : theme.textMuted
        }
        handWeights = shownWeights
        handColors = colors
        handActionTypeList = HandViews.actionTypeList(definitions, actionTypeList, count)
        handActionProbs = probabilities
    }

    /// The actions that a hand chooses from; a dealt card is nobody's choice.
    function _definitions(): var {
        if (isChance)
            return []
        const stats = Controller.nodeActionStats(node)
        return stats.length > 0 ? stats : Controller.nodeActions(node)
    }

    function _chanceAction(): var {
        return {
            name: walk.currentMeta.chanceDeal === "river" ? qsTr("Random river card") : qsTr("Random turn card"),
            actionType: "chance",
            frequency: 1
        }
    }

    function _showAnswers() {
        _waitTimer.stop()
        waiting = false
        currentActions = isChance ? [_chanceAction()] : _definitions()
        _fillGrid()
        buckets = Controller.nodeHandBuckets(node)
        _scheduleHandCombosLoad()
        loading = false
    }

    function _scheduleHandCombosLoad() {
        _handCombosLoading = true
        _combosTimer.restart()
    }

    on_LanguageChanged: {
        if (!loading && !paused)
            _showAnswers()
    }
    onNodeChanged: look()
    onPausedChanged: look()
    onSelectedBucketChanged: refreshHandMatrix()
}

import QtQuick
import Velmora
import "trainer_score.js" as Score
import "../results/tree_walk.js" as Walk

/// What decisions of a hand cost. The figures of a node are computed away from the window's thread.
///
/// EVs are in chips. Where a card of another suit was picked for the one that the tree keeps, a hand
/// is looked up with the two suits exchanged.
QtObject {
    id: root

    required property TreeWalk walk
    property real playSuboptimalEpsilon: 1e-6
    property real playSuboptimalRelativeTol: 0.01

    property int _wantedNode: -1
    property int _readyNode: -1
    property var _evsByNode: ({})

    readonly property Connections _walk: Connections {
        function onCurrentNodeIndexChanged() {
            root._evsByNode = {}
        }

        target: root.walk
    }

    readonly property Connections _answers: Connections {
        function onNodeAnswersReady(node: int) {
            if (node === root._wantedNode && node !== root._readyNode)
                root._takeAnswers()
        }

        target: Controller
    }

    /// The figures of the node that was asked for are there.
    signal ready

    /// Has the figures of a node computed. The newest node wins.
    function prepare(node: int) {
        _wantedNode = node
        _readyNode = -1
        Controller.prepareNodeAnswers(node)
    }

    function forget() {
        _wantedNode = -1
        _readyNode = -1
    }

    function isReady(node: int): bool {
        return node === _readyNode
    }

    /// The EVs of a decision (`Score.evInfo`) from the closest source that knows them: those of the
    /// dealt hand as the strategy view shows them, those of the dealt hand alone, the averages of the
    /// range. Null if none does. `cards` are the two of the actor, as they are shown.
    function suboptimalEvInfoAtNode(node: int, actor: string, cards: list<string>, actionIndex: int): var {
        if (actor !== "OOP" && actor !== "IP")
            return null
        const suits = walk.suitsAt(walk.treeLevels.count)
        const [card1, card2] = Array.from(cards, card => Walk.treeCard(card, suits))
        return Score.evInfo(_comboEvsAt(node)[card1 + card2], actionIndex)
            ?? Score.evInfo(Controller.nodePocketActionEvs(node, actor, card1, card2), actionIndex)
            ?? Score.evInfo(_rangeEvsAt(node), actionIndex)
    }

    function isMistake(info: var): bool {
        return Score.isMistake(info, playSuboptimalEpsilon, playSuboptimalRelativeTol)
    }

    function _takeAnswers() {
        _readyNode = _wantedNode
        _comboEvsAt(_readyNode)
        ready()
    }

    function _comboEvsAt(node: int): var {
        if (_evsByNode[node] === undefined)
            _evsByNode[node] = Score.evsByCards(Controller.nodeHandCombos(node))
        return _evsByNode[node]
    }

    function _rangeEvsAt(node: int): var {
        const evs = []
        const stats = Controller.nodeActionStats(node)
        for (let i = 0; i < stats.length; ++i)
            evs.push(stats[i].ev)
        return evs
    }
}

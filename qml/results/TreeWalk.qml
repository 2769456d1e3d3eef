import QtQuick
import Velmora
import "tree_walk.js" as Walk

/// The walked path through a solved tree. The tree itself stays with the controller, which is asked
/// by node index; `boardText` is the board of the solve.
QtObject {
    id: root

    required property string boardText
    /// The path: rows with `nodeIndex` and `selectedActionIndex`, -1 while undecided.
    readonly property ListModel treeLevels: ListModel {}
    property int currentNodeIndex: 0
    property string selectedPlayer: "OOP"
    property var nodePath: [qsTr("Root")]
    property string treeBoardText: ""
    /// By node index: the card that the user picked, where the tree keeps another suit for it.
    property var chanceCardDisplayOverrideByNode: ({})
    /// While it is true the column that shows the walk takes no choices.
    property bool locked: false
    /// Whether a step into a terminal node adds a level. It has no strategy to show.
    property bool entersTerminals: false

    /// Goes up with each new tree. What the controller says of nodes is the answer of a call, which
    /// notifies nobody of a change: a binding that reads this figure too is evaluated again.
    property int revision: 0
    readonly property var currentMeta: revision >= 0 ? nodeMeta(currentNodeIndex) : ({})
    readonly property var currentNodeActions: revision >= 0 ? nodeActions(currentNodeIndex) : []

    function nodeMeta(node: int): var {
        return Controller.nodeMeta(node)
    }

    function nodeActions(node: int): var {
        return Controller.nodeActions(node)
    }

    /// One level, node 0, undecided.
    function resetTreeToRoot() {
        ++revision
        treeLevels.clear()
        chanceCardDisplayOverrideByNode = {}
        _enter(0)
        rebuildBreadcrumbs()
    }

    /// Takes an action of the last level, if it is undecided.
    function selectActionAtLevel(levelIndex: int, actionIndex: int) {
        if (levelIndex !== treeLevels.count - 1 || treeLevels.get(levelIndex).selectedActionIndex >= 0)
            return
        const actions = nodeActions(treeLevels.get(levelIndex).nodeIndex)
        if (actionIndex < 0 || actionIndex >= actions.length)
            return
        treeLevels.setProperty(levelIndex, "selectedActionIndex", actionIndex)
        const child = actions[actionIndex].childIndex
        if (child >= 0 && child < Controller.treeNodeCount()
                && (entersTerminals || nodeMeta(child).nodeType !== "terminal"))
            _enter(child)
        rebuildBreadcrumbs()
    }

    /// Back to the state at a level, with all its actions to choose from.
    function navigateToBreadcrumb(levelIndex: int) {
        if (levelIndex < 0 || levelIndex >= treeLevels.count)
            return
        if (levelIndex + 1 < treeLevels.count)
            treeLevels.remove(levelIndex + 1, treeLevels.count - levelIndex - 1)
        treeLevels.setProperty(levelIndex, "selectedActionIndex", -1)
        _show(treeLevels.get(levelIndex).nodeIndex)
        rebuildBreadcrumbs()
    }

    /// Deals a card at a level, in place of what came there and after. The board shows the card that
    /// was picked, also where the tree follows another suit.
    function chooseChanceCard(levelIndex: int, actionIndex: int, displayCardText: string) {
        if (levelIndex !== treeLevels.count - 1 || treeLevels.get(levelIndex).selectedActionIndex >= 0)
            navigateToBreadcrumb(levelIndex)
        const node = treeLevels.get(levelIndex).nodeIndex
        const actions = nodeActions(node)
        if (actionIndex < 0 || actionIndex >= actions.length)
            return
        const overrides = Object.assign({}, chanceCardDisplayOverrideByNode)
        overrides[String(node)] = displayCardText.length === 2 ? displayCardText
                                  : Walk.shownCard(actions[actionIndex].name, suitsAt(levelIndex))
        chanceCardDisplayOverrideByNode = overrides
        selectActionAtLevel(levelIndex, actionIndex)
    }

    /// The name of the action chosen at a level, the picked card at a chance node; "" while undecided.
    function chosenNameAt(levelIndex: int): string {
        const name = _treeNameAt(levelIndex)
        return Walk.isCardName(name)
               ? chanceCardDisplayOverrideByNode[String(treeLevels.get(levelIndex).nodeIndex)] ?? name : name
    }

    /// The board before the choice at a level.
    function boardAt(levelIndex: int): string {
        const cards = []
        for (let level = 0; level < levelIndex; ++level) {
            const name = chosenNameAt(level)
            if (Walk.isCardName(name))
                cards.push(name)
        }
        return Walk.boardWithCards(boardText, cards)
    }

    /// Which suit stands for each suit of the tree before the choice at a level.
    function suitsAt(levelIndex: int): var {
        const dealt = []
        for (let level = 0; level < levelIndex; ++level) {
            const shown = chosenNameAt(level)
            if (Walk.isCardName(shown))
                dealt.push({ name: _treeNameAt(level), shown: shown })
        }
        return Walk.shownSuits(dealt)
    }

    function rebuildBreadcrumbs() {
        const path = [qsTr("Root")]
        for (let level = 0; level < treeLevels.count; ++level) {
            if (treeLevels.get(level).selectedActionIndex >= 0)
                path.push(chosenNameAt(level))
        }
        nodePath = path
        treeBoardText = boardAt(treeLevels.count)
    }

    function _treeNameAt(levelIndex: int): string {
        const level = treeLevels.get(levelIndex)
        // A row of the column may look once more while its level goes.
        if (!level)
            return ""
        return nodeActions(level.nodeIndex)[level.selectedActionIndex]?.name ?? ""
    }

    function _enter(node: int) {
        treeLevels.append({ nodeIndex: node, selectedActionIndex: -1 })
        _show(node)
    }

    function _show(node: int) {
        currentNodeIndex = node
        selectedPlayer = nodeMeta(node).player ?? "OOP"
    }

    onBoardTextChanged: rebuildBreadcrumbs()
}

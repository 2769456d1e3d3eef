import QtQuick
import QtTest
import Velmora
import "find.js" as Find

/// A test of the real window: it is made anew for each test function, with the size of a usual one.
TestCase {
    id: root

    property var window
    property var shell
    readonly property var project: shell?.project
    readonly property QtObject controller: Controller

    function init() {
        // On a real screen Qt's own render loop now and then stops its animation driver twice, and says so.
        failOnWarning(/^(?!QUnifiedTimer::stopAnimationDriver: driver is not running)/)
        const component = Qt.createComponent("qrc:/Velmora/Main.qml")
        compare(component.status, Component.Ready, component.errorString())
        window = component.createObject(null)
        window.width = 1600
        window.height = 1200
        // Keys go to the window that the test case lives in.
        parent = window.contentItem
        window.requestActivate()
        tryVerify(() => window.active)
        shell = Find.withProperties(window.contentItem, "navIndex", "canSolve")
    }

    function cleanup() {
        Translator.setLanguage("en")
        controller.clearResults()
        tryVerify(() => !controller.running)
        parent = null
        window.destroy()
        window = undefined
        wait(0)
    }

    /// The page that shows.
    function page(): Item {
        return Find.withProperties(window.contentItem, "minimumContentWidth", "rows")
    }

    function click(item: Item) {
        verify(item, "nothing to click on")
        if (page() && page().reveal && _isInside(item, page()))
            page().reveal(item)
        waitForRendering(window.contentItem, 200)
        mouseClick(item)
    }

    function clickButton(text: string) {
        const button = Find.button(window.contentItem, text)
        verify(button, "no button says " + text)
        verify(button.enabled, "the button can't be pressed: " + text)
        click(button)
    }

    /// Presses a button of the question that is asked.
    function answer(text: string) {
        const overlay = window.contentItem.parent
        tryVerify(() => Find.button(overlay, text), 5000, "nobody asks")
        wait(200)
        mouseClick(Find.button(overlay, text))
        wait(200)
    }

    /// Replaces what a field holds, by keyboard, and leaves it by Tab.
    function typeInto(field: Item, text: string) {
        click(field)
        verify(field.activeFocus, "the field takes no focus")
        keyClick(Qt.Key_A, Qt.ControlModifier)
        keyClick(Qt.Key_Delete)
        for (const character of text)
            keyClick(character)
        keyClick(Qt.Key_Tab)
    }

    function field(label: string, index = 0): Item {
        const found = Find.fields(window.contentItem, label)
        verify(found.length > index, "no field is called " + label)
        return found[index]
    }

    function tab(text: string): Item {
        return Find.all(window.contentItem, item => item.text === text && item.tabEnabled !== undefined)[0]
    }

    /// A river spot that solves in a moment.
    function setRiverSpot() {
        shell.resetToNewProject()
        const spot = {
            boardText: "AsKd7h2c9s", oopRangeText: "AA,KK,QJs", ipRangeText: "AK,QQ,JJ",
            startingPot: 100, effectiveStack: 200, startingStreet: "river", maxIterations: 150,
            targetExploitability: 0.01
        }
        for (const seat of ["oop", "ip"]) {
            for (const street of ["Flop", "Turn", "River"]) {
                spot[seat + street + "BetSizesText"] = "50"
                spot[seat + street + "RaiseSizesText"] = "60"
            }
        }
        shell.applyProjectState(spot)
    }

    /// Solves the spot of a turn whose river may map diamonds and clubs to each other, and gives the
    /// page that shows the result.
    function solvedTurnPage(): Item {
        setRiverSpot()
        shell.applyProjectState({
            boardText: "QsJh2h3s", startingStreet: "turn", maxIterations: 50, targetExploitability: 0.01,
            oopRangeText: "AA,KK,AKs,KTs,QJs,T9s,98s", ipRangeText: "AK,QQ,JJ,A5s,T9s,87s"
        })
        tryVerify(() => shell.canSolve, 10000)
        keyClick(Qt.Key_F5)
        tryVerify(() => !controller.running && controller.resultIterations > 0, 60000)
        keyClick(Qt.Key_4, Qt.ControlModifier)
        compare(shell.navIndex, 3)
        return Find.withProperties(window.contentItem, "walk", "locks", "rakeCap")
    }

    function _isInside(item: Item, ancestor: Item): bool {
        for (let candidate = item; candidate; candidate = candidate.parent) {
            if (candidate === ancestor)
                return true
        }
        return false
    }
}

import QtQuick
import QtQuick.Layouts
import Velmora
import "../logic/pages.js" as Pages
import "../logic/presets.js" as Presets
import "../logic/solve_gate.js" as SolveGate
import "../theme/font_families.js" as FontFamilies

/// What fills the window: the top bar and the pages under it. It owns the project state, decides
/// which page may show and whether a solve may start, and answers what the pages ask for.
Item {
    id: shell

    // The context objects of the entry.
    // qmllint disable unqualified
    readonly property var controller: appController
    readonly property var translator: languageManager
    readonly property var updateService: updates
    // qmllint enable unqualified
    readonly property Theme theme: theme_
    readonly property Typography type: type_
    readonly property ProjectState project: project_
    property int navIndex: 0
    property bool hasProject: false
    readonly property int projectRecommendedWidth: projectPage.recommendedWindowWidth
    readonly property bool developerMode: controller.developerMode
    readonly property bool canSolve: _canSolveBase && !estimatePending && _hasEnoughRamToSolve
    /// The memory figure is of an older spot than the one at hand.
    readonly property bool estimatePending: memoryEstimateTimer.running || (controller.estimatePending ?? false)
    /// Why no solve can start, in one sentence; "" if one can.
    readonly property string solveRefusal: !hasProject
            ? qsTr("Start a new project (or load one) from Home to enable Project")
        : !_canSolveBase ? project_.faults.refusal
        : estimatePending ? qsTr("The memory that this solve takes is still being estimated.")
        : controller.solveRequiredMemoryBytes <= 0 ? qsTr("The memory that this solve takes could not be estimated.")
        : !_hasEnoughRamToSolve ? qsTr("Not enough memory: this solve takes %1, and %2 is available.")
              .arg(controller.solveRequiredMemoryText).arg(controller.effectiveAvailableMemoryText) : ""

    readonly property bool _canSolveBase: project_.faults.ready
    readonly property bool _hasEnoughRamToSolve: SolveGate.hasEnoughRamToSolve(
        controller.solveRequiredMemoryBytes, controller.systemAvailableMemoryBytes,
        controller.resultsReclaimableMemoryBytes)
    /// Until the window's first frame is there, Setup is drawn with it, out of sight. The renderer
    /// prepares a shader when it first draws with it, and most of them are first met on that page:
    /// without help of a graphics card that is more than a tenth of a second, which nobody should
    /// wait after a click.
    property bool _drawsAhead: true
    /// A running solve holds the user on its page.
    readonly property bool _navigationLocked: navIndex === Pages.solve && controller.running

    function exportProjectState(): var {
        return project_.exportProjectState()
    }

    function applyProjectState(state: var) {
        project_.applyProjectState(state)
        project_.clearHistory()
    }

    function targetExploitabilityAmount(): real {
        return project_.targetExploitabilityAmount()
    }

    function resetToStartupBlank() {
        _reset(Presets.startupBlankPreset(controller.systemThreadCount), false)
    }

    function resetToNewProject() {
        _reset(Presets.newProjectPreset(controller.systemThreadCount), true)
    }

    function resetToDefaults() {
        _reset(quickSolvePreset(), true)
    }

    function quickSolvePreset(): var {
        return developerMode ? Presets.defaultPreset(controller.systemThreadCount)
                             : Presets.customerQuickSolvePreset(controller.systemThreadCount)
    }

    /// Whether a page may show now, apart from the hold of a running solve.
    function isPageOpen(page: int): bool {
        switch (page) {
        case Pages.setup:
            return hasProject
        case Pages.solve:
            return canSolve
        case Pages.results:
            return controller.resultIterations > 0
        default:
            return true
        }
    }

    /// Shows a page, unless the rules of navigation refuse it.
    function requestPage(page: int) {
        if (_navigationLocked)
            return
        if (!isPageOpen(page)) {
            if (page === Pages.solve)
                _answerRefusal()
            return
        }
        _commitEdits()
        navIndex = page
    }

    function startSolve() {
        if (!canSolve) {
            _answerRefusal()
            return
        }
        _commitEdits()
        navIndex = Pages.solve
        controller.startSolveWithConfig(project_.solveConfig())
    }

    function loadTheme() {
        theme_.dark = themeSettings.darkMode
        theme_.applyAccentHex(themeSettings.accentHex)
    }

    function _reset(preset: var, withProject: bool) {
        controller.clearResults()
        applyProjectState(preset)
        hasProject = withProject
    }

    /// Takes the focus from a field of a page, which then hands over what was typed into it.
    function _commitEdits() {
        for (let item = Window.activeFocusItem; item; item = item.parent) {
            if (item === pages)
                shell.forceActiveFocus()
        }
    }

    /// Says why no solve can start, and leads to the field on Setup that is the reason.
    function _answerRefusal() {
        if (navIndex === Pages.setup && !_canSolveBase)
            projectPage.showRefusedField()
        refusalNote.show(solveRefusal, 6000)
    }

    function _endDrawingAhead() {
        if (!_drawsAhead)
            return
        _drawsAhead = false
        projectPage.visible = navIndex === Pages.setup
    }

    function _scheduleSolveMemEstimate() {
        memoryEstimateTimer.restart()
    }

    Component.onCompleted: {
        loadTheme()
        resetToStartupBlank()
        projectPage.visible = true
    }

    onNavIndexChanged: _endDrawingAhead()
    onSolveRefusalChanged: refusalNote.hide()
    // What was estimated last may be of another spot: none is asked for while a field is at fault.
    on_CanSolveBaseChanged: _scheduleSolveMemEstimate()

    Connections {
        target: shell._drawsAhead ? shell.Window.window : null

        function onFrameSwapped() {
            shell._endDrawingAhead()
        }
    }

    Theme {
        id: theme_

        uiFamily: FontFamilies.firstInstalled(fontFamily, Qt.fontFamilies(), systemText.font.family)
        monoFamily: FontFamilies.firstInstalled(fontMono, Qt.fontFamilies(), "monospace")
    }

    Typography {
        id: type_
    }

    TextMetrics {
        id: systemText
    }

    ProjectState {
        id: project_

        onMemoryInputsChanged: shell._scheduleSolveMemEstimate()
    }

    SolveFollower {
        id: solveFollower

        controller: shell.controller
        maxIterations: project_.maxIterations
        targetExploitability: project_.targetExploitability
    }

    StoredSettings {
        id: themeSettings

        property bool darkMode: true
        property string accentHex: ""

        category: "ui"
    }

    Timer {
        id: memoryEstimateTimer

        interval: 450
        onTriggered: {
            if (shell._canSolveBase)
                shell.controller.requestSolveMemoryEstimate(project_.solveConfig())
        }
    }

    // bg0 under a hint of the accent at the top, mixed here: a window full of blended pixels costs
    // a software renderer a good part of a frame.
    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Qt.tint(theme_.bg0, theme_.withOpacity(theme_.accent, 0.02))
            }
            GradientStop {
                position: 1
                color: theme_.bg0
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        TopBar {
            Layout.fillWidth: true
            theme: theme_
            type: type_
            controller: shell.controller
            canSolve: shell.canSolve
            solveRefusal: shell.solveRefusal
            missingFields: shell.hasProject ? project_.faults.missing : []
            projectEnabled: shell.hasProject
            currentPage: shell.navIndex
            follower: solveFollower
            onPageRequested: page => shell.requestPage(page)
        }

        StackLayout {
            id: pages

            Layout.fillWidth: true
            Layout.fillHeight: true
            currentIndex: shell.navIndex

            HomePage {
                theme: theme_
                type: type_
                controller: shell.controller
                projectStateProvider: shell.exportProjectState
                onNewProject: {
                    shell.resetToNewProject()
                    shell.navIndex = Pages.setup
                }
                onQuickSolve: {
                    shell.resetToDefaults()
                    shell.navIndex = Pages.setup
                }
                onImportRange: {
                    if (!shell.hasProject)
                        shell.resetToNewProject()
                    shell.navIndex = Pages.setup
                    projectPage.openImportRangeDialog("oop")
                }
                onProjectLoaded: (projectState, hasResults) => {
                    shell.applyProjectState(projectState)
                    shell.hasProject = true
                    shell.navIndex = hasResults ? Pages.results : Pages.setup
                }
            }

            ProjectPage {
                id: projectPage

                theme: theme_
                type: type_
                controller: shell.controller
                project: project_
                canSolve: shell.canSolve
                estimatePending: shell.estimatePending
                transform: Translate {
                    x: shell._drawsAhead ? pages.width : 0
                }
                onGoToSolve: shell.requestPage(Pages.solve)
                onRefused: shell._answerRefusal()
            }

            SolvePage {
                theme: theme_
                type: type_
                controller: shell.controller
                project: project_
                canSolve: shell.canSolve
                follower: solveFollower
                onGoToResults: shell.requestPage(Pages.results)
            }

            ResultsPage {
                theme: theme_
                type: type_
                controller: shell.controller
                boardText: project_.boardText
                rakePercent: project_.rakePercent
                rakeCap: project_.rakeCap
            }

            SettingsPage {
                theme: theme_
                type: type_
                controller: shell.controller
                languageManager: shell.translator
                updates: shell.updateService
            }
        }
    }

    AppToolTip {
        id: refusalNote

        parent: pages
        y: pages.height - height - theme_.spaceXl
        delay: 0
        accentColor: theme_.warn
        theme: theme_
        type: type_
    }

    Shortcut {
        sequence: "Ctrl+Z"
        enabled: shell.navIndex === Pages.setup
        onActivated: project_.undo()
    }

    Shortcut {
        sequences: ["Ctrl+Shift+Z", "Ctrl+Y"]
        enabled: shell.navIndex === Pages.setup
        onActivated: project_.redo()
    }

    Shortcut {
        sequence: "Ctrl+1"
        onActivated: shell.requestPage(Pages.home)
    }

    Shortcut {
        sequence: "Ctrl+2"
        onActivated: shell.requestPage(Pages.setup)
    }

    Shortcut {
        sequence: "Ctrl+3"
        onActivated: shell.requestPage(Pages.solve)
    }

    Shortcut {
        sequence: "Ctrl+4"
        onActivated: shell.requestPage(Pages.results)
    }

    Shortcut {
        sequence: "Ctrl+,"
        onActivated: shell.requestPage(Pages.settings)
    }

    Shortcut {
        sequence: "F5"
        enabled: !shell.controller.running
        onActivated: shell.startSolve()
    }

    Shortcut {
        sequence: "Escape"
        enabled: shell.controller.running
        onActivated: shell.controller.cancelSolve()
    }
}

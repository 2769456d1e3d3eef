import QtQuick
import QtQuick.Layouts
import Velmora
import "pages.js" as Pages
import "presets.js" as Presets
import "project_keys.js" as ProjectKeys
import "solve_gate.js" as SolveGate

/// What fills the window: the top bar and the pages under it. It owns the project state, decides
/// which page may show and whether a solve may start, and answers what the pages ask for.
Item {
    id: shell

    readonly property QtObject controller: Controller
    readonly property Theme theme: Style.theme
    readonly property Typography type: Style.type
    readonly property ProjectState project: project_
    property int navIndex: 0
    property bool hasProject: false
    readonly property int projectRecommendedWidth: projectPage.recommendedWindowWidth
    readonly property bool developerMode: Controller.developerMode
    readonly property bool canSolve: _canSolveBase && (estimatePending || _hasEnoughRamToSolve)
    /// The memory figure is of an older spot than the one at hand. The controller looks at the memory
    /// itself before it starts.
    readonly property bool estimatePending: memoryEstimateTimer.running || Controller.estimatePending
    /// Why no solve can start, in one sentence; "" if one can.
    readonly property string solveRefusal: !hasProject
            ? qsTr("Start a new project (or load one) from Home to enable Project")
        : !_canSolveBase ? project_.faults.refusal
        : canSolve ? ""
        : Controller.solveRequiredMemoryBytes <= 0 ? qsTr("The memory that this solve takes could not be estimated.")
        : qsTr("Not enough memory: this solve takes %1, and %2 is available.")
          .arg(Controller.solveRequiredMemoryText).arg(Controller.effectiveAvailableMemoryText)
    /// Whether something would be lost without a save: an edit of the spot, a result, its locks.
    readonly property bool unsaved: hasProject && (Controller.resultUnsaved || _stateText !== _savedStateText)
    readonly property string windowTitle: !hasProject ? qsTr("Dunmarrow")
        : qsTr("%1%2 — Dunmarrow").arg(unsaved ? "• " : "").arg(files.currentName || files.suggestedName || qsTr("New spot"))

    readonly property bool _canSolveBase: project_.faults.ready
    readonly property bool _hasEnoughRamToSolve: SolveGate.hasEnoughRamToSolve(
        Controller.solveRequiredMemoryBytes, Controller.systemAvailableMemoryBytes,
        Controller.resultsReclaimableMemoryBytes)
    readonly property bool _setupDiffers: Controller.resultRevision >= 0 && Controller.resultIterations > 0
        && hasProject && !Controller.isResultSpot(project_.solveConfig())
    readonly property string _stateText: _comparable(project_.exportProjectState())
    property string _savedStateText: ""
    readonly property var _runSettings: Controller.runSettings
    /// Whether to apply the locks, as the user said of those that are set now; empty if not asked yet.
    property string _locksAnswer: ""
    property bool _closes: false
    /// A draft of an earlier run was offered and neither taken nor discarded.
    property bool _draftWaits: false
    /// Until the window's first frame is there, Setup is drawn with it, out of sight. The renderer
    /// prepares a shader when it first draws with it, and most of them are first met on that page:
    /// without help of a graphics card that is more than a tenth of a second, which nobody should
    /// wait after a click.
    property bool _drawsAhead: true
    /// A running solve holds the user on its page.
    readonly property bool _navigationLocked: navIndex === Pages.solve && Controller.running

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
        _reset(Presets.startupBlankPreset(Controller.systemThreadCount), false)
    }

    function resetToNewProject() {
        _reset(Presets.newProjectPreset(Controller.systemThreadCount), true)
    }

    function resetToDefaults() {
        _reset(quickSolvePreset(), true)
    }

    function quickSolvePreset(): var {
        return developerMode ? Presets.defaultPreset(Controller.systemThreadCount)
                             : Presets.customerQuickSolvePreset(Controller.systemThreadCount)
    }

    /// Whether a page may show now, apart from the hold of a running solve.
    function isPageOpen(page: int): bool {
        switch (page) {
        case Pages.setup:
            return hasProject
        case Pages.solve:
            return canSolve
        case Pages.results:
            return Controller.resultIterations > 0
        default:
            return true
        }
    }

    /// The window asks before it closes. What would be lost is asked about first.
    function mayClose(): bool {
        if (_closes || (!unsaved && !Controller.running))
            return true
        _guard(() => {
            _closes = true
            Window.window.close()
        })
        return false
    }

    /// Shows a page, unless the rules of navigation refuse it.
    function requestPage(page: int) {
        if (_navigationLocked && page !== Pages.results)
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
        // First, as leaving a field holds what stands in it to its range.
        if (!canSolve) {
            _answerRefusal()
            return
        }
        _commitEdits()
        const config = project_.solveConfig()
        if (!Controller.locksFit(config) || _locksAnswer !== "") {
            _start(config)
            return
        }
        question.ask(qsTr("Node locks"), qsTr("Node locks (%1) are set on the tree of this spot. Apply them in this solve?")
                     .arg(Controller.lockCount), [
            { text: qsTr("Solve without locks"), kind: "", action: () => { _locksAnswer = "no"; _start(config) } },
            { text: qsTr("Apply the locks"), kind: "primary", action: () => { _locksAnswer = "yes"; _start(config) } }
        ])
    }

    function newSolve() {
        _guard(() => {
            resetToNewProject()
            navIndex = Pages.setup
        })
    }

    function quickSolve() {
        _guard(() => {
            resetToDefaults()
            navIndex = Pages.setup
        })
    }

    function openFile() {
        _guard(() => files.chooseFileToOpen())
    }

    function save() {
        _commitEdits()
        files.save()
    }

    /// Shows the setup that the result was solved from.
    function takeBackSetup() {
        project_.endStep()
        project_.applyProjectState(Controller.resultProjectState())
        project_.endStep()
        navIndex = Pages.setup
    }

    function _start(config: var) {
        if (Controller.locksFit(config))
            config.apply_node_locks = _locksAnswer === "yes"
        if (navIndex !== Pages.results)
            navIndex = Pages.solve
        Controller.startSolveWithConfig(config)
    }

    /// Does what drops the project at hand, once its user has agreed to what would be lost.
    function _guard(action: var) {
        _commitEdits()
        if (!unsaved && !Controller.running) {
            action()
            return
        }
        const lost = Controller.running ? qsTr("A solve is running, and it will be cancelled.") + " " : ""
        question.ask(qsTr("Unsaved changes"), lost + (unsaved ? qsTr("The spot or its results are not saved.") : ""), unsaved
            ? [{ text: qsTr("Don't save"), kind: "danger", action: action },
               { text: qsTr("Save"), kind: "primary", action: () => files.save(action) }]
            : [{ text: qsTr("Cancel the solve"), kind: "danger", action: action }])
    }

    /// A project state as a text that is equal for what a file keeps alike.
    function _comparable(state: var): string {
        return JSON.stringify(ProjectKeys.all.filter(key => key !== "threadCount")
                              .map(key => ProjectKeys.coerced(key, state[key])))
    }

    function _noteSaved(state: var) {
        _savedStateText = _comparable(state)
    }

    function _offerDraft() {
        const draft = Controller.draftLeftBehind()
        if (draft.project === undefined)
            return
        _draftWaits = true
        const when = new Date(draft.savedAt)
        question.ask(qsTr("Take back your spot?"),
                     qsTr("Dunmarrow did not close properly. The spot that you were editing was kept on %1.")
                     .arg(when.toLocaleString(Qt.locale(), Locale.ShortFormat)), [
            { text: qsTr("Discard"), kind: "danger", action: () => { _draftWaits = false; Controller.dropDraft() } },
            { text: qsTr("Take it back"), kind: "primary", action: () => _takeDraft(draft.project) }
        ])
    }

    /// What an earlier run left stays until its user has decided about it.
    function _dropDraft() {
        if (!_draftWaits)
            Controller.dropDraft()
    }

    function _takeDraft(state: var) {
        _draftWaits = false
        resetToNewProject()
        applyProjectState(state)
        Controller.keepDraft(project_.exportProjectState())
        navIndex = Pages.setup
    }

    function loadTheme() {
        theme.dark = themeSettings.darkMode
        theme.applyAccentHex(themeSettings.accentHex)
    }

    function _reset(preset: var, withProject: bool) {
        Controller.clearResults()
        applyProjectState(preset)
        hasProject = withProject
        files.forgetFile()
        _noteSaved(project_.exportProjectState())
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
        _offerDraft()
    }

    Component.onDestruction: _dropDraft()

    onUnsavedChanged: {
        if (!unsaved)
            _dropDraft()
    }

    Connections {
        function onLocksChanged(node: int) {
            // A result leaves the locks of its tree as they were.
            if (node >= 0 || Controller.lockCount === 0)
                shell._locksAnswer = ""
        }

        function onMemoryWanted(cfg: var, needed: string, available: string) {
            const solve = () => Controller.startSolveInFreedMemory(cfg)
            question.ask(qsTr("Not enough memory for both"),
                qsTr("This solve needs %1, and %2 are available. It can start if the solver of the result on view is dropped: of that result only what was looked at so far stays.")
                .arg(needed).arg(available), [
                { text: qsTr("Save first"), kind: "", action: () => files.save(solve) },
                { text: qsTr("Solve without saving"), kind: "primary", action: solve }
            ])
        }

        target: Controller
    }

    ProjectFiles {
        id: files

        visible: false
        project: project_
        suggestedName: project_.boardText.replace(/_/g, "") === "" ? ""
                       : qsTr("%1 pot %2").arg(project_.boardText.replace(/_/g, "")).arg(project_.startingPot)
        onSaved: (name, projectState) => {
            shell._noteSaved(projectState)
            toast.show(qsTr("Saved %1 at %2").arg(name).arg(new Date().toLocaleTimeString(Qt.locale(), Locale.ShortFormat)))
        }
        onProjectLoaded: (projectState, hasResults) => {
            shell._locksAnswer = ""
            shell.applyProjectState(projectState)
            shell._noteSaved(project_.exportProjectState())
            shell.hasProject = true
            shell.navIndex = hasResults ? Pages.results : Pages.setup
        }
    }

    QuestionDialog {
        id: question
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

    ProjectState {
        id: project_

        onMemoryInputsChanged: shell._scheduleSolveMemEstimate()
    }

    SolveFollower {
        id: solveFollower

        // A re-solve runs the settings of the result, whatever Setup shows.
        maxIterations: running ? shell._runSettings.max_iterations ?? 0 : project_.maxIterations
        targetExploitability: {
            const pot = shell._runSettings.starting_pot ?? 0
            return running && pot > 0 ? shell._runSettings.target_exploitability / pot * 100
                                      : project_.targetExploitability
        }
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
                Controller.requestSolveMemoryEstimate(project_.solveConfig())
        }
    }

    Timer {
        interval: 20000
        repeat: true
        running: shell.unsaved
        onTriggered: Controller.keepDraft(project_.exportProjectState())
    }

    // bg0 under a hint of the accent at the top, mixed here: a window full of blended pixels costs
    // a software renderer a good part of a frame.
    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Qt.tint(shell.theme.bg0, shell.theme.withOpacity(shell.theme.accent, 0.02))
            }
            GradientStop {
                position: 1
                color: shell.theme.bg0
            }
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        TopBar {
            Layout.fillWidth: true
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
                filesBusy: files.busy
                onNewProject: shell.newSolve()
                onQuickSolve: shell.quickSolve()
                onSaveRequested: shell.save()
                onOpenRequested: shell.openFile()
                onImportRange: {
                    if (!shell.hasProject)
                        shell.resetToNewProject()
                    shell.navIndex = Pages.setup
                    projectPage.openImportRangeDialog("oop")
                }
            }

            ProjectPage {
                id: projectPage

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
                project: project_
                canSolve: shell.canSolve
                follower: solveFollower
                onGoToResults: shell.requestPage(Pages.results)
                onSolveRequested: shell.startSolve()
            }

            ResultsPage {
                follower: solveFollower
                setupDiffers: shell._setupDiffers
                onSolveAgainRequested: shell.startSolve()
                onSetupWanted: shell.takeBackSetup()
            }

            SettingsPage {}
        }
    }

    NoticeStrip {
        id: toast

        function show(message: string) {
            text = message
            visible = true
            fade.restart()
        }

        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottomMargin: shell.theme.spaceXl
        width: Math.min(480, parent.width - 2 * shell.theme.spaceXl)
        z: 1
        visible: false
        accentColor: shell.theme.success

        Timer {
            id: fade

            interval: 5000
            onTriggered: toast.visible = false
        }
    }

    AppToolTip {
        id: refusalNote

        parent: pages
        y: pages.height - height - shell.theme.spaceXl
        delay: 0
        accentColor: shell.theme.warn
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
        sequence: "Ctrl+S"
        enabled: shell.hasProject && !files.busy
        onActivated: shell.save()
    }

    Shortcut {
        sequence: "Ctrl+Shift+S"
        enabled: shell.hasProject && !files.busy
        onActivated: {
            shell._commitEdits()
            files.saveAs()
        }
    }

    Shortcut {
        sequence: "Ctrl+O"
        enabled: !files.busy
        onActivated: shell.openFile()
    }

    Shortcut {
        sequence: "Ctrl+N"
        onActivated: shell.newSolve()
    }

    Shortcut {
        sequence: "F5"
        enabled: !Controller.running
        onActivated: shell.startSolve()
    }

    Shortcut {
        sequence: "Escape"
        enabled: Controller.running
        onActivated: Controller.cancelSolve()
    }
}

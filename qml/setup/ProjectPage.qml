import QtQuick
import QtQuick.Layouts
import Velmora

/// Where a spot is described: board, game settings, bet sizes and both ranges.
ScrollPage {
    id: root

    required property ProjectState project
    required property bool canSolve
    /// The memory figure is of the spot as it was before the latest edit.
    property bool estimatePending: false
    /// What the rows need to stand side by side. 1540 before they are laid out.
    readonly property int recommendedWindowWidth: boardColumn.implicitWidth > 0
        ? Math.ceil(Math.max(_settingsRowWidth, _rangesRowWidth)) : 1540

    readonly property real _settingsRowWidth: 2 * margins + Math.max(boardColumn.implicitWidth, 240)
        + gameSettings.implicitWidth + oopSizing.implicitWidth + ipSizing.implicitWidth + 3 * theme.spaceLg
    readonly property real _rangesRowWidth: 2 * margins + oopRange.implicitWidth + ipRange.implicitWidth
        + theme.spaceLg

    signal goToSolve
    /// The way on was asked for while there is none.
    signal refused

    /// Asks for a text file and adds its hands to the user's own ranges. `focusPlayer` is the seat that
    /// wants them, "oop" or "ip".
    function openImportRangeDialog(focusPlayer: string) {
        importer.start(focusPlayer)
    }

    /// Leads to the field that the spot is refused for.
    function showRefusedField() {
        const field = project.faults.field
        if (field === "board")
            reveal(boardCard)
        else
            project.fieldWanted(field === "spot" ? "oop_range" : field)
    }

    minimumContentWidth: recommendedWindowWidth

    Connections {
        function onBoardTextChanged() {
            root.project.startingStreet = BoardText.inferStreet(root.project.boardText)
        }

        target: root.project
    }

    ProjectHeader {
        // The way on is in sight wherever the page is too wide for the window.
        Layout.fillWidth: true
        Layout.maximumWidth: root.viewWidth
        project: root.project
        canSolve: root.canSolve
        estimatePending: root.estimatePending
        onGoToSolve: root.goToSolve()
        onRefused: root.refused()
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: root.theme.spaceLg

        ColumnLayout {
            id: boardColumn

            Layout.fillHeight: true
            spacing: root.theme.spaceLg

            BoardCard {
                id: boardCard

                Layout.fillWidth: true
                Layout.fillHeight: true
                boardText: root.project.boardText
                fault: root.project.faultAt("board")
                onBoardEdited: text => root.project.edit("", "boardText", text)
            }

            SettingsProfilesCard {
                Layout.fillWidth: true
                project: root.project
                onProfileLoaded: Controller.abandonRun()
            }
        }

        GameSettingsCard {
            id: gameSettings

            Layout.fillHeight: true
            project: root.project
        }

        SizingCard {
            id: oopSizing

            Layout.fillWidth: true
            Layout.fillHeight: true
            project: root.project
            seat: "oop"
        }

        SizingCard {
            id: ipSizing

            Layout.fillWidth: true
            Layout.fillHeight: true
            project: root.project
            seat: "ip"
        }
    }

    RowLayout {
        id: ranges

        // The importer is a row below without a height of its own.
        readonly property real heightLimit: root.height - 2 * root.margins - root.spacing - y

        Layout.fillWidth: true
        spacing: root.theme.spaceLg

        RangeCard {
            id: oopRange

            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.minimumWidth: implicitWidth
            project: root.project
            libraries: libraries
            developerMode: Controller.developerMode
            seat: "oop"
            heightLimit: ranges.heightLimit
            onImportRequested: root.openImportRangeDialog("oop")
        }

        RangeCard {
            id: ipRange

            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.minimumWidth: implicitWidth
            project: root.project
            libraries: libraries
            developerMode: Controller.developerMode
            seat: "ip"
            heightLimit: ranges.heightLimit
            onImportRequested: root.openImportRangeDialog("ip")
        }
    }

    RangeLibraries {
        id: libraries

    }

    ImportRange {
        id: importer

        libraries: libraries
    }
}

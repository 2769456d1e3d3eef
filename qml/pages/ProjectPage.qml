import QtQuick
import QtQuick.Layouts
import QtQuick.Dialogs
import Velmora
import "../logic/board_text.js" as BoardText
import "../logic/file_url.js" as FileUrl
import "../logic/range_text.js" as RangeText

/// Where a spot is described: board, game settings, bet sizes and both ranges.
ScrollPage {
    id: root

    required property var controller
    required property ProjectState project
    required property bool canSolve
    /// What the rows need to stand side by side. 1540 before they are laid out.
    readonly property int recommendedWindowWidth: boardColumn.implicitWidth > 0
        ? Math.ceil(Math.max(_settingsRowWidth, _rangesRowWidth)) : 1540

    readonly property real _settingsRowWidth: 2 * margins + Math.max(boardColumn.implicitWidth, 240)
        + gameSettings.implicitWidth + oopSizing.implicitWidth + ipSizing.implicitWidth + 3 * theme.spaceLg
    readonly property real _rangesRowWidth: 2 * margins + oopRange.implicitWidth + ipRange.implicitWidth
        + theme.spaceLg

    signal goToSolve

    /// Asks for a text file and makes its hands the range of a seat, "oop" or "ip".
    function openImportRangeDialog(focusPlayer: string) {
        importDialog.seat = focusPlayer === "ip" ? "ip" : "oop"
        importDialog.open()
    }

    function _importRange(file: url, seat: string) {
        const answer = controller.readTextFile(file)
        if (!answer.ok) {
            importFault.report(qsTr("Import failed: %1").arg(answer.error || qsTr("unknown error")))
            return
        }
        const text = RangeText.normalizeImportedRangeText(answer.text)
        if (text === "")
            importFault.report(qsTr("Import failed: file contained no recognizable hands."))
        else
            project.set(seat + "RangeText", text)
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
        theme: root.theme
        type: root.type
        controller: root.controller
        boardReady: BoardText.validBoard(root.project.boardText)
        canSolve: root.canSolve
        onGoToSolve: root.goToSolve()
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: root.theme.spaceLg

        ColumnLayout {
            id: boardColumn

            Layout.fillHeight: true
            spacing: root.theme.spaceLg

            BoardCard {
                Layout.fillWidth: true
                Layout.fillHeight: true
                theme: root.theme
                type: root.type
                boardText: root.project.boardText
                onBoardEdited: text => root.project.boardText = text
            }

            SettingsProfilesCard {
                Layout.fillWidth: true
                theme: root.theme
                type: root.type
                project: root.project
            }
        }

        GameSettingsCard {
            id: gameSettings

            Layout.fillHeight: true
            theme: root.theme
            type: root.type
            project: root.project
        }

        SizingCard {
            id: oopSizing

            Layout.fillWidth: true
            Layout.fillHeight: true
            theme: root.theme
            type: root.type
            project: root.project
            seat: "oop"
        }

        SizingCard {
            id: ipSizing

            Layout.fillWidth: true
            Layout.fillHeight: true
            theme: root.theme
            type: root.type
            project: root.project
            seat: "ip"
        }
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: root.theme.spaceLg

        RangeCard {
            id: oopRange

            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.minimumWidth: implicitWidth
            theme: root.theme
            type: root.type
            project: root.project
            seat: "oop"
            onImportRequested: root.openImportRangeDialog("oop")
        }

        RangeCard {
            id: ipRange

            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.minimumWidth: implicitWidth
            theme: root.theme
            type: root.type
            project: root.project
            seat: "ip"
            onImportRequested: root.openImportRangeDialog("ip")
        }
    }

    FileDialog {
        id: importDialog

        property string seat: "oop"

        title: qsTr("Import Range")
        nameFilters: [qsTr("Range text (*.txt)"), qsTr("All Files (*)")]
        onAccepted: root._importRange(FileUrl.ofLocalFile(selectedFile), seat)
    }

    MessageBox {
        id: importFault

        theme: root.theme
        type: root.type
        title: qsTr("Import Range")
    }
}

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora
import "pages.js" as Pages

/// The bar above the pages: the name, the tabs and the state of the solver.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property bool canSolve
    /// Why no solve can start, and which fields are still empty.
    property string solveRefusal: ""
    property list<string> missingFields
    required property bool projectEnabled
    required property int currentPage
    required property SolveFollower follower

    /// While the Solve page shows a running solve, it is the only page.
    readonly property bool _locked: Controller.running && currentPage === Pages.solve

    readonly property string _solveReason: missingFields.length === 0
        ? solveRefusal || qsTr("Fill board, ranges, and sizings to enable Solve")
        : qsTr("%1. Still missing: %2.").arg(solveRefusal).arg(Array.from(missingFields).join(", "))

    signal pageRequested(int page)

    implicitHeight: 60
    color: theme.bg1

    Rectangle {
        width: parent.width
        height: 1
        anchors.bottom: parent.bottom
        color: root.theme.stroke
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: root.theme.spaceXl
        anchors.rightMargin: root.theme.spaceXl
        spacing: root.theme.spaceXs

        Image {
            Layout.preferredWidth: 28
            Layout.preferredHeight: 28
            source: "../assets/Dunmarrow_logo.png"
            sourceSize.width: 56
            sourceSize.height: 56
            fillMode: Image.PreserveAspectFit
            mipmap: true
            Accessible.ignored: true
        }

        Label {
            Layout.leftMargin: root.theme.spaceXs
            Layout.rightMargin: root.theme.spaceLg
            text: qsTr("Dunmarrow")
            color: root.theme.text
            font.pixelSize: root.type.headingSm
            font.weight: root.type.weightBold
        }

        NavTab {
            text: qsTr("Home")
            iconName: "home"
            current: root.currentPage === Pages.home
            tabEnabled: !root._locked
            onActivated: root.pageRequested(Pages.home)
        }

        NavTab {
            text: qsTr("Setup")
            iconName: "clipboard"
            current: root.currentPage === Pages.setup
            tabEnabled: !root._locked && root.projectEnabled
            disabledReason: root._locked ? ""
                : qsTr("Start a new project (or load one) from Home to enable Project")
            onActivated: root.pageRequested(Pages.setup)
        }

        NavTab {
            text: qsTr("Solve")
            iconName: "bolt"
            current: root.currentPage === Pages.solve
            tabEnabled: root._locked || root.canSolve
            disabledReason: root._solveReason
            onActivated: root.pageRequested(Pages.solve)
        }

        NavTab {
            text: qsTr("Results")
            iconName: "chart"
            current: root.currentPage === Pages.results
            tabEnabled: Controller.resultIterations > 0
            disabledReason: qsTr("Run a solve to enable Results")
            onActivated: root.pageRequested(Pages.results)
        }

        Rectangle {
            Layout.preferredWidth: 1
            Layout.preferredHeight: 22
            Layout.leftMargin: 14
            Layout.rightMargin: 14
            color: root.theme.stroke
        }

        NavTab {
            text: qsTr("Settings")
            iconName: "gear"
            current: root.currentPage === Pages.settings
            tabEnabled: !root._locked
            onActivated: root.pageRequested(Pages.settings)
        }

        Item {
            Layout.fillWidth: true
        }

        StatusChip {
            running: root.follower.running
            isFinalizing: root.follower.isFinalizing
            canSolve: root.canSolve
            percentage: root.follower.percentage
        }
    }
}

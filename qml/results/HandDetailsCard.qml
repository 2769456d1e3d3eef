pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The single combos of the node with their EVs, filtered by hand, category and search.
Card {
    id: root

    property Typography type: Style.type
    required property NodeView view

    readonly property bool _pending: view._handCombosLoading || view.loading
    readonly property string _note: _pending ? qsTr("Loading hand combos…")
        : view._loadedHandCombos.length === 0 ? qsTr("No hand combos to display for this node.")
        : view.visibleHandCombos.length === 0 ? qsTr("No combos match the current filters.") : ""
    /// What the rows show. They keep it while the combos of the next node are on their way, and wait
    /// unseen: new figures in the rows that are there are quick, new rows are not.
    property var _rows: ({ combos: [], actions: [] })

    /// The names of the hand and of the category that the list is held to.
    readonly property var _filters: Array.from([view.selectedHandClass, _categoryName(view.selectedBucket)]).filter(name => name !== "")

    function _categoryName(name: string): string {
        for (let i = 0; i < view.buckets.length; ++i) {
            if (view.buckets[i].name === name)
                return view.buckets[i].displayName || name
        }
        return name
    }

    function _clearFilters() {
        view.selectedHandClass = ""
        view.selectedBucket = ""
    }

    padding: theme.spaceMd
    on_PendingChanged: list.showTop()

    Binding {
        target: root
        property: "_rows"
        value: ({ combos: root.view.visibleHandCombos, actions: root.view.currentActions })
        when: root._note === ""
        restoreMode: Binding.RestoreNone
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceSm

        CardTitle {
            text: qsTr("Hand Details")
        }

        InputField {
            id: search

            Layout.fillWidth: true
            label: qsTr("Search")
            placeholderText: qsTr("Search (JJ, 56s, JcJd, ...)")
            onTextEdited: root.view.handSearchText = text

            Binding {
                target: search
                property: "text"
                value: root.view.handSearchText
            }
        }

        RowLayout {
            Layout.fillWidth: true
            visible: root._filters.length > 0

            Label {
                Layout.fillWidth: true
                text: qsTr("Filter: %1").arg(root._filters.join(" + "))
                color: root.theme.text
                font.pixelSize: root.type.labelMd
                wrapMode: Text.Wrap
            }

            SmallButton {
                text: qsTr("Clear")
                onClicked: root._clearFilters()
            }
        }

        Label {
            Layout.fillWidth: true
            visible: root._note !== ""
            text: root._note
            color: root.theme.textMuted
            font.pixelSize: root.type.labelMd
            wrapMode: Text.Wrap
        }

        RowListView {
            id: list

            function showTop() {
                currentIndex = 0
                positionViewAtBeginning()
            }

            Layout.fillWidth: true
            Layout.fillHeight: true
            // Not hidden, which would take its place in the layout.
            opacity: root._note === "" ? 1 : 0
            enabled: root._note === ""
            rowCount: root._rows.combos.length
            Accessible.name: qsTr("Hand Details")

            delegate: ComboRow {
                required property int index

                width: list.width
                combo: root._rows.combos[index]
                actions: root._rows.actions
            }
        }
    }
}

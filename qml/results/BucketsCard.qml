pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora

/// The hand categories of the node. A click filters the grid and the combos by one.
Card {
    id: root

    property Typography type: Style.type
    required property NodeView view

    /// What the rows show: both change at once.
    property var _rows: ({ buckets: [], actions: [] })

    padding: theme.spaceMd

    Binding {
        target: root
        property: "_rows"
        value: ({ buckets: root.view.buckets, actions: root.view.currentActions })
        when: !root.view.loading
        restoreMode: Binding.RestoreNone
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: root.theme.spaceSm

        RowLayout {
            Layout.fillWidth: true

            CardTitle {
                Layout.fillWidth: true
                text: qsTr("Buckets")
            }

            Label {
                text: qsTr("%1 shown").arg(root.view.buckets.length)
                color: root.theme.textMuted
                font.pixelSize: root.type.labelSm
            }
        }

        RowListView {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            currentIndex: -1
            rowCount: root._rows.buckets.length
            Accessible.name: qsTr("Buckets")
            Keys.onSpacePressed: root.view.toggleBucketFilter(root.view.buckets[currentIndex]?.name ?? "")
            Keys.onReturnPressed: root.view.toggleBucketFilter(root.view.buckets[currentIndex]?.name ?? "")

            delegate: BucketRow {
                required property int index

                width: list.width
                bucket: root._rows.buckets[index]
                actions: root._rows.actions
                selected: root.view.selectedBucket !== "" && root.view.selectedBucket === bucket?.name
                focused: list.activeFocus && list.currentIndex === index
                onChosen: root.view.toggleBucketFilter(bucket.name)
            }
        }
    }
}

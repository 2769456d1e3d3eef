pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora
import "range_categories.js" as Categories

/// The column beside a seat's matrix: ranges to choose from, in three libraries.
Rectangle {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property RangeLibraries libraries
    required property SeatLibrary library
    required property string rangeText
    property bool developerMode: false

    readonly property string _heading: libraries.categoryLabel(library.rangeCategory)
    readonly property string _loadError: libraries.loadErrorOf(library.rangeCategory)

    signal importRequested

    radius: theme.radiusSm
    color: theme.bg2
    border.color: theme.stroke

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: root.theme.spaceSm
        spacing: root.theme.spaceSm

        ColumnLayout {
            spacing: root.theme.spaceXs

            Repeater {
                model: Categories.count

                SmallButton {
                    required property int index

                    Layout.fillWidth: true
                    text: root.libraries.categoryLabel(index)
                    checkable: true
                    autoExclusive: true
                    checked: root.library.rangeCategory === index
                    onClicked: root.library.rangeCategory = index
                }
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 1
            color: root.theme.stroke
        }

        Label {
            Layout.fillWidth: true
            text: root._heading
            color: root.theme.textMuted
            font.pixelSize: root.type.labelSm
            font.weight: root.type.weightSemibold
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
        }

        LibraryList {
            id: list

            Layout.fillWidth: true
            Layout.fillHeight: true
            library: root.library
            label: root._heading
            onDeletionWanted: {
                if (customActions.visible)
                    customActions.openDeleteSelectedDialog()
            }

            Label {
                width: parent.width
                visible: root.library.ranges.length === 0
                text: qsTr("No ranges yet.")
                color: root.theme.textMuted
                font.pixelSize: root.type.labelSm
                wrapMode: Text.Wrap
            }
        }

        Label {
            Layout.fillWidth: true
            visible: text !== ""
            text: root._loadError
            color: root.theme.danger
            font.pixelSize: root.type.labelSm
            wrapMode: Text.Wrap
        }

        CustomActions {
            id: customActions

            Layout.fillWidth: true
            visible: root.library.rangeCategory === Categories.custom
            library: root.library
            rangeText: root.rangeText
            onImportRequested: root.importRequested()
        }

        DeveloperActions {
            Layout.fillWidth: true
            visible: root.developerMode && root.library.rangeCategory !== Categories.custom
            libraries: root.libraries
            library: root.library
            rangeText: root.rangeText
        }
    }
}

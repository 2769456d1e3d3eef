pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Controls
import Velmora

/// Lists the settings profiles, to load or to delete one.
AppDialog {
    id: root

    required property ProfileStore store
    readonly property string _selectedId: store.settingsProfiles[list.currentIndex]?.id ?? ""
    property string _error: ""

    signal profileChosen(var data)

    function _load() {
        const profile = store.find(_selectedId)
        if (!profile) {
            _error = qsTr("Please select a profile.")
            return
        }
        profileChosen(profile.data)
        close()
    }

    title: qsTr("Load Settings Profile")
    width: 420
    onAboutToShow: {
        list.currentIndex = -1
        _error = ""
    }

    ColumnLayout {
        width: parent.width
        spacing: root.theme.spaceSm

        Label {
            text: qsTr("Choose a saved profile:")
            color: root.theme.textMuted
            font.pixelSize: root.type.bodySm
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 220
            radius: root.theme.radiusSm
            color: root.theme.surface2
            border.color: list.activeFocus ? root.theme.strokeFocus : root.theme.stroke

            Label {
                anchors.centerIn: parent
                visible: list.count === 0
                text: qsTr("No saved profiles yet.")
                color: root.theme.textMuted
                font.pixelSize: root.type.bodySm
            }

            ListView {
                id: list

                anchors.fill: parent
                anchors.margins: root.theme.spaceXs
                clip: true
                focus: true
                activeFocusOnTab: true
                currentIndex: -1
                boundsBehavior: Flickable.StopAtBounds
                model: root.store.settingsProfiles
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Choose a saved profile:")
                Keys.onReturnPressed: root._load()
                Keys.onEnterPressed: root._load()
                Keys.onDeletePressed: {
                    if (root._selectedId !== "")
                        deleteDialog.open()
                }
                onCurrentIndexChanged: root._error = ""
                // A new list starts without a selection.
                onModelChanged: currentIndex = -1

                ScrollBar.vertical: AppScrollBar {
                }

                delegate: ChoiceRow {
                    required property int index
                    required property var modelData

                    width: list.width
                    text: modelData.name
                    selected: modelData.id === root._selectedId
                    onChosen: list.currentIndex = index
                    onConfirmed: root._load()
                }
            }
        }

        Label {
            Layout.fillWidth: true
            visible: text !== ""
            text: root._error
            color: root.theme.danger
            font.pixelSize: root.type.labelMd
            wrapMode: Text.Wrap
        }
    }

    DeleteDialog {
        id: deleteDialog

        title: qsTr("Delete settings profile")
        question: qsTr("Are you sure you want to delete this saved profile?")
        name: root.store.find(root._selectedId)?.name ?? ""
        onConfirmed: root.store.deleteSettingsProfileById(root._selectedId)
    }

    footerButtons: [
        SecondaryButton {
            text: qsTr("Delete")
            danger: enabled
            enabled: root._selectedId !== ""
            onClicked: deleteDialog.open()
        },
        SecondaryButton {
            text: qsTr("Cancel")
            onClicked: root.close()
        },
        PrimaryButton {
            text: qsTr("Load")
            enabled: root._selectedId !== ""
            onClicked: root._load()
        }
    ]
}

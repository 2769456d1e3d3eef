pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Templates as T
import Velmora

/// A box that opens a list to choose one entry from.
T.ComboBox {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// The name that assistive tools read.
    property string label: ""
    /// The entry that is chosen. It stays so when the list changes, to another language for example;
    /// below 0 the box follows its user alone.
    property int choice: -1

    function _showChoice() {
        if (choice >= 0)
            currentIndex = choice
    }

    implicitWidth: 160
    implicitHeight: 32
    leftPadding: 10
    rightPadding: 30
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    font.pixelSize: type.bodySm
    Accessible.role: Accessible.ComboBox
    Accessible.name: label
    onChoiceChanged: _showChoice()
    onModelChanged: _showChoice()
    onActivated: afterChoice.restart()
    Component.onCompleted: _showChoice()

    // The choice may stay as it was.
    Timer {
        id: afterChoice

        interval: 0
        onTriggered: root._showChoice()
    }

    FocusRing {
        radius: root.theme.radiusSm + 3
        active: root.visualFocus
    }

    contentItem: Label {
        text: root.displayText
        color: root.enabled ? root.theme.text : root.theme.textFaint
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        font: root.font
    }

    indicator: Label {
        x: root.width - width - 10
        height: root.height
        text: "▾"
        color: root.enabled ? root.theme.textMuted : root.theme.textFaint
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: root.type.bodyMd
    }

    background: Rectangle {
        radius: root.theme.radiusSm
        color: root.enabled ? root.theme.surface2 : root.theme.surface3
        border.width: 1
        border.color: root.enabled && (root.hovered || root.popup.visible)
                      ? root.theme.strokeFocus : root.theme.stroke

        Behavior on border.color {
            ColorAnimation { duration: root.theme.durationFast }
        }
    }

    delegate: T.ItemDelegate {
        id: entry

        required property int index

        width: ListView.view ? ListView.view.width : implicitWidth
        implicitHeight: 30
        leftPadding: 10
        rightPadding: 10
        hoverEnabled: true
        text: root.textAt(index)
        highlighted: root.highlightedIndex === index
        font.pixelSize: root.type.bodySm
        font.weight: root.currentIndex === index ? root.type.weightSemibold : root.type.weightRegular
        Accessible.role: Accessible.ListItem
        Accessible.name: text

        contentItem: Label {
            text: entry.text
            color: root.currentIndex === entry.index ? root.theme.accent : root.theme.text
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
            font: entry.font
        }

        background: Rectangle {
            radius: root.theme.radiusXs + 2
            color: entry.highlighted ? root.theme.surfaceHover : "transparent"
        }
    }

    popup: T.Popup {
        y: root.height + 4
        width: root.width
        height: Math.min(contentItem.implicitHeight + topPadding + bottomPadding, 320)
        padding: 4
        margins: 4

        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            boundsBehavior: Flickable.StopAtBounds
            model: root.delegateModel
            currentIndex: root.highlightedIndex
            highlightMoveDuration: 0
            T.ScrollBar.vertical: AppScrollBar {
            }
        }

        background: Item {
            Shadow {
                anchors.fill: parent
                z: -1
                radius: root.theme.radiusSm
                color: Qt.rgba(0, 0, 0, root.theme.shadowOpacity)
            }

            Rectangle {
                anchors.fill: parent
                radius: root.theme.radiusSm
                color: root.theme.surface
                border.width: 1
                border.color: root.theme.stroke
            }
        }
    }
}

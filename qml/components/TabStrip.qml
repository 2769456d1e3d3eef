pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Velmora

/// Chooses one of several views that share a place. Arrow keys move on from the tab that has the focus.
RowLayout {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    property list<string> labels
    property int currentIndex: 0

    signal chosen(index: int)

    function _choose(index: int) {
        if (index < 0 || index >= tabs.count)
            return
        // First the focus: the tab that has it stays a stop of Tab.
        tabs.itemAt(index).forceActiveFocus(Qt.TabFocusReason)
        chosen(index)
    }

    spacing: theme.spaceXs
    Accessible.role: Accessible.PageTabList
    Keys.onLeftPressed: _choose(currentIndex - 1)
    Keys.onRightPressed: _choose(currentIndex + 1)

    Repeater {
        id: tabs

        model: root.labels.length

        SmallButton {
            required property int index

            Layout.fillWidth: true
            Layout.preferredWidth: 1
            implicitHeight: 28
            text: root.labels[index]
            checkable: true
            autoExclusive: true
            checked: index === root.currentIndex
            activeFocusOnTab: checked
            Accessible.role: Accessible.PageTab
            Accessible.selected: checked
            onClicked: root.chosen(index)
        }
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Velmora

/// The three ways to take a seat, one under the other where there is little space.
GridLayout {
    id: root

    property Theme theme: Style.theme
    property bool narrow: false

    signal roleChosen(role: string)

    columns: narrow ? 1 : 3
    columnSpacing: theme.spaceMd
    rowSpacing: theme.spaceSm

    component RoleButton: PrimaryButton {
        implicitHeight: root.narrow ? 32 : 40
        Layout.fillWidth: true
    }

    RoleButton {
        text: qsTr("Play as OOP")
        onClicked: root.roleChosen("OOP")
    }

    RoleButton {
        text: qsTr("Play as both")
        onClicked: root.roleChosen("BOTH")
    }

    RoleButton {
        text: qsTr("Play as IP")
        onClicked: root.roleChosen("IP")
    }
}

pragma ComponentBehavior: Bound

import QtQuick
import Velmora

/// The three ways to take a seat.
Row {
    id: root

    property Theme theme: Fallback.theme
    property Typography type: Fallback.type
    property bool narrow: false

    signal roleChosen(role: string)

    spacing: narrow ? theme.spaceSm : theme.spaceMd

    component RoleButton: PrimaryButton {
        theme: root.theme
        type: root.type
        leftPadding: root.narrow ? theme.spaceSm : theme.spaceLg
        rightPadding: leftPadding
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

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Velmora

/// Who won a hand and what a mistake in it cost.
Column {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    /// What `Hand.buildPlayHandDetails` makes.
    required property var details

    readonly property bool _mistake: details?.isMistake ?? false

    spacing: theme.spaceXs

    component Line: Label {
        width: root.width
        color: root.theme.text
        font.pixelSize: root.type.bodySm
        wrapMode: Text.Wrap
    }

    Line {
        text: qsTr("Winner: %1").arg(root.details?.winner ?? "—")
        font.weight: root.type.weightBold
    }

    Line {
        text: qsTr("Won: %1").arg(root.details?.won ?? "—")
    }

    Line {
        text: qsTr("Rake: %1").arg(root.details?.rake ?? "—")
        color: root.theme.textMuted
    }

    Line {
        visible: root._mistake
        text: qsTr("EV lost: %1").arg(root.details?.evLost ?? "—")
        color: root.theme.danger
        font.weight: root.type.weightBold
    }

    Line {
        visible: root._mistake
        text: qsTr("Incorrect: %1").arg(root.details?.incorrect ?? "—")
    }

    Line {
        visible: root._mistake
        text: qsTr("Correct: %1").arg(root.details?.correct ?? "—")
        color: root.theme.success
    }
}

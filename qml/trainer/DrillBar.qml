import QtQuick
import QtQuick.Controls
import Velmora

/// Starts and stops the drill, and shows how the last answer was.
Column {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property PlaySession play

    readonly property color _tone: play.playDrillFeedbackWrong ? theme.danger : theme.success

    spacing: theme.spaceSm

    Rectangle {
        width: Math.min(parent.width, Math.ceil(feedback.implicitWidth) + 2 * root.theme.spaceMd)
        height: feedback.height + root.theme.spaceSm
        radius: root.theme.radiusSm
        visible: opacity > 0
        opacity: root.play.playDrillFeedbackText !== "" ? 1 : 0
        color: root.theme.surface
        border.color: root._tone
        border.width: 2
        Accessible.role: Accessible.StaticText
        Accessible.name: feedback.text

        Behavior on opacity {
            NumberAnimation {
                duration: root.theme.durationFast
            }
        }

        Label {
            id: feedback

            anchors.verticalCenter: parent.verticalCenter
            x: root.theme.spaceMd
            width: parent.width - 2 * root.theme.spaceMd
            text: root.play.playDrillFeedbackText
            color: root._tone
            font.pixelSize: root.type.bodySm
            font.weight: root.type.weightSemibold
            wrapMode: Text.Wrap
        }
    }

    SmallButton {
        visible: root.play.running
        enabled: root.play.canDrill
        iconName: root.play.playDrillMode ? "stop" : "target"
        text: root.play.playDrillMode ? qsTr("Stop drill") : qsTr("Drill spot")
        onClicked: root.play.playDrillMode ? root.play.stopDrillSpot() : root.play.startDrillSpot()
    }
}

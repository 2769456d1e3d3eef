import QtQuick
import Velmora

/// A hole card that slides in and turns when it is dealt. What it is never waits for that.
Item {
    id: root

    property Theme theme: Style.theme
    property string card: ""  ///< Such as "Ah"; "" for none.
    property bool faceDown: false
    property real sizeScale: 1
    /// Where it comes from, in pixels.
    property real fromY: 0
    property int delay: 0

    readonly property bool held: card !== ""

    function _deal() {
        dealing.stop()
        if (held)
            dealing.start()
    }

    implicitWidth: face.implicitWidth
    implicitHeight: face.implicitHeight
    onCardChanged: _deal()
    onFaceDownChanged: {
        if (held && !dealing.running)
            turning.restart()
    }

    PlayingCard {
        id: face

        rank: root.card.charAt(0)
        suit: root.card.charAt(1)
        faceDown: root.held && root.faceDown
        sizeScale: root.sizeScale
        hoverable: false
        Accessible.ignored: true
        transform: [
            Scale {
                id: turn

                origin.x: face.width / 2
            },
            Translate {
                id: way
            }
        ]
    }

    SequentialAnimation {
        id: dealing

        PropertyAction {
            target: face
            property: "opacity"
            value: 0
        }

        PauseAnimation {
            duration: root.delay
        }

        ParallelAnimation {
            NumberAnimation {
                target: face
                property: "opacity"
                to: 1
                duration: root.theme.durationNormal
            }

            NumberAnimation {
                target: way
                property: "y"
                from: root.fromY
                to: 0
                duration: root.theme.durationSlow
                easing.type: Easing.OutCubic
            }

            NumberAnimation {
                target: turn
                property: "xScale"
                from: root.faceDown ? 1 : 0
                to: 1
                duration: root.theme.durationSlow
                easing.type: Easing.OutCubic
            }
        }

        onStopped: {
            face.opacity = 1
            way.y = 0
            turn.xScale = 1
        }
    }

    NumberAnimation {
        id: turning

        target: turn
        property: "xScale"
        from: 0
        to: 1
        duration: root.theme.durationNormal
        easing.type: Easing.OutCubic
    }
}

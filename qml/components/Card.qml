import QtQuick
import QtQuick.Templates as T
import Velmora

/// The frame of a piece of content. A layout inside gives it its height.
T.Frame {
    id: root

    property Theme theme: Style.theme
    property bool hoverable: false
    property bool elevated: false
    property color accentColor: "transparent"

    function _largestImplicitWidth(): real {
        let largest = 0
        for (let i = 0; i < contentChildren.length; ++i)
            largest = Math.max(largest, (contentChildren[i] as Item).implicitWidth)
        return largest
    }

    function _largestImplicitHeight(): real {
        let largest = 0
        for (let i = 0; i < contentChildren.length; ++i)
            largest = Math.max(largest, (contentChildren[i] as Item).implicitHeight)
        return largest
    }

    padding: theme.spaceLg
    contentWidth: _largestImplicitWidth()
    contentHeight: _largestImplicitHeight()
    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    scale: hover.hovered ? 1.01 : 1

    Behavior on scale {
        NumberAnimation { duration: 150 }
    }

    HoverHandler {
        id: hover

        enabled: root.hoverable
        cursorShape: Qt.PointingHandCursor
    }

    background: Item {
        Shadow {
            anchors.fill: parent
            z: -1
            visible: root.elevated
            radius: root.theme.radiusMd
            blur: 0.5
            verticalOffset: 4
            color: Qt.rgba(0, 0, 0, root.theme.shadowOpacity)
        }

        Rectangle {
            anchors.fill: parent
            radius: root.theme.radiusMd
            border.width: 1
            border.color: root.accentColor.a > 0 ? root.accentColor : root.theme.stroke
            gradient: Gradient {
                GradientStop { position: 0; color: Qt.tint(root.theme.surface, root.theme.withOpacity("white", 0.02)) }
                GradientStop { position: 1; color: root.theme.surface }
            }
        }

        Rectangle {
            anchors.fill: parent
            anchors.margins: 1
            radius: root.theme.radiusMd - 1
            color: root.theme.surfaceHover
            opacity: hover.hovered ? 0.3 : 0

            Behavior on opacity {
                NumberAnimation { duration: 150 }
            }
        }
    }
}

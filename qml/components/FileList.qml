pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Templates as T
import Velmora

/// The rows of a folder. Arrow keys go through them, typed letters to the next that begins with them,
/// Return enters a row and Backspace leaves the folder.
ListView {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type

    property string _typed: ""

    signal rowChosen(index: int)
    signal rowEntered(index: int)
    signal upWanted

    /// Goes to the first row that begins with what was typed in a row.
    function typeAhead(text: string): bool {
        if (text === "" || text < " ")
            return false
        _typed += text.toLowerCase()
        forgetting.restart()
        for (let index = 0; index < count; ++index) {
            if (String(model.get(index, "fileName")).toLowerCase().startsWith(_typed)) {
                currentIndex = index
                return true
            }
        }
        return true
    }

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    keyNavigationEnabled: true
    highlightMoveDuration: 0
    currentIndex: -1
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Files")
    // A folder whose files come and go moves the index too.
    onCurrentIndexChanged: {
        if (activeFocus && currentIndex >= 0 && currentIndex < count)
            rowChosen(currentIndex)
    }
    Keys.onReturnPressed: rowEntered(currentIndex)
    Keys.onEnterPressed: rowEntered(currentIndex)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Backspace) {
            upWanted()
            event.accepted = true
        } else {
            event.accepted = typeAhead(event.text)
        }
    }

    ScrollBar.vertical: AppScrollBar {
    }

    Timer {
        id: forgetting

        interval: 1000
        onTriggered: root._typed = ""
    }

    delegate: T.ItemDelegate {
        id: row

        required property int index
        required property string fileName
        required property bool fileIsDir
        required property double fileSize
        required property date fileModified

        readonly property bool current: ListView.isCurrentItem

        width: ListView.view?.width ?? 0
        implicitHeight: 30
        leftPadding: root.theme.spaceSm
        rightPadding: root.theme.spaceMd
        focusPolicy: Qt.NoFocus
        text: fileName
        Accessible.role: Accessible.ListItem
        Accessible.name: fileIsDir ? qsTr("Folder %1").arg(fileName) : fileName
        Accessible.selected: current
        onClicked: {
            root.forceActiveFocus(Qt.MouseFocusReason)
            root.currentIndex = index
            root.rowChosen(index)
        }
        onDoubleClicked: root.rowEntered(index)

        contentItem: RowLayout {
            spacing: root.theme.spaceSm

            Icon {
                name: row.fileIsDir ? "folder-open" : "file-text"
                size: 16
                color: row.fileIsDir ? root.theme.gold : root.theme.textMuted
            }

            Label {
                Layout.fillWidth: true
                text: row.fileName
                color: root.theme.text
                elide: Text.ElideMiddle
                font.pixelSize: root.type.bodySm
            }

            Label {
                visible: !row.fileIsDir
                text: Qt.locale().formattedDataSize(row.fileSize)
                color: root.theme.textMuted
                font.pixelSize: root.type.labelSm
            }

            Label {
                Layout.preferredWidth: 120
                text: row.fileModified.toLocaleString(Qt.locale(), Locale.ShortFormat)
                color: root.theme.textMuted
                horizontalAlignment: Text.AlignRight
                elide: Text.ElideRight
                font.pixelSize: root.type.labelSm
            }
        }

        background: Rectangle {
            radius: root.theme.radiusXs
            color: row.current ? root.theme.surface3 : row.hovered ? root.theme.surfaceHover : "transparent"
            border.width: row.current && root.activeFocus ? 1 : 0
            border.color: root.theme.strokeFocus
        }
    }
}

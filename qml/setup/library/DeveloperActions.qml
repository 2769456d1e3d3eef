import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Velmora
import "../../components/file_url.js" as FileUrl
import "range_categories.js" as Categories

/// What a developer can do with the libraries that come with the program: put ranges in place of
/// theirs, and write the result out.
ColumnLayout {
    id: root

    property Theme theme: Style.theme
    property Typography type: Style.type
    required property RangeLibraries libraries
    required property SeatLibrary library
    required property string rangeText

    readonly property bool _standard: library.rangeCategory === Categories.standard

    spacing: theme.spaceXs

    SmallButton {
        Layout.fillWidth: true
        text: qsTr("Override")
        enabled: root.library.canOverride(root.rangeText)
        onClicked: root.library.overrideSelectedRange(root.rangeText)
    }

    SmallButton {
        Layout.fillWidth: true
        text: root._standard ? qsTr("Export standard…") : qsTr("Export population…")
        onClicked: fileDialog.open()
    }

    SmallButton {
        Layout.fillWidth: true
        text: qsTr("Clear overrides…")
        danger: true
        onClicked: clearDialog.open()
    }

    Label {
        Layout.fillWidth: true
        visible: text !== ""
        text: root.libraries.exportErrorOf(root.library.rangeCategory)
        color: root.theme.danger
        font.pixelSize: root.type.labelSm
        wrapMode: Text.Wrap
    }

    FileChooser {
        id: fileDialog

        title: root._standard ? qsTr("Export Standard Ranges") : qsTr("Export Population Ranges")
        fileMode: FileChooser.SaveFile
        nameFilters: [qsTr("JSON (*.json)"), qsTr("All Files (*)")]
        defaultSuffix: "json"
        onAccepted: root.libraries.exportRanges(root.library.rangeCategory, FileUrl.ofLocalFile(selectedFile))
    }

    DeleteDialog {
        id: clearDialog

        title: root._standard ? qsTr("Clear standard overrides") : qsTr("Clear population overrides")
        question: (root._standard ? qsTr("Clear all locally overridden standard ranges for %1?")
                                  : qsTr("Clear all locally overridden population ranges for %1?"))
            .arg(root.library.seat === "oop" ? "OOP" : "IP")
        note: ""
        acceptText: qsTr("Clear")
        onConfirmed: root.libraries.clearOverrides(root.library)
    }
}

import QtQuick
import QtQuick.Layouts

/// A street's cell in the table of sizes.
Item {
    readonly property real sizingStreetColumnWidth: 70

    Layout.fillWidth: true
    Layout.minimumWidth: sizingStreetColumnWidth
    Layout.preferredWidth: sizingStreetColumnWidth
}

import QtQuick
import Velmora
import "trainer_hand.js" as Hand

/// The hands that were played since the program started, the newest first, and the one whose details
/// show.
QtObject {
    id: root

    required property real rakePercent
    required property real rakeCap
    /// Rows as `Hand.logEntry` makes them.
    readonly property ListModel playHandLog: ListModel {}
    property bool playFollowLatestHandDetails: true
    property int playSelectedLogIndex: -1
    /// What `Hand.buildPlayHandDetails` makes of the selected hand; null without one.
    readonly property var playHandDetails: playSelectedLogIndex >= 0 && playSelectedLogIndex < playHandLog.count
                                           ? _buildPlayHandDetails(playHandLog.get(playSelectedLogIndex)) : null

    /// Puts a hand on top. A pinned older hand stays selected.
    function add(entry: var) {
        playHandLog.insert(0, entry)
        if (playFollowLatestHandDetails)
            playSelectedLogIndex = 0
        else if (playSelectedLogIndex >= 0)
            ++playSelectedLogIndex
    }

    /// Shows the details of a hand. The newest one is followed from there on, an older one pinned.
    function userSelectPlayLog(index: int) {
        playSelectedLogIndex = index
        playFollowLatestHandDetails = index === 0
    }

    /// Keeps the details closed until a hand is selected again.
    function closeHandDetails() {
        playSelectedLogIndex = -1
        playFollowLatestHandDetails = false
    }

    function _buildPlayHandDetails(entry: var): var {
        return Hand.buildPlayHandDetails(entry, rakePercent, rakeCap,
                                         (board, oop, ip) => Controller.showdownWinner(board, oop, ip).winner)
    }
}

// SPDX-License-Identifier: MIT
// The states of UndoBar.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Section {
    id: bars

    required property string longText

    title: "Undo bar: offered, focused, restored in part"

    UndoBar {
        width: parent.width
        shown: true
        undoable: true
        text: "Moved to the Trash"
    }
    UndoBar {
        objectName: "focused"
        width: parent.width
        shown: true
        undoable: true
        text: "Moved to the Trash"
    }
    UndoBar {
        width: parent.width
        shown: true
        text: "2 items were restored. 1 item stays in the Trash."
        details: "“" + bars.longText + "” couldn’t be put back: something else is there now"
    }
}

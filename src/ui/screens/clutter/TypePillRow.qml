// SPDX-License-Identifier: MIT
// The type filter: "All" or one type. Tab focuses the chosen pill; the arrow keys choose its neighbours.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

FocusScope {
    id: choice

    required property ClutterScreenModel clutter

    implicitHeight: flow.implicitHeight

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Type of files")

    function choose(row: int) {
        const next = pills.itemAt(row) as T.AbstractButton;
        if (!next)
            return;
        next.forceActiveFocus(Qt.TabFocusReason);
        choice.clutter.filter(row);
    }

    FlowRow {
        id: flow

        width: parent.width
        spacing: 8

        Repeater {
            id: pills

            model: choice.clutter.pills

            PillChoice {
                id: pill

                required property int index
                required property string name
                required property bool reached

                objectName: "typePill" + pill.index
                text: pill.name
                focus: pill.reached
                activeFocusOnTab: pill.reached
                onClicked: choice.clutter.filter(pill.index)

                Keys.onLeftPressed: choice.choose(pill.index - 1)
                Keys.onUpPressed: choice.choose(pill.index - 1)
                Keys.onRightPressed: choice.choose(pill.index + 1)
                Keys.onDownPressed: choice.choose(pill.index + 1)
            }
        }
    }
}

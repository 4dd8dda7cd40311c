// SPDX-License-Identifier: MIT
// The bar of work whose end is known. It glides to each new share; with reduced motion it jumps.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

SharePicture {
    id: bar

    // 0 to 1, from nothing to all of it.
    required property real value
    // What a screen reader says: what is being done, and how far it has come.
    required property string name
    required property string progress

    implicitWidth: 220
    implicitHeight: 6
    share: bar.value
    color: Theme.accent
    track: Theme.hairline

    Accessible.role: Accessible.ProgressBar
    Accessible.name: bar.name
    Accessible.description: bar.progress

    Behavior on share {
        NumberAnimation {
            duration: Motion.quick
        }
    }
}

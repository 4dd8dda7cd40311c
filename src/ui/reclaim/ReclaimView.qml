// SPDX-License-Identifier: MIT
// What can be taken back. (A bound component could not be built in the scaffold.)

import QtQuick
import Zelk.Navigation
import Zelk.Reclaim

ModuleScaffold {
    id: view

    content: Component {
        ReclaimResults {}
    }

    Binding {
        target: view.module as ReclaimScreenModel
        property: "onScreen"
        value: view.visible
    }
}

// SPDX-License-Identifier: MIT
// What can be taken back. (A bound component could not be built in the scaffold.)
import QtQuick
import Zelk.App

ModuleScaffold {
    id: view

    required property ReclaimScreenModel reclaim

    module: view.reclaim
    content: Component {
        ReclaimResults {}
    }

    Binding {
        target: view.reclaim
        property: "onScreen"
        value: view.visible
    }
}

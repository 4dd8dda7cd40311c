// SPDX-License-Identifier: MIT
// The Reclaim screen. (Not `ComponentBehavior: Bound`: ModuleScaffold could not instantiate the component then.)
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

// SPDX-License-Identifier: MIT
// The Clutter screen: the largest files. (Not `ComponentBehavior: Bound`: ModuleScaffold could not instantiate the
// component then.)
import QtQuick
import Zelk.App
import Zelk.Controls

ModuleScaffold {
    id: view

    required property ClutterScreenModel clutter

    module: view.clutter
    content: Component {
        ClutterResults {}
    }

    Binding {
        target: view.clutter
        property: "onScreen"
        value: view.visible
    }

    Binding {
        target: view.clutter
        property: "dark"
        value: Theme.isDark
    }
}

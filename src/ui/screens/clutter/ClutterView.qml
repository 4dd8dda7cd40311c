// SPDX-License-Identifier: MIT
// The heaviest files. (A bound component could not be built in the scaffold.)
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

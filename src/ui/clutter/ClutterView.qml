// SPDX-License-Identifier: MIT
// The heaviest files. (A bound component could not be built in the scaffold.)

import QtQuick
import Zelk.Clutter
import Zelk.Navigation
import Zelk.Theme

ModuleScaffold {
    id: view

    content: Component {
        ClutterResults {}
    }

    Binding {
        target: view.module as ClutterScreenModel
        property: "onScreen"
        value: view.visible
    }

    Binding {
        target: view.module as ClutterScreenModel
        property: "dark"
        value: Theme.isDark
    }
}

// SPDX-License-Identifier: MIT
// The Lens screen. (Not `ComponentBehavior: Bound`: ModuleScaffold could not instantiate the component then.)
import QtQuick
import Zelk.App

ModuleScaffold {
    id: view

    required property LensScreenModel lens

    module: view.lens
    content: Component {
        Loader {
            id: panes

            // Set by ModuleScaffold; the panes need it from the start.
            property LensScreenModel module: null

            onModuleChanged: panes.setSource("LensPanes.qml", {
                "lens": panes.module,
                "focus": true
            })
        }
    }
}

// SPDX-License-Identifier: MIT
// Creates the panes below the header once ModuleScaffold has set the model.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App

Loader {
    id: results

    property LensScreenModel module: null

    focus: true
    onModuleChanged: results.setSource("LensPanes.qml", {
        "lens": results.module,
        "focus": true
    })
}

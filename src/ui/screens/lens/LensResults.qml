// SPDX-License-Identifier: MIT
// The panes under the header of the results, built when the scaffold gives the model to them.
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

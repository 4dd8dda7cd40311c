// SPDX-License-Identifier: MIT
// The module that walks through what a survey found, folder by folder. (A bound component could not be built in the
// scaffold.)
import QtQuick
import Zelk.App

ModuleScaffold {
    id: view

    required property LensScreenModel lens

    module: view.lens
    content: Component {
        LensResults {}
    }
}

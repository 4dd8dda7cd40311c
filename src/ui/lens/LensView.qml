// SPDX-License-Identifier: MIT
// The module that walks through what a survey found, folder by folder.
import QtQuick
import Zelk.Lens
import Zelk.Navigation

ModuleScaffold {
    id: view

    required property LensScreenModel lens

    module: view.lens
    content: Component {
        LensPanes {
            lens: view.lens
            focus: true
        }
    }
}

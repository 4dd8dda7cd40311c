// SPDX-License-Identifier: MIT
// A module whose view is not in this version: its hero, its progress, and after that a word on where to look.
import QtQuick
import Zelk.Navigation

ModuleScaffold {
    content: Component {
        ModuleWord {}
    }
}

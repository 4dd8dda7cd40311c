// SPDX-License-Identifier: MIT
// A module whose view is not in this version: its hero, which says so. It never comes to results.
import QtQuick

ModuleScaffold {
    content: null
}

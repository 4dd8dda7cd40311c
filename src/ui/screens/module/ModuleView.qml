// SPDX-License-Identifier: MIT
// A module without a view in this version: the start page, which says so. Never has results.
import QtQuick

ModuleScaffold {
    content: null
}

// SPDX-License-Identifier: MIT
// The Clutter screen. Its results are an empty state, or the file list, created when there are files and then kept.
// (Not `ComponentBehavior: Bound`: ModuleScaffold could not instantiate the component then.)
import QtQuick
import Zelk.App
import Zelk.Controls

ModuleScaffold {
    id: view

    required property ClutterScreenModel clutter

    module: view.clutter
    content: Component {
        FocusScope {
            id: results

            // Set by ModuleScaffold.
            property ClutterScreenModel module: null

            readonly property bool nothing: results.module?.nothing ?? true

            function build() {
                if (!results.nothing && files.status === Loader.Null)
                    files.setSource("ClutterFiles.qml", {
                        clutter: results.module
                    });
            }

            onNothingChanged: results.build()

            EmptyState {
                width: parent.width
                anchors.top: parent.top
                anchors.bottom: undoBar.top
                visible: results.nothing
                symbol: "tray"
                title: qsTr("Nothing heavy")
                note: qsTr("No large files turned up in this survey.")
            }

            Loader {
                id: files

                width: parent.width
                anchors.top: parent.top
                anchors.bottom: undoBar.top
                visible: !results.nothing
                enabled: visible
                focus: true
                onLoaded: files.item.focus = true
            }

            UndoBar {
                id: undoBar

                width: parent.width
                anchors.bottom: parent.bottom
                removal: results.module?.undoBar ?? null
                onGone: files.focus = true
            }
        }
    }

    Binding {
        target: view.clutter
        property: "onScreen"
        value: view.visible
    }
}

// SPDX-License-Identifier: MIT
// The Reclaim screen. Its results are an empty state, the categories or the items, and the clean-up sheet, each created
// when first needed, and then kept. (Not `ComponentBehavior: Bound`: ModuleScaffold could not instantiate the component
// then.)
import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

ModuleScaffold {
    id: view

    required property ReclaimScreenModel reclaim

    module: view.reclaim
    content: Component {
        FocusScope {
            id: results

            // Set by ModuleScaffold.
            property ReclaimScreenModel module: null

            readonly property bool byCategory: results.module?.byCategory ?? false
            readonly property bool byItem: results.module?.byItem ?? false
            readonly property bool reviewing: results.module?.reviewing ?? false

            function build() {
                if (results.byCategory && categories.status === Loader.Null)
                    categories.setSource("CategoryPane.qml", {
                        "categories": results.module.categories
                    });
                if (results.byItem && items.status === Loader.Null)
                    items.setSource("ItemPane.qml", {
                        "items": results.module.items
                    });
            }

            // The sheet keeps its contents if a survey starts or ends while it is open.
            function review() {
                const shown = sheet.item as T.Popup;
                if (results.reviewing) {
                    sheet.source = "";
                    sheet.setSource("DryRunSheet.qml", {
                        "dryRun": results.module.dryRun
                    });
                } else if (shown) {
                    shown.close();
                }
            }

            onByCategoryChanged: results.build()
            onByItemChanged: results.build()
            onReviewingChanged: results.review()

            EmptyState {
                anchors.fill: parent
                visible: results.module?.nothing ?? false
                symbol: "checkmark.seal"
                title: qsTr("Clean drive")
                note: qsTr("Nothing to reclaim right now.")
            }

            Loader {
                id: categories

                anchors.fill: parent
                visible: results.byCategory
                enabled: visible
                focus: visible
                onLoaded: categories.item.focus = true
            }

            Loader {
                id: items

                anchors.fill: parent
                visible: results.byItem
                enabled: visible
                focus: visible
                onLoaded: items.item.focus = true
            }

            Loader {
                id: sheet
            }

            // Waits for the sheet to close, since it returns the focus then.
            Connections {
                target: sheet.item
                ignoreUnknownSignals: true

                function onClosed() {
                    sheet.source = "";
                }
            }
        }
    }

    Binding {
        target: view.reclaim
        property: "onScreen"
        value: view.visible
    }
}

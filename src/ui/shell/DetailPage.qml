// SPDX-License-Identifier: MIT
// Loads the view of a screen when it is first shown, and keeps it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App

Loader {
    id: page

    required property DetailPages pages
    required property int index
    required property url view
    required property bool built
    required property bool current

    signal arrived

    // `built` may change before all required properties are set.
    property bool made: false

    function build() {
        if (page.made && page.built)
            page.setSource(page.view, page.pages.given(page.index));
    }

    anchors.fill: parent
    visible: page.current

    Component.onCompleted: {
        page.made = true;
        page.build();
        if (page.current)
            page.arrived();
    }
    onBuiltChanged: page.build()
    onCurrentChanged: {
        if (page.current)
            page.arrived();
    }
    onLoaded: page.item.focus = true
}

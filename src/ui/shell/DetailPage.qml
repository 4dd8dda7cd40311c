// SPDX-License-Identifier: MIT
// The place of one screen. It is built when it is first gone to, with what it needs, and kept from then on.
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

    // While it is being made itself, not all that a build needs is there.
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

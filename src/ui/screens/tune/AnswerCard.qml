// SPDX-License-Identifier: MIT
// What the last command answered; a long answer scrolls. Screen readers announce an answer that comes while the page is
// seen. One that was there before is a text like any other: nobody is told again who comes back to it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Card {
    id: card

    required property TuneScreenModel tune

    property bool shown: false
    // Whether it has come while the page was seen, and the page has been seen ever since.
    property bool fresh: false

    function load() {
        // Not only by the card: an item that is taken out of a hidden one would be shown, and announced, once more.
        if (paper.children.length > 0)
            paper.children[0].visible = false;
        paper.setSource("AnswerPaper.qml", {
            words: card.tune.output,
            announced: card.fresh
        });
    }

    // What appears is announced, so that the same answer is announced again.
    function show(now: bool) {
        card.fresh = false;
        card.shown = false;
        if (card.tune.output === "")
            return;
        card.fresh = now;
        card.load();
        card.shown = true;
    }

    visible: card.shown
    onVisibleChanged: {
        if (card.visible || !card.fresh)
            return;
        card.fresh = false;
        soon.start();
    }
    Component.onCompleted: card.show(false)

    // Items are not exchanged while those around them are still being hidden.
    Timer {
        id: soon

        interval: 0
        onTriggered: card.load()
    }

    Connections {
        target: card.tune

        function onOutputChanged() {
            card.show(card.parent.visible);
        }
    }

    // (Not the card itself: a pane keeps its own role.)
    Loader {
        id: paper

        width: card.availableWidth
    }
}

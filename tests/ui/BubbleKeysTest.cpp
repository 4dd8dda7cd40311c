// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "BubbleChartFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BubbleKeys : public BubbleChartFixture {};

}  // namespace

TEST_F(BubbleKeys, isOneTabStop) {
    EXPECT_THAT(tabOrder(), ElementsAre("Before", "Map of Library", "After"));
    expectAllControlsNamed();
}

TEST_F(BubbleKeys, showsFocusRingOnCurrentBubble) {
    const QImage before = window().grabWindow();
    tabTo();
    EXPECT_TRUE(focusIsRinged());
    EXPECT_EQ(currentID(), "node_modules") << "starts at the largest";
    const PackedCircle& ringed = circle("node_modules");
    const QPoint onRing = QPointF(ringed.center.x - ringed.radius - 5, ringed.center.y).toPoint();
    EXPECT_NE(window().grabWindow().pixelColor(onRing), before.pixelColor(onRing));
    EXPECT_EQ(window().grabWindow().pixelColor(onRing), singleton<Theme>("Theme").ink());
    press(Qt::Key_Tab);
    EXPECT_FALSE(chart().visualFocus());
    EXPECT_NE(window().grabWindow().pixelColor(onRing), singleton<Theme>("Theme").ink());
}

TEST_F(BubbleKeys, emptyChartShowsFocusRing) {
    bubbles.setSlices({});
    tabTo();
    const auto rings = seen();
    EXPECT_TRUE(std::any_of(rings.begin(), rings.end(), [&](QQuickItem* item) {
        return item->parentItem() == &chart() &&
               QString::fromLatin1(item->metaObject()->className()).startsWith(QStringLiteral("FocusRing"));
    }));
}

TEST_F(BubbleKeys, arrowsMoveToNearestInDirection) {
    tabTo();
    const std::vector<std::pair<Qt::Key, WalkDirection>> keys{{Qt::Key_Left, WalkDirection::left},
                                                              {Qt::Key_Right, WalkDirection::right},
                                                              {Qt::Key_Up, WalkDirection::up},
                                                              {Qt::Key_Down, WalkDirection::down}};
    int moved = 0;
    for (const auto& [key, direction] : keys) {
        for (const PackedCircle& from : chart().packed()) {
            clickAt(middleOf(from.id));
            const std::size_t here = *chart().current();
            const auto next = nextInDirection(chart().packed(), here, direction);
            press(key);
            EXPECT_EQ(chart().current(), next.value_or(here));
            EXPECT_TRUE(chart().visualFocus());
            moved += next ? 1 : 0;
        }
    }
    EXPECT_GT(moved, 4);
}

TEST_F(BubbleKeys, homeAndEndGoToLargestAndSmallest) {
    tabTo();
    press(Qt::Key_End);
    EXPECT_EQ(currentID(), "crumbs");
    press(Qt::Key_Home);
    EXPECT_EQ(currentID(), "node_modules");
}

TEST_F(BubbleKeys, enterTapsSpaceTicksBackspaceLeaves) {
    tabTo();
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    press(Qt::Key_Space);
    press(Qt::Key_Backspace);
    EXPECT_THAT(actions, ElementsAre("tap node_modules", "tap node_modules", "tick node_modules", "leave"));
}

TEST_F(BubbleKeys, ignoresKeyRepeat) {
    tabTo();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Backspace}) {
        for (const bool repeated : {false, true, true}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, repeated);
            QCoreApplication::sendEvent(&window(), &event);
        }
    }
    EXPECT_EQ(actions.size(), 3U);
}

TEST_F(BubbleKeys, leavesOtherKeysUnhandled) {
    tabTo();
    for (const auto& [key, modifier] : {std::pair{Qt::Key_A, Qt::NoModifier},
                                        {Qt::Key_Return, Qt::ControlModifier},
                                        {Qt::Key_Escape, Qt::NoModifier}}) {
        QKeyEvent event(QEvent::KeyPress, key, modifier);
        QCoreApplication::sendEvent(&chart(), &event);
        EXPECT_FALSE(event.isAccepted()) << key;
    }
    EXPECT_THAT(actions, IsEmpty());
}

TEST_F(BubbleKeys, tipFollowsLastUsedInput) {
    pointAt(middleOf("Caches"));
    tabTo();
    EXPECT_EQ(tipText(), "node_modules|1.2 GB");
    const PackedCircle& here = circle("node_modules");
    EXPECT_EQ(chart().tip().corner, BubbleTip::of(first[0], {here.center.x, here.center.y}, {600, 400}, 1).corner);
    press(Qt::Key_End);
    EXPECT_EQ(tipText(), "crumbs|1 MB");
    pointAt(middleOf("Caches") + QPoint(1, 1));
    EXPECT_EQ(tipText(), "Caches|600 MB");
    press(Qt::Key_Home);
    EXPECT_EQ(tipText(), "node_modules|1.2 GB");
    press(Qt::Key_Tab);
    EXPECT_EQ(tipText(), "Caches|600 MB") << "the pointer still hovers";
}

TEST_F(BubbleKeys, keepsCurrentBubbleAcrossChanges) {
    tabTo();
    press(Qt::Key_End);
    auto next = first;
    next.push_back(sliceOf("more", 50'000'000));
    bubbles.setSlices(next);
    view().setSize({500, 350});
    EXPECT_EQ(currentID(), "crumbs");
    bubbles.setSlices(first);
    bubbles.setSlices({first[0], first[1]});
    EXPECT_EQ(currentID(), "node_modules") << "falls back to the largest";
}

}  // namespace zelk

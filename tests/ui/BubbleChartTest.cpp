// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "BubbleChartFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BubbleChart : public BubbleChartFixture {};

}  // namespace

// Packing

TEST_F(BubbleChart, packsOnFirstShow) {
    EXPECT_EQ(chart().packed(), pack(itemsOf(first), 600, 400));
    EXPECT_EQ(chart().packed().size(), 4U) << "an empty slice has no circle";
}

TEST_F(BubbleChart, repacksWhenResized) {
    view().setSize({500, 380});
    EXPECT_EQ(chart().packed(), pack(itemsOf(first), 500, 380));
    view().setX(7);
    EXPECT_EQ(chart().packed(), pack(itemsOf(first), 500, 380)) << "a move is not a resize";
}

TEST_F(BubbleChart, repacksWhenIdsChange) {
    auto next = first;
    next.push_back(sliceOf("more", 50'000'000));
    bubbles.setSlices(next);
    EXPECT_EQ(chart().packed(), pack(itemsOf(next), 600, 400));
    std::swap(next[0], next[1]);
    bubbles.setSlices(next);
    EXPECT_EQ(chart().packed(), pack(itemsOf(next), 600, 400)) << "the order of the slices matters";
}

TEST_F(BubbleChart, keepsPositionsWhenOnlyBytesOrColoursChange) {
    const auto before = chart().packed();
    bubbles.setSlices(slicesWith([](auto& slices) {
        slices[0].bytes = 5;
        slices[1].color = Qt::red;
        slices[3].bytes = 900'000'000;
    }));
    EXPECT_EQ(chart().packed(), before);
    pointAt(middleOf("node_modules"));
    EXPECT_EQ(tipText(), "node_modules|5 bytes") << "the tip shows the new size";
}

TEST_F(BubbleChart, repacksWhenModelIsRebuilt) {
    const auto next = slicesWith([](auto& slices) { slices[2].bytes = 2'000'000'000; });
    bubbles.setSlices(next);
    ASSERT_NE(chart().packed(), pack(itemsOf(next), 600, 400));
    pointAt(middleOf("Caches"));
    bubbles.rebuild();
    EXPECT_EQ(chart().packed(), pack(itemsOf(next), 600, 400));
    EXPECT_EQ(chart().hoveredID(), std::nullopt);
    EXPECT_EQ(currentID(), "Logs") << "the largest";
}

TEST_F(BubbleChart, keepsPackingBelowMinimumSize) {
    const auto before = chart().packed();
    for (const QSizeF size : {QSizeF(1, 400), QSizeF(600, 1), QSizeF(0, 0)}) {
        view().setSize(size);
        EXPECT_EQ(chart().packed(), before) << size.width();
    }
    view().setSize({1.5, 1.5});
    EXPECT_EQ(chart().packed(), pack(itemsOf(first), 1.5, 1.5));
}

TEST_F(BubbleChart, packsAreaSmallerThanItsMargins) {
    view().setSize({40, 30});
    ASSERT_EQ(chart().packed().size(), 4U);
    EXPECT_LT(chart().packed()[0].radius, 0);
    settle();
    clickAt({20, 15});
    EXPECT_THAT(actions, IsEmpty()) << "a circle of negative radius cannot be hit";
}

TEST_F(BubbleChart, emptyChartIgnoresClicksAndKeysExceptBackspace) {
    for (const auto& none : {std::vector<BubbleSlice>(), std::vector{sliceOf("a", 0), sliceOf("b", -3)}}) {
        bubbles.setSlices(none);
        EXPECT_THAT(chart().packed(), IsEmpty());
        clickAt({300, 200});
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_End, Qt::Key_Return, Qt::Key_Space}) press(key);
        EXPECT_THAT(actions, IsEmpty());
        EXPECT_THAT(nodes(), IsEmpty());
    }
    press(Qt::Key_Backspace);
    EXPECT_THAT(actions, ElementsAre("leave"));
}

// Pointer

TEST_F(BubbleChart, tracksHoveredBubble) {
    pointAt(middleOf("Caches"));
    EXPECT_EQ(chart().hoveredID(), "Caches");
    EXPECT_EQ(chart().hoverPoint(), QPointF(middleOf("Caches")));
    pointAt(nowhere);
    EXPECT_EQ(chart().hoveredID(), std::nullopt);
    EXPECT_EQ(chart().hoverPoint(), QPointF(nowhere));
}

TEST_F(BubbleChart, leavingClearsHoverButKeepsHoverPoint) {
    const QPoint point = middleOf("Caches");
    pointAt(point);
    QHoverEvent leave(QEvent::HoverLeave, QPointF(-1, -1), QPointF(-1, -1), QPointF(point), Qt::NoModifier);
    QCoreApplication::sendEvent(&chart(), &leave);
    EXPECT_EQ(chart().hoveredID(), std::nullopt);
    EXPECT_EQ(chart().hoverPoint(), QPointF(point));
    EXPECT_EQ(tipText(), "");
}

TEST_F(BubbleChart, hidesTipOfRemovedBubble) {
    pointAt(middleOf("Caches"));
    bubbles.setSlices({sliceOf("other", 5)});
    EXPECT_EQ(chart().hoveredID(), "Caches");
    EXPECT_EQ(tipText(), "");
    settle();
}

TEST_F(BubbleChart, clickTapsBubbleAndTakesFocus) {
    clickAt(middleOf("Logs"));
    clickAt(nowhere);
    EXPECT_THAT(actions, ElementsAre("tap Logs"));
    EXPECT_EQ(currentID(), "Logs");
    EXPECT_EQ(window().activeFocusItem(), &chart());
    EXPECT_FALSE(chart().visualFocus()) << "the focus did not come from the keyboard";
}

TEST_F(BubbleChart, doubleClickTapsTwice) {
    QTest::mouseDClick(&window(), Qt::LeftButton, {}, middleOf("Logs"));
    EXPECT_THAT(actions, ElementsAre("tap Logs", "tap Logs"));
}

TEST_F(BubbleChart, dragAndOtherButtonsDoNotTap) {
    const QPoint point = middleOf("node_modules");
    QTest::mousePress(&window(), Qt::LeftButton, {}, point);
    QTest::mouseMove(&window(), point + QPoint(30, 0));
    QTest::mouseRelease(&window(), Qt::LeftButton, {}, point + QPoint(30, 0));
    QTest::mouseClick(&window(), Qt::RightButton, {}, point);
    EXPECT_THAT(actions, IsEmpty());
}

TEST_F(BubbleChart, tapMayReplaceSlices) {
    BubbleModel drilling({[&](const BubbleSlice& slice) {
                              drilling.setSlices({sliceOf(slice.id + "/inside", 7)});
                              actions.push_back("into " + slice.id);
                          },
                          {},
                          {}});
    drilling.setSlices(first);
    chart().setModel(&drilling);
    clickAt(middleOf("Caches"));
    EXPECT_THAT(actions, ElementsAre("into Caches"));
    EXPECT_EQ(currentID(), "Caches/inside");
    chart().setModel(&bubbles);
}

TEST_F(BubbleChart, outlivesItsModel) {
    auto brief = std::make_unique<BubbleModel>(BubbleModel::Actions{});
    brief->setSlices(first);
    chart().setModel(brief.get());
    ASSERT_FALSE(chart().isEmpty());
    brief.reset();
    clickAt({300, 200});
    press(Qt::Key_Return);
    press(Qt::Key_Backspace);
    EXPECT_EQ(tipText(), "");
}

// Tip

TEST_F(BubbleChart, tipShowsLabelSizeAndReclaimable) {
    auto slices = first;
    slices[1].reclaimable = true;
    bubbles.setSlices(slices);
    pointAt(middleOf("node_modules"));
    EXPECT_EQ(tipText(), "node_modules|1.2 GB");
    EXPECT_FALSE(chart().tip().reclaimable);
    pointAt(middleOf("Caches"));
    EXPECT_EQ(tipText(), "Caches|600 MB · reclaimable");
    EXPECT_TRUE(chart().tip().reclaimable);
    EXPECT_THAT(seenTexts(), testing::IsSupersetOf({"Caches", "600 MB · reclaimable"}));
}

TEST_F(BubbleChart, tipPassesClicksThrough) {
    const QPoint point = middleOf("node_modules");
    pointAt(point);
    const QPointF corner = chart().tip().corner;
    tour::clickAt(window(), point);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, corner.toPoint() + QPoint(2, 2));
    EXPECT_EQ(actions.size(), 2U);
}

TEST(BubbleTip, staysBesidePointerAndInsideChart) {
    const BubbleSlice slice = sliceOf("a", 5);
    EXPECT_EQ(BubbleTip::of(slice, {100, 50}, {600, 400}, 1).corner, QPointF(112, 62));
    EXPECT_EQ(BubbleTip::of(slice, {500, 390}, {600, 400}, 1).corner, QPointF(380, 344));
    EXPECT_EQ(BubbleTip::of(slice, {500, 390}, {200, 40}, 1).corner, QPointF(0, 0));
    EXPECT_EQ(BubbleTip::of(slice, {500, 390}, {600, 400}, 1.5).corner, QPointF(270, 316))
        << "scaled texts need more room";
}

TEST(BubbleTip, isNeverWiderThanChart) {
    const BubbleSlice slice = sliceOf(std::string(200, 'n'), 5'000'000'000);
    for (const double width : {40.0, 275.0, 600.0}) {
        const BubbleTip tip = BubbleTip::of(slice, {width / 2, 100}, {width, 400}, 1.5);
        EXPECT_LE(tip.corner.x() + tip.widest, width);
        EXPECT_GE(tip.corner.x(), 0);
    }
}

TEST_F(BubbleChart, tipOfLongNameStaysInsideChart) {
    for (const double scale : {1.0, 1.5}) {
        singleton<TextScale>("TextScale").setFactor(scale);
        bubbles.setSlices({sliceOf(std::string(200, 'n'), 5'000'000'000)});
        for (const QPoint point : {QPoint(300, 200), QPoint(420, 300), QPoint(180, 120)}) {
            pointAt(point);
            ASSERT_TRUE(chart().tip().shown);
            const QQuickItem* card = find("bubbleTip");
            ASSERT_NE(card, nullptr);
            const QRectF box = card->mapRectToScene(card->boundingRect());
            EXPECT_TRUE(QRectF(0, 0, 600, 400).contains(box)) << box.right() << ' ' << box.bottom();
        }
    }
}

}  // namespace zelk

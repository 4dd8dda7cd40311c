// SPDX-License-Identifier: MIT
// The motion into a bubble and back from it.
#include <cmath>

#include "AnimationClock.h"
#include "ViewFixture.h"
#include "ui/charts/BubblePicture.h"

namespace zelk {

namespace {

/// Where the zoom puts a point of the chart at its beginning.
QPointF moved(const BubbleZoom& zoom, QPointF point) {
    return zoom.origin + zoom.scale * (point - zoom.origin);
}

bool near(QPointF one, QPointF other) {
    return std::hypot(one.x() - other.x(), one.y() - other.y()) < 1e-6;
}

class BubbleZoomWindow : public ViewFixture {
protected:
    BubbleZoomWindow() {
        BubbleSlice large;
        large.id = "/large";
        large.bytes = 4'000;
        BubbleSlice small;
        small.id = "/small";
        small.bytes = 1'000;
        bubbles_.setSlices({large, small});
        ViewFixture::show(QStringLiteral("import QtQuick\nimport Zelk.Charts\nBubbleChart { name: 'Map' }"),
                          QSize(500, 400), QVariantMap{{QStringLiteral("model"), QVariant::fromValue(&bubbles_)}});
    }
    ~BubbleZoomWindow() override { close(); }

    void move(const char* how, int slice, int duration) {
        QMetaObject::invokeMethod(&view(), how, Q_ARG(int, slice), Q_ARG(int, duration));
        settle();  // an animation starts with the next turn of the event loop
    }
    void pass(int milliseconds) {
        clock_.pass(milliseconds);
        settle();
    }
    /// The width of a hundred points of the chart on screen.
    double hundred() { return view().mapRectToScene(QRectF(0, 0, 100, 100)).width(); }

private:
    AnimationClock clock_;
    BubbleModel bubbles_{BubbleModel::Actions{}};
};

}  // namespace

TEST(BubbleZoom, growsFromTheCircleIntoTheMap) {
    const BubbleZoom zoom = BubbleZoom::into({100, 150}, 40, {500, 400});
    EXPECT_DOUBLE_EQ(zoom.scale, 0.2);
    EXPECT_TRUE(near(moved(zoom, {250, 200}), {100, 150})) << "the middle of the map is in that of the circle";
}

TEST(BubbleZoom, shrinksFromTheMapIntoTheCircle) {
    const BubbleZoom zoom = BubbleZoom::outOf({100, 150}, 40, {500, 400});
    EXPECT_DOUBLE_EQ(zoom.scale, 5);
    EXPECT_TRUE(near(moved(zoom, {100, 150}), {250, 200})) << "the circle fills the map";
    EXPECT_TRUE(near(moved(zoom, {140, 150}), {450, 200}));
}

TEST(BubbleZoom, smallCirclesGrowSixfoldAtMost) {
    EXPECT_DOUBLE_EQ(BubbleZoom::outOf({100, 150}, 1, {500, 400}).scale, 6);
}

TEST(BubbleZoom, doesNotMoveWithoutRoom) {
    EXPECT_EQ(BubbleZoom::into({100, 100}, 0, {500, 400}), BubbleZoom());
    EXPECT_EQ(BubbleZoom::into({250, 200}, 200, {500, 400}), BubbleZoom());
    EXPECT_EQ(BubbleZoom::into({0, 0}, 40, {0, 0}), BubbleZoom());
    EXPECT_EQ(BubbleZoom::outOf({100, 100}, 0, {500, 400}), BubbleZoom());
    EXPECT_EQ(BubbleZoom::outOf({250, 200}, 200, {500, 400}), BubbleZoom());
    EXPECT_EQ(BubbleZoom::outOf({0, 0}, 40, {0, 0}), BubbleZoom());
}

TEST_F(BubbleZoomWindow, growsUntilItFillsTheMap) {
    singleton<Motion>("Motion").setReduced(false);
    move("growOutOf", 1, 200);
    const double first = hundred();
    EXPECT_LT(first, 60);
    pass(100);
    EXPECT_GT(hundred(), first);
    pass(200);
    EXPECT_DOUBLE_EQ(hundred(), 100);
}

TEST_F(BubbleZoomWindow, shrinksToItsSize) {
    singleton<Motion>("Motion").setReduced(false);
    move("shrinkInto", 1, 200);
    const double first = hundred();
    EXPECT_GT(first, 150);
    pass(100);
    EXPECT_LT(hundred(), first);
    pass(200);
    EXPECT_DOUBLE_EQ(hundred(), 100);
}

TEST_F(BubbleZoomWindow, standsStillWithoutDurationOrBubble) {
    move("growOutOf", 1, 0);
    EXPECT_DOUBLE_EQ(hundred(), 100);
    move("shrinkInto", 1, 0);
    EXPECT_DOUBLE_EQ(hundred(), 100);
    for (const int slice : {-1, 2}) {
        move("growOutOf", slice, 200);
        EXPECT_DOUBLE_EQ(hundred(), 100) << slice;
    }
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/controls/ProgressPicture.h"

#include <gtest/gtest.h>

#include "fakes/RecordingCanvas.h"

namespace zelk {

namespace {

using Kind = fakes::DrawnShape::Kind;

constexpr QSizeF barSize(200, 6);
const QColor barTrack(255, 255, 255, 20);
const QColor barAmber(245, 166, 35);

std::vector<fakes::DrawnShape> barAt(double seconds) {
    fakes::RecordingCanvas canvas;
    drawProgress(canvas, barSize, seconds, barTrack, barAmber);
    return canvas.shapes;
}

}  // namespace

TEST(ModuleProgressBar, hasASliverOfAThirdOfItsTrack) {
    for (const double seconds : {0.0, 0.4, 1.4}) EXPECT_DOUBLE_EQ(progressSliver(seconds, 200).width, 68);
}

TEST(ModuleProgressBar, runsFromBeforeItsTrackToBehindIt) {
    EXPECT_DOUBLE_EQ(progressSliver(0, 200).left, -68);
    EXPECT_DOUBLE_EQ(progressSliver(0.375, 200).left, -1);
    EXPECT_DOUBLE_EQ(progressSliver(0.75, 200).left, 66);
    EXPECT_NEAR(progressSliver(1.499999, 200).left, 200, 0.01);
}

TEST(ModuleProgressBar, runsThroughOnceInOneAndAHalfSeconds) {
    EXPECT_DOUBLE_EQ(progressSliver(1.5, 200).left, -68);
    EXPECT_DOUBLE_EQ(progressSliver(2.25, 200).left, 66);
    EXPECT_NEAR(progressSliver(1'500'000'000.75, 200).left, 66, 1e-3);
}

TEST(ModuleProgressBar, isACapsuleOnACapsule) {
    const auto shapes = barAt(0.75);
    ASSERT_EQ(shapes.size(), 2U);
    EXPECT_EQ(shapes[0].kind, Kind::bar);
    EXPECT_EQ(shapes[0].rect, QRectF(0, 0, 200, 6));
    EXPECT_EQ(shapes[0].paint, Paint::solid(barTrack));
    EXPECT_EQ(shapes[1].kind, Kind::bar);
    EXPECT_EQ(shapes[1].rect, QRectF(66, 0, 68, 6));
    for (const auto& shape : shapes) {
        EXPECT_EQ(shape.leftCorner, 3);
        EXPECT_EQ(shape.rightCorner, 3);
    }
    EXPECT_EQ(shapes[1].paint.kind, Paint::Kind::linear);
    EXPECT_EQ(shapes[1].paint.from, QPointF(66, 0));
    EXPECT_EQ(shapes[1].paint.to, QPointF(134, 0));
    for (const GradientStop& stop : shapes[1].paint.stops) EXPECT_EQ(stop.color.rgb(), barAmber.rgb());
}

TEST(ModuleProgressBar, showsOfItsSliverWhatLiesOnTheTrack) {
    EXPECT_EQ(barAt(0).size(), 1U) << "all of it is before the track";
    const auto entering = barAt(0.375);
    ASSERT_EQ(entering.size(), 2U);
    EXPECT_DOUBLE_EQ(entering[1].rect.left(), 0);
    EXPECT_DOUBLE_EQ(entering[1].rect.right(), 67);
    const auto leaving = barAt(1.125);
    ASSERT_EQ(leaving.size(), 2U);
    EXPECT_DOUBLE_EQ(leaving[1].rect.left(), 133);
    EXPECT_DOUBLE_EQ(leaving[1].rect.right(), 200);
}

TEST(ModuleProgressBar, withoutRoomDrawsNoSliver) {
    fakes::RecordingCanvas canvas;
    drawProgress(canvas, {0, 6}, 0.75, barTrack, barAmber);
    EXPECT_EQ(canvas.shapes.size(), 1U);
}

}  // namespace zelk

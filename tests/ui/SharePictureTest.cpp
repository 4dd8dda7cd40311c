// SPDX-License-Identifier: MIT
#include "ui/charts/SharePicture.h"

#include <gtest/gtest.h>

#include "fakes/RecordingCanvas.h"

namespace zelk {

namespace {

const QColor shareTrack(255, 255, 255, 20);
const QColor shareColor(167, 123, 255);

std::vector<fakes::DrawnShape> barOf(double share) {
    fakes::RecordingCanvas canvas;
    drawShare(canvas, {200, 6}, share, shareTrack, shareColor);
    return canvas.shapes;
}

}  // namespace

TEST(ShareBar, fillsItsTrackFromTheLeft) {
    const auto shapes = barOf(0.25);
    ASSERT_EQ(shapes.size(), 2U);
    EXPECT_EQ(shapes[0].rect, QRectF(0, 0, 200, 6));
    EXPECT_EQ(shapes[0].paint, Paint::solid(shareTrack));
    EXPECT_EQ(shapes[1].rect, QRectF(0, 0, 50, 6));
    EXPECT_EQ(shapes[1].paint, Paint::solid(shareColor));
    for (const auto& shape : shapes) {
        EXPECT_EQ(shape.kind, fakes::DrawnShape::Kind::bar);
        EXPECT_EQ(shape.leftCorner, 3);
        EXPECT_EQ(shape.rightCorner, 3);
    }
}

TEST(ShareBar, isBareAtNothingAndADotAtTheLeastBeginning) {
    EXPECT_EQ(barOf(0).size(), 1U);
    ASSERT_EQ(barOf(0.001).size(), 2U);
    EXPECT_EQ(barOf(0.001)[1].rect, QRectF(0, 0, 6, 6));
}

TEST(ShareBar, isNeverMoreThanItsTrack) {
    EXPECT_EQ(barOf(1)[1].rect, QRectF(0, 0, 200, 6));
    EXPECT_EQ(barOf(1.7)[1].rect, QRectF(0, 0, 200, 6));
}

}  // namespace zelk

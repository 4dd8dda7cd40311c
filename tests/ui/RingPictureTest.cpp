// SPDX-License-Identifier: MIT
#include "ui/charts/RingPicture.h"

#include <gtest/gtest.h>

#include <limits>

#include "fakes/RecordingCanvas.h"

namespace zelk {

namespace {

using Kind = fakes::DrawnShape::Kind;

const QColor ringTrack(255, 255, 255, 20);
const QColor ringAmber(245, 166, 35);

double spanOf(double value) {
    fakes::RecordingCanvas canvas;
    drawRing(canvas, 108, value, ringTrack, ringAmber);
    return canvas.shapes.back().span;
}

}  // namespace

TEST(RingGauge, isAnArcOverAFullTrackInsideItsSquare) {
    fakes::RecordingCanvas canvas;
    drawRing(canvas, 108, 0.25, ringTrack, ringAmber);
    ASSERT_EQ(canvas.shapes.size(), 2U);
    const auto& below = canvas.shapes[0];
    EXPECT_EQ(below.kind, Kind::ring);
    EXPECT_EQ(below.paint, Paint::solid(ringTrack));
    const auto& arc = canvas.shapes[1];
    EXPECT_EQ(arc.kind, Kind::roundArc);
    EXPECT_EQ(arc.paint, Paint::solid(ringAmber));
    for (const auto& shape : canvas.shapes) {
        EXPECT_EQ(shape.center, QPointF(54, 54));
        EXPECT_EQ(shape.width, 10);
        EXPECT_EQ(shape.radius + shape.width / 2, 54);
    }
}

TEST(RingGauge, goesFromNoonWithTheClock) {
    fakes::RecordingCanvas canvas;
    drawRing(canvas, 108, 0.25, ringTrack, ringAmber);
    EXPECT_EQ(canvas.shapes.back().start, 90);
    EXPECT_EQ(canvas.shapes.back().span, -90);
}

TEST(RingGauge, ofOnePointSevenIsAFullRing) {
    EXPECT_EQ(ringFraction(1.7), 1);
    EXPECT_EQ(spanOf(1.7), -360);
    EXPECT_EQ(spanOf(1), -360);
    EXPECT_EQ(ringFraction(std::numeric_limits<double>::infinity()), 1);
}

TEST(RingGauge, ofMinusOneIsADotOfAThousandthOfATurn) {
    EXPECT_EQ(ringFraction(-1), 0.001);
    EXPECT_DOUBLE_EQ(spanOf(-1), -0.36);
}

TEST(RingGauge, ofZeroStillShowsADot) {
    EXPECT_EQ(ringFraction(0), 0.001);
    EXPECT_EQ(ringFraction(0.0005), 0.001);
    EXPECT_EQ(ringFraction(0.002), 0.002);
}

TEST(RingGauge, ofNoNumberIsADot) {
    EXPECT_EQ(ringFraction(std::numeric_limits<double>::quiet_NaN()), 0.001);
}

TEST(RingPicture, isThereAtOnceWhereItStandsStill) {
    RingPicture ring;
    EXPECT_EQ(ring.shown(), 0.001);
    ring.setStill(true);
    ring.setValue(0.4);
    EXPECT_EQ(ring.shown(), 0.4);
    ring.setValue(1.7);
    EXPECT_EQ(ring.value(), 1.7);
    EXPECT_EQ(ring.shown(), 1);
}

TEST(RingPicture, springsFromWhereItIs) {
    RingPicture ring;
    ring.setValue(0.6);
    EXPECT_EQ(ring.value(), 0.6);
    EXPECT_EQ(ring.shown(), 0.001);
    ring.setStill(true);
    EXPECT_EQ(ring.shown(), 0.6) << "what stands still does not go on springing";
}

TEST(RingPicture, startsWhereItsFirstValueIs) {
    RingPicture ring;
    static_cast<QQmlParserStatus&>(ring).classBegin();
    ring.setValue(0.6);
    EXPECT_EQ(ring.shown(), 0.6) << "what is not yet on screen has nowhere to spring from";
}

}  // namespace zelk

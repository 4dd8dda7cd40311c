// SPDX-License-Identifier: MIT
#include "ui/charts/ScanButtonDrawing.h"

#include <gtest/gtest.h>

#include "fakes/RecordingCanvas.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

using fakes::DrawnShape;
using fakes::RecordingCanvas;
using Kind = DrawnShape::Kind;

const QPointF buttonCenter(132, 132);
const QColor accent(245, 166, 35);

/// The opacity of a paint where it starts, in hundredths; -1 if it is not of the accent.
int opacityAtStart(const Paint& paint) {
    const QColor color = paint.stops.front().color;
    return color.rgb() == accent.rgb() ? qRound(color.alphaF() * 100) : -1;
}

}  // namespace

TEST(ScanGlow, hasThreeLayersOfTheAccent) {
    RecordingCanvas canvas;
    drawScanGlow(canvas, buttonCenter, accent);
    ASSERT_EQ(canvas.shapes.size(), 3U);

    const DrawnShape& near = canvas.shapes[0];
    EXPECT_EQ(near.kind, Kind::disc);
    EXPECT_EQ(near.center, buttonCenter);
    EXPECT_DOUBLE_EQ(near.radius, 112);
    EXPECT_EQ(opacityAtStart(near.paint), 55);

    const DrawnShape& wide = canvas.shapes[1];
    EXPECT_EQ(wide.kind, Kind::disc);
    EXPECT_DOUBLE_EQ(wide.radius, 132);
    EXPECT_EQ(opacityAtStart(wide.paint), 30);

    const DrawnShape& ring = canvas.shapes[2];
    EXPECT_EQ(ring.kind, Kind::ring);
    EXPECT_EQ(ring.center, buttonCenter);
    EXPECT_DOUBLE_EQ(ring.radius, 108);
    EXPECT_DOUBLE_EQ(ring.width, 1.25);
    EXPECT_EQ(opacityAtStart(ring.paint), 42);
}

TEST(ScanGlow, fadesToNothingAtItsEdge) {
    RecordingCanvas canvas;
    drawScanGlow(canvas, buttonCenter, accent);
    for (const std::size_t layer : {0U, 1U}) {
        const DrawnShape& halo = canvas.shapes[layer];
        EXPECT_EQ(halo.paint.kind, Paint::Kind::radial);
        EXPECT_EQ(halo.paint.from, buttonCenter);
        EXPECT_DOUBLE_EQ(halo.paint.radius, halo.radius);
        ASSERT_EQ(halo.paint.stops.size(), 5U);
        EXPECT_DOUBLE_EQ(halo.paint.stops.back().at, 1);
        EXPECT_EQ(halo.paint.stops.back().color.alpha(), 0);
        // Half as strong where the disc ends as behind it.
        EXPECT_NEAR(halo.paint.stops[2].at, 92 / halo.radius, 1e-9);
        EXPECT_NEAR(halo.paint.stops[2].color.alphaF(), halo.paint.stops[0].color.alphaF() / 2, 0.001);
    }
}

TEST(ScanGlow, staysInItsFrame) {
    RecordingCanvas canvas;
    drawScanGlow(canvas, buttonCenter, accent);
    for (const DrawnShape& shape : canvas.shapes)
        EXPECT_LE(2 * (shape.radius + shape.width / 2), ScanButtonShape::frame);
}

TEST(ScanDisc, isFilledByTheAccentGradientFromTopLeftToBottomRight) {
    RecordingCanvas canvas;
    drawScanDisc(canvas, buttonCenter);
    ASSERT_EQ(canvas.shapes.size(), 3U);
    const DrawnShape& disc = canvas.shapes[0];
    EXPECT_EQ(disc.kind, Kind::disc);
    EXPECT_DOUBLE_EQ(disc.radius, 92);
    EXPECT_EQ(disc.paint, Paint::linear({40, 40}, {224, 224}, {{0, QColor(255, 194, 75)}, {1, QColor(240, 133, 28)}}));
}

TEST(ScanDisc, hasItsLightWithinItself) {
    RecordingCanvas canvas;
    drawScanDisc(canvas, buttonCenter);
    ASSERT_EQ(canvas.shapes.size(), 3U);
    EXPECT_EQ(canvas.shapes[1].paint.kind, Paint::Kind::radial);
    EXPECT_DOUBLE_EQ(canvas.shapes[1].radius, 92);
    EXPECT_EQ(canvas.shapes[2].kind, Kind::ring);
    EXPECT_DOUBLE_EQ(canvas.shapes[2].radius + canvas.shapes[2].width / 2, 92);
}

TEST(ScanSheen, coversTheDisc) {
    RecordingCanvas canvas;
    drawScanSheen(canvas, buttonCenter);
    ASSERT_EQ(canvas.shapes.size(), 1U);
    EXPECT_DOUBLE_EQ(canvas.shapes[0].radius, 92);
}

TEST(ScanComet, trailsFromNoonAgainstTheClock) {
    RecordingCanvas canvas;
    drawScanComet(canvas, buttonCenter, accent);
    ASSERT_EQ(canvas.shapes.size(), 2U);

    const DrawnShape& tail = canvas.shapes[0];
    EXPECT_EQ(tail.kind, Kind::arc);
    EXPECT_DOUBLE_EQ(tail.radius, 108);
    EXPECT_DOUBLE_EQ(tail.width, 3);
    EXPECT_DOUBLE_EQ(tail.start, 90);
    EXPECT_DOUBLE_EQ(tail.span, 270);
    EXPECT_EQ(tail.paint.kind, Paint::Kind::conical);
    EXPECT_DOUBLE_EQ(tail.paint.angle, 90);
    EXPECT_EQ(tail.paint.stops.front().color.alpha(), 255);
    EXPECT_EQ(tail.paint.stops.back().color.alpha(), 0);

    const DrawnShape& head = canvas.shapes[1];
    EXPECT_EQ(head.kind, Kind::disc);
    EXPECT_EQ(head.center, QPointF(132, 24));
    EXPECT_DOUBLE_EQ(head.radius, 3);
}

TEST(ScanComet, staysInItsFrameAllTheWayRound) {
    RecordingCanvas canvas;
    drawScanComet(canvas, buttonCenter, accent);
    const double reach = ScanButtonShape::ringRadius + canvas.shapes[1].radius;
    EXPECT_LE(2 * reach, ScanButtonShape::turningFrame);
}

}  // namespace zelk

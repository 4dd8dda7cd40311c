// SPDX-License-Identifier: MIT
#include "ui/charts/OrbDrawing.h"

#include <gtest/gtest.h>

#include "fakes/RecordingCanvas.h"
#include "ui/charts/PaintedLayer.h"

namespace zelk {

namespace {

const QColor lens(232, 91, 196);
const QPointF center(100, 100);

}  // namespace

TEST(Orb, isADiscOver52WithAShadowBelowIt) {
    fakes::RecordingCanvas canvas;
    drawOrbDisc(canvas, center, lens);
    ASSERT_GE(canvas.shapes.size(), 2U);
    const auto& shadow = canvas.shapes[0];
    EXPECT_EQ(shadow.center, QPointF(100, 108));
    EXPECT_EQ(shadow.radius, 72);
    EXPECT_NEAR(shadow.paint.stops.front().color.alphaF(), 0.5, 0.01);
    EXPECT_EQ(shadow.paint.stops.front().color.rgb(), lens.rgb());
    EXPECT_EQ(shadow.paint.stops.back().color.alphaF(), 0);
    const auto& disc = canvas.shapes[1];
    EXPECT_EQ(disc.center, center);
    EXPECT_EQ(disc.radius * 2, 104);
    EXPECT_EQ(disc.paint.kind, Paint::Kind::linear);
}

TEST(Orb, keepsItsRingsBetweenTheDiscAndTheFrame) {
    double inner = OrbShape::discRadius;
    for (int ring = 0; ring < OrbShape::rings; ++ring) {
        fakes::RecordingCanvas canvas;
        drawOrbRing(canvas, center, ring, lens);
        ASSERT_EQ(canvas.shapes.size(), 1U);
        EXPECT_GT(canvas.shapes[0].radius, inner);
        EXPECT_LE(canvas.shapes[0].radius + canvas.shapes[0].width / 2, OrbShape::frame / 2);
        EXPECT_EQ(canvas.shapes[0].paint.stops.front().color.rgb() & 0xffffff, lens.rgb() & 0xffffff);
        inner = canvas.shapes[0].radius;
    }
}

TEST(ModuleGlow, fallsFromTheModulesColourToNothingAt520) {
    for (const bool dark : {true, false}) {
        fakes::RecordingCanvas canvas;
        drawModuleGlow(canvas, center, lens, dark);
        ASSERT_EQ(canvas.shapes.size(), 1U);
        EXPECT_EQ(canvas.shapes[0].radius, 520);
        EXPECT_EQ(canvas.shapes[0].paint.radius, 520);
        EXPECT_NEAR(canvas.shapes[0].paint.stops.front().color.alphaF(), dark ? 0.18 : 0.12, 0.001);
        EXPECT_EQ(canvas.shapes[0].paint.stops.back().color.alphaF(), 0);
    }
}

TEST(AboutMark, isADiscOf78InsideAGlowOf96) {
    fakes::RecordingCanvas canvas;
    drawAboutMark(canvas, center, QColor(245, 166, 35));
    ASSERT_EQ(canvas.shapes.size(), 2U);
    EXPECT_EQ(canvas.shapes[0].radius * 2, 96);
    EXPECT_EQ(canvas.shapes[1].radius * 2, 78);
}

TEST(PaintedLayer, isAsLargeAsWhatItShows) {
    PaintedLayer layer;
    layer.setKind(PaintedLayer::OuterRing);
    EXPECT_EQ(layer.implicitWidth(), 150);
    layer.setKind(PaintedLayer::Glow);
    EXPECT_EQ(layer.implicitHeight(), 1040);
    layer.setKind(PaintedLayer::Mark);
    EXPECT_EQ(layer.implicitHeight(), 96);
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/charts/LayerDrawing.h"

#include <gtest/gtest.h>

#include "Painted.h"

namespace zelk {

namespace {

const QPointF buttonCenter(132, 132);
const QColor accent(245, 166, 35);

template <class... Colors>
QImage layer(void (*draw)(QPainter&, QPointF, Colors...), Colors... colors) {
    return painted(
        {264, 264}, [&](QPainter& painter) { draw(painter, buttonCenter, colors...); }, 4);
}

/// The colour at this offset from the centre, in points.
QColor at(const QImage& image, double x, double y) {
    return image.pixelColor(static_cast<int>(4 * (132 + x)), static_cast<int>(4 * (132 + y)));
}

QImage glow() {
    return layer<const QColor&>(drawScanGlow, accent);
}
QImage comet() {
    return layer<const QColor&>(drawScanComet, accent);
}

}  // namespace

TEST(ScanGlow, paintsTwoHalosAndRing) {
    EXPECT_NEAR(at(glow(), 0, 0).alphaF(), 1 - (1 - 0.55) * (1 - 0.3), 0.01);
    EXPECT_NEAR(at(glow(), 92, 0).alphaF(), 1 - (1 - 0.275) * (1 - 0.15), 0.01) << "half at the edge of the disc";
    EXPECT_NEAR(at(glow(), 0, 115).alphaF(), 0.035, 0.01) << "the wide one alone";
    EXPECT_NEAR(at(glow(), 108, 0).alphaF(), 1 - 0.921 * (1 - 0.42), 0.015) << "with the ring";
    EXPECT_LT(at(glow(), 109.5, 0).alphaF(), 0.1);
    EXPECT_TRUE(alike(QColor(at(glow(), 0, 0).rgb()), accent));
}

TEST(ScanGlow, fadesOutAtEdgeOfFrame) {
    EXPECT_LE(at(glow(), 131.5, 0).alpha(), 1);
    EXPECT_LE(at(glow(), 0, -131.5).alpha(), 1);
    EXPECT_EQ(at(glow(), 100, 100).alpha(), 0);
}

TEST(ScanDisc, paintsDiagonalAccentGradient) {
    const QImage disc = layer(drawScanDisc);
    EXPECT_TRUE(alike(at(disc, 60, 60), QColor(243, 144, 36))) << "outside the highlight";
    EXPECT_TRUE(alike(at(disc, -60, -60), QColor(253, 193, 93), 6)) << "inside the highlight";
    EXPECT_EQ(at(disc, 91, 0).alpha(), 255);
    EXPECT_EQ(at(disc, 93, 0).alpha(), 0);
}

TEST(ScanDisc, lightensUpperEdge) {
    const QImage disc = layer(drawScanDisc);
    EXPECT_GT(at(disc, 0, -91.5).blue(), at(disc, 0, -89).blue() + 40);
    EXPECT_TRUE(alike(at(disc, 0, 91.2), at(disc, 0, 89), 6)) << "but not the lower one";
}

TEST(ScanSheen, coversDisc) {
    const QImage sheen = layer(drawScanSheen);
    EXPECT_NEAR(at(sheen, 0, 0).alphaF(), 0.12, 0.005);
    EXPECT_NEAR(at(sheen, 91, 0).alphaF(), 0.12, 0.005);
    EXPECT_EQ(at(sheen, 93, 0).alpha(), 0);
}

TEST(ScanComet, trailsCounterclockwiseFromTop) {
    EXPECT_EQ(at(comet(), 0, -108), accent) << "the head";
    EXPECT_EQ(at(comet(), 2.5, -108), accent);
    EXPECT_NEAR(at(comet(), -108, 0).alphaF(), 0.45, 0.02) << "at nine";
    EXPECT_NEAR(at(comet(), 0, 108).alphaF(), 0.225, 0.02) << "at six";
    EXPECT_LE(at(comet(), 107.9, 1).alpha(), 2) << "at three";
    EXPECT_EQ(at(comet(), 76.4, -76.4).alpha(), 0);
    EXPECT_EQ(at(comet(), -105, 0).alpha(), 0) << "the stroke is 3 wide";
    EXPECT_EQ(at(comet(), -111, 0).alpha(), 0);
}

TEST(ScanComet, staysInsideFrameWhileTurning) {
    constexpr double reach = ScanButtonShape::turningFrame / 2;
    for (const QPointF edge : {QPointF(0, -reach), QPointF(reach, 0), QPointF(0, reach), QPointF(-reach, 0)})
        EXPECT_EQ(at(comet(), edge.x(), edge.y()).alpha(), 0);
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/charts/LayerDrawing.h"

#include <gtest/gtest.h>

#include "Painted.h"
#include "ui/charts/PaintedLayer.h"

namespace zelk {

namespace {

const QColor lens(232, 91, 196);
const QPointF center(100, 100);

}  // namespace

TEST(Orb, paintsLitDiscWithShadow) {
    const QImage orb = painted({200, 200}, [](QPainter& painter) { drawOrbDisc(painter, center, lens); });
    EXPECT_EQ(orb.pixelColor(150, 100).alpha(), 255);
    EXPECT_LT(orb.pixelColor(153, 100).alpha(), 128);
    EXPECT_TRUE(alike(orb.pixelColor(75, 75), QColor(226, 114, 197))) << "lighter to the upper left";
    EXPECT_TRUE(alike(orb.pixelColor(125, 125), QColor(206, 89, 176))) << "darker to the lower right";
    EXPECT_GT(orb.pixelColor(100, 48).green(), orb.pixelColor(100, 51).green() + 20) << "light on its upper edge";
    EXPECT_NEAR(orb.pixelColor(100, 162).alphaF(), 0.2, 0.02) << "the shadow is 8 lower and blurred by 20";
    EXPECT_TRUE(alike(QColor(orb.pixelColor(100, 162).rgb()), lens, 8));
    EXPECT_LT(orb.pixelColor(100, 37).alphaF(), 0.06);
    EXPECT_EQ(orb.pixelColor(100, 182).alpha(), 0);
}

TEST(Orb, keepsRingsBetweenDiscAndFrame) {
    double inner = OrbShape::discRadius;
    for (std::size_t ring = 0; ring < OrbShape::ringRadii.size(); ++ring) {
        const double radius = OrbShape::ringRadii.at(ring);
        EXPECT_GT(radius, inner);
        EXPECT_LE(radius, OrbShape::frame / 2 - 1);
        inner = radius;
        const QImage rings = painted(
            {200, 200}, [&](QPainter& painter) { drawOrbRing(painter, center, ring, lens); }, 4);
        const QColor line = rings.pixelColor(static_cast<int>(4 * (100 + radius)), 400);
        EXPECT_NEAR(line.alphaF(), OrbShape::ringOpacities.at(ring), 0.02);
        EXPECT_TRUE(alike(QColor(line.rgb()), lens, 8));
        EXPECT_EQ(rings.pixelColor(static_cast<int>(4 * (100 + radius - 2)), 400).alpha(), 0);
        EXPECT_EQ(rings.pixelColor(static_cast<int>(4 * (100 + radius + 2)), 400).alpha(), 0);
    }
}

TEST(AboutMark, paintsDiscOf78InsideGlowOf96) {
    const QImage mark =
        painted({200, 200}, [](QPainter& painter) { drawAboutMark(painter, center, QColor(245, 166, 35)); });
    EXPECT_EQ(mark.pixelColor(137, 100).alpha(), 255);
    EXPECT_GT(mark.pixelColor(142, 100).alpha(), 20);
    EXPECT_LT(mark.pixelColor(142, 100).alpha(), 128);
    EXPECT_EQ(mark.pixelColor(149, 100).alpha(), 0);
}

TEST(PaintedLayer, implicitSizeDependsOnKind) {
    PaintedLayer layer;
    layer.setKind(PaintedLayer::OuterRing);
    EXPECT_EQ(layer.implicitWidth(), 150);
    layer.setKind(PaintedLayer::Mark);
    EXPECT_EQ(layer.implicitHeight(), 96);
}

TEST(PaintedLayer, paintsKindInItsColour) {
    PaintedLayer layer;
    layer.setProperty("color", lens);
    const auto alphaAt = [&](PaintedLayer::Kind kind, int x, int y) {
        layer.setKind(kind);
        layer.setSize({layer.implicitWidth(), layer.implicitHeight()});
        return layer.picture(1).pixelColor(x, y).alpha();
    };
    EXPECT_EQ(alphaAt(PaintedLayer::OrbDisc, 80, 80), 255);
    EXPECT_EQ(alphaAt(PaintedLayer::OuterRing, 75, 75), 0);
    EXPECT_GT(alphaAt(PaintedLayer::OuterRing, 75, 2), 10);
    EXPECT_EQ(layer.picture(2).size(), QSize(300, 300)) << "as sharp as the screen";
}

TEST(PaintedLayer, onlyTheDiscOfTheScanButtonIsClickable) {
    PaintedLayer layer;
    layer.setSize({264, 264});
    EXPECT_TRUE(layer.contains({5, 5}));
    layer.setKind(PaintedLayer::ScanGlow);
    EXPECT_FALSE(layer.contains({5, 5}));
    EXPECT_TRUE(layer.contains({132, 132 - 91}));
    EXPECT_FALSE(layer.contains({132, 132 - 93}));
}

}  // namespace zelk

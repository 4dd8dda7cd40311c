// SPDX-License-Identifier: MIT
#include "ui/charts/PaintedLayer.h"

#include <gtest/gtest.h>

#include <QQuickWindow>

#include "Painted.h"

namespace zelk {

namespace {

const QColor orbPink(232, 91, 196);
const QColor scanAmber(245, 166, 35);
constexpr int perPoint = 4;  // pixels

QImage pictureOf(PaintedLayer::Kind kind, const QColor& color = scanAmber) {
    PaintedLayer layer;
    layer.setProperty("color", color);
    layer.setKind(kind);
    layer.setSize({layer.implicitWidth(), layer.implicitHeight()});
    return layer.picture(perPoint);
}

/// The colour at this offset from the centre, in points.
QColor at(const QImage& image, double x, double y) {
    return image.pixelColor(static_cast<int>(image.width() / 2 + perPoint * x),
                            static_cast<int>(image.height() / 2 + perPoint * y));
}

/// Knows how often it was painted and what is left of that.
class CountedPicture : public PaintedOnce {
public:
    QImage picture(double /*scale*/) const override {
        ++painted;
        return QImage(20, 20, QImage::Format_RGB32);
    }
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override {
        return node = PaintedOnce::updatePaintNode(old, data);
    }

    mutable int painted = 0;
    QSGNode* node = nullptr;
};

}  // namespace

TEST(PaintedLayer, implicitSizeDependsOnKind) {
    PaintedLayer layer;
    EXPECT_EQ(layer.implicitWidth(), 160);
    const std::pair<PaintedLayer::Kind, double> table[] = {
        {PaintedLayer::OuterRing, 150}, {PaintedLayer::Mark, 96},      {PaintedLayer::Tile, 28},
        {PaintedLayer::ScanGlow, 264},  {PaintedLayer::ScanDisc, 186}, {PaintedLayer::ScanComet, 228},
        {PaintedLayer::IntroDisc, 140},
    };
    for (const auto& [kind, side] : table) {
        layer.setKind(kind);
        EXPECT_EQ(layer.implicitWidth(), side) << kind;
        EXPECT_EQ(layer.implicitHeight(), side) << kind;
    }
}

TEST(PaintedLayer, isAsSharpAsTheScreen) {
    PaintedLayer layer;
    layer.setKind(PaintedLayer::OuterRing);
    layer.setSize({150, 150});
    EXPECT_EQ(layer.picture(1).size(), QSize(150, 150));
    EXPECT_EQ(layer.picture(1.5).size(), QSize(225, 225));
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

TEST(Orb, paintsLitDiscWithShadow) {
    const QImage orb = pictureOf(PaintedLayer::OrbDisc, orbPink);
    EXPECT_EQ(at(orb, 50, 0).alpha(), 255);
    EXPECT_LT(at(orb, 53, 0).alpha(), 128);
    EXPECT_TRUE(alike(at(orb, -25, -25), QColor(226, 114, 197))) << "lighter to the upper left";
    EXPECT_TRUE(alike(at(orb, 25, 25), QColor(206, 89, 176))) << "darker to the lower right";
    EXPECT_GT(at(orb, 0, -51.5).green(), at(orb, 0, -49).green() + 20) << "light on its upper edge";
    EXPECT_NEAR(at(orb, 0, 62.5).alphaF(), 0.2, 0.02) << "the shadow is 8 lower and blurred by 20";
    EXPECT_TRUE(alike(QColor(at(orb, 0, 62.5).rgb()), orbPink, 8));
    EXPECT_LT(at(orb, 0, -62.5).alphaF(), 0.06);
    EXPECT_LE(at(orb, 0, 79.5).alpha(), 1) << "the frame has room for it";
}

TEST(Orb, keepsRingsBetweenDiscAndFrame) {
    struct Ring {
        PaintedLayer::Kind kind;
        double radius;
        double opacity;
    };
    const Ring rings[] = {{PaintedLayer::InnerRing, 58, 0.4},
                          {PaintedLayer::MiddleRing, 65.5, 0.24},
                          {PaintedLayer::OuterRing, 73, 0.12}};
    for (const auto& [kind, radius, opacity] : rings) {
        const QImage ring = pictureOf(kind, orbPink);
        EXPECT_NEAR(at(ring, radius, 0).alphaF(), opacity, 0.02);
        EXPECT_TRUE(alike(QColor(at(ring, radius, 0).rgb()), orbPink, 8));
        EXPECT_EQ(at(ring, radius - 2, 0).alpha(), 0);
        EXPECT_EQ(at(ring, radius + 1.5, 0).alpha(), 0);
        EXPECT_EQ(at(ring, 0, 0).alpha(), 0);
    }
}

TEST(IntroDisc, paintsSmoothDiscOf108OnFaintOneOf140) {
    const QColor blue(86, 130, 200);
    const QImage disc = pictureOf(PaintedLayer::IntroDisc, blue);
    EXPECT_TRUE(alike(at(disc, 0, 53), blue)) << "its own colour at the bottom";
    EXPECT_TRUE(alike(at(disc, 0, -53), blue.lighter(115))) << "lighter at the top";
    EXPECT_NEAR(at(disc, 62, 0).alphaF(), 0.16, 0.01);
    EXPECT_NEAR(at(disc, -69, 0).alphaF(), 0.16, 0.01);
    EXPECT_EQ(at(disc, 50, 50).alpha(), 0);
    int blended = 0;  // pixels between the two discs, which make the edge smooth
    for (int x = 0; x < disc.width(); ++x) {
        const int alpha = disc.pixelColor(x, disc.height() / 4).alpha();
        if (alpha > 60 && alpha < 250) ++blended;
    }
    EXPECT_GE(blended, 2) << "on both sides";
}

TEST(AboutMark, paintsDiscOf78InsideGlowOf96) {
    const QImage mark = pictureOf(PaintedLayer::Mark);
    EXPECT_EQ(at(mark, 37, 0).alpha(), 255);
    EXPECT_GT(at(mark, 42, 0).alpha(), 20);
    EXPECT_LT(at(mark, 42, 0).alpha(), 128);
    EXPECT_LE(at(mark, 47.5, 0).alpha(), 2) << "the glow fades out";
}

TEST(HouseTile, isARoundedSquareInTheAccentGradient) {
    const QImage tile = pictureOf(PaintedLayer::Tile);
    EXPECT_EQ(at(tile, 0, -13.5).alpha(), 255);
    EXPECT_EQ(at(tile, -14, -14).alpha(), 0) << "its corners are round";
    EXPECT_GT(at(tile, -9, -9).green(), at(tile, 9, 9).green()) << "from the upper left to the lower right";
}

TEST(ScanGlow, paintsTwoHalosAndRing) {
    const QImage glow = pictureOf(PaintedLayer::ScanGlow);
    EXPECT_NEAR(at(glow, 0, 0).alphaF(), 1 - (1 - 0.55) * (1 - 0.3), 0.01);
    EXPECT_NEAR(at(glow, 92, 0).alphaF(), 1 - (1 - 0.275) * (1 - 0.15), 0.01) << "half at the edge of the disc";
    EXPECT_NEAR(at(glow, 0, 115).alphaF(), 0.035, 0.01) << "the wide one alone";
    EXPECT_NEAR(at(glow, 108, 0).alphaF(), 1 - 0.921 * (1 - 0.42), 0.015) << "with the ring";
    EXPECT_LT(at(glow, 109.5, 0).alphaF(), 0.1);
    EXPECT_TRUE(alike(QColor(at(glow, 0, 0).rgb()), scanAmber));
}

TEST(ScanGlow, fadesOutAtEdgeOfFrame) {
    const QImage glow = pictureOf(PaintedLayer::ScanGlow);
    EXPECT_LE(at(glow, 131.5, 0).alpha(), 1);
    EXPECT_LE(at(glow, 0, -131.5).alpha(), 1);
    EXPECT_EQ(at(glow, 100, 100).alpha(), 0);
}

TEST(ScanDisc, paintsDiagonalAccentGradient) {
    const QImage disc = pictureOf(PaintedLayer::ScanDisc);
    EXPECT_TRUE(alike(at(disc, 60, 60), QColor(243, 144, 36))) << "outside the highlight";
    EXPECT_TRUE(alike(at(disc, -60, -60), QColor(253, 193, 93), 6)) << "inside the highlight";
    EXPECT_EQ(at(disc, 91, 0).alpha(), 255);
    EXPECT_EQ(at(disc, 92.5, 0).alpha(), 0);
}

TEST(ScanDisc, lightensUpperEdge) {
    const QImage disc = pictureOf(PaintedLayer::ScanDisc);
    EXPECT_GT(at(disc, 0, -91.5).blue(), at(disc, 0, -89).blue() + 40);
    EXPECT_TRUE(alike(at(disc, 0, 91.2), at(disc, 0, 89), 6)) << "but not the lower one";
}

TEST(ScanSheen, coversDisc) {
    const QImage sheen = pictureOf(PaintedLayer::ScanSheen);
    EXPECT_NEAR(at(sheen, 0, 0).alphaF(), 0.12, 0.005);
    EXPECT_NEAR(at(sheen, 91, 0).alphaF(), 0.12, 0.005);
    EXPECT_EQ(at(sheen, 92.5, 0).alpha(), 0);
}

TEST(ScanComet, trailsCounterclockwiseFromTop) {
    const QImage comet = pictureOf(PaintedLayer::ScanComet);
    EXPECT_EQ(at(comet, 0, -108), scanAmber) << "the head";
    EXPECT_EQ(at(comet, 2.5, -108), scanAmber);
    EXPECT_NEAR(at(comet, -108, 0).alphaF(), 0.45, 0.02) << "at nine";
    EXPECT_NEAR(at(comet, 0, 108).alphaF(), 0.225, 0.02) << "at six";
    EXPECT_LE(at(comet, 107.9, 1).alpha(), 2) << "at three";
    EXPECT_EQ(at(comet, 76.4, -76.4).alpha(), 0);
    EXPECT_EQ(at(comet, -105, 0).alpha(), 0) << "the stroke is 3 wide";
    EXPECT_EQ(at(comet, -111, 0).alpha(), 0);
}

TEST(ScanComet, staysInsideFrameWhileTurning) {
    const QImage comet = pictureOf(PaintedLayer::ScanComet);
    constexpr double edge = 113.5;
    for (const QPointF end : {QPointF(0, -edge), QPointF(edge, 0), QPointF(0, edge), QPointF(-edge, 0)})
        EXPECT_EQ(at(comet, end.x(), end.y()).alpha(), 0);
}

TEST(PaintedOnce, isPaintedAgainOnlyForAChange) {
    QQuickWindow window;
    CountedPicture item;
    item.setParentItem(window.contentItem());
    item.setSize({20, 20});
    window.show();
    for (int frame = 0; frame < 3; ++frame) window.grabWindow();
    EXPECT_EQ(item.painted, 1);
    emit item.changed();
    window.grabWindow();
    EXPECT_EQ(item.painted, 2);
}

TEST(PaintedOnce, holdsNoPictureWhileItIsHidden) {
    QQuickWindow window;
    QQuickItem page;
    page.setParentItem(window.contentItem());
    page.setVisible(false);
    CountedPicture item;
    item.setParentItem(&page);
    item.setSize({20, 20});
    window.show();
    window.grabWindow();
    EXPECT_EQ(item.painted, 0) << "nobody sees it";
    page.setVisible(true);
    window.grabWindow();
    EXPECT_EQ(item.painted, 1);
    EXPECT_NE(item.node, nullptr);
    page.setVisible(false);
    emit item.changed();
    window.grabWindow();
    EXPECT_EQ(item.node, nullptr);
    EXPECT_EQ(item.painted, 1);
    page.setVisible(true);
    window.grabWindow();
    EXPECT_EQ(item.painted, 2);
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/controls/PainterCanvas.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cmath>
#include <cstdlib>

namespace zelk {

namespace {

class Painted : public testing::Test {
protected:
    Painted() : image(100, 100, QImage::Format_ARGB32_Premultiplied) {
        image.fill(Qt::transparent);
        painter.begin(&image);
    }

    QColor at(int x, int y) const { return image.pixelColor(x, y); }

    QImage image;
    QPainter painter;
    const QPointF middle{50, 50};
};

}  // namespace

TEST_F(Painted, discIsFilledToItsRadiusAndNoFurther) {
    PainterCanvas(painter).disc(middle, 30, Paint::solid(Qt::red));
    EXPECT_EQ(at(50, 50), QColor(Qt::red));
    EXPECT_EQ(at(22, 50), QColor(Qt::red));
    EXPECT_EQ(at(17, 50).alpha(), 0);
}

TEST_F(Painted, ringLeavesItsInsideFree) {
    PainterCanvas(painter).ring(middle, 30, 6, Paint::solid(Qt::red));
    EXPECT_EQ(at(50, 50).alpha(), 0);
    EXPECT_EQ(at(20, 50), QColor(Qt::red));
    EXPECT_EQ(at(25, 50).alpha(), 0);
}

TEST_F(Painted, aRingCoversEachPixelAsFarAsItLiesInIt) {
    const QPointF ringCenter(50.3, 49.8);
    constexpr double radius = 30.4;
    const auto isIn = [&](QPointF point, double width) {
        const QPointF away = point - ringCenter;
        return std::abs(std::hypot(away.x(), away.y()) - radius) <= width / 2;
    };
    for (const double scale : {1.0, 1.25, 2.0}) {
        for (const double width : {0.4, 1.0, 1.5, 6.0}) {
            QImage drawn(210, 210, QImage::Format_ARGB32_Premultiplied);
            drawn.fill(Qt::transparent);
            QPainter on(&drawn);
            on.scale(scale, scale);
            PainterCanvas(on).ring(ringCenter, radius, width, Paint::solid(Qt::red));
            on.end();
            double ink = 0;
            double wanted = 0;
            for (int y = 0; y < drawn.height(); ++y) {
                for (int x = 0; x < drawn.width(); ++x) {
                    constexpr int grid = 5;
                    int inside = 0;
                    for (int part = 0; part < grid * grid; ++part)
                        inside += isIn(QPointF(x + (part % grid + 0.5) / grid, y + (part / grid + 0.5) / grid) / scale,
                                       width);
                    const double covered = static_cast<double>(inside) / (grid * grid);
                    const double alpha = drawn.pixelColor(x, y).alphaF();
                    ASSERT_NEAR(alpha, covered, 0.2) << scale << ' ' << width << ": " << x << ' ' << y;
                    ink += alpha;
                    wanted += covered;
                }
            }
            EXPECT_NEAR(ink / wanted, 1, 0.03) << scale << ' ' << width;
        }
    }
}

TEST_F(Painted, arcRunsAgainstTheClockFromThreeOClock) {
    PainterCanvas(painter).arc(middle, 30, 6, 0, 180, Paint::solid(Qt::red));
    EXPECT_EQ(at(50, 20), QColor(Qt::red)) << "noon";
    EXPECT_EQ(at(50, 80).alpha(), 0) << "six";
}

TEST_F(Painted, gradientsRunAsTold) {
    PainterCanvas canvas(painter);
    canvas.disc(middle, 40, Paint::linear({10, 50}, {90, 50}, {{0, Qt::red}, {1, Qt::blue}}));
    EXPECT_GT(at(15, 50).red(), 200);
    EXPECT_GT(at(85, 50).blue(), 200);
    canvas.disc(middle, 40, Paint::radial(middle, 40, {{0, Qt::green}, {1, Qt::black}}));
    EXPECT_GT(at(50, 50).green(), 240);
    EXPECT_LT(at(88, 50).green(), 40);
    canvas.disc(middle, 40, Paint::conical(middle, 90, {{0, Qt::white}, {1, Qt::black}}));
    EXPECT_GT(at(47, 20).red(), 220) << "just behind the start";
    EXPECT_LT(at(53, 20).red(), 35) << "just before it";
}

TEST_F(Painted, edgesAreSmooth) {
    PainterCanvas(painter).disc(middle, 30.5, Paint::solid(Qt::red));
    int partly = 0;
    for (int x = 0; x < 100; ++x) partly += at(x, 30).alpha() != 0 && at(x, 30).alpha() != 255 ? 1 : 0;
    EXPECT_GT(partly, 0);
}

TEST_F(Painted, aShadowIsDarkestBelowTheDiscAndFadesOut) {
    PainterCanvas(painter).shadowedDisc(middle, 20, Paint::solid(Qt::red), {QColor(0, 0, 0, 128), 10, {0, 6}});
    EXPECT_EQ(at(50, 50), QColor(Qt::red));
    EXPECT_EQ(at(50, 68), QColor(Qt::red)) << "the disc covers it";
    int last = at(50, 72).alpha();
    EXPECT_GT(last, 60);
    EXPECT_GT(last, at(50, 28).alpha()) << "it falls downwards";
    for (int y = 73; y < 96; ++y) {
        EXPECT_LE(at(50, y).alpha(), last) << y;
        EXPECT_LT(last - at(50, y).alpha(), 16) << "without an edge";
        last = at(50, y).alpha();
    }
    EXPECT_EQ(last, 0);
}

TEST_F(Painted, aShadowHasNoSeamsOnAScaledScreen) {
    painter.scale(1.25, 1.25);
    PainterCanvas(painter).shadowedDisc({40, 36}, 20.3, Paint::solid(Qt::red), {QColor(0, 0, 0, 128), 10, {0, 3}});
    for (int y = 72; y < 99; ++y) {
        for (int x = 2; x < 98; ++x) {
            const bool shadowOnly = at(x, y).red() == 0 && at(x + 1, y).red() == 0;
            const int step = std::abs(at(x, y).alpha() - at(x + 1, y).alpha());
            EXPECT_TRUE(!shadowOnly || step <= 16) << x << ' ' << y << ": " << step;
        }
    }
}

TEST_F(Painted, aShadowThatIsMoreBlurredThanItsDiscIsLargeIsFaint) {
    PainterCanvas(painter).shadowedDisc(middle, 3, Paint::solid(Qt::red), {Qt::black, 20, {0, 30}});
    EXPECT_LT(at(50, 80).alpha(), 30);
    EXPECT_GT(at(50, 80).alpha(), 0);
}

TEST_F(Painted, anEllipseFillsItsRectangle) {
    PainterCanvas canvas(painter);
    canvas.ellipse({20, 40, 60, 20}, Paint::solid(Qt::red));
    EXPECT_EQ(at(22, 50), QColor(Qt::red));
    EXPECT_EQ(at(50, 42), QColor(Qt::red));
    EXPECT_EQ(at(22, 42).alpha(), 0);
    canvas.ellipse({60, 80, -20, -10}, Paint::solid(Qt::red));
    EXPECT_EQ(at(50, 75).alpha(), 0) << "what has no extent is nothing";
}

TEST_F(Painted, anImageFillsItsRectangle) {
    QImage picture(4, 4, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::blue);
    PainterCanvas(painter).image({30, 30, 20, 20}, picture);
    EXPECT_EQ(at(31, 31), QColor(Qt::blue));
    EXPECT_EQ(at(48, 48), QColor(Qt::blue));
    EXPECT_EQ(at(51, 51).alpha(), 0);
}

TEST_F(Painted, aTextStandsAroundItsMiddleAsWideAsItMeasures) {
    PainterCanvas canvas(painter);
    const Lettering lettering{20, Lettering::Weight::semibold, false};
    canvas.text(middle, QStringLiteral("HH"), lettering, Qt::red);
    QRect inked;
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            if (at(x, y).alpha() > 60) inked |= QRect(x, y, 1, 1);
    EXPECT_NEAR(inked.center().x(), 50, 1);
    EXPECT_NEAR(inked.center().y(), 50, 3);
    const double width = canvas.textWidth(QStringLiteral("HH"), lettering);
    EXPECT_NEAR(inked.width(), width, 6);
    EXPECT_GT(canvas.textWidth(QStringLiteral("HHH"), lettering), width);
    EXPECT_LT(canvas.textWidth(QStringLiteral("HH"), {10, Lettering::Weight::semibold, false}), width);
}

TEST_F(Painted, showsWhatItsClipLeaves) {
    PainterCanvas canvas(painter);
    EXPECT_TRUE(canvas.shows({500, 500, 10, 10})) << "without one it does not say";
    painter.setClipRect(10, 10, 20, 20);
    EXPECT_TRUE(canvas.shows({25, 25, 40, 40}));
    EXPECT_FALSE(canvas.shows({40, 10, 20, 20}));
}

TEST_F(Painted, aCircleWithoutARadiusIsNothing) {
    PainterCanvas canvas(painter);
    const QImage before = image;
    for (const double radius : {0.0, -20.0}) {
        canvas.disc(middle, radius, Paint::solid(Qt::red));
        canvas.ring(middle, radius, 4, Paint::solid(Qt::red));
        canvas.shadowedDisc(middle, radius, Paint::solid(Qt::red), {Qt::black, 6, {0, 2}});
    }
    EXPECT_EQ(image, before);
}

}  // namespace zelk

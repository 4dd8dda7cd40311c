// SPDX-License-Identifier: MIT
#include "ui/charts/Circles.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cmath>
#include <cstdlib>

namespace zelk {

namespace {

class Circles : public testing::Test {
protected:
    Circles() : image(100, 100, QImage::Format_ARGB32_Premultiplied) {
        image.fill(Qt::transparent);
        painter.begin(&image);
        painter.setRenderHint(QPainter::Antialiasing);
    }

    QColor at(int x, int y) const { return image.pixelColor(x, y); }

    QImage image;
    QPainter painter;
    const QPointF middle{50, 50};
};

}  // namespace

TEST_F(Circles, ringMatchesSupersampledCoverage) {
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
            on.setRenderHint(QPainter::Antialiasing);
            on.scale(scale, scale);
            drawRing(on, ringCenter, radius, width, Qt::red);
            on.end();
            double paintedArea = 0;
            double expectedArea = 0;
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
                    paintedArea += alpha;
                    expectedArea += covered;
                }
            }
            EXPECT_NEAR(paintedArea / expectedArea, 1, 0.03) << scale << ' ' << width;
        }
    }
}

TEST_F(Circles, shadowFallsBelowDiscAndFadesOut) {
    drawDiscShadow(painter, middle, 20, QColor(0, 0, 0, 128), 10, 6);
    fillDisc(painter, middle, 20, Qt::red);
    EXPECT_EQ(at(50, 50), QColor(Qt::red));
    EXPECT_EQ(at(50, 68), QColor(Qt::red)) << "the disc covers it";
    int last = at(50, 72).alpha();
    EXPECT_GT(last, 60);
    EXPECT_GT(last, at(50, 28).alpha()) << "it falls downwards";
    for (int y = 73; y < 96; ++y) {
        EXPECT_LE(at(50, y).alpha(), last) << y;
        EXPECT_LT(last - at(50, y).alpha(), 16) << "no hard edge";
        last = at(50, y).alpha();
    }
    EXPECT_EQ(last, 0);
}

TEST_F(Circles, shadowHasNoSeamsOnScaledScreen) {
    painter.scale(1.25, 1.25);
    drawDiscShadow(painter, {40, 36}, 20.3, QColor(0, 0, 0, 128), 10, 3);
    fillDisc(painter, {40, 36}, 20.3, Qt::red);
    for (int y = 72; y < 99; ++y) {
        for (int x = 2; x < 98; ++x) {
            const bool shadowOnly = at(x, y).red() == 0 && at(x + 1, y).red() == 0;
            const int step = std::abs(at(x, y).alpha() - at(x + 1, y).alpha());
            EXPECT_TRUE(!shadowOnly || step <= 16) << x << ' ' << y << ": " << step;
        }
    }
}

TEST_F(Circles, shadowBlurredBeyondItsDiscIsFaint) {
    drawDiscShadow(painter, middle, 3, Qt::black, 20, 30);
    fillDisc(painter, middle, 3, Qt::red);
    EXPECT_LT(at(50, 80).alpha(), 30);
    EXPECT_GT(at(50, 80).alpha(), 0);
}

TEST_F(Circles, drawsLargeRing) {
    drawRing(painter, {-550, 50}, 600, 6, Qt::red);
    EXPECT_EQ(at(50, 50), QColor(Qt::red));
    EXPECT_EQ(at(45, 50).alpha(), 0);
    EXPECT_EQ(at(55, 50).alpha(), 0);
}

TEST_F(Circles, haloIsFullInsideAndFadesOut) {
    drawHalo(painter, middle, Qt::red, 0.5, 10, 40);
    EXPECT_NEAR(at(50, 50).alphaF(), 0.5, 0.01);
    EXPECT_NEAR(at(58, 50).alphaF(), 0.5, 0.01);
    EXPECT_NEAR(at(75, 50).alphaF(), 0.25, 0.02);
    EXPECT_EQ(at(91, 50).alpha(), 0);
}

TEST_F(Circles, drawsNothingWithoutRadius) {
    const QImage before = image;
    for (const double radius : {0.0, -20.0}) {
        fillDisc(painter, middle, radius, Qt::red);
        drawRing(painter, middle, radius, 4, Qt::red);
        strokeCircle(painter, middle, radius, 4, Qt::red);
        drawDiscShadow(painter, middle, radius, Qt::black, 6, 2);
    }
    EXPECT_EQ(image, before);
}

}  // namespace zelk

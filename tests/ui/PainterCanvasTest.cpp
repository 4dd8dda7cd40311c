// SPDX-License-Identifier: MIT
#include "ui/components/PainterCanvas.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

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

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/charts/SparklinePicture.h"

#include <gtest/gtest.h>

#include "Painted.h"

namespace zelk {

namespace {

using Points = std::vector<QPointF>;

constexpr QSizeF frame(120, 44);
const QColor amber(245, 166, 35);

QImage curve(const QList<qreal>& values) {
    SparklinePicture picture;
    picture.setProperty("values", QVariant::fromValue(values));
    picture.setProperty("color", amber);
    return painted(picture, frame.toSize());
}

}  // namespace

TEST(Sparkline, spansWidthWithVerticalMarginOfTwo) {
    EXPECT_EQ(sparklinePoints({10, 30, 20}, frame), (Points{{0, 42}, {60, 2}, {120, 22}}));
}

TEST(Sparkline, spacesValuesEvenly) {
    const Points points = sparklinePoints({0, 4, 0, 4, 0}, frame);
    ASSERT_EQ(points.size(), 5U);
    for (std::size_t i = 0; i < points.size(); ++i) EXPECT_EQ(points[i].x(), 30.0 * static_cast<double>(i));
}

TEST(Sparkline, flatHistoryLiesAtTheBottom) {
    for (const double value : {0.0, 0.5, -7.0, 1e15})
        EXPECT_EQ(sparklinePoints({value, value, value}, frame), (Points{{0, 42}, {60, 42}, {120, 42}})) << value;
}

TEST(Sparkline, doesNotMagnifyRangesBelowOne) {
    EXPECT_EQ(sparklinePoints({5, 5.5}, frame), (Points{{0, 42}, {120, 22}}));
    EXPECT_EQ(sparklinePoints({5, 6}, frame), (Points{{0, 42}, {120, 2}}));
}

TEST(Sparkline, acceptsNegativeValues) {
    EXPECT_EQ(sparklinePoints({-10, 10}, frame), (Points{{0, 42}, {120, 2}}));
}

TEST(Sparkline, isEmptyWithFewerThanTwoValues) {
    for (const std::vector<double>& values : {std::vector<double>{}, std::vector<double>{7}}) {
        EXPECT_EQ(sparklinePoints(values, frame), Points());
        EXPECT_EQ(curve({values.begin(), values.end()}), curve({})) << values.size();
    }
    EXPECT_EQ(sparklineArea({}, 44), Points());
}

TEST(Sparkline, areaExtendsToTheBottom) {
    EXPECT_EQ(sparklineArea({{0, 42}, {60, 2}, {120, 22}}, 44),
              (Points{{0, 44}, {0, 42}, {60, 2}, {120, 22}, {120, 44}}));
}

TEST(Sparkline, paintsLineOverFadingArea) {
    EXPECT_EQ(curve({}).pixelColor(60, 30).alpha(), 0);
    const QImage flat = curve({7, 7, 7});
    EXPECT_EQ(flat.pixelColor(60, 41), amber) << "at the bottom, from 41 to 43";
    EXPECT_EQ(flat.pixelColor(60, 42), amber);
    EXPECT_EQ(flat.pixelColor(60, 40).alpha(), 0);
    EXPECT_LT(flat.pixelColor(60, 43).alpha(), 40);

    const QImage peak = curve({10, 30, 20});
    EXPECT_EQ(peak.pixelColor(10, 2).alpha(), 0) << "above the curve";
    EXPECT_NEAR(peak.pixelColor(60, 10).alphaF(), 0.218, 0.01) << "from 0.28 at the top";
    EXPECT_NEAR(peak.pixelColor(60, 42).alphaF(), 0.029, 0.01) << "to 0.02 at the bottom";
}

}  // namespace zelk

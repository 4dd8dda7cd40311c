// SPDX-License-Identifier: MIT
#include "ui/charts/SparklineGeometry.h"

#include <gtest/gtest.h>

#include "fakes/RecordingCanvas.h"
#include "ui/charts/SparklinePicture.h"

namespace zelk {

namespace {

using Points = std::vector<QPointF>;
using Kind = fakes::DrawnShape::Kind;

constexpr QSizeF frame(120, 44);
const QColor amber(245, 166, 35);

}  // namespace

TEST(Sparkline, runsFromEdgeToEdgeAndKeepsTwoOffTheTopAndTheBottom) {
    EXPECT_EQ(sparklinePoints({10, 30, 20}, frame), (Points{{0, 42}, {60, 2}, {120, 22}}));
}

TEST(Sparkline, spreadsItsValuesEvenly) {
    const Points points = sparklinePoints({0, 4, 0, 4, 0}, frame);
    ASSERT_EQ(points.size(), 5U);
    for (std::size_t i = 0; i < points.size(); ++i) EXPECT_EQ(points[i].x(), 30.0 * static_cast<double>(i));
}

TEST(Sparkline, ofAFlatHistoryLiesOnTheFloor) {
    for (const double value : {0.0, 0.5, -7.0, 1e15})
        EXPECT_EQ(sparklinePoints({value, value, value}, frame), (Points{{0, 42}, {60, 42}, {120, 42}})) << value;
}

TEST(Sparkline, doesNotBlowUpARangeBelowOne) {
    EXPECT_EQ(sparklinePoints({5, 5.5}, frame), (Points{{0, 42}, {120, 22}}));
    EXPECT_EQ(sparklinePoints({5, 6}, frame), (Points{{0, 42}, {120, 2}}));
}

TEST(Sparkline, goesBelowZero) {
    EXPECT_EQ(sparklinePoints({-10, 10}, frame), (Points{{0, 42}, {120, 2}}));
}

TEST(Sparkline, ofASingleValueOrOfNoneIsNothing) {
    for (const std::vector<double>& values : {std::vector<double>{}, std::vector<double>{7}}) {
        EXPECT_EQ(sparklinePoints(values, frame), Points());
        fakes::RecordingCanvas canvas;
        drawSparkline(canvas, values, frame, amber);
        EXPECT_TRUE(canvas.shapes.empty()) << values.size();
    }
    EXPECT_EQ(sparklineArea({}, 44), Points());
}

TEST(Sparkline, standsOnTheFloorOfItsFrame) {
    EXPECT_EQ(sparklineArea({{0, 42}, {60, 2}, {120, 22}}, 44),
              (Points{{0, 44}, {0, 42}, {60, 2}, {120, 22}, {120, 44}}));
}

TEST(Sparkline, isAFadingAreaUnderALineOfTwo) {
    fakes::RecordingCanvas canvas;
    drawSparkline(canvas, {10, 30, 20}, frame, amber);
    ASSERT_EQ(canvas.shapes.size(), 2U);
    const auto& area = canvas.shapes[0];
    EXPECT_EQ(area.kind, Kind::area);
    EXPECT_EQ(area.points, (Points{{0, 44}, {0, 42}, {60, 2}, {120, 22}, {120, 44}}));
    EXPECT_EQ(area.paint.kind, Paint::Kind::linear);
    EXPECT_EQ(area.paint.from, QPointF(0, 0));
    EXPECT_EQ(area.paint.to, QPointF(0, 44));
    ASSERT_EQ(area.paint.stops.size(), 2U);
    EXPECT_EQ(area.paint.stops[0].at, 0);
    EXPECT_NEAR(area.paint.stops[0].color.alphaF(), 0.28, 0.001);
    EXPECT_EQ(area.paint.stops[1].at, 1);
    EXPECT_NEAR(area.paint.stops[1].color.alphaF(), 0.02, 0.001);
    for (const GradientStop& stop : area.paint.stops) EXPECT_EQ(stop.color.rgb(), amber.rgb());

    const auto& line = canvas.shapes[1];
    EXPECT_EQ(line.kind, Kind::line);
    EXPECT_EQ(line.points, (Points{{0, 42}, {60, 2}, {120, 22}}));
    EXPECT_EQ(line.width, 2);
    EXPECT_EQ(line.paint, Paint::solid(amber));
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/controls/FlowRow.h"

#include <gtest/gtest.h>

namespace zelk {

namespace {

using Positions = std::vector<QPointF>;

}  // namespace

TEST(FlowLayout, usesOneRowWithoutLimit) {
    const FlowPlacement placed = flowLayout({{100, 20}, {50, 30}, {1000, 10}}, 10);
    EXPECT_EQ(placed.positions, (Positions{{0, 0}, {110, 0}, {170, 0}}));
    EXPECT_DOUBLE_EQ(placed.height, 30);
}

TEST(FlowLayout, wrapsBelowTallestItemOfRow) {
    const FlowPlacement placed = flowLayout({{60, 20}, {30, 34}, {40, 20}, {60, 10}}, 10, 100);
    EXPECT_EQ(placed.positions, (Positions{{0, 0}, {70, 0}, {0, 44}, {0, 74}}));
    EXPECT_DOUBLE_EQ(placed.height, 84);
}

TEST(FlowLayout, keepsExactFitInRow) {
    EXPECT_EQ(flowLayout({{45, 20}, {45, 20}}, 10, 100).positions, (Positions{{0, 0}, {55, 0}}));
    EXPECT_EQ(flowLayout({{45, 20}, {45, 20}}, 10, 99.5).positions, (Positions{{0, 0}, {0, 30}}));
}

TEST(FlowLayout, leavesGapAboveTooWideFirstItem) {
    const FlowPlacement placed = flowLayout({{200, 20}, {50, 20}}, 10, 100);
    EXPECT_EQ(placed.positions, (Positions{{0, 10}, {0, 40}}));
    EXPECT_DOUBLE_EQ(placed.height, 60);
}

TEST(FlowLayout, hasNoHeightWithoutItems) {
    EXPECT_TRUE(flowLayout({}, 10, 100).positions.empty());
    EXPECT_DOUBLE_EQ(flowLayout({}, 10, 100).height, 0);
    EXPECT_DOUBLE_EQ(flowIdealWidth({}, 10), 0);
}

TEST(FlowLayout, fitsIntoItsIdealWidth) {
    const std::vector<QSizeF> sizes{{33.3, 20}, {41.7, 20}, {28.1, 20}, {57.9, 20}};
    const double width = flowIdealWidth(sizes, 9.9);
    EXPECT_NEAR(width, 190.7, 1e-9);
    EXPECT_DOUBLE_EQ(flowLayout(sizes, 9.9, width).height, 20);
}

}  // namespace zelk

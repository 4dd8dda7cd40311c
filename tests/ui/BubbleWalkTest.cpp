// SPDX-License-Identifier: MIT
#include "ui/charts/CirclePacking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <set>

namespace zelk {

namespace {

using enum WalkDirection;

constexpr std::array everyDirection{left, right, up, down};

/// One circle in the middle and one on each side of it.
const std::vector<PackedCircle> cross{{"middle", {100, 100}, 30},
                                      {"left", {40, 100}, 20},
                                      {"right", {170, 100}, 30},
                                      {"above", {100, 20}, 40},
                                      {"below", {100, 180}, 40}};

std::vector<PackedCircle> randomMap(std::mt19937_64& random) {
    std::vector<PackItem> items;
    const auto count = 2 + random() % 16;
    const double magnitudes = 1 + static_cast<double>(random() % 5);
    for (std::size_t at = 0; at < count; ++at) {
        const double share = static_cast<double>(random() % 1000) / 1000;
        items.push_back({std::to_string(at), static_cast<std::int64_t>(std::pow(10, 3 + magnitudes * share))});
    }
    std::sort(items.begin(), items.end(), [](const PackItem& a, const PackItem& b) { return a.bytes > b.bytes; });
    return pack(items, 900, 700);
}

std::set<std::size_t> reachedFrom(const std::vector<PackedCircle>& circles, std::size_t start) {
    std::set<std::size_t> reached{start};
    std::vector<std::size_t> pending{start};
    while (!pending.empty()) {
        const std::size_t from = pending.back();
        pending.pop_back();
        for (const WalkDirection direction : everyDirection) {
            const auto next = nextInDirection(circles, from, direction);
            if (next && reached.insert(*next).second) pending.push_back(*next);
        }
    }
    return reached;
}

}  // namespace

TEST(BubbleWalk, goesToNeighbourOnEachSide) {
    EXPECT_EQ(nextInDirection(cross, 0, left), 1U);
    EXPECT_EQ(nextInDirection(cross, 0, right), 2U);
    EXPECT_EQ(nextInDirection(cross, 0, up), 3U);
    EXPECT_EQ(nextInDirection(cross, 0, down), 4U);
}

TEST(BubbleWalk, returnsTheSameWay) {
    EXPECT_EQ(nextInDirection(cross, 1, right), 0U);
    EXPECT_EQ(nextInDirection(cross, 2, left), 0U);
    EXPECT_EQ(nextInDirection(cross, 3, down), 0U);
    EXPECT_EQ(nextInDirection(cross, 4, up), 0U);
}

TEST(BubbleWalk, stopsAtTheEdge) {
    EXPECT_EQ(nextInDirection(cross, 1, left), std::nullopt);
    EXPECT_EQ(nextInDirection(cross, 2, right), std::nullopt);
    EXPECT_EQ(nextInDirection(cross, 3, up), std::nullopt);
    EXPECT_EQ(nextInDirection(cross, 4, down), std::nullopt);
}

TEST(BubbleWalk, singleBubbleHasNoNeighbour) {
    for (const WalkDirection direction : everyDirection)
        EXPECT_EQ(nextInDirection({{"one", {50, 50}, 10}}, 0, direction), std::nullopt);
}

TEST(BubbleWalk, prefersStraightAheadToNearerAside) {
    const std::vector<PackedCircle> circles{{"here", {0, 0}, 5}, {"aside", {10, 40}, 5}, {"ahead", {60, 0}, 5}};
    EXPECT_EQ(nextInDirection(circles, 0, right), 2U);
    EXPECT_EQ(nextInDirection(circles, 0, down), 1U);
}

TEST(BubbleWalk, levelBubbleIsNeitherUpNorDown) {
    const std::vector<PackedCircle> circles{{"here", {0, 0}, 5}, {"level", {60, 0}, 5}};
    EXPECT_EQ(nextInDirection(circles, 0, up), std::nullopt);
    EXPECT_EQ(nextInDirection(circles, 0, down), std::nullopt);
}

TEST(BubbleWalk, firstOfEqualCandidatesWins) {
    const std::vector<PackedCircle> circles{{"here", {0, 0}, 5}, {"a", {30, 20}, 5}, {"b", {30, -20}, 5}};
    EXPECT_EQ(nextInDirection(circles, 0, right), 1U);
}

TEST(BubbleWalk, coincidentBubblesAreNotNeighbours) {
    const std::vector<PackedCircle> circles{{"here", {10, 10}, 5}, {"there", {10, 10}, 5}};
    for (const WalkDirection direction : everyDirection)
        EXPECT_EQ(nextInDirection(circles, 0, direction), std::nullopt);
}

TEST(BubbleWalk, reachesEveryBubbleFromTheLargest) {
    std::mt19937_64 random(7);
    for (int map = 0; map < 1000; ++map) {
        const std::vector<PackedCircle> circles = randomMap(random);
        EXPECT_EQ(reachedFrom(circles, *largestCircle(circles)).size(), circles.size()) << "map " << map;
    }
}

TEST(BubbleWalk, findsLargestAndSmallestCircle) {
    EXPECT_EQ(largestCircle({}), std::nullopt);
    EXPECT_EQ(smallestCircle({}), std::nullopt);
    EXPECT_EQ(largestCircle(cross), 3U) << "the first of two equal ones";
    EXPECT_EQ(smallestCircle(cross), 1U);
}

}  // namespace zelk

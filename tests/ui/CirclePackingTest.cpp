// SPDX-License-Identifier: MIT
#include "ui/charts/CirclePacking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "zoo/TempFolder.h"

namespace zelk {

namespace {

std::vector<PackItem> packItemsOf(const std::vector<std::int64_t>& weights) {
    std::vector<PackItem> items;
    for (std::size_t at = 0; at < weights.size(); ++at) items.push_back({std::to_string(at), weights[at]});
    return items;
}

struct Case {
    double width;
    double height;
    std::vector<std::int64_t> weights;
};

/// Makes weights like those of real folders and stranger ones: a few giants or all alike, sorted or not, some zero or
/// negative, in rectangles down to an empty one.
Case randomCase(std::mt19937_64& random) {
    const auto upTo = [&](std::uint64_t most) { return static_cast<std::int64_t>(random() % (most + 1)); };
    Case one;
    one.width = static_cast<double>(upTo(20'000)) / 10;
    one.height = static_cast<double>(upTo(15'000)) / 10;
    const auto count = upTo(17);
    const int magnitudes = static_cast<int>(upTo(17));
    for (std::int64_t at = 0; at < count; ++at) {
        const auto largest = static_cast<std::uint64_t>(std::pow(10, upTo(static_cast<std::uint64_t>(magnitudes))));
        one.weights.push_back(upTo(largest) - (upTo(20) == 0 ? 1 : 0));
    }
    if (upTo(1) == 0) std::sort(one.weights.rbegin(), one.weights.rend());
    return one;
}

double separation(const PackedCircle& a, const PackedCircle& b) {
    return std::hypot(a.center.x - b.center.x, a.center.y - b.center.y) - a.radius - b.radius;
}

}  // namespace

TEST(CirclePacking, packsNothingWithoutPositiveWeight) {
    EXPECT_TRUE(pack({}, 400, 300).empty());
    EXPECT_TRUE(pack(packItemsOf({0, -1, 0}), 400, 300).empty());
}

TEST(CirclePacking, packsNothingIntoEmptyRectangle) {
    for (const auto& [width, height] : {std::pair{0.0, 300.0}, {400.0, 0.0}, {-1.0, 300.0}, {400.0, -5.0}})
        EXPECT_TRUE(pack(packItemsOf({5}), width, height).empty());
    EXPECT_TRUE(pack(packItemsOf({5}), std::nan(""), 300).empty());
}

TEST(CirclePacking, singleItemFillsShorterAxisWithinMargin) {
    const auto circles = pack(packItemsOf({1'000'000}), 500, 300);
    ASSERT_EQ(circles.size(), 1U);
    EXPECT_DOUBLE_EQ(circles[0].radius, (300 - 48) / 2.0);
    EXPECT_DOUBLE_EQ(circles[0].center.x, 250);
    EXPECT_DOUBLE_EQ(circles[0].center.y, 150);
}

TEST(CirclePacking, skipsWeightlessItemsAndKeepsOrder) {
    const auto circles = pack(packItemsOf({4, 0, 9, -2, 1}), 400, 300);
    ASSERT_EQ(circles.size(), 3U);
    EXPECT_EQ(circles[0].id, "0");
    EXPECT_EQ(circles[1].id, "2");
    EXPECT_EQ(circles[2].id, "4");
}

TEST(CirclePacking, areasAreProportionalToBytes) {
    const auto circles = pack(packItemsOf({400, 100}), 400, 300);
    EXPECT_DOUBLE_EQ(circles[0].radius, 2 * circles[1].radius);
}

TEST(CirclePacking, packsRectangleSmallerThanItsMargins) {
    const auto flat = pack(packItemsOf({4, 2}), 400, 48);
    ASSERT_EQ(flat.size(), 2U);
    EXPECT_EQ(flat[0].radius, 0);
    const auto less = pack(packItemsOf({4, 2}), 10, 300);
    ASSERT_EQ(less.size(), 2U);
    EXPECT_LT(less[0].radius, 0);
}

TEST(CirclePacking, largestWeightsStayFinite) {
    const auto circles = pack(packItemsOf({INT64_MAX, 1, INT64_MAX}), 400, 300);
    ASSERT_EQ(circles.size(), 3U);
    for (const PackedCircle& circle : circles) EXPECT_TRUE(std::isfinite(circle.center.x + circle.radius));
}

TEST(CirclePacking, matchesReferenceModelWithoutOverlaps) {
    constexpr int cases = 10'000;
    const zoo::TempFolder folder;
    const std::string inputPath = folder / "cases";
    const std::string outputPath = folder / "circles";
    std::mt19937_64 random(20'261'121);
    std::vector<Case> all;
    {
        std::ofstream out(inputPath);
        out.precision(17);
        for (int at = 0; at < cases; ++at) {
            const Case& one = all.emplace_back(randomCase(random));
            out << one.width << ' ' << one.height;
            for (const std::int64_t weight : one.weights) out << ' ' << weight;
            out << '\n';
        }
    }
    const std::string command =
        "python3 '" ZELK_SOURCE_DIR "/tests/ui/pack_model.py' < '" + inputPath + "' > '" + outputPath + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);

    std::ifstream in(outputPath);
    for (const Case& one : all) {
        const auto circles = pack(packItemsOf(one.weights), one.width, one.height);
        std::string line;
        ASSERT_TRUE(std::getline(in, line));
        std::istringstream model(line);
        for (const PackedCircle& circle : circles) {
            std::string id;
            double x = 0;
            double y = 0;
            double radius = 0;
            ASSERT_TRUE(model >> id >> x >> y >> radius) << line;
            ASSERT_EQ(circle.id, id);
            ASSERT_NEAR(circle.center.x, x, 1e-9);
            ASSERT_NEAR(circle.center.y, y, 1e-9);
            ASSERT_NEAR(circle.radius, radius, 1e-9);
        }
        std::string more;
        ASSERT_FALSE(model >> more) << "the model has more circles: " << line;
        if (circles.empty() || circles.front().radius <= 0) continue;
        for (std::size_t a = 0; a < circles.size(); ++a)
            for (std::size_t b = a + 1; b < circles.size(); ++b) ASSERT_GE(separation(circles[a], circles[b]), -1e-9);
    }
}

TEST(HitTest, pointOutsideHitsNothing) {
    EXPECT_EQ(hitTest({}, {1, 1}), std::nullopt);
    EXPECT_EQ(hitTest({{"a", {50, 50}, 10}}, {61, 50}), std::nullopt);
}

TEST(HitTest, edgeBelongsToCircle) {
    EXPECT_EQ(hitTest({{"a", {50, 50}, 10}}, {60, 50}), 0U);
}

TEST(HitTest, smallerOfTwoCirclesIsHit) {
    EXPECT_EQ(hitTest({{"big", {50, 50}, 30}, {"small", {60, 50}, 10}}, {60, 50}), 1U);
    EXPECT_EQ(hitTest({{"small", {60, 50}, 10}, {"big", {50, 50}, 30}}, {60, 50}), 0U);
}

TEST(HitTest, firstOfEqualCirclesIsHit) {
    EXPECT_EQ(hitTest({{"a", {50, 50}, 10}, {"b", {52, 50}, 10}}, {51, 50}), 0U);
}

}  // namespace zelk

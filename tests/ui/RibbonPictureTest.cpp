// SPDX-License-Identifier: MIT
#include "ui/charts/RibbonPicture.h"

#include <gtest/gtest.h>

#include <limits>

#include "Painted.h"

namespace zelk {

namespace {

using Widths = std::vector<double>;

const QColor otherColor(100, 110, 120);
const QColor freeColor(200, 210, 220);
const QColor segmentColors[] = {QColor(10, 20, 30), QColor(40, 50, 60), QColor(70, 80, 90)};

QList<RibbonSegment> segmentsOf(const std::vector<std::int64_t>& bytes) {
    QList<RibbonSegment> segments;
    for (const std::int64_t count : bytes)
        segments.append({QStringLiteral("Type"), count, QStringLiteral("1 GB"), segmentColors[segments.size()]});
    return segments;
}

QImage ribbonOf(const QList<RibbonSegment>& segments, double freeBytes) {
    RibbonPicture picture;
    picture.setProperty("segments", QVariant::fromValue(segments));
    picture.setProperty("freeBytes", freeBytes);
    picture.setProperty("otherColor", otherColor);
    picture.setProperty("freeColor", freeColor);
    return painted(picture, {400, 22});
}

QImage ribbon(const std::vector<std::int64_t>& bytes, double freeBytes) {
    return ribbonOf(segmentsOf(bytes), freeBytes);
}

/// Whether the bar has this colour from `left` to `right` along its middle.
bool isFilled(const QImage& bar, int left, int right, const QColor& color) {
    for (int x = left; x < right; ++x)
        if (bar.pixelColor(x, 11) != color) return false;
    return true;
}

}  // namespace

TEST(StorageRibbon, dividesWidthByBytesAndFreeSpace) {
    EXPECT_EQ(ribbonWidths({100, 200}, 100, 400), (Widths{100, 200, 100}));
    EXPECT_EQ(ribbonWidths({0, 300}, 100, 400), (Widths{0, 300, 100}));
}

TEST(StorageRibbon, treatsNegativeBytesAsZero) {
    EXPECT_EQ(ribbonWidths({100, 300}, -1, 400), (Widths{100, 300, 0}));
    EXPECT_EQ(ribbonWidths({100, 300}, std::numeric_limits<std::int64_t>::min(), 400), (Widths{100, 300, 0}));
    EXPECT_EQ(ribbonWidths({-100, 300}, 100, 400), (Widths{0, 300, 100}));
}

TEST(StorageRibbon, staysProportionalWithPetabytes) {
    constexpr std::int64_t petabyte = 1'000'000'000'000'000;
    EXPECT_EQ(ribbonWidths({petabyte, 2 * petabyte}, petabyte, 400), (Widths{100, 200, 100}));
    const Widths one = ribbonWidths({1, petabyte}, 0, 400);
    EXPECT_GT(one[0], 0);
    EXPECT_NEAR(one[0] + one[1], 400, 1e-9);
}

TEST(StorageRibbon, survivesSumsBeyond64Bits) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(ribbonWidths({most, most}, most, 300), (Widths{100, 100, 100}));
}

TEST(StorageRibbon, isAllFreeWithoutSegments) {
    EXPECT_EQ(ribbonWidths({}, 100, 400), Widths{400});
    EXPECT_TRUE(isFilled(ribbon({}, 100), 0, 400, freeColor));
}

TEST(StorageRibbon, isEmptyTrackWithoutBytes) {
    EXPECT_EQ(ribbonWidths({}, 0, 400), Widths{400});
    EXPECT_EQ(ribbonWidths({0, 0}, 0, 400), (Widths{0, 0, 400}));
    EXPECT_EQ(ribbonWidths({0, -5}, -7, 400), (Widths{0, 0, 400}));
    EXPECT_TRUE(isFilled(ribbon({0, 0}, 0), 0, 400, freeColor));
}

TEST(StorageRibbon, paintsSegmentsThenFreeSpace) {
    const QImage bar = ribbon({100, 200}, 100);
    EXPECT_TRUE(isFilled(bar, 0, 100, segmentColors[0]));
    EXPECT_TRUE(isFilled(bar, 100, 300, segmentColors[1]));
    EXPECT_TRUE(isFilled(bar, 300, 400, freeColor));
    EXPECT_EQ(bar.pixelColor(200, 0), segmentColors[1]);
    EXPECT_EQ(bar.pixelColor(200, 21), segmentColors[1]);
}

TEST(StorageRibbon, roundsOuterEnds) {
    const QImage bar = ribbon({100, 200}, 100);
    for (const int end : {1, 398}) {
        EXPECT_LT(bar.pixelColor(end, 1).alpha(), 90);
        EXPECT_LT(bar.pixelColor(end, 20).alpha(), 90);
    }
    for (const int inner : {97, 102, 297, 302}) EXPECT_EQ(bar.pixelColor(inner, 1).alpha(), 255) << inner;
    for (const int edge : {99, 100, 299, 300}) EXPECT_LT(bar.pixelColor(edge, 0).alpha(), 200) << edge;
}

TEST(StorageRibbon, skipsEmptySegments) {
    const QImage bar = ribbon({0, 100, 0}, 0);
    EXPECT_TRUE(isFilled(bar, 0, 400, segmentColors[1]));
    EXPECT_LT(bar.pixelColor(1, 1).alpha(), 90);
    EXPECT_LT(bar.pixelColor(398, 1).alpha(), 90);
}

TEST(StorageRibbon, keepsTinySegments) {
    EXPECT_GT(ribbonWidths({1, 1'000'000}, 1'000'000, 400)[0], 0);
    const QImage bar = ribbon({1, 400}, 0);
    EXPECT_GT(alike(bar.pixelColor(0, 11), segmentColors[0], 12), alike(bar.pixelColor(1, 11), segmentColors[0], 12));
    EXPECT_TRUE(isFilled(bar, 2, 399, segmentColors[1]));
}

TEST(StorageRibbon, paintsFreeSpaceOfOnePetabyte) {
    const QImage bar = ribbon({1'000'000'000'000'000}, 1e15);
    EXPECT_EQ(bar.pixelColor(190, 11), segmentColors[0]);
    EXPECT_EQ(bar.pixelColor(210, 11), freeColor);
}

TEST(StorageRibbon, paintsSegmentsWithoutColourInTheOtherColour) {
    const QImage bar =
        ribbonOf(QList<RibbonSegment>{{QStringLiteral("Other"), 100, QStringLiteral("100 bytes"), {}}}, 300);
    EXPECT_TRUE(isFilled(bar, 10, 95, otherColor));
    EXPECT_TRUE(isFilled(bar, 105, 390, freeColor));
}

}  // namespace zelk

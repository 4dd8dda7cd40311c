// SPDX-License-Identifier: MIT
#include "ui/charts/RibbonPicture.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <limits>

#include "fakes/RecordingCanvas.h"

namespace zelk {

namespace {

using Widths = std::vector<double>;
using Kind = fakes::DrawnShape::Kind;

const QColor freeColor(255, 255, 255, 20);
const QColor segmentColors[] = {QColor(10, 20, 30), QColor(40, 50, 60), QColor(70, 80, 90)};

QList<RibbonSegment> segmentsOf(const std::vector<std::int64_t>& bytes) {
    QList<RibbonSegment> segments;
    for (const std::int64_t count : bytes)
        segments.append({QStringLiteral("Type"), count, QStringLiteral("1 GB"), segmentColors[segments.size()]});
    return segments;
}

std::vector<fakes::DrawnShape> ribbon(const std::vector<std::int64_t>& bytes, std::int64_t freeBytes) {
    fakes::RecordingCanvas canvas;
    drawRibbon(canvas, {400, 22}, segmentsOf(bytes), freeBytes, freeColor);
    return canvas.shapes;
}

/// All bars lie in the ribbon in their order, without one over another.
void expectInOrder(const std::vector<fakes::DrawnShape>& bars) {
    double right = 0;
    for (const auto& bar : bars) {
        EXPECT_EQ(bar.kind, Kind::bar);
        EXPECT_EQ(bar.rect.top(), 0);
        EXPECT_EQ(bar.rect.height(), 22);
        EXPECT_GE(bar.rect.left(), right);
        right = bar.rect.right();
    }
    EXPECT_LE(right, 400.0001);
}

}  // namespace

TEST(StorageRibbon, sharesItsWidthByTheBytesOfAllAndOfTheFreeSpace) {
    EXPECT_EQ(ribbonWidths({100, 200}, 100, 400), (Widths{100, 200, 100}));
    EXPECT_EQ(ribbonWidths({0, 300}, 100, 400), (Widths{0, 300, 100}));
}

TEST(StorageRibbon, takesNegativeFreeBytesForNone) {
    EXPECT_EQ(ribbonWidths({100, 300}, -1, 400), (Widths{100, 300, 0}));
    EXPECT_EQ(ribbonWidths({100, 300}, std::numeric_limits<std::int64_t>::min(), 400), (Widths{100, 300, 0}));
    EXPECT_EQ(ribbonWidths({-100, 300}, 100, 400), (Widths{0, 300, 100}));
}

TEST(StorageRibbon, ofAThousandTerabytesIsStillWholeAndInProportion) {
    constexpr std::int64_t petabyte = 1'000'000'000'000'000;
    EXPECT_EQ(ribbonWidths({petabyte, 2 * petabyte}, petabyte, 400), (Widths{100, 200, 100}));
    const Widths one = ribbonWidths({1, petabyte}, 0, 400);
    EXPECT_GT(one[0], 0);
    EXPECT_NEAR(one[0] + one[1], 400, 1e-9);
}

TEST(StorageRibbon, doesNotOverflowWhereTheSumHasNoRoomIn64Bits) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(ribbonWidths({most, most}, most, 300), (Widths{100, 100, 100}));
}

TEST(StorageRibbon, ofNoSegmentsIsAllFree) {
    EXPECT_EQ(ribbonWidths({}, 100, 400), Widths{400});
    const auto bars = ribbon({}, 100);
    ASSERT_EQ(bars.size(), 1U);
    EXPECT_EQ(bars[0].rect, QRectF(0, 0, 400, 22));
    EXPECT_EQ(bars[0].paint, Paint::solid(freeColor));
    EXPECT_EQ(bars[0].leftCorner, bars[0].rightCorner);
}

TEST(StorageRibbon, ofNoBytesAtAllIsAnEmptyTrack) {
    EXPECT_EQ(ribbonWidths({}, 0, 400), Widths{400});
    EXPECT_EQ(ribbonWidths({0, 0}, 0, 400), (Widths{0, 0, 400}));
    EXPECT_EQ(ribbonWidths({0, -5}, -7, 400), (Widths{0, 0, 400}));
    const auto bars = ribbon({0, 0}, 0);
    ASSERT_EQ(bars.size(), 1U);
    EXPECT_EQ(bars[0].paint, Paint::solid(freeColor));
}

TEST(StorageRibbon, hasASectionForEachSegmentAndLastTheFreeSpace) {
    const auto bars = ribbon({100, 200}, 100);
    ASSERT_EQ(bars.size(), 3U);
    expectInOrder(bars);
    EXPECT_EQ(bars[0].rect, QRectF(0, 0, 100, 22));
    EXPECT_EQ(bars[1].rect, QRectF(100, 0, 200, 22));
    EXPECT_EQ(bars[2].rect, QRectF(300, 0, 100, 22));
    EXPECT_EQ(bars[0].paint, Paint::solid(segmentColors[0]));
    EXPECT_EQ(bars[1].paint, Paint::solid(segmentColors[1]));
    EXPECT_EQ(bars[2].paint, Paint::solid(freeColor));
}

TEST(StorageRibbon, isRoundAtItsOuterEnds) {
    const auto bars = ribbon({100, 200}, 100);
    ASSERT_EQ(bars.size(), 3U);
    EXPECT_GT(bars[0].leftCorner, bars[0].rightCorner);
    EXPECT_EQ(bars[1].leftCorner, bars[1].rightCorner);
    EXPECT_EQ(bars[2].rightCorner, bars[0].leftCorner);
    EXPECT_LT(bars[2].leftCorner, bars[2].rightCorner);
}

TEST(StorageRibbon, leavesOutWhatHasNoBytesAndRoundsItsNeighbour) {
    const auto bars = ribbon({0, 100, 0}, 0);
    ASSERT_EQ(bars.size(), 1U);
    EXPECT_EQ(bars[0].rect, QRectF(0, 0, 400, 22));
    EXPECT_EQ(bars[0].paint, Paint::solid(segmentColors[1]));
    EXPECT_GT(bars[0].leftCorner, 2);
    EXPECT_EQ(bars[0].leftCorner, bars[0].rightCorner);
}

TEST(StorageRibbon, neverLosesAHairOfASection) {
    const auto bars = ribbon({1, 1'000'000}, 1'000'000);
    ASSERT_EQ(bars.size(), 3U);
    expectInOrder(bars);
    EXPECT_GT(bars[0].rect.width(), 0);
}

TEST(StorageRibbon, paintsTheFreeSpaceOfAThousandTerabytes) {
    RibbonPicture picture;
    picture.setSize({400, 22});
    picture.setSegments(segmentsOf({1'000'000'000'000'000}));
    picture.setFreeBytes(1e15);
    picture.setFreeColor(Qt::green);
    QImage shown(400, 22, QImage::Format_ARGB32_Premultiplied);
    shown.fill(Qt::black);
    QPainter painter(&shown);
    picture.paint(&painter);
    EXPECT_EQ(shown.pixelColor(190, 11), segmentColors[0]);
    EXPECT_EQ(shown.pixelColor(210, 11), QColor(Qt::green));
}

}  // namespace zelk

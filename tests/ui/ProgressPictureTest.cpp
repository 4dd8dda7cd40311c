// SPDX-License-Identifier: MIT
#include "ui/controls/BusyPictures.h"

#include <gtest/gtest.h>

#include "Painted.h"

namespace zelk {

namespace {

const QColor barTrack(20, 30, 40);
const QColor barAmber(245, 166, 35);

QImage barAt(double seconds) {
    ProgressPicture bar;
    bar.setProperty("track", barTrack);
    bar.setProperty("color", barAmber);
    bar.setProperty("seconds", seconds);
    return painted(bar, {200, 6});
}

}  // namespace

TEST(ModuleProgressBar, sliverIs34PercentOfTrack) {
    for (const double seconds : {0.0, 0.4, 1.4}) EXPECT_DOUBLE_EQ(progressSliver(seconds, 200).width, 68);
}

TEST(ModuleProgressBar, sliverCrossesTrackFromOutsideToOutside) {
    EXPECT_DOUBLE_EQ(progressSliver(0, 200).left, -68);
    EXPECT_DOUBLE_EQ(progressSliver(0.375, 200).left, -1);
    EXPECT_DOUBLE_EQ(progressSliver(0.75, 200).left, 66);
    EXPECT_NEAR(progressSliver(1.499999, 200).left, 200, 0.01);
}

TEST(ModuleProgressBar, repeatsEveryOneAndAHalfSeconds) {
    EXPECT_DOUBLE_EQ(progressSliver(1.5, 200).left, -68);
    EXPECT_DOUBLE_EQ(progressSliver(2.25, 200).left, 66);
    EXPECT_NEAR(progressSliver(1'500'000'000.75, 200).left, 66, 1e-3);
}

TEST(ModuleProgressBar, paintsSliverWithRoundEndsAndFadingTail) {
    const QImage bar = barAt(0.75);
    EXPECT_LT(bar.pixelColor(0, 0).alpha(), 90) << "round";
    EXPECT_EQ(bar.pixelColor(30, 3), barTrack);
    EXPECT_EQ(bar.pixelColor(180, 3), barTrack);
    EXPECT_LT(bar.pixelColor(66, 0).red(), 40) << "the sliver is round too";
    EXPECT_TRUE(alike(bar.pixelColor(131, 3), barAmber, 8));
    EXPECT_GT(bar.pixelColor(100, 3).red(), bar.pixelColor(72, 3).red()) << "its tail is fainter";
    EXPECT_GT(bar.pixelColor(72, 3).red(), barTrack.red() + 50);
}

TEST(ModuleProgressBar, paintsShareFromTheLeft) {
    ProgressPicture bar;
    bar.setProperty("track", barTrack);
    bar.setProperty("color", barAmber);
    bar.setProperty("seconds", 0.75);
    const auto paintedShare = [&](double share) {
        bar.setProperty("part", share);
        return painted(bar, {200, 6});
    };
    const QImage half = paintedShare(0.5);
    EXPECT_NE(half.pixelColor(5, 3), barTrack);
    EXPECT_TRUE(alike(half.pixelColor(95, 3), barAmber, 16));
    EXPECT_EQ(half.pixelColor(102, 3), barTrack);
    for (int x = 3; x < 197; ++x) ASSERT_EQ(paintedShare(0).pixelColor(x, 3), barTrack) << x;
    EXPECT_NE(paintedShare(1).pixelColor(194, 3), barTrack);
    EXPECT_NE(paintedShare(1.5).pixelColor(194, 3), barTrack);
}

TEST(ModuleProgressBar, clipsSliverToTrack) {
    const QImage before = barAt(0);
    for (int x = 3; x < 197; ++x) ASSERT_EQ(before.pixelColor(x, 3), barTrack) << x;
    EXPECT_EQ(barAt(0.375).pixelColor(72, 3), barTrack);
    EXPECT_NE(barAt(0.375).pixelColor(60, 3), barTrack);
    EXPECT_LT(barAt(0.375).pixelColor(0, 0).alpha(), 90) << "not beyond the track's round end";
    EXPECT_NE(barAt(1.125).pixelColor(195, 3), barTrack);
    EXPECT_EQ(barAt(1.125).pixelColor(130, 3), barTrack);
}

TEST(ModuleProgressBar, repaintsWhenTimeChanges) {
    ProgressPicture bar;
    int changes = 0;
    QObject::connect(&bar, &Drawn::changed, [&] { ++changes; });
    bar.setProperty("seconds", 0.5);
    bar.setProperty("seconds", 0.5);
    EXPECT_EQ(changes, 1);
}

}  // namespace zelk

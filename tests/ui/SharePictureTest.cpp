// SPDX-License-Identifier: MIT
#include "ui/charts/SharePicture.h"

#include <gtest/gtest.h>

#include "Painted.h"

namespace zelk {

namespace {

const QColor shareTrack(20, 30, 40);
const QColor shareColor(167, 123, 255);

QImage barOf(double share) {
    SharePicture bar;
    bar.setProperty("track", shareTrack);
    bar.setProperty("color", shareColor);
    bar.setProperty("share", share);
    return painted(bar, {200, 6});
}

/// The length of the filled part along the middle of the bar.
int filledLength(double share) {
    const QImage bar = barOf(share);
    int reach = 0;
    while (reach < 200 && bar.pixelColor(reach, 3).red() > 90) ++reach;
    return reach;
}

}  // namespace

TEST(ShareBar, fillsTrackFromTheLeft) {
    EXPECT_NEAR(filledLength(0.25), 50, 1);
    EXPECT_NEAR(filledLength(0.5), 100, 1);
    EXPECT_EQ(barOf(0.25).pixelColor(60, 3), shareTrack);
    EXPECT_LT(barOf(0.25).pixelColor(49, 0).red(), 60) << "its end is round";
    EXPECT_LT(barOf(0.25).pixelColor(0, 0).alpha(), 90) << "and so is the track's";
}

TEST(ShareBar, isEmptyAtZeroAndADotAboveIt) {
    EXPECT_EQ(filledLength(0), 0);
    EXPECT_NEAR(filledLength(0.001), 6, 1);
}

TEST(ShareBar, clampsToFullTrack) {
    EXPECT_GE(filledLength(1), 199);
    EXPECT_EQ(barOf(1.7), barOf(1));
}

}  // namespace zelk

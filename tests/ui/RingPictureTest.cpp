// SPDX-License-Identifier: MIT
#include "ui/charts/RingPicture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Painted.h"

namespace zelk {

namespace {

const QColor ringTrack(20, 30, 40);
const QColor ringAmber(245, 166, 35);

QImage ringOf(double value) {
    RingPicture ring;
    ring.setStill(true);
    ring.setProperty("track", ringTrack);
    ring.setProperty("color", ringAmber);
    ring.setValue(value);
    return painted(ring, {108, 108});
}

/// The colour in the middle of the stroke, `degrees` clockwise from the top.
QColor at(const QImage& ring, double degrees) {
    const double angle = degrees * std::acos(-1) / 180;
    return ring.pixelColor(static_cast<int>(54 + 49 * std::sin(angle)), static_cast<int>(54 - 49 * std::cos(angle)));
}

}  // namespace

TEST(RingGauge, paintsArcOverFullTrack) {
    const QImage ring = ringOf(0.25);
    for (const int degrees : {2, 45, 88}) EXPECT_EQ(at(ring, degrees), ringAmber) << degrees;
    for (const int degrees : {105, 180, 270, 345}) EXPECT_TRUE(alike(at(ring, degrees), ringTrack)) << degrees;
    EXPECT_TRUE(alike(ring.pixelColor(1, 54), ringTrack)) << "ten points wide, from the edge";
    EXPECT_TRUE(alike(ring.pixelColor(8, 54), ringTrack));
    EXPECT_EQ(ring.pixelColor(11, 54).alpha(), 0);
    EXPECT_EQ(ring.pixelColor(54, 54).alpha(), 0);
    EXPECT_EQ(at(ring, 94), ringAmber) << "its ends are round";
}

TEST(RingGauge, clampsValuesAboveOneToFullRing) {
    EXPECT_EQ(ringFraction(1.7), 1);
    EXPECT_EQ(ringFraction(std::numeric_limits<double>::infinity()), 1);
    for (int degrees = 0; degrees < 360; degrees += 15) EXPECT_EQ(at(ringOf(1.7), degrees), ringAmber) << degrees;
}

TEST(RingGauge, clampsNegativeValuesToDot) {
    EXPECT_EQ(ringFraction(-1), 0.001);
    const QImage ring = ringOf(-1);
    EXPECT_EQ(at(ring, 0), ringAmber);
    for (const int degrees : {15, 90, 180, 345}) EXPECT_TRUE(alike(at(ring, degrees), ringTrack)) << degrees;
}

TEST(RingGauge, showsDotAtZero) {
    EXPECT_EQ(ringFraction(0), 0.001);
    EXPECT_EQ(ringFraction(0.0005), 0.001);
    EXPECT_EQ(ringFraction(0.002), 0.002);
}

TEST(RingGauge, showsDotForNaN) {
    EXPECT_EQ(ringFraction(std::numeric_limits<double>::quiet_NaN()), 0.001);
}

TEST(RingPicture, showsValueAtOnceWhenStill) {
    RingPicture ring;
    EXPECT_EQ(ring.shown(), 0.001);
    ring.setStill(true);
    ring.setValue(0.4);
    EXPECT_EQ(ring.shown(), 0.4);
    ring.setValue(1.7);
    EXPECT_EQ(ring.value(), 1.7);
    EXPECT_EQ(ring.shown(), 1);
}

TEST(RingPicture, springsToNewValue) {
    RingPicture ring;
    ring.setValue(0.6);
    EXPECT_EQ(ring.value(), 0.6);
    EXPECT_EQ(ring.shown(), 0.001);
    ring.setStill(true);
    EXPECT_EQ(ring.shown(), 0.6) << "becoming still ends the spring";
}

TEST(RingPicture, showsInitialValueAtOnce) {
    RingPicture ring;
    static_cast<QQmlParserStatus&>(ring).classBegin();
    ring.setValue(0.6);
    EXPECT_EQ(ring.shown(), 0.6) << "it does not spring while under construction";
}

}  // namespace zelk

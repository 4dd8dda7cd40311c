// SPDX-License-Identifier: MIT
#include "ui/screens/clutter/AgeText.h"

#include <gtest/gtest.h>

namespace zelk {

namespace {

constexpr TimePoint today = 1'750'000'000;

std::string ageOf(double days) {
    return ageText(today - days * secondsPerDay, today).toStdString();
}

}  // namespace

TEST(AgeText, countsWholeDaysMonthsAndYears) {
    EXPECT_EQ(ageOf(0), "today");
    EXPECT_EQ(ageOf(0.999), "today");
    EXPECT_EQ(ageOf(1), "1d ago");
    EXPECT_EQ(ageOf(1.999), "1d ago");
    EXPECT_EQ(ageOf(29.999), "29d ago");
    EXPECT_EQ(ageOf(30), "1mo ago");
    EXPECT_EQ(ageOf(59), "1mo ago");
    EXPECT_EQ(ageOf(60), "2mo ago");
    EXPECT_EQ(ageOf(364), "12mo ago");
    EXPECT_EQ(ageOf(365), "1y ago");
    EXPECT_EQ(ageOf(729), "1y ago");
    EXPECT_EQ(ageOf(730), "2y ago");
}

TEST(AgeText, futureDatesAreToday) {
    EXPECT_EQ(ageOf(-0.5), "today");
    EXPECT_EQ(ageOf(-400), "today");
}

}  // namespace zelk

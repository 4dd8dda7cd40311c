// SPDX-License-Identifier: MIT
#include "ui/screens/overview/CountingFigure.h"

#include <gtest/gtest.h>

#include <limits>

namespace zelk {

TEST(CountingFigure, startsSettledAtZero) {
    EXPECT_EQ(CountingFigure().at(5), 0);
    EXPECT_TRUE(CountingFigure().settled(0));
}

TEST(CountingFigure, isExactlyThereInTheEnd) {
    CountingFigure figure;
    figure.aim(1'234'567'890'123'456'789, 10, 0.5);
    EXPECT_FALSE(figure.settled(10.4));
    EXPECT_TRUE(figure.settled(10.5));
    EXPECT_EQ(figure.at(10.5), 1'234'567'890'123'456'789);
}

TEST(CountingFigure, runsFastAtFirstAndNeverBack) {
    CountingFigure figure;
    figure.aim(1000, 0, 1);
    EXPECT_EQ(figure.at(0), 0);
    EXPECT_EQ(figure.at(0.5), 875);
    std::int64_t last = 0;
    for (int step = 0; step <= 100; ++step) {
        EXPECT_GE(figure.at(step / 100.0), last);
        last = figure.at(step / 100.0);
    }
    EXPECT_EQ(last, 1000);
}

TEST(CountingFigure, takesANewAimFromWhereItIs) {
    CountingFigure figure;
    figure.aim(1000, 0, 1);
    figure.aim(0, 0.5, 1);
    EXPECT_EQ(figure.at(0.5), 875);
    EXPECT_EQ(figure.at(1.5), 0);
}

TEST(CountingFigure, goesOnWhenAimedWhereItGoes) {
    CountingFigure figure;
    figure.aim(1000, 0, 1);
    figure.aim(1000, 0.9, 1);
    EXPECT_TRUE(figure.settled(1));
}

TEST(CountingFigure, stopsWhereItIs) {
    CountingFigure figure;
    figure.aim(1000, 0, 1);
    figure.stop(0.5);
    EXPECT_EQ(figure.at(0.5), 875);
    EXPECT_EQ(figure.target(), 875);
    EXPECT_TRUE(figure.settled(0.5));
}

TEST(CountingFigure, jumps) {
    CountingFigure figure;
    figure.aim(1000, 0, 1);
    figure.jump(7);
    EXPECT_EQ(figure.at(0.5), 7);
    EXPECT_TRUE(figure.settled(0.5));
}

TEST(CountingFigure, holdsTheLargestCounts) {
    CountingFigure figure;
    figure.aim(std::numeric_limits<std::int64_t>::max(), 0, 1);
    EXPECT_GE(figure.at(0.5), 0);
    EXPECT_EQ(figure.at(1), std::numeric_limits<std::int64_t>::max());
}

}  // namespace zelk

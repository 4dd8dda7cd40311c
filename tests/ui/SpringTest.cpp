// SPDX-License-Identifier: MIT
#include "ui/controls/Spring.h"

#include <gtest/gtest.h>

#include <QEasingCurve>
#include <numbers>

namespace zelk {

TEST(Spring, startsAtRest) {
    EXPECT_EQ(springWay(0, 0.5), 0);
    EXPECT_EQ(springWay(-1, 0.5), 0);
    EXPECT_LT(springWay(0.001, 0.5), 0.001) << "it accelerates slowly";
}

TEST(Spring, isCriticallyDamped) {
    // With omega = 2 pi / response, the remaining distance x of a critically damped spring obeys
    // x'' = -2 omega x' - omega^2 x.
    constexpr double response = 0.5;
    constexpr double omega = 2 * std::numbers::pi / response;
    constexpr double step = 1e-4;
    const auto left = [&](double seconds) { return 1 - springWay(seconds, response); };
    for (const double at : {0.05, 0.1, 0.2, 0.4}) {
        const double speed = (left(at + step) - left(at - step)) / (2 * step);
        const double push = (left(at + step) - 2 * left(at) + left(at - step)) / (step * step);
        EXPECT_NEAR(push, -2 * omega * speed - omega * omega * left(at), 0.01) << at;
    }
}

TEST(Spring, neverOvershoots) {
    double last = 0;
    for (int step = 1; step <= 1000; ++step) {
        const double way = springWay(step / 500.0, 0.5);
        EXPECT_GE(way, last);
        EXPECT_LE(way, 1);
        last = way;
    }
}

TEST(Spring, isWithinToleranceAtRest) {
    for (const double response : {0.25, 0.5, 2.0}) {
        const double way = springWay(springRest(response), response);
        EXPECT_GT(way, 1 - 1e-4);
        EXPECT_LT(springWay(springRest(response) / 2, response), 1 - 1e-4) << "but not much earlier";
    }
}

TEST(Spring, durationScalesWithResponse) {
    EXPECT_DOUBLE_EQ(springWay(0.2, 0.5), springWay(0.4, 1));
}

TEST(SpringEasing, followsSpringAndEndsAtOne) {
    const QEasingCurve curve = springEasing();
    EXPECT_EQ(curve.valueForProgress(0), 0);
    EXPECT_DOUBLE_EQ(curve.valueForProgress(0.25), springWay(0.25 * springRest(0.5), 0.5));
    EXPECT_DOUBLE_EQ(curve.valueForProgress(0.5), springWay(0.5 * springRest(0.5), 0.5));
    EXPECT_EQ(curve.valueForProgress(1), 1);
}

}  // namespace zelk

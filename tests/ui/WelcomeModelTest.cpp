// SPDX-License-Identifier: MIT
#include "ui/screens/welcome/FirstRunModel.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace zelk {

TEST(WelcomeModel, firstPageHasNoBack) {
    const WelcomeModel welcome;
    EXPECT_EQ(welcome.page(), 0);
    EXPECT_FALSE(welcome.backShown());
    EXPECT_FALSE(welcome.onLastPage());
    EXPECT_EQ(welcome.position().toStdString(), "Page 1 of 4");
    EXPECT_EQ(welcome.title().toStdString(), "Welcome to Zelk");
}

TEST(WelcomeModel, middlePagesHaveBackAndAreNotTheLast) {
    WelcomeModel welcome;
    for (int page = 1; page < 3; ++page) {
        welcome.pressPrimary();
        EXPECT_EQ(welcome.page(), page);
        EXPECT_TRUE(welcome.backShown());
        EXPECT_FALSE(welcome.onLastPage());
    }
}

TEST(WelcomeModel, knowsItsLastPage) {
    WelcomeModel welcome;
    for (int press = 0; press < 3; ++press) welcome.pressPrimary();
    EXPECT_EQ(welcome.page(), 3);
    EXPECT_TRUE(welcome.backShown());
    EXPECT_TRUE(welcome.onLastPage());
    EXPECT_EQ(welcome.position().toStdString(), "Page 4 of 4");
    EXPECT_EQ(welcome.title().toStdString(), "Private by design");
}

TEST(WelcomeModel, backStopsAtFirstPage) {
    WelcomeModel welcome;
    welcome.next();
    welcome.next();
    welcome.back();
    EXPECT_EQ(welcome.page(), 1);
    welcome.back();
    welcome.back();
    EXPECT_EQ(welcome.page(), 0);
}

TEST(WelcomeModel, nextStopsAtLastPage) {
    WelcomeModel welcome;
    QSignalSpy finished(&welcome, &WelcomeModel::finished);
    for (int turn = 0; turn < 5; ++turn) welcome.next();
    EXPECT_EQ(welcome.page(), 3);
    EXPECT_EQ(finished.count(), 0) << "turning pages must not end it";
}

TEST(WelcomeModel, getStartedFinishes) {
    WelcomeModel welcome;
    QSignalSpy finished(&welcome, &WelcomeModel::finished);
    for (int press = 0; press < 3; ++press) welcome.pressPrimary();
    EXPECT_EQ(finished.count(), 0);
    welcome.pressPrimary();
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(welcome.page(), 3);
}

TEST(WelcomeModel, skipFinishesFromAnyPage) {
    WelcomeModel welcome;
    QSignalSpy finished(&welcome, &WelcomeModel::finished);
    welcome.skip();
    EXPECT_EQ(finished.count(), 1);
    welcome.next();
    welcome.skip();
    EXPECT_EQ(finished.count(), 2);
}

TEST(WelcomeModel, turnEasingIsCriticallyDampedSpring) {
    const WelcomeModel welcome;
    const QEasingCurve course = welcome.turnEasing();
    // One turn of a critically damped spring: 1 - (1 + 2 pi t / 0.5) exp(-2 pi t / 0.5), t in seconds.
    const auto at = [&](double seconds) { return course.valueForProgress(seconds * 1'000 / welcome.turnTime()); };
    EXPECT_NEAR(at(0.05), 0.1313, 0.001);
    EXPECT_NEAR(at(0.1), 0.3577, 0.001);
    EXPECT_NEAR(at(0.25), 0.8210, 0.001);
    EXPECT_NEAR(at(0.5), 0.9864, 0.001);
    double before = 0;
    for (int step = 0; step <= 100; ++step) {
        EXPECT_GE(course.valueForProgress(step / 100.0), before);
        before = course.valueForProgress(step / 100.0);
    }
    EXPECT_EQ(before, 1);
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/screens/welcome/WelcomeModel.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <string>
#include <vector>

namespace zelk {

namespace {

struct Page {
    std::string symbol;
    QColor tint;
    std::string title;
    std::string body;
};

const std::vector<Page>& pages() {
    static const std::vector<Page> all{
        {"internaldrive.fill",
         {245, 166, 35},
         "Welcome to Zelk",
         "A fast, private way to understand and clean your Mac."},
        {"circle.hexagongrid.fill",
         {232, 91, 196},
         "See your storage",
         "Scan your whole drive in seconds, broken down by type and biggest files — with a live bubble map you can "
         "drill into."},
        {"sparkles",
         {50, 199, 123},
         "Reclaim space safely",
         "Clear caches, junk, duplicates, and forgotten large files. Everything goes to the Trash, so it's always "
         "reversible."},
        {"hand.raised.fill",
         {62, 155, 255},
         "Private by design",
         "Zelk runs entirely on your Mac. Nothing is ever uploaded, and destructive actions always ask first."},
    };
    return all;
}

QVariant at(const WelcomeModel& welcome, int row, const char* role) {
    return welcome.data(welcome.index(row), welcome.roleNames().key(role));
}

/// The lit dots.
std::vector<int> currentRows(const WelcomeModel& welcome) {
    std::vector<int> rows;
    for (int row = 0; row < welcome.rowCount(); ++row)
        if (at(welcome, row, "current").toBool()) rows.push_back(row);
    return rows;
}

}  // namespace

TEST(WelcomeModel, hasTheFourPagesInOrder) {
    const WelcomeModel welcome;
    ASSERT_EQ(welcome.rowCount(), 4);
    for (int row = 0; row < 4; ++row) {
        const Page& expected = pages()[static_cast<std::size_t>(row)];
        EXPECT_EQ(at(welcome, row, "symbol").toString().toStdString(), expected.symbol);
        EXPECT_EQ(at(welcome, row, "tint").value<QColor>(), expected.tint) << expected.title;
        EXPECT_EQ(at(welcome, row, "title").toString().toStdString(), expected.title);
        EXPECT_EQ(at(welcome, row, "body").toString().toStdString(), expected.body);
    }
}

TEST(WelcomeModel, onTheFirstPageBackIsAbsent) {
    const WelcomeModel welcome;
    EXPECT_EQ(welcome.page(), 0);
    EXPECT_FALSE(welcome.backShown());
    EXPECT_TRUE(welcome.skipShown());
    EXPECT_EQ(welcome.skipLabel().toStdString(), "Skip");
    EXPECT_EQ(welcome.primaryLabel().toStdString(), "Next");
    EXPECT_EQ(welcome.position().toStdString(), "Page 1 of 4");
    EXPECT_EQ(welcome.title().toStdString(), "Welcome to Zelk");
}

TEST(WelcomeModel, onThePagesBetweenBothAreThere) {
    WelcomeModel welcome;
    for (int page = 1; page < 3; ++page) {
        welcome.pressPrimary();
        EXPECT_EQ(welcome.page(), page);
        EXPECT_TRUE(welcome.backShown());
        EXPECT_TRUE(welcome.skipShown());
        EXPECT_EQ(welcome.backLabel().toStdString(), "Back");
        EXPECT_EQ(welcome.primaryLabel().toStdString(), "Next");
    }
}

TEST(WelcomeModel, onTheLastPageSkipIsHiddenAndThePrimaryButtonGetsStarted) {
    WelcomeModel welcome;
    for (int press = 0; press < 3; ++press) welcome.pressPrimary();
    EXPECT_EQ(welcome.page(), 3);
    EXPECT_TRUE(welcome.backShown());
    EXPECT_FALSE(welcome.skipShown());
    EXPECT_EQ(welcome.primaryLabel().toStdString(), "Get Started");
    EXPECT_EQ(welcome.position().toStdString(), "Page 4 of 4");
    EXPECT_EQ(welcome.title().toStdString(), "Private by design");
}

TEST(WelcomeModel, lightsTheDotOfThePageAndTellsTheTwoThatChange) {
    WelcomeModel welcome;
    EXPECT_EQ(currentRows(welcome), std::vector<int>{0});
    QSignalSpy rows(&welcome, &WelcomeModel::dataChanged);
    welcome.next();
    EXPECT_EQ(currentRows(welcome), std::vector<int>{1});
    ASSERT_EQ(rows.count(), 2);
    EXPECT_EQ(rows[0][0].toModelIndex().row(), 0);
    EXPECT_EQ(rows[1][0].toModelIndex().row(), 1);
}

TEST(WelcomeModel, goesOnePageBackAndStopsAtTheFirst) {
    WelcomeModel welcome;
    welcome.next();
    welcome.next();
    welcome.back();
    EXPECT_EQ(welcome.page(), 1);
    welcome.back();
    welcome.back();
    EXPECT_EQ(welcome.page(), 0);
}

TEST(WelcomeModel, turnsNoPageBehindTheLast) {
    WelcomeModel welcome;
    QSignalSpy finished(&welcome, &WelcomeModel::finished);
    for (int turn = 0; turn < 5; ++turn) welcome.next();
    EXPECT_EQ(welcome.page(), 3);
    EXPECT_EQ(finished.count(), 0) << "turning pages must not end it";
}

TEST(WelcomeModel, getStartedEndsIt) {
    WelcomeModel welcome;
    QSignalSpy finished(&welcome, &WelcomeModel::finished);
    for (int press = 0; press < 3; ++press) welcome.pressPrimary();
    EXPECT_EQ(finished.count(), 0);
    welcome.pressPrimary();
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(welcome.page(), 3);
}

TEST(WelcomeModel, skipEndsItFromAnyPage) {
    WelcomeModel welcome;
    QSignalSpy finished(&welcome, &WelcomeModel::finished);
    welcome.skip();
    EXPECT_EQ(finished.count(), 1);
    welcome.next();
    welcome.skip();
    EXPECT_EQ(finished.count(), 2);
}

TEST(WelcomeModel, turnsOnASpringThatRespondsInHalfASecondWithoutOvershoot) {
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

TEST(WelcomeModel, hasNothingOutsideItsRowsAndRoles) {
    const WelcomeModel welcome;
    EXPECT_FALSE(welcome.data(welcome.index(4), WelcomeModel::titleRole).isValid());
    EXPECT_FALSE(welcome.data(welcome.index(0), Qt::DecorationRole).isValid());
    EXPECT_EQ(welcome.rowCount(welcome.index(0)), 0);
}

}  // namespace zelk

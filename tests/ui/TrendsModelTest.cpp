// SPDX-License-Identifier: MIT
#include "ui/screens/overview/TrendsModel.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <limits>

#include "state/AppModelFixture.h"
#include "state/SurveyHistory.h"

namespace zelk {

namespace {

constexpr double day = 86'400;

class Trends : public AppModelFixture {
protected:
    /// Stores this history. Call it before the first trends().
    void remember(const std::vector<SurveyRecord>& records) {
        machine.files.addFile("/home/me/support/Zelk/history.json", encodeHistory(records));
    }
    void rememberTotals(const std::vector<std::int64_t>& totals) {
        std::vector<SurveyRecord> records;
        for (const std::int64_t total : totals) records.push_back(recordOf(total));
        remember(records);
    }
    /// Stores two surveys ten days apart between which 1,000 bytes were filled, leaving `free` bytes: 100 bytes a day.
    void rememberFilling(std::int64_t free) {
        SurveyRecord first;
        first.date = 1'700'000'000;
        first.used = 5'000;
        SurveyRecord last = first;
        last.date += 10 * day;
        last.used = 6'000;
        last.free = free;
        remember({first, last});
    }
    void rememberFolders(const SizeByPath& before, const SizeByPath& now) {
        std::vector<SurveyRecord> records{recordOf(1), recordOf(1)};
        records[0].folders = before;
        records[1].folders = now;
        remember(records);
    }

    TrendsModel& trends() {
        if (!trends_) trends_ = std::make_unique<TrendsModel>(model());
        return *trends_;
    }

    std::string sectionOf(int row) {
        return trends()
            .changes()
            ->data(trends().changes()->index(row), ChangesModel::headingRole)
            .toString()
            .toStdString();
    }

private:
    static SurveyRecord recordOf(std::int64_t total) {
        SurveyRecord record;
        record.date = 1'700'000'000;
        record.totalScanned = total;
        return record;
    }

    std::unique_ptr<TrendsModel> trends_;
};

}  // namespace

TEST_F(Trends, areHiddenWithoutRecords) {
    EXPECT_FALSE(trends().shown());
    EXPECT_FALSE(trends().hasChanges());
    EXPECT_EQ(trends().forecast(), QString());
}

TEST_F(Trends, areHiddenWithOneRecord) {
    rememberTotals({5'000'000});
    EXPECT_FALSE(trends().shown());
}

TEST_F(Trends, areShownWithTwoRecords) {
    rememberTotals({5'000'000, 7'000'000});
    EXPECT_TRUE(trends().shown());
}

TEST_F(Trends, appearAfterSecondSurvey) {
    fillHome();
    machine.files.addFolder("/home/me/support/Zelk");
    QSignalSpy changes(&trends(), &TrendsModel::changed);
    survey();
    runUntil([&] { return model().history().size() == 1; });
    EXPECT_FALSE(trends().shown());
    survey();
    runUntil([&] { return model().history().size() == 2; });
    EXPECT_TRUE(trends().shown());
    EXPECT_GE(changes.size(), 2);
}

TEST_F(Trends, compareTheLastTwoTotals) {
    rememberTotals({100'000'000, 5'000'000, 7'000'000});
    EXPECT_TRUE(trends().grew());
    EXPECT_EQ(trends().delta(), 2'000'000);
    EXPECT_EQ(trends().deltaLine(), QStringLiteral("since your last scan · 3 tracked"));
}

TEST_F(Trends, shrinkageIsNoGrowth) {
    rememberTotals({7'000'000, 5'000'000});
    EXPECT_FALSE(trends().grew());
    EXPECT_EQ(trends().delta(), 2'000'000);
    EXPECT_EQ(trends().deltaLine(), QStringLiteral("since your last scan · 2 tracked"));
}

TEST_F(Trends, unchangedTotalIsNoGrowth) {
    rememberTotals({7'000'000, 7'000'000});
    EXPECT_FALSE(trends().grew());
    EXPECT_EQ(trends().delta(), 0);
}

TEST_F(Trends, arrowNameDescribesDirection) {
    const std::pair<std::int64_t, const char*> table[] = {{8, "grew"}, {6, "shrank"}, {7, "unchanged"}};
    for (const auto& [now, expected] : table) {
        destroyModel();
        rememberTotals({7, now});
        EXPECT_EQ(TrendsModel(model()).arrowName().toStdString(), expected);
    }
}

TEST_F(Trends, totalsAreOldestFirst) {
    rememberTotals({3, 1, 2});
    EXPECT_EQ(trends().totals(), (QList<qreal>{3, 1, 2}));
}

TEST_F(Trends, survivesDifferencesBeyond64Bits) {
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    constexpr auto least = std::numeric_limits<std::int64_t>::min();
    rememberTotals({least, most});
    EXPECT_TRUE(trends().grew());
    EXPECT_EQ(trends().delta(), most);
    for (const std::vector<std::int64_t>& totals : {std::vector{most, least}, std::vector{most, std::int64_t{-1}}}) {
        destroyModel();
        rememberTotals(totals);
        const TrendsModel down(model());
        EXPECT_FALSE(down.grew());
        EXPECT_EQ(down.delta(), most);
    }
}

TEST_F(Trends, forecastOf29DaysIsAlarming) {
    rememberFilling(2'900);
    EXPECT_EQ(trends().forecast(), QStringLiteral("≈ 29 days until full at this rate"));
    EXPECT_TRUE(trends().alarming());
}

TEST_F(Trends, forecastOf30DaysIsNotAlarming) {
    rememberFilling(3'000);
    EXPECT_EQ(trends().forecast(), QStringLiteral("≈ 30 days until full at this rate"));
    EXPECT_FALSE(trends().alarming());
}

TEST_F(Trends, showsForecastOfZeroDays) {
    rememberFilling(50);
    EXPECT_EQ(trends().forecast(), QStringLiteral("≈ 0 days until full at this rate"));
    EXPECT_TRUE(trends().alarming());
}

TEST_F(Trends, showNoForecastOnFullVolume) {
    rememberFilling(0);
    EXPECT_TRUE(trends().shown());
    EXPECT_EQ(trends().forecast(), QString());
}

TEST_F(Trends, haveNoChangesWithoutRecordedFolders) {
    rememberTotals({1, 2});
    EXPECT_FALSE(trends().hasChanges());
    trends().openChanges();
    EXPECT_FALSE(trends().showChanges());
}

TEST_F(Trends, haveNoChangesIfFoldersAreEqual) {
    rememberFolders({{"/a", 1'000'000'000}}, {{"/a", 1'000'000'000}});
    EXPECT_FALSE(trends().hasChanges());
    EXPECT_TRUE(trends().changes()->empty());
}

TEST_F(Trends, haveChangesIfAnyListHasAnEntry) {
    const std::tuple<SizeByPath, SizeByPath, const char*> table[] = {
        {{{"/a", 1'000'000'000}}, {{"/a", 2'000'000'000}}, "Grew (1)"},
        {{}, {{"/a", 1'000'000'000}}, "Appeared (1)"},
        {{{"/a", 1'000'000'000}}, {}, "Vanished (1)"},
    };
    for (const auto& [before, now, section] : table) {
        destroyModel();
        rememberFolders(before, now);
        TrendsModel one(model());
        EXPECT_TRUE(one.hasChanges()) << section;
        ASSERT_EQ(one.changes()->rowCount(), 1);
        EXPECT_EQ(one.changes()->data(one.changes()->index(0), ChangesModel::headingRole).toString().toStdString(),
                  section);
    }
}

TEST_F(Trends, opensAndClosesChanges) {
    rememberFolders({}, {{"/a", 1'000'000'000}});
    EXPECT_FALSE(trends().showChanges());
    QSignalSpy shows(&trends(), &TrendsModel::showChangesChanged);
    trends().openChanges();
    EXPECT_TRUE(trends().showChanges());
    EXPECT_EQ(sectionOf(0), "Appeared (1)");
    trends().closeChanges();
    EXPECT_FALSE(trends().showChanges());
    EXPECT_EQ(shows.size(), 2);
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/screens/overview/FindingsModel.h"

#include <gmock/gmock.h>

#include <QSignalSpy>

#include "state/AppModelFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;

const QColor red(255, 59, 48);

class FindingsModelTest : public AppModelFixture {
protected:
    ~FindingsModelTest() override { machine.directories.release(); }

    FindingsModel& findings() {
        if (!findings_) findings_ = std::make_unique<FindingsModel>(model());
        return *findings_;
    }
    /// Surveys a home folder with these files, given by name and size.
    void surveyOf(const std::vector<std::pair<std::string, std::uint64_t>>& files) {
        for (const auto& [name, bytes] : files) machine.directories.file(home + "/" + name, bytes);
        findings();
        survey();
    }
    std::vector<std::string> labels() {
        std::vector<std::string> all;
        for (const RibbonSegment& segment : findings().segments()) all.push_back(segment.label.toStdString());
        return all;
    }
    std::vector<QColor> colors() {
        std::vector<QColor> all;
        for (const RibbonSegment& segment : findings().segments()) all.push_back(segment.color);
        return all;
    }

private:
    std::unique_ptr<FindingsModel> findings_;
};

}  // namespace

TEST_F(FindingsModelTest, headlineShowsReclaimableBytes) {
    fillHome();
    surveyOf({});
    EXPECT_TRUE(findings().reviewable());
    EXPECT_EQ(findings().recoverable(), 60'000'000);
    EXPECT_EQ(findings().line(), QStringLiteral("across 2 items · most space: Video"));
}

TEST_F(FindingsModelTest, headlineNamesLargestType) {
    const std::pair<const char*, const char*> table[] = {
        {"a.mp3", "Audio"},       {"a.jpg", "Photos"},    {"a.zip", "Archives"},
        {"a.dmg", "Disk images"}, {"a.pdf", "Documents"}, {"a.unheard-of", "Other"},
    };
    std::uint64_t bytes = 2'000'000'000;
    fillHome();
    for (const auto& [name, type] : table) {
        bytes *= 2;
        surveyOf({{name, bytes}});
        EXPECT_EQ(findings().line().toStdString(), std::string("across 2 items · most space: ") + type);
    }
}

TEST_F(FindingsModelTest, cleanDriveHasNoReview) {
    surveyOf({{"letter.txt", 5'000'000}});
    EXPECT_FALSE(findings().reviewable());
    EXPECT_EQ(findings().recoverable(), 0);
    EXPECT_EQ(findings().line(), QStringLiteral("Nothing to reclaim right now — you scanned 5 MB."));
    EXPECT_EQ(findings().cardBytes().front(), 0);
}

TEST_F(FindingsModelTest, cleanDriveSumsSeveralRoots) {
    machine.directories.file(home + "/letter.txt", 5'000'000);
    machine.directories.file("/data/letter.txt", 2'000'000);
    model().setScanRoots({home, "/data"});
    surveyOf({});
    EXPECT_EQ(findings().line(), QStringLiteral("Nothing to reclaim right now — you scanned 7 MB."));
}

TEST_F(FindingsModelTest, reportsUnreadableHome) {
    machine.directories.unreadable(home);
    surveyOf({});
    EXPECT_FALSE(findings().reviewable());
    EXPECT_EQ(findings().line(), QStringLiteral("Nothing to reclaim right now — you scanned 0 bytes."));
    EXPECT_EQ(findings().unreadLine(), QStringLiteral("1 folder could not be read."));
}

TEST_F(FindingsModelTest, countsUnreadFolders) {
    for (int folder = 0; folder < 1'234; ++folder) machine.directories.unreadable(home + "/" + std::to_string(folder));
    fillHome();
    surveyOf({});
    EXPECT_TRUE(findings().reviewable());
    EXPECT_EQ(findings().unreadLine(), QStringLiteral("1,234 folders could not be read."));
}

TEST_F(FindingsModelTest, clearsUnreadLineAfterCompleteSurvey) {
    machine.directories.unreadable(home + "/secret");
    surveyOf({{"letter.txt", 5'000'000}});
    EXPECT_NE(findings().unreadLine(), QString());
    model().setScanRoots({"/data"});
    machine.directories.file("/data/letter.txt", 5'000'000);
    survey();
    EXPECT_EQ(findings().unreadLine(), QString());
}

TEST_F(FindingsModelTest, keepsUnreadLineDuringAnotherSurvey) {
    machine.directories.unreadable(home + "/secret");
    surveyOf({});
    machine.directories.hold(home);
    model().startScan();
    EXPECT_EQ(model().blockedPaths(), 0);
    EXPECT_EQ(findings().unreadLine(), QStringLiteral("1 folder could not be read."));
}

TEST_F(FindingsModelTest, reviewOpensReclaimAndSeeAllOpensClutter) {
    findings().review();
    EXPECT_EQ(model().selection(), Screen::reclaim);
    findings().seeAll();
    EXPECT_EQ(model().selection(), Screen::clutter);
}

TEST_F(FindingsModelTest, segmentsListTypesBySize) {
    surveyOf({{"a.mov", 1'000'000},
              {"b.mp3", 2'000'000},
              {"c.jpg", 7'000'000},
              {"d.zip", 4'000'000},
              {"e.dmg", 5'000'000},
              {"f.pdf", 6'000'000},
              {"g.unheard-of", 3'000'000}});
    EXPECT_THAT(labels(), ElementsAre("Photos", "Documents", "Disk images", "Archives", "Other", "Audio", "Video"));
    EXPECT_THAT(colors(), ElementsAre(red, QColor(50, 199, 123), QColor(255, 107, 94), QColor(245, 166, 35), QColor(),
                                      QColor(167, 123, 255), QColor(232, 91, 196)));
    EXPECT_EQ(findings().segments().front().bytes, 7'000'000);
    EXPECT_EQ(findings().segments().front().bytesText, QStringLiteral("7 MB"));
}

TEST_F(FindingsModelTest, largestTypesOfEqualSizeAreBothRed) {
    surveyOf({{"a.mov", 2'000'000}, {"b.mp3", 2'000'000}, {"c.jpg", 1'999'999}});
    EXPECT_THAT(labels(), testing::UnorderedElementsAre("Video", "Audio", "Photos"));
    EXPECT_THAT(colors(), ElementsAre(red, red, QColor(86, 194, 245)));
}

TEST_F(FindingsModelTest, emptyTypeHasNoSegment) {
    surveyOf({{"a.mov", 1}, {"b.mp3", 0}});
    EXPECT_THAT(labels(), ElementsAre("Video"));
}

TEST_F(FindingsModelTest, emptySurveyHasNoSegments) {
    surveyOf({{"b.mp3", 0}});
    EXPECT_TRUE(findings().segments().isEmpty());
}

TEST_F(FindingsModelTest, otherFilesHaveTheColourOfTheTheme) {
    surveyOf({{"a.mov", 2}, {"b.unheard-of", 1}});
    EXPECT_THAT(colors(), ElementsAre(red, QColor()));
}

TEST_F(FindingsModelTest, freeBytesAreAvailableBytesOfVolume) {
    surveyOf({{"a.mov", 1}});
    EXPECT_EQ(findings().freeBytes(), 400);
}

TEST_F(FindingsModelTest, freeBytesAreZeroWithoutVolume) {
    surveyOf({{"a.mov", 1}});
    model().setVolume(std::nullopt);
    EXPECT_EQ(findings().freeBytes(), 0);
    EXPECT_EQ(findings().cardBytes().back(), 0);
}

TEST_F(FindingsModelTest, listsFiveLargestFiles) {
    surveyOf({{"1.mov", 600'000'000},
              {"2.mov", 500'000'000},
              {"3.mov", 400'000'000},
              {"4.mov", 300'000'000},
              {"5.mov", 200'000'000},
              {"6.mov", 100'000'000}});
    ASSERT_EQ(findings().largest()->rowCount(), 5);
    EXPECT_EQ(findings().largest()->index(0).data(LargeFileRows::nameRole).toString(), QStringLiteral("1.mov"));
    EXPECT_EQ(findings().largest()->index(4).data(LargeFileRows::nameRole).toString(), QStringLiteral("5.mov"));
}

TEST_F(FindingsModelTest, listsAllOfFewerLargeFiles) {
    surveyOf({{"0.mov", 400'000'000}, {"1.mov", 300'000'000}, {"2.mov", 200'000'000}, {"3.mov", 100'000'000}});
    ASSERT_EQ(findings().largest()->rowCount(), 4);
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(findings().largest()->index(row).data(LargeFileRows::nameRole).toString(),
                  QStringLiteral("%1.mov").arg(row));
}

TEST_F(FindingsModelTest, listsNoRowsWithoutLargeFiles) {
    surveyOf({});
    EXPECT_EQ(findings().largest()->rowCount(), 0);
}

TEST_F(FindingsModelTest, showsResultsOfFinishedSurvey) {
    fillHome();
    survey();
    EXPECT_EQ(findings().recoverable(), 60'000'000);
}

TEST_F(FindingsModelTest, keepsResultsDuringAnotherSurvey) {
    fillHome();
    surveyOf({});
    machine.directories.hold(home);
    model().startScan();
    machine.directories.waitUntilHeld(home);
    EXPECT_EQ(findings().recoverable(), 60'000'000);
    EXPECT_FALSE(findings().segments().isEmpty());
    EXPECT_GT(findings().largest()->rowCount(), 0);
}

TEST_F(FindingsModelTest, followsRemovals) {
    fillHome();
    surveyOf({});
    QSignalSpy changes(&findings(), &FindingsModel::changed);
    const NodeRef modules = folderAt(model().root(), home + "/projects/app/node_modules");
    ASSERT_TRUE(modules);
    model().removeFromTree(*modules);
    EXPECT_FALSE(changes.isEmpty());
    EXPECT_EQ(findings().recoverable(), 50'000'000);
    EXPECT_EQ(findings().line(), QStringLiteral("across 1 items · most space: Video"));
    EXPECT_EQ(findings().cardBytes().front(), 50'000'000);
    EXPECT_EQ(findings().cardDetails().front(), QStringLiteral("1 items of junk"));
}

TEST_F(FindingsModelTest, removingAllJunkMakesADriveClean) {
    machine.directories.file(home + "/projects/app/node_modules/a.js", 10'000'000, 2'000);
    surveyOf({{"letter.txt", 5'000'000}});
    ASSERT_TRUE(findings().reviewable());
    const NodeRef modules = folderAt(model().root(), home + "/projects/app/node_modules");
    ASSERT_TRUE(modules);
    model().removeFromTree(*modules);
    EXPECT_FALSE(findings().reviewable());
    EXPECT_EQ(findings().line(), QStringLiteral("Nothing to reclaim right now — you scanned 5 MB."));
}

}  // namespace zelk

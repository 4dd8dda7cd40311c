// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "state/AppModelFixture.h"
#include "ui/screens/overview/FindingsModel.h"

namespace zelk {

namespace {

enum CardRow { reclaim, clutter, downloads, system };

class FindingCardsTest : public AppModelFixture {
protected:
    FindingsModel& findings() {
        if (!findings_) findings_ = std::make_unique<FindingsModel>(model());
        return *findings_;
    }
    std::string detail(int card) { return findings().cardDetails().at(card).toStdString(); }
    double bytes(int card) { return findings().cardBytes().at(card); }

private:
    std::unique_ptr<FindingsModel> findings_;
};

}  // namespace

TEST_F(FindingCardsTest, haveALineEach) {
    machine.directories.file(home + "/Library/Caches/Yarn/v6", 50'000'000, 1'000);
    machine.directories.file(home + "/projects/app/node_modules/a.js", 40'000'000, 2'000);
    machine.directories.file(home + "/projects/film.mov", 3'000'000'000, 3'000);
    survey();
    ASSERT_EQ(model().insights().topFiles.size(), 3U);
    EXPECT_EQ(findings().cardDetails(),
              (QStringList{"2 items of junk", "3 large files", "review what landed here", "purgeable & snapshots"}));
    EXPECT_EQ(findings().cardBytes().size(), 4);
}

TEST_F(FindingCardsTest, openTheirModules) {
    const Screen expected[] = {Screen::reclaim, Screen::clutter, Screen::clutter, Screen::system};
    for (int card = 0; card < 4; ++card) {
        model().setSelection(Screen::survey);
        findings().openCard(card);
        EXPECT_EQ(model().selection(), expected[card]);
    }
    model().setSelection(Screen::survey);
    findings().openCard(4);
    findings().openCard(-1);
    EXPECT_EQ(model().selection(), Screen::survey) << "there is no fifth card";
}

TEST_F(FindingCardsTest, reclaimShowsRecoverableBytes) {
    fillHome();
    survey();
    EXPECT_EQ(bytes(reclaim), 60'000'000);
    EXPECT_EQ(detail(reclaim), "2 items of junk");
}

TEST_F(FindingCardsTest, reclaimShowsZeroWithoutJunk) {
    machine.directories.file(home + "/letter.txt", 1'000'000);
    survey();
    EXPECT_EQ(bytes(reclaim), 0);
    EXPECT_EQ(detail(reclaim), "0 items of junk");
}

TEST_F(FindingCardsTest, clutterSumsAllLargeFiles) {
    for (int file = 1; file <= 8; ++file)
        machine.directories.file(home + "/" + std::to_string(file) + ".mov",
                                 100'000'000U * static_cast<unsigned>(file));
    survey();
    EXPECT_EQ(bytes(clutter), 3'600'000'000);
    EXPECT_EQ(detail(clutter), "8 large files");
}

TEST_F(FindingCardsTest, downloadsMeasuresFolderInOnlyRoot) {
    machine.directories.file(home + "/Downloads/a.zip", 100'000'000);
    machine.directories.file(home + "/Downloads/deeper/b.zip", 23'000'000);
    machine.directories.file(home + "/Other/c.zip", 1'000'000);
    survey();
    EXPECT_EQ(bytes(downloads), 123'000'000);
}

TEST_F(FindingCardsTest, downloadsShowsZeroWithoutFolder) {
    machine.directories.file(home + "/Other/Downloads/a.zip", 100'000'000);
    machine.directories.file(home + "/downloads/b.zip", 100'000'000);
    survey();
    EXPECT_EQ(bytes(downloads), 0);
}

TEST_F(FindingCardsTest, downloadsIsNotSearchedInsideSeveralRoots) {
    machine.directories.file(home + "/Downloads/a.zip", 100'000'000);
    machine.directories.file("/data/b.zip", 1'000'000);
    model().setScanRoots({home, "/data"});
    survey();
    EXPECT_EQ(bytes(downloads), 0);
}

TEST_F(FindingCardsTest, systemShowsPurgeableBytes) {
    struct Expected {
        VolumeInfo volume;
        double bytes;
    };
    const Expected table[] = {
        {{9'000'000, 4'000'000, 4'500'000}, 500'000},
        {{9'000'000, 4'000'000, 4'000'000}, 0},
        {{9'000'000, 4'500'000, 4'000'000}, 0},
    };
    survey();
    for (const Expected& expected : table) {
        model().setVolume(expected.volume);
        EXPECT_EQ(bytes(system), expected.bytes);
    }
}

TEST_F(FindingCardsTest, systemShowsZeroWithoutVolume) {
    survey();
    findings();
    model().setVolume(VolumeInfo{9'000'000, 4'000'000, 4'500'000});
    model().setVolume(std::nullopt);
    EXPECT_EQ(bytes(system), 0);
}

}  // namespace zelk

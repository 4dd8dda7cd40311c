// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <QSignalSpy>

#include "state/AppModelFixture.h"
#include "ui/screens/overview/FindingsModel.h"

namespace zelk {

namespace {

enum CardRow { reclaim, clutter, downloads, system };

class FindingCardsTest : public AppModelFixture {
protected:
    FindingCards& cards() {
        if (!cards_) cards_ = std::make_unique<FindingCards>(model());
        return *cards_;
    }
    void surveyAndRefresh() {
        survey();
        cards().refresh();
    }
    std::string text(int row, const char* role) {
        return cards().data(cards().index(row), cards().roleNames().key(role)).toString().toStdString();
    }
    qint64 value(int row) { return cards().data(cards().index(row), FindingCards::valueRole).toLongLong(); }

private:
    std::unique_ptr<FindingCards> cards_;
};

}  // namespace

TEST_F(FindingCardsTest, listsFourCardsInOrder) {
    struct Expected {
        const char* symbol;
        const char* title;
        const char* detail;
        QColor tint;
    };
    const Expected table[] = {
        {"sparkles", "Reclaim", "2 items of junk", {50, 199, 123}},
        {"tray.full", "Clutter", "3 large files", {34, 195, 201}},
        {"arrow.down.circle", "Downloads", "review what landed here", {86, 194, 245}},
        {"internaldrive", "System", "purgeable & snapshots", {124, 131, 255}},
    };
    machine.directories.file(home + "/Library/Caches/Yarn/v6", 50'000'000, 1'000);
    machine.directories.file(home + "/projects/app/node_modules/a.js", 40'000'000, 2'000);
    machine.directories.file(home + "/projects/film.mov", 3'000'000'000, 3'000);
    surveyAndRefresh();
    ASSERT_EQ(model().insights().topFiles.size(), 3U);
    ASSERT_EQ(cards().rowCount(), 4);
    for (int row = 0; row < 4; ++row) {
        const Expected& expected = table[row];
        EXPECT_EQ(text(row, "symbol"), expected.symbol);
        EXPECT_EQ(text(row, "title"), expected.title);
        EXPECT_EQ(text(row, "detail"), expected.detail);
        EXPECT_EQ(cards().data(cards().index(row), FindingCards::tintRole).value<QColor>(), expected.tint);
    }
}

TEST_F(FindingCardsTest, pressOpensModule) {
    const Screen expected[] = {Screen::reclaim, Screen::clutter, Screen::clutter, Screen::system};
    for (int row = 0; row < 4; ++row) {
        model().setSelection(Screen::survey);
        cards().press(row);
        EXPECT_EQ(model().selection(), expected[row]);
    }
    model().setSelection(Screen::survey);
    cards().press(4);
    cards().press(-1);
    EXPECT_EQ(model().selection(), Screen::survey) << "there is no fifth card";
}

TEST_F(FindingCardsTest, reclaimShowsRecoverableBytes) {
    fillHome();
    surveyAndRefresh();
    EXPECT_EQ(value(reclaim), 60'000'000);
    EXPECT_EQ(text(reclaim, "detail"), "2 items of junk");
}

TEST_F(FindingCardsTest, reclaimShowsZeroWithoutJunk) {
    machine.directories.file(home + "/letter.txt", 1'000'000);
    surveyAndRefresh();
    EXPECT_EQ(cards().rowCount(), 4);
    EXPECT_EQ(text(reclaim, "title"), "Reclaim");
    EXPECT_EQ(value(reclaim), 0);
    EXPECT_EQ(text(reclaim, "detail"), "0 items of junk");
}

TEST_F(FindingCardsTest, clutterSumsAllLargeFiles) {
    for (int file = 1; file <= 8; ++file)
        machine.directories.file(home + "/" + std::to_string(file) + ".mov",
                                 100'000'000U * static_cast<unsigned>(file));
    surveyAndRefresh();
    EXPECT_EQ(value(clutter), 3'600'000'000);
    EXPECT_EQ(text(clutter, "detail"), "8 large files");
}

TEST_F(FindingCardsTest, downloadsMeasuresFolderInOnlyRoot) {
    machine.directories.file(home + "/Downloads/a.zip", 100'000'000);
    machine.directories.file(home + "/Downloads/deeper/b.zip", 23'000'000);
    machine.directories.file(home + "/Other/c.zip", 1'000'000);
    surveyAndRefresh();
    EXPECT_EQ(value(downloads), 123'000'000);
}

TEST_F(FindingCardsTest, downloadsShowsZeroWithoutFolder) {
    machine.directories.file(home + "/Other/Downloads/a.zip", 100'000'000);
    machine.directories.file(home + "/downloads/b.zip", 100'000'000);
    surveyAndRefresh();
    EXPECT_EQ(value(downloads), 0);
}

TEST_F(FindingCardsTest, downloadsIsNotSearchedInsideSeveralRoots) {
    machine.directories.file(home + "/Downloads/a.zip", 100'000'000);
    machine.directories.file("/data/b.zip", 1'000'000);
    model().setScanRoots({home, "/data"});
    surveyAndRefresh();
    EXPECT_EQ(value(downloads), 0);
}

TEST_F(FindingCardsTest, systemShowsPurgeableBytes) {
    struct Expected {
        VolumeInfo volume;
        qint64 bytes;
    };
    const Expected table[] = {
        {{9'000'000, 4'000'000, 4'500'000}, 500'000},
        {{9'000'000, 4'000'000, 4'000'000}, 0},
        {{9'000'000, 4'500'000, 4'000'000}, 0},
    };
    for (const auto& [volume, bytes] : table) {
        model().setVolume(volume);
        cards().refresh();
        EXPECT_EQ(value(system), bytes);
    }
}

TEST_F(FindingCardsTest, systemShowsZeroWithoutVolume) {
    model().setVolume(VolumeInfo{9'000'000, 4'000'000, 4'500'000});
    cards().refresh();
    model().setVolume(std::nullopt);
    cards().refresh();
    EXPECT_EQ(value(system), 0);
}

TEST_F(FindingCardsTest, signalsOnlyTheChangedCard) {
    cards().refresh();
    QSignalSpy changes(&cards(), &FindingCards::dataChanged);
    model().setVolume(VolumeInfo{9'000'000, 4'000'000, 4'500'000});
    cards().refresh();
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), system);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), system);
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <limits>
#include <string>

#include "fakes/RightToLeft.h"
#include "ui/screens/overview/TrendsModel.h"

namespace zelk {

namespace {

using testing::ElementsAre;

std::string text(const ChangesModel& changes, int row, const char* role) {
    return changes.data(changes.index(row), changes.roleNames().key(role)).toString().toStdString();
}

std::vector<std::string> texts(const ChangesModel& changes, const char* role) {
    std::vector<std::string> all;
    for (int row = 0; row < changes.rowCount(); ++row) all.push_back(text(changes, row, role));
    return all;
}

FolderChanges threeKinds() {
    FolderChanges changes;
    changes.grew = {{"/home/me/Films", 1'000'000'000, 3'000'000'000}, {"/home/me/Music", 100'000'000, 200'000'000}};
    changes.appeared = {{"/home/me/New", 0, 400'000'000}};
    changes.gone = {{"/home/me/Old", 600'000'000, 0}};
    return changes;
}

}  // namespace

TEST(Changes, listsThreeSectionsInOrderWithCounts) {
    ChangesModel changes;
    changes.show(threeKinds());
    EXPECT_FALSE(changes.empty());
    EXPECT_THAT(texts(changes, "heading"), ElementsAre("Grew (2)", "", "Appeared (1)", "Vanished (1)"));
}

TEST(Changes, omitsEmptySections) {
    ChangesModel changes;
    FolderChanges some = threeKinds();
    some.appeared.clear();
    changes.show(some);
    EXPECT_THAT(texts(changes, "heading"), ElementsAre("Grew (2)", "", "Vanished (1)"));
    some.grew.clear();
    changes.show(some);
    EXPECT_THAT(texts(changes, "heading"), ElementsAre("Vanished (1)"));
}

TEST(Changes, rowsKnowTheirSection) {
    ChangesModel changes;
    changes.show(threeKinds());
    std::vector<int> kinds;
    for (int row = 0; row < changes.rowCount(); ++row)
        kinds.push_back(changes.data(changes.index(row), ChangesModel::kindRole).toInt());
    EXPECT_EQ(kinds, (std::vector<int>{ChangesModel::Grew, ChangesModel::Grew, ChangesModel::Appeared,
                                       ChangesModel::Vanished}));
}

TEST(Changes, rowShowsLastComponentAndPath) {
    ChangesModel changes;
    changes.show(threeKinds());
    EXPECT_THAT(texts(changes, "name"), ElementsAre("Films", "Music", "New", "Old"));
    EXPECT_THAT(texts(changes, "path"),
                ElementsAre("/home/me/Films", "/home/me/Music", "/home/me/New", "/home/me/Old"));
}

TEST(Changes, rootIsNamedSlash) {
    ChangesModel changes;
    FolderChanges drive;
    drive.grew = {{"/", 1'000'000'000, 2'000'000'000}};
    changes.show(drive);
    EXPECT_EQ(text(changes, 0, "name"), "/");
    EXPECT_EQ(text(changes, 0, "path"), "/");
}

TEST(Changes, showsNewSizeAndGrowthOrTheOnlySize) {
    ChangesModel changes;
    changes.show(threeKinds());
    const std::string grown = text(changes, 0, "size");
    EXPECT_THAT(grown, testing::StartsWith("3 GB"));
    EXPECT_THAT(grown, testing::EndsWith("+2 GB"));
    EXPECT_EQ(text(changes, 2, "size"), "400 MB");
    EXPECT_EQ(text(changes, 3, "size"), "600 MB");
}

TEST(Changes, sizeGoesBeforeGrowthFromRightToLeft) {
    const fakes::RightToLeft direction;
    ChangesModel changes;
    changes.show(threeKinds());
    EXPECT_THAT(text(changes, 0, "size"), testing::StartsWith("\u200F\u20683 GB\u2069"))
        << "the mark tells their order";
    EXPECT_EQ(text(changes, 2, "size"), "\u2068400 MB\u2069");
}

TEST(Changes, growthSaturatesInsteadOfOverflowing) {
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    ChangesModel changes;
    FolderChanges grown;
    grown.grew = {{"/a", -most, most}, {"/b", 0, most}};
    changes.show(grown);
    EXPECT_EQ(text(changes, 0, "size"), text(changes, 1, "size"));
}

TEST(Changes, isEmptyWithoutChanges) {
    ChangesModel changes;
    EXPECT_TRUE(changes.empty());
    changes.show(threeKinds());
    changes.show({});
    EXPECT_TRUE(changes.empty());
    EXPECT_EQ(changes.rowCount(), 0);
}

TEST(Changes, keepsOrderOfEachList) {
    ChangesModel changes;
    FolderChanges gone;
    gone.gone = {{"/c", 3, 0}, {"/b", 2, 0}, {"/a", 1, 0}};
    changes.show(gone);
    EXPECT_THAT(texts(changes, "name"), ElementsAre("c", "b", "a"));
}

}  // namespace zelk

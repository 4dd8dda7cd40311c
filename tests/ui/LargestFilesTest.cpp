// SPDX-License-Identifier: MIT
#include "ui/screens/overview/LargestFiles.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <string>

namespace zelk {

namespace {

using testing::ElementsAre;

LargeFile largeFile(const std::string& path, std::int64_t size, FileType type = FileType::other) {
    return {path, size, 0, type};
}

std::vector<LargeFile> someFiles(int count) {
    std::vector<LargeFile> files;
    for (int at = 0; at < count; ++at) files.push_back(largeFile("/f/" + std::to_string(at), 1'000 - at));
    return files;
}

std::string text(const LargestFiles& list, int row, const char* role) {
    return list.data(list.index(row), list.roleNames().key(role)).toString().toStdString();
}

std::vector<std::string> names(const LargestFiles& list) {
    std::vector<std::string> all;
    for (int row = 0; row < list.rowCount(); ++row) all.push_back(text(list, row, "name"));
    return all;
}

}  // namespace

TEST(LargestFiles, showsTheFirstFive) {
    LargestFiles list;
    list.show(someFiles(6));
    EXPECT_THAT(names(list), ElementsAre("0", "1", "2", "3", "4"));
}

TEST(LargestFiles, showsFewerWhereThereAreFewer) {
    LargestFiles list;
    EXPECT_EQ(list.rowCount(), 0);
    list.show(someFiles(4));
    EXPECT_THAT(names(list), ElementsAre("0", "1", "2", "3"));
    list.show({});
    EXPECT_EQ(list.rowCount(), 0);
}

TEST(LargestFiles, aRowHasTheSymbolOfItsTypeItsNameAndItsSize) {
    LargestFiles list;
    list.show({largeFile("/home/me/a film.mov", 3'000'000'000, FileType::video),
               largeFile("/home/me/disk/system.iso", 60'000'000, FileType::diskImage)});
    EXPECT_EQ(text(list, 0, "symbol"), "film");
    EXPECT_EQ(text(list, 0, "name"), "a film.mov");
    EXPECT_EQ(text(list, 0, "path"), "/home/me/a film.mov");
    EXPECT_EQ(text(list, 0, "size"), "3 GB");
    EXPECT_EQ(text(list, 1, "symbol"), "opticaldiscdrive");
    EXPECT_EQ(text(list, 1, "name"), "system.iso");
    EXPECT_EQ(text(list, 1, "size"), "60 MB");
}

TEST(LargestFiles, theTintFollowsTheTheme) {
    LargestFiles list;
    list.show({largeFile("/a", 1)});
    const auto tint = [&] { return list.data(list.index(0), LargestFiles::tintRole).value<QColor>(); };
    EXPECT_EQ(tint(), withOpacity(ZelkTheme::dark().inkSoft, 0.5));
    QSignalSpy changes(&list, &LargestFiles::dataChanged);
    list.setTheme(ZelkTheme::light());
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(tint(), withOpacity(ZelkTheme::light().inkSoft, 0.5));
}

TEST(LargestFiles, aFileThatIsTakenAwayLeavesTheOtherRowsAlone) {
    LargestFiles list;
    const std::vector<LargeFile> before = someFiles(6);
    list.show(before);
    QSignalSpy removed(&list, &LargestFiles::rowsRemoved);
    QSignalSpy inserted(&list, &LargestFiles::rowsInserted);
    QSignalSpy reset(&list, &LargestFiles::modelReset);
    list.show({before[0], before[2], before[3], before[4], before[5]});
    EXPECT_THAT(names(list), ElementsAre("0", "2", "3", "4", "5"));
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 1);
    EXPECT_EQ(removed[0][2].toInt(), 1);
    ASSERT_EQ(inserted.size(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 4);
    EXPECT_TRUE(reset.isEmpty());
}

TEST(LargestFiles, takesOverAnotherOrder) {
    LargestFiles list;
    const std::vector<LargeFile> before = someFiles(5);
    list.show(before);
    list.show({before[4], before[1], before[0], before[3], before[2]});
    EXPECT_THAT(names(list), ElementsAre("4", "1", "0", "3", "2"));
}

TEST(LargestFiles, twoFilesThatAreAlikeInAllAreTwoRows) {
    LargestFiles list;
    list.show({largeFile("/a", 5), largeFile("/a", 5), largeFile("/b", 4)});
    EXPECT_THAT(names(list), ElementsAre("a", "a", "b"));
    list.show({largeFile("/a", 5), largeFile("/b", 4)});
    EXPECT_THAT(names(list), ElementsAre("a", "b"));
}

TEST(LargestFiles, aFileThatGrewShowsItsNewSize) {
    LargestFiles list;
    list.show({largeFile("/a", 1'000'000)});
    list.show({largeFile("/a", 2'000'000)});
    ASSERT_EQ(list.rowCount(), 1);
    EXPECT_EQ(text(list, 0, "size"), "2 MB");
}

}  // namespace zelk

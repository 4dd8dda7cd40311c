// SPDX-License-Identifier: MIT
#include "ui/screens/clutter/LargeFileRows.h"

#include <gmock/gmock.h>

#include <QSignalSpy>

#include "ui/theme/FileTypeLook.h"

namespace zelk {

namespace {

using testing::ElementsAre;

constexpr TimePoint rowsNow = 1'750'000'000;

LargeFile file(const std::string& path, std::int64_t size = 1'000'000, double days = 0,
               FileType type = FileType::other) {
    return {path, size, rowsNow - days * secondsPerDay, type};
}

std::vector<LargeFile> someFiles(int count) {
    std::vector<LargeFile> files;
    for (int at = 0; at < count; ++at) files.push_back(file("/f/" + std::to_string(at), 1'000 - at));
    return files;
}

std::string text(const LargeFileRows& rows, int row, const char* role) {
    return rows.data(rows.index(row), rows.roleNames().key(role)).toString().toStdString();
}

std::vector<std::string> all(const LargeFileRows& rows, const char* role) {
    std::vector<std::string> texts;
    for (int row = 0; row < rows.rowCount(); ++row) texts.push_back(text(rows, row, role));
    return texts;
}

}  // namespace

TEST(LargeFileRows, rowShowsSymbolNameFolderAgeAndSize) {
    LargeFileRows rows;
    rows.show({file("/home/me/a film.mov", 3'000'000'000, 400, FileType::video)}, rowsNow);
    EXPECT_EQ(text(rows, 0, "symbol"), "film");
    EXPECT_EQ(rows.data(rows.index(0), LargeFileRows::tintRole).value<QColor>(), QColor(232, 91, 196));
    EXPECT_EQ(text(rows, 0, "name"), "a film.mov");
    EXPECT_EQ(text(rows, 0, "folder"), "/home/me");
    EXPECT_EQ(text(rows, 0, "age"), "1y ago");
    EXPECT_EQ(text(rows, 0, "size"), "3 GB");
    EXPECT_EQ(text(rows, 0, "spoken"), "a film.mov, /home/me, 1y ago, 3 GB");
    EXPECT_EQ(text(rows, 0, "actions"), "Actions for a film.mov");
}

TEST(LargeFileRows, givesEachTypeItsSymbol) {
    LargeFileRows rows;
    std::vector<LargeFile> files;
    for (const FileType type : allFileTypes) files.push_back(file("/" + std::string(rawValue(type)), 1, 0, type));
    rows.show(files, rowsNow);
    EXPECT_THAT(all(rows, "symbol"),
                ElementsAre("film", "music.note", "photo", "doc.zipper", "opticaldiscdrive", "doc.text", "doc"));
}

TEST(LargeFileRows, showsAgesInWholeUnits) {
    LargeFileRows rows;
    std::vector<LargeFile> files;
    for (const double days : {0.0, 0.999, 1.0, 1.999, 29.999, 30.0, 59.0, 60.0, 364.0, 365.0, 729.0, 730.0})
        files.push_back(file("/" + std::to_string(days), 1, days));
    rows.show(files, rowsNow);
    EXPECT_THAT(all(rows, "age"), ElementsAre("today", "today", "1d ago", "1d ago", "29d ago", "1mo ago", "1mo ago",
                                              "2mo ago", "12mo ago", "1y ago", "1y ago", "2y ago"));
}

TEST(LargeFileRows, futureFileIsFromToday) {
    LargeFileRows rows;
    rows.show({file("/a", 1, -0.5), file("/b", 1, -1000)}, rowsNow);
    EXPECT_THAT(all(rows, "age"), ElementsAre("today", "today"));
}

TEST(LargeFileRows, folderOfTopLevelFileIsSlash) {
    LargeFileRows rows;
    rows.show({file("/swap")}, rowsNow);
    EXPECT_EQ(text(rows, 0, "name"), "swap");
    EXPECT_EQ(text(rows, 0, "folder"), "/");
}

TEST(LargeFileRows, repairsInvalidNamesForDisplayOnly) {
    LargeFileRows rows;
    const std::string path = "/home/\xff/a\nb\xc3.mov";
    rows.show({file(path)}, rowsNow);
    EXPECT_EQ(text(rows, 0, "folder"), "/home/\xef\xbf\xbd");
    EXPECT_EQ(text(rows, 0, "name").find('\n'), std::string::npos);
    EXPECT_EQ(rows.pathAt(0), path);
}

TEST(LargeFileRows, pathOfInvalidRowIsEmpty) {
    LargeFileRows rows;
    rows.show({file("/a")}, rowsNow);
    EXPECT_EQ(rows.pathAt(-1), "");
    EXPECT_EQ(rows.pathAt(1), "");
}

TEST(LargeFileRows, onlyOtherTypeHasNoTint) {
    LargeFileRows rows;
    rows.show({file("/a"), file("/b.mov", 1, 0, FileType::video)}, rowsNow);
    const auto tint = [&](int row) { return rows.data(rows.index(row), LargeFileRows::tintRole).value<QColor>(); };
    EXPECT_FALSE(tint(0).isValid()) << "the theme decides";
    EXPECT_EQ(tint(1), QColor(232, 91, 196));
}

TEST(LargeFileRows, removedFileRemovesOnlyItsRow) {
    LargeFileRows rows;
    rows.show({file("/a"), file("/b"), file("/c")}, rowsNow);
    const QSignalSpy removed(&rows, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy inserted(&rows, &QAbstractItemModel::rowsInserted);
    const QSignalSpy reset(&rows, &QAbstractItemModel::modelReset);
    rows.show({file("/a"), file("/c")}, rowsNow);
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed.front().at(1).toInt(), 1);
    EXPECT_EQ(removed.front().at(2).toInt(), 1);
    EXPECT_EQ(inserted.size() + reset.size(), 0);
    EXPECT_THAT(all(rows, "name"), ElementsAre("a", "c"));
}

TEST(LargeFileRows, reorderingDoesNotReset) {
    LargeFileRows rows;
    rows.show({file("/a"), file("/b"), file("/c"), file("/d")}, rowsNow);
    const QSignalSpy reset(&rows, &QAbstractItemModel::modelReset);
    rows.show({file("/d"), file("/b"), file("/c"), file("/a")}, rowsNow);
    EXPECT_EQ(reset.size(), 0);
    EXPECT_THAT(all(rows, "name"), ElementsAre("d", "b", "c", "a"));
}

TEST(LargeFileRows, fileListedTwiceHasTwoRows) {
    LargeFileRows rows;
    rows.show({file("/a"), file("/a"), file("/b")}, rowsNow);
    EXPECT_THAT(all(rows, "name"), ElementsAre("a", "a", "b"));
    rows.show({file("/b"), file("/a"), file("/a")}, rowsNow);
    EXPECT_THAT(all(rows, "name"), ElementsAre("b", "a", "a"));
    rows.show({file("/b")}, rowsNow);
    EXPECT_THAT(all(rows, "name"), ElementsAre("b"));
}

TEST(LargeFileRows, signalsChangedSizeAndAge) {
    LargeFileRows rows;
    rows.show({file("/a", 1'000'000)}, rowsNow);
    const QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
    rows.show({file("/a", 2'000'000)}, rowsNow + 40 * secondsPerDay);
    EXPECT_EQ(text(rows, 0, "size"), "2 MB");
    EXPECT_EQ(text(rows, 0, "bytes"), "2000000");
    EXPECT_EQ(text(rows, 0, "age"), "1mo ago");
    EXPECT_EQ(changed.size(), 1);
}

// The way Overview uses the model: the first few files, updated from survey to survey.

TEST(LargeFileRows, followsRowCount) {
    LargeFileRows list;
    EXPECT_EQ(list.rowCount(), 0);
    list.show(someFiles(4), rowsNow);
    EXPECT_THAT(all(list, "name"), ElementsAre("0", "1", "2", "3"));
    list.show({}, rowsNow);
    EXPECT_EQ(list.rowCount(), 0);
}

TEST(LargeFileRows, rowShowsSymbolNamePathAndSize) {
    LargeFileRows list;
    list.show({file("/home/me/a film.mov", 3'000'000'000, 0, FileType::video),
               file("/home/me/disk/system.iso", 60'000'000, 0, FileType::diskImage)},
              rowsNow);
    EXPECT_EQ(text(list, 0, "symbol"), "film");
    EXPECT_EQ(text(list, 0, "name"), "a film.mov");
    EXPECT_EQ(text(list, 0, "path"), "/home/me/a film.mov");
    EXPECT_EQ(text(list, 0, "size"), "3 GB");
    EXPECT_EQ(text(list, 1, "symbol"), "opticaldiscdrive");
    EXPECT_EQ(text(list, 1, "name"), "system.iso");
    EXPECT_EQ(text(list, 1, "size"), "60 MB");
}

TEST(LargeFileRows, replacingAFileKeepsOtherRows) {
    LargeFileRows list;
    const std::vector<LargeFile> before = someFiles(6);
    list.show({before[0], before[1], before[2], before[3], before[4]}, rowsNow);
    QSignalSpy removed(&list, &LargeFileRows::rowsRemoved);
    QSignalSpy inserted(&list, &LargeFileRows::rowsInserted);
    QSignalSpy reset(&list, &LargeFileRows::modelReset);
    list.show({before[0], before[2], before[3], before[4], before[5]}, rowsNow);
    EXPECT_THAT(all(list, "name"), ElementsAre("0", "2", "3", "4", "5"));
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 1);
    EXPECT_EQ(removed[0][2].toInt(), 1);
    ASSERT_EQ(inserted.size(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 4);
    EXPECT_TRUE(reset.isEmpty());
}

TEST(LargeFileRows, followsNewOrder) {
    LargeFileRows list;
    const std::vector<LargeFile> before = someFiles(5);
    list.show(before, rowsNow);
    list.show({before[4], before[1], before[0], before[3], before[2]}, rowsNow);
    EXPECT_THAT(all(list, "name"), ElementsAre("4", "1", "0", "3", "2"));
}

TEST(LargeFileRows, identicalFilesHaveTwoRows) {
    LargeFileRows list;
    list.show({file("/a", 5), file("/a", 5), file("/b", 4)}, rowsNow);
    EXPECT_THAT(all(list, "name"), ElementsAre("a", "a", "b"));
    list.show({file("/a", 5), file("/b", 4)}, rowsNow);
    EXPECT_THAT(all(list, "name"), ElementsAre("a", "b"));
}

TEST(LargeFileRows, updatesSizeOfGrownFile) {
    LargeFileRows list;
    list.show({file("/a", 1'000'000)}, rowsNow);
    list.show({file("/a", 2'000'000)}, rowsNow);
    ASSERT_EQ(list.rowCount(), 1);
    EXPECT_EQ(text(list, 0, "size"), "2 MB");
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/screens/clutter/ClutterRows.h"

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

std::string text(const ClutterRows& rows, int row, const char* role) {
    return rows.data(rows.index(row), rows.roleNames().key(role)).toString().toStdString();
}

std::vector<std::string> all(const ClutterRows& rows, const char* role) {
    std::vector<std::string> texts;
    for (int row = 0; row < rows.rowCount(); ++row) texts.push_back(text(rows, row, role));
    return texts;
}

}  // namespace

TEST(ClutterRows, aRowTellsWhatAFileIsWhereItLiesHowOldAndHowLargeItIs) {
    ClutterRows rows;
    rows.show({file("/home/me/a film.mov", 3'000'000'000, 400, FileType::video)}, rowsNow);
    EXPECT_EQ(text(rows, 0, "symbol"), "film");
    EXPECT_EQ(rows.data(rows.index(0), ClutterRows::tintRole).value<QColor>(), QColor(232, 91, 196));
    EXPECT_EQ(text(rows, 0, "name"), "a film.mov");
    EXPECT_EQ(text(rows, 0, "folder"), "/home/me");
    EXPECT_EQ(text(rows, 0, "age"), "1y ago");
    EXPECT_EQ(text(rows, 0, "size"), "3 GB");
    EXPECT_EQ(text(rows, 0, "spoken"), "a film.mov, /home/me, 1y ago, 3 GB");
    EXPECT_EQ(text(rows, 0, "actions"), "Actions for a film.mov");
}

TEST(ClutterRows, everyTypeHasItsSymbol) {
    ClutterRows rows;
    std::vector<LargeFile> files;
    for (const FileType type : allFileTypes) files.push_back(file("/" + std::string(rawValue(type)), 1, 0, type));
    rows.show(files, rowsNow);
    EXPECT_THAT(all(rows, "symbol"),
                ElementsAre("film", "music.note", "photo", "doc.zipper", "opticaldiscdrive", "doc.text", "doc"));
}

TEST(ClutterRows, agesAreWholeDaysMonthsAndYears) {
    ClutterRows rows;
    rows.show({file("/a", 1, 0.5), file("/b", 1, 1), file("/c", 1, 29.9), file("/d", 1, 30), file("/e", 1, 364),
               file("/f", 1, 365), file("/g", 1, 730)},
              rowsNow);
    EXPECT_THAT(all(rows, "age"), ElementsAre("today", "1d ago", "29d ago", "1mo ago", "12mo ago", "1y ago", "2y ago"));
}

TEST(ClutterRows, aFileOfTheFutureIsOfToday) {
    ClutterRows rows;
    rows.show({file("/a", 1, -0.5), file("/b", 1, -1000)}, rowsNow);
    EXPECT_THAT(all(rows, "age"), ElementsAre("today", "today"));
}

TEST(ClutterRows, theFolderOfWhatLiesAtTheTopIsTheTop) {
    ClutterRows rows;
    rows.show({file("/swap")}, rowsNow);
    EXPECT_EQ(text(rows, 0, "name"), "swap");
    EXPECT_EQ(text(rows, 0, "folder"), "/");
}

TEST(ClutterRows, namesThatAreNoTextAreRepairedOnScreenAloneAndStayInOneLine) {
    ClutterRows rows;
    const std::string path = "/home/\xff/a\nb\xc3.mov";
    rows.show({file(path)}, rowsNow);
    EXPECT_EQ(text(rows, 0, "folder"), "/home/\xef\xbf\xbd");
    EXPECT_EQ(text(rows, 0, "name").find('\n'), std::string::npos);
    EXPECT_EQ(rows.pathAt(0), path);
}

TEST(ClutterRows, thereIsNoPathBesideTheRows) {
    ClutterRows rows;
    rows.show({file("/a")}, rowsNow);
    EXPECT_EQ(rows.pathAt(-1), "");
    EXPECT_EQ(rows.pathAt(1), "");
}

TEST(ClutterRows, onlyWhatIsOfNoTypeFollowsTheTheme) {
    ClutterRows rows;
    rows.show({file("/a"), file("/b.mov", 1, 0, FileType::video)}, rowsNow);
    const auto tint = [&](int row) { return rows.data(rows.index(row), ClutterRows::tintRole).value<QColor>(); };
    const QColor dark = tint(0);
    rows.setTheme(ZelkTheme::light());
    EXPECT_NE(tint(0), dark);
    EXPECT_EQ(tint(1), QColor(232, 91, 196));
}

TEST(ClutterRows, aFileThatGoesTakesItsRowAloneWithIt) {
    ClutterRows rows;
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

TEST(ClutterRows, anotherOrderMovesRowsAndResetsNothing) {
    ClutterRows rows;
    rows.show({file("/a"), file("/b"), file("/c"), file("/d")}, rowsNow);
    const QSignalSpy reset(&rows, &QAbstractItemModel::modelReset);
    rows.show({file("/d"), file("/b"), file("/c"), file("/a")}, rowsNow);
    EXPECT_EQ(reset.size(), 0);
    EXPECT_THAT(all(rows, "name"), ElementsAre("d", "b", "c", "a"));
}

TEST(ClutterRows, aFileThatIsListedTwiceHasTwoRows) {
    ClutterRows rows;
    rows.show({file("/a"), file("/a"), file("/b")}, rowsNow);
    EXPECT_THAT(all(rows, "name"), ElementsAre("a", "a", "b"));
    rows.show({file("/b"), file("/a"), file("/a")}, rowsNow);
    EXPECT_THAT(all(rows, "name"), ElementsAre("b", "a", "a"));
    rows.show({file("/b")}, rowsNow);
    EXPECT_THAT(all(rows, "name"), ElementsAre("b"));
}

TEST(ClutterRows, aFileThatGrewOrAgedIsToldAnew) {
    ClutterRows rows;
    rows.show({file("/a", 1'000'000)}, rowsNow);
    const QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
    rows.show({file("/a", 2'000'000)}, rowsNow + 40 * secondsPerDay);
    EXPECT_EQ(text(rows, 0, "size"), "2 MB");
    EXPECT_EQ(text(rows, 0, "age"), "1mo ago");
    EXPECT_EQ(changed.size(), 1);
}

}  // namespace zelk

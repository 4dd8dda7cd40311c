// SPDX-License-Identifier: MIT
#include "ui/theme/DisplayText.h"

#include <gtest/gtest.h>

#include <string>

#include "fakes/RightToLeft.h"

namespace zelk {

namespace {

const QLocale american(QLocale::English, QLocale::UnitedStates);
const QLocale german(QLocale::German, QLocale::Germany);

std::string shown(std::string_view bytes) {
    return displayText(bytes).toStdString();
}

QString letters(int count) {
    return QString(count, u'a');
}

}  // namespace

TEST(DisplayText, keepsOrdinaryNames) {
    EXPECT_EQ(shown("/home/me/Ünïcødé 日本.txt"), "/home/me/Ünïcødé 日本.txt");
    EXPECT_EQ(shown(""), "");
}

TEST(DisplayText, repairsInvalidUtf8) {
    EXPECT_EQ(shown("caf\xE9.txt"), "caf\uFFFD.txt");
    EXPECT_EQ(shown("\xFF"), "\uFFFD");
}

TEST(DisplayText, showsControlCharactersAsMarks) {
    EXPECT_EQ(shown("a\nb\tc\x1B[31m"), "a␊b␉c␛[31m");
    EXPECT_EQ(shown(std::string_view("\0", 1)), "␀");
    EXPECT_EQ(shown("\x7F"), "␡");
    EXPECT_EQ(shown("\xC2\x85"), "\uFFFD") << "a C1 control character";
}

TEST(DisplayText, replacesLineBreaksAndDirectionMarks) {
    EXPECT_EQ(shown("a\u2028b\u2029c"), "a\uFFFDb\uFFFDc");
    EXPECT_EQ(shown("gpj.\u202Etxt"), "gpj.\uFFFDtxt");
    EXPECT_EQ(shown("\u2066x\u2069\u200F"), "\uFFFDx\uFFFD\uFFFD");
}

TEST(ByteFigure, usesDecimalSeparatorOfLocale) {
    EXPECT_EQ(byteFigure(12'345'678'987, american), QStringLiteral("12.35 GB"));
    EXPECT_EQ(byteFigure(12'345'678'987, german), QStringLiteral("12,35 GB"));
}

TEST(ByteFigure, showsZeroAsNumberAndUnit) {
    EXPECT_EQ(byteFigure(0, american), QStringLiteral("0 bytes"));
    EXPECT_EQ(byteFigure(-5, american), QStringLiteral("0 bytes"));
}

TEST(GroupedFigure, usesGroupSeparatorOfLocale) {
    EXPECT_EQ(groupedFigure(1'234'567, american), QStringLiteral("1,234,567"));
    EXPECT_EQ(groupedFigure(1'234'567, german), QStringLiteral("1.234.567"));
    EXPECT_EQ(groupedFigure(999, american), QStringLiteral("999"));
}

TEST(UserLocale, defaultsToAmericanEnglish) {
    const QLocale before;
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(groupedFigure(20'000), QStringLiteral("20,000"));
    QLocale::setDefault(german);
    EXPECT_EQ(groupedFigure(20'000), QStringLiteral("20.000"));
    QLocale::setDefault(before);
}

TEST(PrintedText, breaksLinesAtEveryLineEnd) {
    EXPECT_EQ(printedText("a\rb\nc\r\nd\n\re\tf\n\n"), QStringLiteral("a\nb\nc\nd\n\ne f\n\n"));
    EXPECT_EQ(printedText("\r\r\n\n\r"), QStringLiteral("\n\n\n\n"));
    EXPECT_EQ(printedText(""), QString());
}

TEST(PrintedText, keepsTheBreakAtTheEnd) {
    EXPECT_EQ(printedText("done\n"), QStringLiteral("done\n"));
    EXPECT_EQ(printedText("done\r\n"), QStringLiteral("done\n"));
    EXPECT_EQ(printedText("done\r"), QStringLiteral("done\n"));
}

TEST(PrintedText, showsControlCharactersAndRepairsText) {
    EXPECT_EQ(printedText("a\x1b[31mb\nc\xff"), QStringLiteral("a␛[31mb\nc\uFFFD"));
}

TEST(PrintedText, leavesOutWhatFollows20000Bytes) {
    const std::string most(20'000, 'x');
    EXPECT_EQ(printedText(most), QString::fromStdString(most));
    EXPECT_EQ(printedText(most + 'y'), QString::fromStdString(most + "\n…"));
    EXPECT_EQ(printedText(std::string(19'999, 'x') + "ä"), QString::fromStdString(std::string(19'999, 'x') + "\n…"));
}

TEST(ShortenedPath, keeps56Characters) {
    EXPECT_EQ(shortenedPath(letters(56)), letters(56));
}

TEST(ShortenedPath, shortensLongerPathToEllipsisAndLast55) {
    EXPECT_EQ(shortenedPath(u'x' + letters(56)), QStringLiteral("…") + letters(55));
    const QString path = QStringLiteral("/home/somebody/") + letters(30) + QStringLiteral("/and/further/down/there");
    EXPECT_EQ(shortenedPath(path), QStringLiteral("…") + path.right(55));
}

TEST(ShortenedPath, countsGraphemeClusters) {
    const QString family = QStringLiteral("👩‍👩‍👧");  // five code points, one character
    EXPECT_EQ(shortenedPath(family + letters(55)), family + letters(55));
    EXPECT_EQ(shortenedPath(u'x' + family + letters(55)), QStringLiteral("…") + letters(55));
    EXPECT_EQ(shortenedPath(u'x' + letters(1) + family + letters(54)), QStringLiteral("…") + family + letters(54));
}

TEST(DisplayText, nameOfRootIsSlash) {
    EXPECT_EQ(nameText("/home/me"), QStringLiteral("me"));
    EXPECT_EQ(nameText("/"), QStringLiteral("/"));
    EXPECT_EQ(nameText(""), QString());
}

TEST(DisplayText, isIsolatedFromRightToLeft) {
    const fakes::RightToLeft direction;
    EXPECT_EQ(shown("Notes"), "\u2068Notes\u2069");
    EXPECT_EQ(shown("/home/מסמכים"), "\u2066/home/מסמכים\u2069") << "a path runs from left to right";
    EXPECT_EQ(displayText("~/Music"), QStringLiteral("\u2066~/Music\u2069"));
    EXPECT_EQ(nameText("/home/מסמכים"), QStringLiteral("\u2068מסמכים\u2069"));
    EXPECT_EQ(folderText("/home/me"), QStringLiteral("\u2066/home\u2069"));
    EXPECT_EQ(byteFigure(1'200'000'000, american), QStringLiteral("\u20681.2 GB\u2069"));
    EXPECT_EQ(groupedFigure(1234, american), QStringLiteral("\u20681,234\u2069"));
    EXPECT_EQ(isolated({}), QString()) << "nothing stays nothing";
}

TEST(PrintedText, hasLinesOfTheirOwnDirectionFromRightToLeft) {
    const fakes::RightToLeft direction;
    EXPECT_EQ(printedText("a.\n\n/b\nאב.\n"), QStringLiteral("\u2068a.\u2069\n\n\u2066/b\u2069\n\u2068אב.\u2069\n"));
}

TEST(ShortenedPath, isIsolatedAnewFromRightToLeft) {
    const QString path = u'/' + letters(70);
    const QString shortened = shortenedPath(path);
    const fakes::RightToLeft direction;
    EXPECT_EQ(shortenedPath(isolated(path)), u'\u2066' + shortened + u'\u2069');
    EXPECT_EQ(shortenedPath(isolated(letters(56))), isolated(letters(56))) << "its marks are no characters";
}

}  // namespace zelk

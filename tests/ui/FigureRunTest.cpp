// SPDX-License-Identifier: MIT
#include "ui/controls/FigureRun.h"

#include <gtest/gtest.h>

namespace zelk {

namespace {

std::string between(const char* from, const char* to, double share,
                    const QLocale& locale = QLocale(QLocale::English, QLocale::UnitedStates)) {
    return figureBetween(QString::fromUtf8(from), QString::fromUtf8(to), share, locale).toStdString();
}

}  // namespace

TEST(FigureRun, isExactlyThereInTheEnd) {
    EXPECT_EQ(between("900 MB", "1.23 GB", 1), "1.23 GB");
    EXPECT_EQ(between("3", "12,345", 1), "12,345");
    EXPECT_EQ(between("3", "12,345", 2), "12,345");
}

TEST(FigureRun, startsWhereItWas) {
    EXPECT_EQ(between("900 MB", "1.23 GB", 0), "900 MB");
    EXPECT_EQ(between("12 items", "40 items", 0), "12 items");
}

TEST(FigureRun, ofBytesRunsThroughTheUnits) {
    EXPECT_EQ(between("900 MB", "1.2 GB", 0.5), "1.05 GB");
    EXPECT_EQ(between("900 MB", "1.2 GB", 0.1), "930 MB");
    EXPECT_EQ(between("2 GB", "500 KB", 0.5), "1 GB");
}

TEST(FigureRun, startsFromAZeroByteFigure) {
    EXPECT_EQ(between("0 bytes", "2 KB", 0), "0 bytes");
    EXPECT_EQ(between("0 bytes", "2 KB", 0.25), "500 bytes");
    EXPECT_EQ(between("1 byte", "3 bytes", 0.5), "2 bytes");
    EXPECT_EQ(between("2 KB", "0 bytes", 1), "0 bytes");
}

TEST(FigureRun, ofTheLargestCountsStaysACount) {
    EXPECT_EQ(between("0 bytes", "1 PB", 0.5), "500 TB");
    EXPECT_EQ(between("9.22 EB", "9.22 EB", 0.5), "9.22 EB");
}

TEST(FigureRun, keepsTheWordsAroundItsNumber) {
    EXPECT_EQ(between("12 items", "40 items", 0.5), "26 items");
    EXPECT_EQ(between("about 10%", "about 20%", 0.5), "about 15%");
}

TEST(FigureRun, hasTheDecimalsOfTheLonger) {
    EXPECT_EQ(between("1%", "2.5%", 0.5), "1.8%");
    EXPECT_EQ(between("1.25", "2", 0.5), "1.63");
}

TEST(FigureRun, groupsItsDigitsWhereOneOfItsEndsDoes) {
    EXPECT_EQ(between("900", "12,100", 0.5), "6,500");
    EXPECT_EQ(between("9000", "1000", 0.5), "5000");
}

TEST(FigureRun, doesNotRunBetweenTextsThatDifferInMoreThanANumber) {
    EXPECT_EQ(between("1 item", "12 items", 0.1), "12 items");
    EXPECT_EQ(between("3 of 5", "4 of 5", 0.1), "4 of 5");
    EXPECT_EQ(between("—", "12 GB", 0.1), "12 GB");
    EXPECT_EQ(between("12 GB", "—", 0.1), "—");
    EXPECT_EQ(between("", "7", 0.1), "7");
    EXPECT_EQ(between("12 GB", "12 items", 0.1), "12 items");
}

TEST(FigureRun, readsTheNumbersOfTheUsersLanguage) {
    const QLocale germany(QLocale::German, QLocale::Germany);
    EXPECT_EQ(between("900 MB", "1,2 GB", 0.5, germany), "1,05 GB");
    EXPECT_EQ(between("900", "12.100", 0.5, germany), "6.500");
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/controls/FigureText.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

namespace zelk {

namespace {

double widthOf(const QString& text) {
    const std::vector<FigurePiece> pieces = layOutFigure(text, QGuiApplication::font());
    return pieces.empty() ? 0 : pieces.back().x + pieces.back().width;
}

}  // namespace

TEST(FigureText, isAsWideWhateverItsDigits) {
    EXPECT_DOUBLE_EQ(widthOf(QStringLiteral("111,111 items")), widthOf(QStringLiteral("888,888 items")));
    EXPECT_GT(widthOf(QStringLiteral("1,111 items")), widthOf(QStringLiteral("111 items")));
}

TEST(FigureText, keepsWordsWhole) {
    const std::vector<FigurePiece> pieces = layOutFigure(QStringLiteral("1.5 GB"), QGuiApplication::font());
    ASSERT_EQ(pieces.size(), 4U);
    EXPECT_EQ(pieces[0].text, QStringLiteral("1"));
    EXPECT_EQ(pieces[1].text, QStringLiteral("."));
    EXPECT_EQ(pieces[2].text, QStringLiteral("5"));
    EXPECT_EQ(pieces[3].text, QStringLiteral(" GB"));
    EXPECT_DOUBLE_EQ(pieces[3].x, pieces[0].width + pieces[1].width + pieces[2].width);
}

TEST(FigureText, ofNothingHasNoWidth) {
    EXPECT_DOUBLE_EQ(widthOf(QString()), 0);
}

TEST(FigureText, hasTheSizeOfItsText) {
    FigureText item;
    item.setPixelSize(28);
    item.setText(QStringLiteral("12.34 GB"));
    const double wide = item.implicitWidth();
    EXPECT_GT(wide, 80);
    EXPECT_GE(item.implicitHeight(), 28);
    item.setText(QStringLiteral("43.21 GB"));
    EXPECT_DOUBLE_EQ(item.implicitWidth(), wide);
}

TEST(FigureText, thatGoesOutOfSightDoesNotRunOn) {
    FigureText item;
    item.setText(QStringLiteral("10 KB"));
    item.setDuration(1'000'000);
    item.setText(QStringLiteral("90 KB"));
    EXPECT_NE(item.shown(), QStringLiteral("90 KB"));
    item.setVisible(false);
    EXPECT_EQ(item.shown(), QStringLiteral("90 KB"));
    item.setText(QStringLiteral("20 KB"));
    item.setVisible(true);
    EXPECT_EQ(item.shown(), QStringLiteral("20 KB"));
}

}  // namespace zelk

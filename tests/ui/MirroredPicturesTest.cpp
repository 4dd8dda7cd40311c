// SPDX-License-Identifier: MIT
// Pictures that begin at a side are mirrored where the application reads from right to left, and no others.
#include <gtest/gtest.h>
#include <QGuiApplication>

#include <QDirIterator>
#include <QFileInfo>
#include <QGuiApplication>

#include "Painted.h"
#include "fakes/RightToLeft.h"
#include "ui/charts/RibbonPicture.h"
#include "ui/charts/RingPicture.h"
#include "ui/charts/SparklinePicture.h"
#include "ui/controls/AccentFill.h"
#include "ui/controls/BusyPictures.h"
#include "ui/controls/NumberItem.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SymbolItem.h"

namespace zelk {

namespace {

const QColor pictureAmber(245, 166, 35);
const QColor pictureSlate(20, 30, 40);

/// Whether the pictures differ nowhere by more than the rounding of antialiased edges.
bool isSamePicture(const QImage& one, const QImage& other) {
    if (one.size() != other.size()) return false;
    // As they are on the screen: the colour of a pixel that is nearly transparent is anything.
    const auto opaque = [](const QImage& picture) {
        QImage onBlack(picture.size(), QImage::Format_RGB32);
        onBlack.fill(Qt::black);
        QPainter(&onBlack).drawImage(0, 0, picture);
        return onBlack;
    };
    const QImage first = opaque(one);
    const QImage second = opaque(other);
    for (int y = 0; y < first.height(); ++y)
        for (int x = 0; x < first.width(); ++x)
            if (!alike(first.pixelColor(x, y), second.pixelColor(x, y), 8)) return false;
    return true;
}

QImage paintedFromRight(QQuickPaintedItem& item, QSize size) {
    const fakes::RightToLeft direction;
    return painted(item, size);
}

void expectMirrored(QQuickPaintedItem& item, QSize size) {
    const QImage fromLeft = painted(item, size);
    const QImage fromRight = paintedFromRight(item, size);
    EXPECT_FALSE(isSamePicture(fromRight, fromLeft)) << "it tells no side from the other";
    EXPECT_TRUE(isSamePicture(fromRight, fromLeft.mirrored(true, false)));
}

void expectTheSame(QQuickPaintedItem& item, QSize size) {
    const QImage fromLeft = painted(item, size);
    EXPECT_TRUE(isSamePicture(paintedFromRight(item, size), fromLeft));
    EXPECT_FALSE(isSamePicture(fromLeft.mirrored(true, false), fromLeft)) << "it could as well be mirrored";
}

}  // namespace

TEST(MirroredPictures, ribbonBeginsAtTheRight) {
    RibbonPicture ribbon;
    ribbon.setProperty("segments",
                       QVariant::fromValue(QList<RibbonSegment>{{QStringLiteral("Movies"), 300, {}, pictureAmber},
                                                                {QStringLiteral("Music"), 100, {}, Qt::white}}));
    ribbon.setProperty("freeBytes", 200.0);
    ribbon.setProperty("freeColor", pictureSlate);
    expectMirrored(ribbon, {400, 22});
    const QImage bar = paintedFromRight(ribbon, {400, 22});
    EXPECT_EQ(bar.pixelColor(390, 11), pictureAmber);
    EXPECT_EQ(bar.pixelColor(10, 11), pictureSlate) << "what is free is at the end";
}

TEST(MirroredPictures, progressBeginsAtTheRight) {
    ProgressPicture bar;
    bar.setProperty("track", pictureSlate);
    bar.setProperty("color", pictureAmber);
    bar.setProperty("part", 0.25);
    expectMirrored(bar, {200, 6});
    EXPECT_EQ(paintedFromRight(bar, {200, 6}).pixelColor(60, 3), pictureSlate);
}

TEST(MirroredPictures, movingSegmentGoesToTheLeft) {
    ProgressPicture bar;
    bar.setProperty("track", pictureSlate);
    bar.setProperty("color", pictureAmber);
    bar.setProperty("seconds", 0.5);
    expectMirrored(bar, {200, 6});
}

TEST(MirroredPictures, gaugeFillsCounterclockwise) {
    RingPicture ring;
    ring.setStill(true);
    ring.setProperty("track", pictureSlate);
    ring.setProperty("color", pictureAmber);
    ring.setValue(0.25);
    expectMirrored(ring, {108, 108});
    EXPECT_EQ(paintedFromRight(ring, {108, 108}).pixelColor(5, 50), pictureAmber) << "at nine o'clock";
}

TEST(MirroredPictures, latestValueOfSparklineIsAtTheLeft) {
    SparklinePicture curve;
    curve.setProperty("values", QVariant::fromValue(QList<qreal>{10, 20, 90}));
    curve.setProperty("color", pictureAmber);
    expectMirrored(curve, {200, 44});
    EXPECT_GT(paintedFromRight(curve, {200, 44}).pixelColor(2, 3).alpha(), 128) << "the highest";
}

TEST(MirroredPictures, whatTurnsAndWhatShinesStays) {
    SpinnerPicture spinner;
    spinner.setProperty("color", pictureAmber);
    spinner.setProperty("turn", 0.2);
    expectTheSame(spinner, {36, 36});
    AccentFill fill;
    fill.setProperty("corner", 4.0);
    expectTheSame(fill, {120, 30});
}

TEST(MirroredPictures, symbolsThatPointAlongTheTextAreMirrored) {
    int directed = 0;
    for (QDirIterator files(QStringLiteral(":/Zelk/Controls/symbols"), {QStringLiteral("*.svg")}); files.hasNext();) {
        const QString name = QFileInfo(files.next()).completeBaseName();
        SymbolItem symbol;
        symbol.setProperty("name", name);
        symbol.setProperty("color", pictureAmber);
        symbol.setProperty("size", 48);
        const QImage fromLeft = painted(symbol, {48, 48});
        const QImage fromRight = paintedFromRight(symbol, {48, 48});
        directed += isDirectedSymbol(name) ? 1 : 0;
        EXPECT_EQ(fromRight, isDirectedSymbol(name) ? fromLeft.mirrored(true, false) : fromLeft) << name.toStdString();
        if (isDirectedSymbol(name)) {
            EXPECT_NE(fromRight, fromLeft) << name.toStdString() << " looks the same either way";
        }
    }
    EXPECT_EQ(directed, 9);
}

TEST(MirroredPictures, everythingThatPointsForwardOrBackIsMirrored) {
    for (const char* name : {"chevron.left", "chevron.right", "arrow.right.circle.fill", "arrow.up.right",
                             "arrow.down.right", "sidebar.left", "list.star", "doc.text", "heart.text.square"})
        EXPECT_TRUE(isDirectedSymbol(QString::fromLatin1(name))) << name;
    for (const char* name : {"arrow.clockwise", "arrow.counterclockwise", "clock.arrow.circlepath", "checkmark",
                             "magnifyingglass", "terminal", "questionmark.circle", "speedometer", "chevron.down", ""})
        EXPECT_FALSE(isDirectedSymbol(QString::fromLatin1(name))) << name;
}

TEST(MirroredPictures, numberStandsBeforeItsWordsFromTheRight) {
    const fakes::RightToLeft direction;
    const QFont font = QGuiApplication::font();
    const std::vector<FigurePiece> pieces = layOutFigure(byteFigure(1'500'000'000) + QStringLiteral(" פנויים"), font);
    ASSERT_EQ(pieces.size(), 5U);
    EXPECT_EQ(pieces[0].text, QStringLiteral(" פנויים")) << "the words are at the left";
    EXPECT_TRUE(pieces[0].fromRight);
    const char* figure[] = {"1", ".", "5", " GB"};
    for (std::size_t at = 0; at < 4; ++at) {
        EXPECT_EQ(pieces[at + 1].text, QLatin1String(figure[at])) << "and the figure still runs from left to right";
        EXPECT_FALSE(pieces[at + 1].fromRight);
        EXPECT_DOUBLE_EQ(pieces[at + 1].x, pieces[at].x + pieces[at].width);
    }
}

TEST(MirroredPictures, figuresFollowEachOtherFromTheRight) {
    const fakes::RightToLeft direction;
    const std::vector<FigurePiece> pieces =
        layOutFigure(isolated(QStringLiteral("7 GB")) + QStringLiteral("  ") + isolated(QStringLiteral("+2 GB")),
                     QGuiApplication::font());
    QString shown;
    for (const FigurePiece& piece : pieces) shown += piece.text;
    EXPECT_EQ(shown, QStringLiteral("+2 GB  7 GB"));
}

TEST(MirroredPictures, marksAroundNumbersTakeNoSpace) {
    const QFont font = QGuiApplication::font();
    const auto widthOf = [&](const QString& text) {
        const std::vector<FigurePiece> pieces = layOutFigure(text, font);
        return pieces.back().x + pieces.back().width;
    };
    const double plain = widthOf(QStringLiteral("12.5 GB"));
    const fakes::RightToLeft direction;
    EXPECT_DOUBLE_EQ(widthOf(byteFigure(12'500'000'000)), plain);
    EXPECT_DOUBLE_EQ(widthOf(NumberItem::write(62, NumberItem::Percent)), widthOf(isolated(QStringLiteral("62%"))));
}

}  // namespace zelk

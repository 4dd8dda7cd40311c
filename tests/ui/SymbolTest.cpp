// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <algorithm>
#include <cmath>
#include <vector>

#include "QtMessages.h"
#include "ViewFixture.h"
#include "ui/shell/Application.h"
#include "ui/theme/SymbolItem.h"

namespace zelk {

namespace {

class TextSymbol : public ViewFixture {};

/// The names of all symbols in the resources.
std::vector<QString> drawnSymbols() {
    std::vector<QString> names;
    for (QDirIterator files(QStringLiteral(":/Zelk/Controls/symbols"), {QStringLiteral("*.svg")}); files.hasNext();) {
        names.push_back(QFileInfo(files.next()).completeBaseName());
    }
    EXPECT_GE(names.size(), 60u);
    return names;
}

/// The bounding rectangle of all pixels that are not fully transparent.
QRect inkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0) ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

int covered(const QImage& image) {
    int sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) sum += qAlpha(image.pixel(x, y));
    }
    return sum;
}

}  // namespace

TEST(Symbols, shareOneGridAndOneStrokeWidth) {
    for (const QString& name : drawnSymbols()) {
        QFile file(symbolFile(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        EXPECT_TRUE(text.contains("viewBox=\"0 0 24 24\"")) << name.toStdString();
        const bool filled = name.endsWith(QStringLiteral(".fill"));
        EXPECT_EQ(text.count("stroke-width"), filled ? 0 : 1) << name.toStdString();
        EXPECT_EQ(text.count("stroke-width=\"1.75\""), filled ? 0 : 1) << name.toStdString();
        EXPECT_EQ(text.contains("stroke=\"#000\""), !filled) << name.toStdString();
    }
}

TEST(Symbols, fillTheirGridWithoutTouchingTheEdge) {
    constexpr int kScale = 20;
    const QRect inside(kScale, kScale, 22 * kScale, 22 * kScale);
    for (const QString& name : drawnSymbols()) {
        const QImage image = tintedSymbol(name, Qt::black, 24 * kScale);
        const QRect ink = inkOf(image);
        EXPECT_GE(std::max(ink.width(), ink.height()), 12 * kScale) << name.toStdString() << " is blank or small";
        EXPECT_TRUE(inside.contains(ink)) << name.toStdString() << " reaches the edge";
        const QPointF off = QRectF(ink).center() - QRectF(image.rect()).center();
        EXPECT_LE(std::max(std::abs(off.x()), std::abs(off.y())), 1.5 * kScale)
            << name.toStdString() << " is not in the middle";
    }
}

TEST(Symbols, filledVariantsAreHeavier) {
    int pairs = 0;
    const std::vector<QString> names = drawnSymbols();
    for (const QString& name : names) {
        const QString filled = name + QStringLiteral(".fill");
        if (std::find(names.begin(), names.end(), filled) == names.end()) continue;
        ++pairs;
        EXPECT_GT(covered(tintedSymbol(filled, Qt::black, 96)), covered(tintedSymbol(name, Qt::black, 96)))
            << name.toStdString();
    }
    EXPECT_GE(pairs, 6);
}

TEST(Symbols, areCached) {
    const QString name = QStringLiteral("gearshape");
    const QImage first = tintedSymbol(name, Qt::red, 33);
    EXPECT_EQ(tintedSymbol(name, Qt::red, 33).cacheKey(), first.cacheKey());
    EXPECT_NE(tintedSymbol(name, Qt::blue, 33).pixelColor(3, 16), Qt::red);
    EXPECT_NE(tintedSymbol(name, Qt::blue, 33).cacheKey(), first.cacheKey());
    EXPECT_EQ(tintedSymbol(name, Qt::red, 34).width(), 34);
    EXPECT_NE(tintedSymbol(QStringLiteral("scope"), Qt::red, 33), first);
}

TEST(Symbols, keepOpacityOfTheTint) {
    const QImage image = tintedSymbol(QStringLiteral("app"), QColor(0, 0, 255, 128), 48);
    int most = 0;
    for (int x = 0; x < image.width(); ++x) most = std::max(most, image.pixelColor(x, 24).alpha());
    EXPECT_EQ(most, 128);
}

TEST(Symbols, areTintedCompletely) {
    const QImage image = tintedSymbol(QStringLiteral("scope"), QColor(10, 200, 30), 48);
    int covered = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() != 255) continue;
            ++covered;
            EXPECT_EQ(color, QColor(10, 200, 30));
        }
    }
    EXPECT_GT(covered, 50);
}

TEST(Symbols, areNullForUnknownNames) {
    EXPECT_TRUE(tintedSymbol(QStringLiteral("no.such.symbol"), Qt::red, 24).isNull());
    const QStringList messages = tour::takeQtMessages();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages[0].contains(QStringLiteral("no.such.symbol.svg")));
    EXPECT_TRUE(tintedSymbol(QStringLiteral("scope"), Qt::red, 0).isNull());
}

TEST_F(TextSymbol, matchesSizeOfTheTextBesideIt) {
    show(QStringLiteral("import QtQuick\nimport Zelk.Controls\n"
                        "Item { TextSymbol { objectName: 'symbol'; name: 'scope'; color: 'black'; points: 14 } }"),
         {40, 40});
    EXPECT_EQ(find("symbol")->implicitWidth(), 17);
    singleton<TextScale>("TextScale").setFactor(1.5);
    EXPECT_EQ(find("symbol")->implicitWidth(), 25);
    double most = 0;
    for (const char* name : {"scope", "sparkles", "gearshape", "tray.full", "internaldrive"}) {
        const QRect ink = inkOf(tintedSymbol(QString::fromLatin1(name), Qt::black, 10 * 17));
        most = std::max<double>(most, std::max(ink.width(), ink.height()));
    }
    EXPECT_NEAR(most, 10 * 14, 20);
}

TEST(ApplicationIcon, hasRoundCornersAndAccentBackground) {
    const QImage icon = applicationIcon().pixmap(256, 256).toImage();
    ASSERT_FALSE(icon.isNull());
    EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0) << "round corner";
    const QColor top = icon.pixelColor(icon.width() / 2, icon.height() / 16);
    EXPECT_GT(top.red(), 200);
    EXPECT_LT(top.blue(), 120);
}

TEST(Application, isKnownToTheDesktopByItsEntry) {
    EXPECT_EQ(QGuiApplication::desktopFileName(), QStringLiteral("io.github.zelk.Zelk"));
}

TEST(Symbols, haveHeavierLinesWhereTheTextHas) {
    const QString arrow = QStringLiteral("arrow.up.right");
    const QImage normal = tintedSymbol(arrow, Qt::black, 96);
    const QImage medium = tintedSymbol(arrow, Qt::black, 96, QFont::Medium);
    const QImage bold = tintedSymbol(arrow, Qt::black, 96, QFont::Bold);
    EXPECT_EQ(tintedSymbol(arrow, Qt::black, 96, QFont::Normal), normal);
    EXPECT_GT(covered(medium), 1.1 * covered(normal));
    EXPECT_GT(covered(bold), 1.1 * covered(medium));
    EXPECT_NEAR(covered(bold), covered(normal) * 2.75 / 1.75, 0.06 * covered(bold));
    const QString filled = QStringLiteral("folder.fill");
    EXPECT_EQ(tintedSymbol(filled, Qt::black, 96, QFont::Bold), tintedSymbol(filled, Qt::black, 96));
}

TEST(Symbols, areReadFromTheirDrawingsWhateverTheWeight) {
    for (const QString& name : drawnSymbols())
        for (const int weight : {QFont::Normal, QFont::Medium, QFont::Bold})
            EXPECT_GT(covered(tintedSymbol(name, Qt::black, 24, weight)), 0) << name.toStdString() << " " << weight;
}

}  // namespace zelk

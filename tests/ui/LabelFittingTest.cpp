// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleDrawing.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <functional>
#include <random>
#include <vector>

namespace zelk {

namespace {

/// A monospaced font in which a UTF-16 unit is 1 wide.
double units(const QString& text) {
    return static_cast<double>(text.size());
}

QString fitted(const QString& label, double room) {
    return fittedLabel(label, room, 1, units);
}

/// Tries every prefix, from the longest down.
QString fittedByLinearSearch(const QString& label, double room, const std::function<double(const QString&)>& widthOf) {
    if (label.isEmpty() || widthOf(label) <= room) return label;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, label);
    finder.toEnd();
    for (auto at = finder.toPreviousBoundary(); at > 0; at = finder.toPreviousBoundary())
        if (QString text = label.left(at) + QStringLiteral("…"); widthOf(text) <= room) return text;
    return {};
}

}  // namespace

TEST(LabelFitting, keepsLabelThatFits) {
    EXPECT_EQ(fitted(QStringLiteral("Caches"), 6), QStringLiteral("Caches"));
    EXPECT_EQ(fitted(QStringLiteral("Caches"), 100), QStringLiteral("Caches"));
}

TEST(LabelFitting, elidesWithinRoom) {
    EXPECT_EQ(fitted(QStringLiteral("Caches"), 5.9), QStringLiteral("Cach…"));
    EXPECT_EQ(fitted(QStringLiteral("Caches"), 5), QStringLiteral("Cach…"));
    EXPECT_EQ(fitted(QStringLiteral("Caches"), 2), QStringLiteral("C…"));
}

TEST(LabelFitting, keepsEmptyLabel) {
    EXPECT_EQ(fitted({}, 5), QString());
    EXPECT_EQ(fitted({}, -5), QString());
}

TEST(LabelFitting, oneCharacterIsNotElided) {
    EXPECT_EQ(fitted(QStringLiteral("C"), 1), QStringLiteral("C"));
    EXPECT_EQ(fitted(QStringLiteral("C"), 0.5), QString());
}

TEST(LabelFitting, isEmptyWithoutRoomForOneCharacter) {
    EXPECT_EQ(fitted(QStringLiteral("Caches"), 1.5), QString());
}

TEST(LabelFitting, doesNotSplitGraphemeClusters) {
    const QString accent = QStringLiteral("e\u0301");             // two UTF-16 units
    const QString family = QStringLiteral("👨‍👩‍👧");  // eight UTF-16 units
    EXPECT_EQ(fitted(accent + accent + accent, 4), accent + QStringLiteral("…"));
    EXPECT_EQ(fitted(family + family, 9), family + QStringLiteral("…"));
    EXPECT_EQ(fitted(family + family, 8), QString());
}

TEST(LabelFitting, measuresLongLabelAFewTimes) {
    int measured = 0;
    qsizetype mostUnits = 0;
    const QString label(200, u'n');
    const QString text = fittedLabel(label, 20, 1, [&](const QString& part) {
        ++measured;
        mostUnits = std::max(mostUnits, part.size());
        return units(part);
    });
    EXPECT_EQ(text, QString(19, u'n') + QStringLiteral("…"));
    EXPECT_LE(measured, 14);
    EXPECT_LE(mostUnits, 48);
}

TEST(LabelFitting, matchesLinearSearchWithRealFont) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(13);
    const QFontMetricsF metrics(font);
    const auto widthOf = [&](const QString& text) { return metrics.horizontalAdvance(text); };
    // Ligatures, joining letters, accents, emoji, wide and narrow characters.
    const std::vector<QString> letters{QStringLiteral("i"), QStringLiteral("W"),     QStringLiteral("A"),
                                       QStringLiteral("V"), QStringLiteral("T"),     QStringLiteral("ل"),
                                       QStringLiteral("ا"), QStringLiteral("م"),     QStringLiteral("e\u0301"),
                                       QStringLiteral("ﬁ"), QStringLiteral("日"),    QStringLiteral("🙂"),
                                       QStringLiteral(" "), QStringLiteral("\u200b")};
    std::mt19937 random(5);
    for (int round = 0; round < 400; ++round) {
        QString label;
        for (auto count = random() % 40; count > 0; --count) label += letters[random() % letters.size()];
        const double room = static_cast<double>(random() % 2000) / 10;
        EXPECT_EQ(fittedLabel(label, room, 13, widthOf), fittedByLinearSearch(label, room, widthOf))
            << label.toStdString();
    }
}

}  // namespace zelk

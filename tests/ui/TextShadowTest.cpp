// SPDX-License-Identifier: MIT
#include "ui/controls/TextShadow.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include "Readable.h"
#include "ui/controls/SoftShadow.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

const QString shadowedText = QStringLiteral("Review and Remove");

QFont shadowFont(int size) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(size);
    font.setWeight(QFont::Medium);
    return font;
}

/// One opaque pixel in the middle of nothing.
QImage dotMask() {
    QImage mask(21, 21, QImage::Format_Alpha8);
    mask.fill(0);
    mask.scanLine(10)[10] = 255;
    return mask;
}

int sumOfMask(const QImage& mask) {
    int sum = 0;
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x) sum += mask.constScanLine(y)[x];
    return sum;
}

}  // namespace

TEST(SoftBlur, spreadsAlikeInAllDirections) {
    QImage mask(21, 21, QImage::Format_Alpha8);
    mask.fill(0);
    for (int y = 6; y <= 14; ++y) std::fill_n(mask.scanLine(y) + 6, 9, uchar{255});
    const int before = sumOfMask(mask);
    blurMask(mask, 1);
    EXPECT_NEAR(sumOfMask(mask), before, before / 50) << "nothing is lost or won";
    for (int away = 0; away <= 10; ++away) {
        const int right = mask.constScanLine(10)[10 + away];
        EXPECT_EQ(mask.constScanLine(10)[10 - away], right);
        EXPECT_EQ(mask.constScanLine(10 + away)[10], right);
        EXPECT_EQ(mask.constScanLine(10 - away)[10], right);
        if (away > 0) {
            EXPECT_LE(right, mask.constScanLine(10)[9 + away]);
        }
    }
    EXPECT_EQ(mask.constScanLine(10)[10], 255);
    EXPECT_GT(mask.constScanLine(10)[16], 0);
    EXPECT_EQ(mask.constScanLine(10)[18], 0) << "three passes of one pixel reach no further";
}

TEST(SoftBlur, ofNoRadiusChangesNothing) {
    QImage mask = dotMask();
    blurMask(mask, 0);
    EXPECT_EQ(mask, dotMask());
}

TEST(SoftBlur, becomesBlackOfAStrength) {
    QImage mask = dotMask();
    mask.scanLine(10)[11] = 100;
    EXPECT_EQ(blackOf(mask, 0.6).pixelColor(10, 10), QColor(0, 0, 0, 153));
    EXPECT_EQ(blackOf(mask, 0.6).pixelColor(11, 10), QColor(0, 0, 0, 60));
    EXPECT_EQ(blackOf(mask, 0.6, 2).pixelColor(11, 10), QColor(0, 0, 0, 120));
    EXPECT_EQ(blackOf(mask, 0.6, 9).pixelColor(11, 10), QColor(0, 0, 0, 153)) << "never more than the strength";
    EXPECT_EQ(blackOf(mask, 0.6).pixelColor(0, 0).alpha(), 0);
}

TEST(TextShadow, setsWhiteOffFromTheBrightestOfTheAccent) {
    for (const int size : {9, 13, 15}) {
        constexpr double scale = 2;
        const QFont font = shadowFont(size);
        const QImage shadow = textShadow(shadowedText, font, scale);
        QImage image(shadow.size(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(AccentGradient::from());
        QPainter painter(&image);
        painter.drawImage(QPointF(), shadow);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(QPointF(textShadowReach, textShadowReach + QFontMetricsF(font).ascent()), shadowedText);
        painter.end();
        const WhiteStrokes strokes = whiteStrokes(image, image.rect(), 3);
        EXPECT_GT(strokes.pixels, 40) << size;
        EXPECT_EQ(strokes.unreadable, 0) << size;
    }
}

TEST(TextShadow, isSoftAndEndsWithinItsReach) {
    const QImage shadow = textShadow(shadowedText, shadowFont(13), 2);
    int shades = 0;
    int most = 0;
    std::vector<bool> seen(256, false);
    for (int y = 0; y < shadow.height(); ++y)
        for (int x = 0; x < shadow.width(); ++x) {
            const int alpha = qAlpha(shadow.pixel(x, y));
            const bool edge = x == 0 || y == 0 || x == shadow.width() - 1 || y == shadow.height() - 1;
            if (edge) {
                EXPECT_EQ(alpha, 0) << x << " " << y;
            }
            if (!seen[static_cast<std::size_t>(alpha)]) ++shades;
            seen[static_cast<std::size_t>(alpha)] = true;
            most = std::max(most, alpha);
        }
    EXPECT_GT(shades, 50);
    EXPECT_LT(most, 200) << "what lies below is still seen";
}

TEST(TextShadow, ofNothingIsNothing) {
    EXPECT_TRUE(textShadow(QString(), shadowFont(13), 2).isNull());
}

}  // namespace zelk

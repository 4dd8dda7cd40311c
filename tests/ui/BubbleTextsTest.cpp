// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleDrawing.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

namespace zelk {

namespace {

QImage written(BubbleTexts& texts, const QString& text, BubbleFont kind = BubbleFont::label, double scale = 1) {
    QImage image(200, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    texts.write(painter, {60, 20}, text, kind, 20, Qt::red);
    return image;
}

class SystemFont : public testing::Test {
protected:
    ~SystemFont() override { QGuiApplication::setFont(before_); }

private:
    QFont before_ = QGuiApplication::font();
};

}  // namespace

TEST(BubbleTexts, roundsFontToWholePixels) {
    BubbleTexts texts;
    QFont font = QGuiApplication::font();
    font.setPixelSize(20);
    font.setWeight(QFont::DemiBold);
    const QString text = QStringLiteral("Library");
    EXPECT_EQ(texts.width(text, BubbleFont::label, 20), QFontMetricsF(font).horizontalAdvance(text));
    EXPECT_EQ(texts.width(text, BubbleFont::label, 20.4), texts.width(text, BubbleFont::label, 20));
    EXPECT_GT(texts.width(text, BubbleFont::label, 20.6), texts.width(text, BubbleFont::label, 20));
    EXPECT_GT(texts.width(text, BubbleFont::label, 0.2), 0);
}

TEST(BubbleTexts, cachedTextMatchesFreshText) {
    BubbleTexts kept;
    for (const double scale : {1.0, 1.5, 2.0, 1.0}) {
        for (const char* text : {"Library", "<b>Library</b>", "木", ""}) {
            BubbleTexts fresh;
            const QString line = QString::fromUtf8(text);
            EXPECT_EQ(written(kept, line, BubbleFont::label, scale), written(fresh, line, BubbleFont::label, scale))
                << text;
            EXPECT_EQ(written(kept, line, BubbleFont::label, scale), written(fresh, line, BubbleFont::label, scale))
                << text;
        }
    }
}

TEST(BubbleTexts, treatsTextAsPlain) {
    BubbleTexts texts;
    EXPECT_NE(written(texts, QStringLiteral("<b>A</b>")), written(texts, QStringLiteral("A")));
}

TEST(BubbleTexts, distinguishesFontWeights) {
    BubbleTexts texts;
    const QString text = QStringLiteral("Library");
    EXPECT_NE(written(texts, text), written(texts, text, BubbleFont::size));
}

TEST_F(SystemFont, changeUpdatesBubbleTexts) {
    BubbleTexts texts;
    const QString text = QStringLiteral("Library");
    const QImage before = written(texts, text);
    const double width = texts.width(text, BubbleFont::label, 20);
    QFont other = QGuiApplication::font();
    other.setStretch(150);
    QGuiApplication::setFont(other);
    EXPECT_GT(texts.width(text, BubbleFont::label, 20), 1.2 * width);
    EXPECT_NE(written(texts, text), before);
}

TEST(BubbleTexts, theShadowIsThatOfTheTextAtTheScaleInUse) {
    BubbleTexts kept;
    const auto shaded = [](BubbleTexts& texts, const QString& text, double scale) {
        QImage image(300, 120, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.scale(scale, scale);
        texts.shade(painter, {60, 20}, text, BubbleFont::label, 20);
        return image;
    };
    for (const double scale : {1.0, 2.0, 1.0})
        for (const char* text : {"Library", "木"}) {
            BubbleTexts fresh;
            const QString line = QString::fromUtf8(text);
            EXPECT_EQ(shaded(kept, line, scale), shaded(fresh, line, scale)) << text;
        }
    EXPECT_NE(shaded(kept, QStringLiteral("Library"), 1), shaded(kept, QStringLiteral("Logs"), 1));
    EXPECT_GT(qAlpha(shaded(kept, QStringLiteral("HHHH"), 2).pixel(120, 40)), 60) << "its middle is the text's";
}

}  // namespace zelk

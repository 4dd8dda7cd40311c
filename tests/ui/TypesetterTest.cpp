// SPDX-License-Identifier: MIT
#include "ui/controls/Typesetter.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

namespace zelk {

namespace {

constexpr Lettering semibold20{20, Lettering::Weight::semibold, false};

QImage written(Typesetter& typesetter, const QString& text, const Lettering& lettering, double scale = 1) {
    QImage image(200, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    typesetter.write(painter, {60, 20}, text, lettering, Qt::red);
    return image;
}

class SystemFont : public testing::Test {
protected:
    ~SystemFont() override { QGuiApplication::setFont(before_); }

private:
    QFont before_ = QGuiApplication::font();
};

}  // namespace

TEST(Typesetter, measuresInWholeSizes) {
    Typesetter typesetter;
    QFont font = QGuiApplication::font();
    font.setPixelSize(20);
    font.setWeight(QFont::DemiBold);
    const QString text = QStringLiteral("Library");
    EXPECT_EQ(typesetter.width(text, semibold20), QFontMetricsF(font).horizontalAdvance(text));
    EXPECT_EQ(typesetter.width(text, {20.4, Lettering::Weight::semibold, false}), typesetter.width(text, semibold20));
    EXPECT_GT(typesetter.width(text, {20.6, Lettering::Weight::semibold, false}), typesetter.width(text, semibold20));
    EXPECT_GT(typesetter.width(text, {0.2, Lettering::Weight::semibold, false}), 0);
}

TEST(Typesetter, whatWasWrittenBeforeIsWrittenTheSame) {
    Typesetter kept;
    for (const double scale : {1.0, 1.5, 2.0, 1.0}) {
        for (const char* text : {"Library", "<b>Library</b>", "木", ""}) {
            Typesetter fresh;
            const QString line = QString::fromUtf8(text);
            EXPECT_EQ(written(kept, line, semibold20, scale), written(fresh, line, semibold20, scale)) << text;
            EXPECT_EQ(written(kept, line, semibold20, scale), written(fresh, line, semibold20, scale)) << text;
        }
    }
}

TEST(Typesetter, aTextIsNotMarkup) {
    Typesetter typesetter;
    EXPECT_NE(written(typesetter, QStringLiteral("<b>A</b>"), semibold20),
              written(typesetter, QStringLiteral("A"), semibold20));
}

TEST(Typesetter, theWeightsAreToldApart) {
    Typesetter typesetter;
    const QString text = QStringLiteral("Library");
    EXPECT_NE(written(typesetter, text, semibold20), written(typesetter, text, {20, Lettering::Weight::medium, false}));
}

TEST_F(SystemFont, thatChangesIsFollowed) {
    Typesetter typesetter;
    const QString text = QStringLiteral("Library");
    const QImage before = written(typesetter, text, semibold20);
    const double width = typesetter.width(text, semibold20);
    QFont other = QGuiApplication::font();
    other.setStretch(150);
    QGuiApplication::setFont(other);
    EXPECT_GT(typesetter.width(text, semibold20), 1.2 * width);
    EXPECT_NE(written(typesetter, text, semibold20), before);
}

}  // namespace zelk

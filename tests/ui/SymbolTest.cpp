// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>

#include "ui/components/ScanFace.h"
#include "ui/shell/Application.h"
#include "ui/survey/FeatureList.h"
#include "ui/symbols/SymbolItem.h"

namespace zelk {

namespace {

std::vector<QString> symbolsInUse() {
    std::vector<QString> names{ScanFace::idle().symbol, QStringLiteral("internaldrive")};
    for (const FeatureList::Feature& feature : FeatureList::features()) names.push_back(feature.symbol);
    return names;
}

}  // namespace

TEST(Symbols, existForAllThatIsShown) {
    for (const QString& name : symbolsInUse())
        EXPECT_FALSE(tintedSymbol(name, Qt::red, 24).isNull()) << name.toStdString();
}

TEST(Symbols, shareOneGridAndOneStrokeWidth) {
    int found = 0;
    for (QDirIterator files(QStringLiteral(":/Zelk/Symbols"), {QStringLiteral("*.svg")}); files.hasNext(); ++found) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        EXPECT_TRUE(text.contains("viewBox=\"0 0 24 24\"")) << file.fileName().toStdString();
        EXPECT_EQ(text.count("stroke-width"), 1) << file.fileName().toStdString();
        EXPECT_TRUE(text.contains("stroke-width=\"1.75\"")) << file.fileName().toStdString();
    }
    EXPECT_GE(found, 6);
}

TEST(Symbols, areTintedAllOver) {
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

TEST(Symbols, ofAnUnknownNameAreNothing) {
    EXPECT_TRUE(tintedSymbol(QStringLiteral("no.such.symbol"), Qt::red, 24).isNull());
    EXPECT_TRUE(tintedSymbol(QStringLiteral("scope"), Qt::red, 0).isNull());
}

TEST(ApplicationIcon, isTheDriveOnTheAccent) {
    const QImage icon = applicationIcon().pixmap(256, 256).toImage();
    ASSERT_FALSE(icon.isNull());
    EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0) << "the corner is round";
    const QColor top = icon.pixelColor(icon.width() / 2, icon.height() / 16);
    EXPECT_GT(top.red(), 200);
    EXPECT_LT(top.blue(), 120);
}

}  // namespace zelk

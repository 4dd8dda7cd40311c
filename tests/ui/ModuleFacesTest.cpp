// SPDX-License-Identifier: MIT
// The views that all modules share, and their sidebar rows: sizes, colours and positions.
#include "ViewFixture.h"
#include "ui/screens/module/ModuleScreenModel.h"

namespace zelk {

namespace {

class ModuleFaces : public ViewFixture {
protected:
    ModuleFaces() {
        texts.title = QStringLiteral("Lens");
        texts.subtitle = QStringLiteral("Explore where your space went.");
        texts.scanLabel = QStringLiteral("Run survey");
        texts.scanningLabel = QStringLiteral("Surveying your drive…");
    }
    ~ModuleFaces() override { close(); }

    QColor colorOf(const char* text) { return showing(text)->property("color").value<QColor>(); }
    double middleOf(const QQuickItem* item) { return item->mapToScene(item->boundingRect().center()).x(); }
    Theme& theme() { return singleton<Theme>("Theme"); }

    ModuleTexts texts;
    const QColor pink{232, 91, 196};
};

}  // namespace

TEST_F(ModuleFaces, heroStacksOrbTitleSubtitleAndButton) {
    texts.subtitle = QString(20, u'w') + QString(QStringLiteral(" wide")).repeated(40);
    ModuleScreenModel module(Screen::lens, texts);
    show(QStringLiteral("Zelk.App"), QStringLiteral("ModuleHero"), "module", &module, {900, 700});
    const std::string subtitle = texts.subtitle.toStdString();
    EXPECT_EQ(sizeOf("Lens"), 30);
    EXPECT_EQ(sizeOf(subtitle.c_str()), 14);
    EXPECT_EQ(showing(subtitle.c_str())->width(), 420);
    EXPECT_EQ(showing(subtitle.c_str())->property("horizontalAlignment").toInt(), static_cast<int>(Qt::AlignHCenter));
    const SymbolItem* sign = symbol("circle.hexagongrid");
    ASSERT_NE(sign, nullptr);
    EXPECT_EQ(sign->size(), 42);
    EXPECT_EQ(sign->color(), QColor(Qt::white));
    EXPECT_EQ(sign->parentItem()->size(), QSizeF(150, 150));

    const QQuickItem* button = find("moduleScanButton");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(sizeOf("Run survey"), 13);
    const auto* content = button->property("contentItem").value<QQuickItem*>();
    EXPECT_EQ(button->width(), content->implicitWidth() + 2 * 28);
    EXPECT_EQ(button->height(), content->implicitHeight() + 2 * 15);
    double above = sign->mapToScene({}).y();
    for (const QQuickItem* item : {showing("Lens"), showing(subtitle.c_str()), find("moduleScanButton")}) {
        EXPECT_GT(item->mapToScene({}).y(), above);
        EXPECT_NEAR(middleOf(item), 450, 1);
        above = item->mapToScene({}).y();
    }
    close();
}

TEST_F(ModuleFaces, scanningShowsOrbAboveLabelAndDetail) {
    ModuleScreenModel module(Screen::lens, texts);
    module.setPhase(ModulePhase::scanning);
    module.setScanDetail(QStringLiteral("12 items · 3 MB"));
    show(QStringLiteral("Zelk.App"), QStringLiteral("ModuleScaffold"), "module", &module, {900, 700});
    EXPECT_EQ(sizeOf("Surveying your drive…"), 15);
    EXPECT_EQ(sizeOf("12 items · 3 MB"), 12);
    EXPECT_EQ(colorOf("12 items · 3 MB"), theme().inkSoft());
    ASSERT_NE(symbol("circle.hexagongrid"), nullptr);
    EXPECT_LT(symbol("circle.hexagongrid")->mapToScene({}).y(), showing("Surveying your drive…")->mapToScene({}).y());
    close();
}

TEST_F(ModuleFaces, headerPutsTileBesideTitleAndSubtitle) {
    show(
        QStringLiteral("import QtQuick\nimport Zelk.App\nItem { ModuleHeader { width: parent.width; "
                       "symbol: 'circle.hexagongrid'; tint: '#e85bc4'; title: 'Lens'; subtitle: 'visual map'; "
                       "trailing: Component { Item { objectName: 'end'; implicitWidth: 60; implicitHeight: 20 } } } }"),
        {700, 120});
    const SymbolItem* sign = symbol("circle.hexagongrid");
    ASSERT_NE(sign, nullptr);
    EXPECT_EQ(sign->size(), sideBesideText(17));
    EXPECT_EQ(sign->color(), pink);
    const QQuickItem* tile = sign->parentItem();
    EXPECT_EQ(tile->size(), QSizeF(38, 38));
    QColor soft = pink;
    soft.setAlphaF(0.16F);
    EXPECT_EQ(tile->property("color").value<QColor>(), soft);
    EXPECT_EQ(sizeOf("Lens"), 18);
    EXPECT_EQ(sizeOf("visual map"), 11);
    EXPECT_EQ(colorOf("visual map"), theme().inkSoft());
    EXPECT_GT(showing("Lens")->mapToScene({}).x(), tile->mapToScene({38, 0}).x());
    EXPECT_LT(showing("Lens")->mapToScene({}).y(), showing("visual map")->mapToScene({}).y());
    EXPECT_EQ(find("end")->mapToScene({60, 0}).x(), 700 - 26) << "a module's own item is right-aligned";
}

TEST_F(ModuleFaces, sidebarRowCollapsesToItsSymbol) {
    show(QStringLiteral("import QtQuick\nimport Zelk.App\nItem { SidebarRow { objectName: 'place'; width: 210; "
                        "index: 0; heading: 'Explore'; title: 'Lens'; symbol: 'circle.hexagongrid'; tint: '#e85bc4'; "
                        "selected: true; name: 'sidebarLens' } }"),
         {234, 120});
    const SymbolItem* sign = symbol("circle.hexagongrid");
    ASSERT_NE(sign, nullptr);
    EXPECT_EQ(sign->size(), sideBesideText(14));
    EXPECT_EQ(sign->color(), pink);
    EXPECT_EQ(sizeOf("Lens"), 14);
    EXPECT_EQ(sizeOf("Explore"), 10);
    EXPECT_EQ(colorOf("Explore"), theme().inkSoft());
    EXPECT_LT(sign->mapToScene({}).x() + sign->width(), showing("Lens")->mapToScene({}).x());

    const double before = sign->mapToScene({}).x();
    find("place")->setProperty("collapsed", true);
    settle();
    EXPECT_EQ(symbol("circle.hexagongrid")->mapToScene({}).x(), before);
    EXPECT_EQ(showing("Lens"), nullptr);
    EXPECT_EQ(showing("Explore"), nullptr);
}

TEST_F(ModuleFaces, theSymbolOfTheOrbIsMedium) {
    show(QStringLiteral("import QtQuick\nimport Zelk.App\nItem { ModuleOrb { symbol: 'circle.hexagongrid'; "
                        "tint: '#e85bc4' } }"),
         {200, 200});
    const SymbolItem* sign = symbol("circle.hexagongrid");
    ASSERT_NE(sign, nullptr);
    EXPECT_EQ(sign->weight(), QFont::Medium);
}

}  // namespace zelk

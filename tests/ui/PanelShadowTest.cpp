// SPDX-License-Identifier: MIT
// What lies over a screen is set off from it by a soft shadow.
#include "ViewFixture.h"
#include "ui/controls/SoftShadow.h"

namespace zelk {

namespace {

class PanelShadow : public ViewFixture {
protected:
    void showBoard(const char* contents, QSize size = {500, 400}) {
        model().setAppearance(AppModel::Appearance::light);
        show(QStringLiteral("import QtQuick\nimport Zelk.App\nimport Zelk.Charts\nimport Zelk.Controls\nItem { %1 }")
                 .arg(QString::fromUtf8(contents)),
             size);
    }
    /// Below the middle of the panel that is shown the picture is darker near it than far away.
    void expectShadow() {
        settle();
        const QQuickItem* shadow = find("panelShadow");
        ASSERT_NE(shadow, nullptr);
        const QQuickItem* panel = shadow->parentItem();
        const QPoint below = panel->mapToScene({panel->width() / 2, panel->height()}).toPoint();
        const QImage image = window().grabWindow();
        const int far = image.pixelColor(below.x(), image.height() - 2).red();
        EXPECT_LT(image.pixelColor(below.x(), below.y() + 2).red(), far - 12);
        EXPECT_LT(image.pixelColor(below.x(), below.y() + 6).red(), far);
    }
    void openPopup(const char* name) {
        QObject* popup = view().findChild<QObject*>(QString::fromLatin1(name));
        ASSERT_NE(popup, nullptr);
        QMetaObject::invokeMethod(popup, "open");
    }
};

int alphaAt(const QImage& image, int x, int y) {
    return qAlpha(image.pixel(x, y));
}

}  // namespace

TEST_F(PanelShadow, menusHaveOne) {
    showBoard("MenuButton { objectName: 'menu'; text: 'None'; MenuRow { text: 'All' } MenuRow { text: 'None' } }");
    click("menu");
    expectShadow();
}

TEST_F(PanelShadow, sheetsHaveOne) {
    showBoard("Sheet { objectName: 'sheet'; title: 'Sheet'; sheetWidth: 300; Item { implicitHeight: 100 } }");
    openPopup("sheet");
    expectShadow();
}

TEST_F(PanelShadow, tipsHaveOne) {
    showBoard(
        "Item { width: 40; height: 20; id: host\nHelpBubble { objectName: 'tip'; control: host; delay: 0; text: "
        "'Reads it again' } }");
    runUntil([&] { return find("panelShadow") != nullptr; });
    expectShadow();
}

TEST_F(PanelShadow, panelsBesideThePointerHaveOne) {
    showBoard("PanelGround { x: 100; y: 100; width: 200; height: 60; radius: 6; lift: 10 }");
    expectShadow();
}

TEST_F(PanelShadow, isTheSameOnBothSidesAndHasNoSeams) {
    for (const QSize size : {QSize(260, 180), QSize(261, 24), QSize(30, 30)}) {
        showBoard("PanelGround { objectName: 'panel'; x: 100; y: 100; radius: 10 }");
        find("panel")->setSize(size);
        settle();
        const QImage image = window().grabWindow();
        const int ground = image.pixelColor(2, 2).red();
        const int most = 1 + static_cast<int>(ground * 0.22);
        for (int y = 70; y < 320; ++y)
            for (int x = 70; x < 390; ++x) {
                if (QRect({99, 99}, size + QSize(2, 2)).contains(x, y)) continue;
                const int here = image.pixelColor(x, y).red();
                ASSERT_GE(here, ground - most) << x << " " << y << ": never darker than its strength";
                const int opposite = 2 * 100 + size.width() - 1 - x;
                if (opposite >= 0) {
                    ASSERT_NEAR(here, image.pixelColor(opposite, y).red(), 2) << x << " " << y;
                }
                const bool nearPanel = QRect({98, 98}, size + QSize(4, 4)).contains(x + 1, y);
                if (!nearPanel) {
                    ASSERT_NEAR(here, image.pixelColor(x + 1, y).red(), 9) << x << " " << y;
                }
            }
        const int middle = 100 + size.width() / 2;
        EXPECT_LT(image.pixelColor(middle, 100 + size.height() + 4).red(), image.pixelColor(middle, 95).red())
            << "light falls from above";
    }
}

TEST(SoftShadow, isOnePictureForPanelsOfAllLargerSizes) {
    SoftShadow shadow;
    shadow.setProperty("inset", 12);
    shadow.setProperty("corner", 8);
    shadow.setProperty("radius", 9);
    shadow.setProperty("drop", 3);
    shadow.setProperty("strength", 0.5);
    shadow.setSize({300, 200});
    const QImage picture = shadow.picture();
    EXPECT_EQ(picture.size(), QSize(65, 65)) << "two borders of 32, and what is stretched between them";
    shadow.setSize({900, 700});
    EXPECT_EQ(shadow.picture(), picture);

    EXPECT_EQ(alphaAt(picture, 32, 32), 0) << "what the panel hides is left out";
    EXPECT_EQ(alphaAt(picture, 32, 0), 0) << "it ends within the item";
    EXPECT_LE(alphaAt(picture, 32, 64), 1);
    EXPECT_NEAR(alphaAt(picture, 10, 32), 50, 16) << "a third of its strength is left beside the panel";
    EXPECT_GT(alphaAt(picture, 32, 54), alphaAt(picture, 32, 10)) << "it is lower than the panel";
    EXPECT_GT(alphaAt(picture, 32, 54), alphaAt(picture, 32, 58));
    EXPECT_LT(alphaAt(picture, 13, 13), alphaAt(picture, 32, 11)) << "its corners are round";

    shadow.setSize({40, 30});
    EXPECT_EQ(shadow.picture().size(), QSize(40, 30)) << "a panel without room for the borders has its own";
}

}  // namespace zelk

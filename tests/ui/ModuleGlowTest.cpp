// SPDX-License-Identifier: MIT
#include "ui/charts/ModuleGlow.h"

#include <array>
#include <cmath>

#include "ViewFixture.h"
#include "ui/screens/module/ModuleScreenModel.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

const QColor pinkLight(232, 91, 196);

QImage glowPicture(bool dark, QSize size, QPointF middle, double scale = 1) {
    ModuleGlow glow;
    glow.setProperty("color", pinkLight);
    glow.setProperty("ground", dark ? ZelkTheme::dark().ground : ZelkTheme::light().ground);
    glow.setProperty("dark", dark);
    glow.setProperty("middle", middle);
    glow.setSize(size);
    return glow.picture(scale);
}

/// The mean red, green and blue of a square of 8 by 8 pixels.
std::array<double, 3> meanOf(const QImage& image, QPoint corner) {
    std::array<double, 3> sums{};
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x) {
            const QColor color = image.pixelColor(corner + QPoint(x, y));
            sums[0] += color.red() / 64.0;
            sums[1] += color.green() / 64.0;
            sums[2] += color.blue() / 64.0;
        }
    return sums;
}

class HeroGlow : public ViewFixture {
protected:
    HeroGlow() {
        texts.title = QStringLiteral("Lens");
        texts.subtitle = QStringLiteral("Explore where your space went.");
        texts.scanLabel = QStringLiteral("Run survey");
    }
    ~HeroGlow() override { close(); }

    /// How far the light's middle is from that of the orb.
    double offTheOrb() {
        const QQuickItem* glow = find("moduleGlow");
        const QQuickItem* orb = symbol("circle.hexagongrid")->parentItem();
        const QPointF light = glow->mapToScene(glow->property("middle").toPointF());
        const QPointF apart = light - orb->mapToScene(orb->boundingRect().center());
        return std::hypot(apart.x(), apart.y());
    }

    ModuleTexts texts;
};

}  // namespace

TEST(ModuleGlow, fallsFromTheModulesColourToTheGroundAt520) {
    for (const bool dark : {true, false}) {
        const QColor ground = dark ? ZelkTheme::dark().ground : ZelkTheme::light().ground;
        const double full = dark ? 0.18 : 0.12;
        const QImage glow = glowPicture(dark, {1100, 8}, {540, 4});
        for (int x = 0; x < 1096; x += 8) {
            const double distance = std::abs(x + 4 - 540.0);
            if (distance < 8) continue;  // the mean distance of that square is larger
            const double share = std::max(0.0, full * (1 - distance / 520));
            const std::array<double, 3> mean = meanOf(glow, {x, 0});
            // Shades that were rounded one by one would be off by up to half of one.
            EXPECT_NEAR(mean[0], ground.red() + share * (pinkLight.red() - ground.red()), 0.2) << x;
            EXPECT_NEAR(mean[1], ground.green() + share * (pinkLight.green() - ground.green()), 0.2) << x;
            EXPECT_NEAR(mean[2], ground.blue() + share * (pinkLight.blue() - ground.blue()), 0.2) << x;
        }
        EXPECT_EQ(glow.pixelColor(1070, 3), ground) << "the ground itself is left alone";
        EXPECT_FALSE(glow.hasAlphaChannel());
    }
}

TEST(ModuleGlow, isAsSharpAsTheScreen) {
    const QImage glow = glowPicture(true, {100, 60}, {20, 30}, 2);
    EXPECT_EQ(glow.size(), QSize(200, 120));
    EXPECT_GT(meanOf(glow, {36, 56})[0], meanOf(glow, {190, 56})[0] + 5) << "its middle is in points";
}

TEST_F(HeroGlow, hasItsMiddleOnTheOrb) {
    ModuleScreenModel module(Screen::lens, texts);
    show(QStringLiteral("Zelk.App"), QStringLiteral("ModuleHero"), "module", &module, {900, 700});
    EXPECT_LT(offTheOrb(), 1);
    const QImage image = window().grabWindow();
    EXPECT_EQ(image.pixelColor(2, 2), find("moduleGlow")->property("ground").value<QColor>());
    close();
}

TEST_F(HeroGlow, goesWithTheOrbWhereThePageScrolls) {
    ModuleScreenModel module(Screen::lens, texts);
    show(QStringLiteral("Zelk.App"), QStringLiteral("ModuleHero"), "module", &module, {600, 240});
    QQuickItem* orb = symbol("circle.hexagongrid")->parentItem();
    const double before = orb->mapToScene({}).y();
    for (QQuickItem* item : seen())
        if (item->inherits("QQuickFlickable")) item->setProperty("contentY", 60);
    settle();
    EXPECT_EQ(orb->mapToScene({}).y(), before - 60);
    EXPECT_LT(offTheOrb(), 1);
    close();
}

}  // namespace zelk

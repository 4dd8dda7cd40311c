// SPDX-License-Identifier: MIT
#include "ui/theme/Theme.h"

#include <QGuiApplication>
#include <QPalette>

#include "state/AppModelFixture.h"

namespace zelk {

namespace {

QPalette paletteOf(const QColor& window, const QColor& text) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

class ThemeTest : public AppModelFixture {
protected:
    ThemeTest() {
        QObject::connect(&theme, &Theme::changed, &theme, [this] { ++changes; });
    }
    ~ThemeTest() override { QGuiApplication::setPalette(QPalette()); }

    static void setDesktop(const QColor& window, const QColor& text) {
        QGuiApplication::setPalette(paletteOf(window, text));
        QCoreApplication::processEvents();
    }

    DesktopSettings desktop;
    Theme theme{desktop};
    int changes = 0;
};

}  // namespace

TEST_F(ThemeTest, isDarkByDefault) {
    EXPECT_EQ(theme.current(), ZelkTheme::dark());
    theme.follow(model());
    EXPECT_EQ(theme.current(), ZelkTheme::dark());
    EXPECT_EQ(changes, 0);
}

TEST_F(ThemeTest, followsAppearance) {
    theme.follow(model());
    model().setAppearance(AppModel::Appearance::light);
    EXPECT_EQ(theme.current(), ZelkTheme::light());
    EXPECT_EQ(theme.ink(), ZelkTheme::light().ink);
    model().setAppearance(AppModel::Appearance::dark);
    EXPECT_EQ(theme.current(), ZelkTheme::dark());
    EXPECT_EQ(changes, 2);
}

#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)
TEST_F(ThemeTest, followsDesktopPaletteInSystemAppearance) {
    theme.follow(model());
    setDesktop(Qt::white, Qt::black);
    EXPECT_EQ(theme.current(), ZelkTheme::dark()) << "not in system appearance yet";
    model().setAppearance(AppModel::Appearance::system);
    EXPECT_EQ(theme.current(), ZelkTheme::light());
    setDesktop(Qt::black, Qt::white);
    EXPECT_EQ(theme.current(), ZelkTheme::dark());
}
#endif

TEST_F(ThemeTest, prefersDesktopSchemeToPalette) {
    const DesktopKey key{QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme")};
    theme.follow(model());
    setDesktop(Qt::white, Qt::black);
    desktop.hear(key, 2U);
    EXPECT_EQ(theme.current(), ZelkTheme::dark()) << "not in system appearance yet";
    desktop.hear(key, 1U);
    model().setAppearance(AppModel::Appearance::system);
    EXPECT_EQ(theme.current(), ZelkTheme::dark()) << "though the palette is light";
    desktop.hear(key, 2U);
    EXPECT_EQ(theme.current(), ZelkTheme::light()) << "at once";
    desktop.hear(key, 1U);
    model().setAppearance(AppModel::Appearance::light);
    EXPECT_EQ(theme.current(), ZelkTheme::light());
}

TEST(DesktopScheme, overridesPalette) {
    EXPECT_TRUE(desktopIsDark(DesktopScheme::dark, paletteOf(Qt::white, Qt::black)));
    EXPECT_FALSE(desktopIsDark(DesktopScheme::light, paletteOf(Qt::black, Qt::white)));
}

TEST(DesktopScheme, fallsBackToPalette) {
    EXPECT_TRUE(desktopIsDark(DesktopScheme::untold, paletteOf(Qt::black, Qt::white)));
    EXPECT_FALSE(desktopIsDark(DesktopScheme::untold, paletteOf(Qt::white, Qt::black)));
}

TEST_F(ThemeTest, outlivesItsModel) {
    theme.follow(model());
    model().setAppearance(AppModel::Appearance::light);
    destroyModel();
    setDesktop(Qt::black, Qt::white);
    EXPECT_EQ(theme.current(), ZelkTheme::light());
}

}  // namespace zelk

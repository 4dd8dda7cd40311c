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

class ThemeFollowing : public AppModelFixture {
protected:
    ThemeFollowing() {
        QObject::connect(&theme, &Theme::changed, &theme, [this] { ++changes; });
    }
    ~ThemeFollowing() override { QGuiApplication::setPalette(QPalette()); }

    static void setDesktop(const QColor& window, const QColor& text) {
        QGuiApplication::setPalette(paletteOf(window, text));
        QCoreApplication::processEvents();
    }

    DesktopSettings desktop;
    Theme theme{desktop};
    int changes = 0;
};

}  // namespace

TEST_F(ThemeFollowing, isDarkFromTheStart) {
    EXPECT_EQ(theme.current(), ZelkTheme::dark());
    theme.follow(model());
    EXPECT_EQ(theme.current(), ZelkTheme::dark());
    EXPECT_EQ(changes, 0);
}

TEST_F(ThemeFollowing, swapsWithTheAppearance) {
    theme.follow(model());
    model().setAppearance(AppModel::Appearance::light);
    EXPECT_EQ(theme.current(), ZelkTheme::light());
    EXPECT_EQ(theme.ink(), ZelkTheme::light().ink);
    model().setAppearance(AppModel::Appearance::dark);
    EXPECT_EQ(theme.current(), ZelkTheme::dark());
    EXPECT_EQ(changes, 2);
}

#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)
TEST_F(ThemeFollowing, followsTheDesktopsPaletteWhereItIsToldTo) {
    theme.follow(model());
    setDesktop(Qt::white, Qt::black);
    EXPECT_EQ(theme.current(), ZelkTheme::dark()) << "not told to";
    model().setAppearance(AppModel::Appearance::system);
    EXPECT_EQ(theme.current(), ZelkTheme::light());
    setDesktop(Qt::black, Qt::white);
    EXPECT_EQ(theme.current(), ZelkTheme::dark());
}
#endif

TEST_F(ThemeFollowing, believesWhatTheDesktopSaysBeforeAnyPalette) {
    const DesktopKey key{QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme")};
    theme.follow(model());
    setDesktop(Qt::white, Qt::black);
    desktop.hear(key, 2U);
    EXPECT_EQ(theme.current(), ZelkTheme::dark()) << "not told to";
    desktop.hear(key, 1U);
    model().setAppearance(AppModel::Appearance::system);
    EXPECT_EQ(theme.current(), ZelkTheme::dark()) << "though the palette is light";
    desktop.hear(key, 2U);
    EXPECT_EQ(theme.current(), ZelkTheme::light()) << "at once";
    desktop.hear(key, 1U);
    model().setAppearance(AppModel::Appearance::light);
    EXPECT_EQ(theme.current(), ZelkTheme::light());
}

TEST(DesktopScheme, isBelievedWhateverThePalette) {
    EXPECT_TRUE(desktopIsDark(DesktopScheme::dark, paletteOf(Qt::white, Qt::black)));
    EXPECT_FALSE(desktopIsDark(DesktopScheme::light, paletteOf(Qt::black, Qt::white)));
}

TEST(DesktopScheme, isReadFromThePaletteWhereItIsNotTold) {
    EXPECT_TRUE(desktopIsDark(DesktopScheme::untold, paletteOf(Qt::black, Qt::white)));
    EXPECT_FALSE(desktopIsDark(DesktopScheme::untold, paletteOf(Qt::white, Qt::black)));
}

TEST_F(ThemeFollowing, outlivesItsModel) {
    theme.follow(model());
    model().setAppearance(AppModel::Appearance::light);
    destroyModel();
    setDesktop(Qt::black, Qt::white);
    EXPECT_EQ(theme.current(), ZelkTheme::light());
}

}  // namespace zelk

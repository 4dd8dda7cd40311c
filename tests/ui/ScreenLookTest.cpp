// SPDX-License-Identifier: MIT
#include "ui/theme/ScreenLook.h"

#include <gtest/gtest.h>

namespace zelk {

TEST(ScreenLook, coversAllTwelveScreens) {
    const auto expect = [](Screen screen, const char* title, const char* subtitle, const char* symbol, QColor color) {
        const ScreenLook& look = lookOf(screen);
        EXPECT_EQ(look.title.toStdString(), title);
        EXPECT_EQ(look.subtitle.toStdString(), subtitle);
        EXPECT_EQ(look.symbol.toStdString(), symbol);
        EXPECT_EQ(look.color, color) << title;
    };
    expect(Screen::survey, "Overview", "everything at a glance", "scope", {245, 166, 35});
    expect(Screen::reclaim, "Reclaim", "caches, logs, junk", "sparkles", {50, 199, 123});
    expect(Screen::privacy, "Privacy", "browsing traces", "hand.raised", {62, 155, 255});
    expect(Screen::tune, "Tune", "startup & memory", "speedometer", {255, 107, 94});
    expect(Screen::apps, "Apps", "uninstall cleanly", "square.grid.2x2", {167, 123, 255});
    expect(Screen::clutter, "Clutter", "large & old files", "tray.full", {34, 195, 201});
    expect(Screen::duplicates, "Duplicates", "identical files", "doc.on.doc", {21, 170, 191});
    expect(Screen::lens, "Lens", "visual map", "circle.hexagongrid", {232, 91, 196});
    expect(Screen::health, "Health", "vitals & tune-up", "heart.text.square", {47, 211, 165});
    expect(Screen::system, "System", "snapshots & space", "internaldrive", {124, 131, 255});
    expect(Screen::tools, "Tools", "what's included", "list.star", {154, 160, 255});
    expect(Screen::settings, "Settings", "", "gearshape", {152, 146, 168});
}

}  // namespace zelk

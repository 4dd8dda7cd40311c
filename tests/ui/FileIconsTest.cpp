// SPDX-License-Identifier: MIT
#include "ui/screens/lens/FileIcons.h"

#include <gmock/gmock.h>

#include "fakes/FakePlatform.h"
#include "ui/theme/SymbolItem.h"

namespace zelk {
namespace {

using testing::ElementsAre;

/// Two by two pixels, in rows from the top.
const IconPixels four{2, {0xffff0000, 0xff00ff00, 0xff0000ff, 0x80808080}};

TEST(FileIcons, copiesIconOfTheDesktop) {
    fakes::FakeWorkspace workspace;
    workspace.icons["/a"] = four;
    FileIcons icons(workspace);
    const QImage image = icons.image("/a", false, 2);
    ASSERT_EQ(image.size(), QSize(2, 2));
    EXPECT_EQ(image.pixel(0, 0), 0xffff0000);
    EXPECT_EQ(image.pixel(1, 0), 0xff00ff00);
    EXPECT_EQ(image.pixel(0, 1), 0xff0000ff);
    EXPECT_EQ(image.pixelColor(1, 1), QColor(255, 255, 255, 128));
}

TEST(FileIcons, fallsBackToSymbols) {
    fakes::FakeWorkspace workspace;
    FileIcons icons(workspace);
    const ZelkTheme& dark = ZelkTheme::dark();
    EXPECT_EQ(icons.image("/a", true, 24), tintedSymbol("folder.fill", QColor(90, 172, 245), 24));
    EXPECT_EQ(icons.image("/a", false, 24), tintedSymbol("doc", dark.inkSoft, 24));
}

TEST(FileIcons, fallbackSymbolsFollowTheme) {
    fakes::FakeWorkspace workspace;
    FileIcons icons(workspace);
    icons.image("/a", false, 24);
    icons.setTheme(ZelkTheme::light());
    EXPECT_EQ(icons.image("/a", false, 24), tintedSymbol("doc", ZelkTheme::light().inkSoft, 24));
}

TEST(FileIcons, cachesByPathKindAndSize) {
    fakes::FakeWorkspace workspace;
    workspace.icons["/a"] = four;
    FileIcons icons(workspace);
    for (int again = 0; again < 3; ++again) {
        icons.image("/a", false, 2);
        icons.image("/none", false, 2);
    }
    EXPECT_THAT(workspace.iconReads, ElementsAre("/a", "/none"));
    icons.image("/a", true, 2);
    icons.image("/a", false, 3);
    EXPECT_THAT(workspace.iconReads, ElementsAre("/a", "/none", "/a", "/a"));
}

}  // namespace
}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/screens/lens/FolderIcons.h"

#include <gmock/gmock.h>

#include "fakes/FakePlatform.h"
#include "ui/theme/SymbolItem.h"

namespace zelk {
namespace {

using testing::ElementsAre;

/// Two by two pixels, in rows from the top.
const IconPixels four{2, {0xffff0000, 0xff00ff00, 0xff0000ff, 0x80808080}};

TEST(FolderIcons, copiesIconOfTheDesktop) {
    fakes::FakeWorkspace workspace;
    workspace.icons["/a"] = four;
    FolderIcons icons(workspace);
    const QImage image = icons.image("/a", 2);
    ASSERT_EQ(image.size(), QSize(2, 2));
    EXPECT_EQ(image.pixel(0, 0), 0xffff0000);
    EXPECT_EQ(image.pixel(1, 0), 0xff00ff00);
    EXPECT_EQ(image.pixel(0, 1), 0xff0000ff);
    EXPECT_EQ(image.pixelColor(1, 1), QColor(255, 255, 255, 128));
}

TEST(FolderIcons, fallsBackToSymbol) {
    fakes::FakeWorkspace workspace;
    FolderIcons icons(workspace);
    EXPECT_EQ(icons.image("/a", 24), tintedSymbol("folder.fill", QColor(90, 172, 245), 24));
}

TEST(FolderIcons, cachesByPathAndSize) {
    fakes::FakeWorkspace workspace;
    workspace.icons["/a"] = four;
    FolderIcons icons(workspace);
    for (int again = 0; again < 3; ++again) {
        icons.image("/a", 2);
        icons.image("/none", 2);
    }
    EXPECT_THAT(workspace.iconReads, ElementsAre("/a", "/none"));
    icons.image("/a", 3);
    EXPECT_THAT(workspace.iconReads, ElementsAre("/a", "/none", "/a"));
}

}  // namespace
}  // namespace zelk

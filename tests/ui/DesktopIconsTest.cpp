// SPDX-License-Identifier: MIT
#include "ui/theme/DesktopIcons.h"

#include <gmock/gmock.h>

#include "fakes/FakePlatform.h"
#include "ui/theme/SymbolItem.h"

namespace zelk {
namespace {

using testing::ElementsAre;

using Of = DesktopIcons::Of;

/// Two by two pixels, in rows from the top.
const IconPixels four{2, {0xffff0000, 0xff00ff00, 0xff0000ff, 0x80808080}};

TEST(DesktopIcons, copiesIconOfTheDesktop) {
    fakes::FakeWorkspace workspace;
    workspace.icons["/a"] = four;
    DesktopIcons icons(workspace, Of::folders);
    const QImage image = icons.image("/a", 2);
    ASSERT_EQ(image.size(), QSize(2, 2));
    EXPECT_EQ(image.pixel(0, 0), 0xffff0000);
    EXPECT_EQ(image.pixel(1, 0), 0xff00ff00);
    EXPECT_EQ(image.pixel(0, 1), 0xff0000ff);
    EXPECT_EQ(image.pixelColor(1, 1), QColor(255, 255, 255, 128));
}

TEST(DesktopIcons, fallsBackToSymbol) {
    fakes::FakeWorkspace workspace;
    DesktopIcons icons(workspace, Of::folders);
    EXPECT_EQ(icons.image("/a", 24), tintedSymbol("folder.fill", QColor(90, 172, 245), 24));
    DesktopIcons programs(workspace, Of::programs);
    EXPECT_EQ(programs.image("/a", 24), tintedSymbol("gearshape", QColor(139, 134, 152), 24));
    DesktopIcons applications(workspace, Of::applications);
    EXPECT_EQ(applications.image("a", 24), tintedSymbol("square.grid.2x2", QColor(167, 123, 255), 24));
}

TEST(DesktopIcons, cachesByPathAndSize) {
    fakes::FakeWorkspace workspace;
    workspace.icons["/a"] = four;
    DesktopIcons icons(workspace, Of::folders);
    for (int again = 0; again < 3; ++again) {
        icons.image("/a", 2);
        icons.image("/none", 2);
    }
    EXPECT_THAT(workspace.iconReads, ElementsAre("/a", "/none"));
    icons.image("/a", 3);
    EXPECT_THAT(workspace.iconReads, ElementsAre("/a", "/none", "/a"));
}

TEST(DesktopIcons, asksForWhatItIsFor) {
    class NotingWorkspace : public fakes::FakeWorkspace {
    public:
        std::vector<int> folders;

        std::optional<IconPixels> icon(const std::string& path, bool isDirectory, int side) override {
            folders.push_back(isDirectory ? 1 : 0);
            return FakeWorkspace::icon(path, isDirectory, side);
        }
        std::optional<IconPixels> entryIcon(const std::string& name, int side) override {
            folders.push_back(2);
            return FakeWorkspace::icon(name, true, side);
        }
    };
    NotingWorkspace workspace;
    DesktopIcons(workspace, Of::folders).image("/a", 2);
    DesktopIcons(workspace, Of::programs).image("/a", 2);
    DesktopIcons(workspace, Of::applications).image("a", 2);
    EXPECT_THAT(workspace.folders, ElementsAre(1, 0, 2));
}

}  // namespace
}  // namespace zelk

// SPDX-License-Identifier: MIT
// The texts around the screens, read from the rendered window.
#include "TextsOf.h"
#include "ViewFixture.h"
#include "ui/shell/AboutInfo.h"
#include "ui/shell/SidebarModel.h"

namespace zelk {

namespace {

using Texts = std::vector<std::string>;

class ShellTexts : public ViewFixture {
protected:
    ~ShellTexts() override { close(); }
};

}  // namespace

TEST_F(ShellTexts, sidebarShowsGroupsAndFoot) {
    SidebarModel sidebar(model());
    show(QStringLiteral("Zelk.App"), QStringLiteral("Sidebar"), "sidebar", &sidebar, {234, 900});
    EXPECT_EQ(seenTexts(),
              (Texts{"Zelk", "Overview", "Clean", "Reclaim", "Privacy", "Tune", "Manage", "Apps", "Clutter",
                     "Duplicates", "Explore", "Lens", "Health", "System", "Tools", "Settings", "Developer view"}));
    EXPECT_NE(symbol("sidebar.left"), nullptr);
    EXPECT_EQ(nameOf(&view()), "Modules");
    EXPECT_EQ(nameOf(find("collapseButton")), "Collapse sidebar");
    click("collapseButton");
    EXPECT_EQ(nameOf(find("collapseButton")), "Expand sidebar");
    EXPECT_EQ(seenTexts(), Texts());
    click("collapseButton");
    EXPECT_EQ(nameOf(find("collapseButton")), "Collapse sidebar");
    close();
}

TEST_F(ShellTexts, developerSwitchHasToolTip) {
    SidebarModel sidebar(model());
    show(QStringLiteral("Zelk.App"), QStringLiteral("Sidebar"), "sidebar", &sidebar, {234, 900});
    bool explained = false;
    for (const QObject* part : find("developerSwitch")->findChildren<QObject*>())
        explained |= part->property("text").toString() ==
                     QStringLiteral("Show developer-focused junk and per-item controls in Reclaim");
    EXPECT_TRUE(explained);
    close();
}

TEST_F(ShellTexts, aboutShowsNameAndRows) {
    DeviceInfo device;
    device.osVersion = "TestOS 1.0";
    device.chip = "Test chip";
    const auto showAbout = [&] {
        show(QStringLiteral("import Zelk.App\nAboutWindow {}"), {320, 320},
             {{QStringLiteral("about"), QVariant::fromValue(AboutInfo({"Zelk Preview", "1.2", "34"}, device))}});
    };
    showAbout();
    EXPECT_EQ(seenTexts(), (Texts{"Zelk Preview", "Version", "1.2 (34)", "System", "TestOS 1.0", "Chip", "Test chip"}));
    EXPECT_NE(symbol("internaldrive"), nullptr);
    close();
    device.chip.clear();
    showAbout();
    EXPECT_EQ(seenTexts(), (Texts{"Zelk Preview", "Version", "1.2 (34)", "System", "TestOS 1.0"}));
    close();
}

}  // namespace zelk

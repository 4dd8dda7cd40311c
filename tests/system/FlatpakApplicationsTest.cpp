// SPDX-License-Identifier: MIT
#include "system/apps/FlatpakApplications.h"

#include <gmock/gmock.h>

#include "fakes/AppsHome.h"

namespace zelk {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class FlatpakApplicationsTest : public testing::Test {
protected:
    std::vector<AppEntry> found() {
        AppFindings findings;
        findFlatpaks(AppSearch(machine.platform()), findings);
        return findings.apps;
    }

    fakes::FakePlatform machine;
    fakes::LinuxApps desktop{machine};
};

const std::string orrery = "org.sample.Orrery";

}  // namespace

TEST_F(FlatpakApplicationsTest, findsThoseOfTheUserAndOfAllUsers) {
    desktop.addFlatpak(orrery, "Orrery", 123'456'789);
    desktop.addFlatpak("org.sample.Maps", "Maps", 5'000, false);
    AppEntry own;
    own.url = desktop.deployedFlatpak(orrery);
    own.name = "Orrery";
    own.size = 123'456'789;
    own.bundleID = orrery;
    own.kind = AppKind::userFlatpak;
    own.package = orrery;
    AppEntry shared = own;
    shared.url = desktop.deployedFlatpak("org.sample.Maps", false);
    shared.name = "Maps";
    shared.size = 5'000;
    shared.bundleID = shared.package = "org.sample.Maps";
    shared.kind = AppKind::systemFlatpak;
    EXPECT_THAT(found(), ElementsAre(own, shared));
}

TEST_F(FlatpakApplicationsTest, asksForSizeOfTheRightInstallation) {
    desktop.addFlatpak(orrery, "Orrery", 1'000);
    desktop.addFlatpak(orrery, "Orrery", 2'000, false);
    const std::vector<AppEntry> apps = found();
    ASSERT_THAT(apps, SizeIs(2));
    EXPECT_EQ(apps[0].size, 1'000U);
    EXPECT_EQ(apps[1].size, 2'000U);
    EXPECT_NE(apps[0].url, apps[1].url);
    EXPECT_THAT(
        machine.processes.calls(),
        ElementsAre(
            fakes::FakeProcesses::Call{flatpakTool, {"info", "--user", "--show-size", orrery}, {false, false, true}},
            fakes::FakeProcesses::Call{
                flatpakTool, {"info", "--system", "--show-size", orrery}, {false, false, true}}));
}

TEST_F(FlatpakApplicationsTest, walksWhereTheToolGivesNoSize) {
    desktop.addFlatpak(orrery, "Orrery", 1'000);
    machine.files.addFile(desktop.deployedFlatpak(orrery) + "/files/.hidden", {}, 50);
    machine.processes.outcome = [](const auto&) { return ChildOutcome{std::nullopt, 0, "3.0 MB\n"}; };
    EXPECT_EQ(found().at(0).size, 1'050U);
    machine.processes.outcome = [](const auto&) { return ChildOutcome{std::nullopt, 1, "77\n"}; };
    EXPECT_EQ(found().at(0).size, 1'050U);
}

TEST_F(FlatpakApplicationsTest, staysWithoutItsTool) {
    desktop.addFlatpak(orrery, "Orrery", 1'000);
    machine.files.erase(flatpakTool);
    EXPECT_EQ(found().at(0).obstacle, (AppObstacle{AppObstacle::Reason::noTool, {"flatpak"}}));
    EXPECT_EQ(found().at(0).size, 1'000U);
    EXPECT_THAT(machine.processes.calls(), IsEmpty());
}

TEST_F(FlatpakApplicationsTest, staysOutOfReachOfASandbox) {
    desktop.addFlatpak(orrery, "Orrery", 1'000);
    desktop.addFlatpak("org.sample.Maps", "Maps", 5'000, false);
    machine.locations.sandboxed = true;
    const std::vector<AppEntry> apps = found();
    ASSERT_THAT(apps, SizeIs(1)) << "what a sandbox has in /var/lib is not the host's";
    EXPECT_EQ(apps[0].name, "Orrery");
    EXPECT_EQ(apps[0].obstacle, (AppObstacle{AppObstacle::Reason::outOfReach, {"flatpak"}}));
    EXPECT_THAT(machine.processes.calls(), IsEmpty());
}

TEST_F(FlatpakApplicationsTest, staysIfInstalledTwice) {
    desktop.addFlatpak(orrery, "Orrery", 1'000);
    EXPECT_EQ(found().at(0).obstacle, AppObstacle());
    machine.files.addFolder(desktop.flatpakFolder(true) + "/app/" + orrery + "/x86_64/beta");
    EXPECT_EQ(found().at(0).obstacle.reason, AppObstacle::Reason::severalVersions);
    machine.files.erase(desktop.flatpakFolder(true) + "/app/" + orrery + "/x86_64/beta");
    machine.files.addFolder(desktop.flatpakFolder(true) + "/app/" + orrery + "/i386/stable");
    EXPECT_EQ(found().at(0).obstacle.reason, AppObstacle::Reason::severalVersions);
}

TEST_F(FlatpakApplicationsTest, listsAnApplicationOnceByItsMainEntry) {
    desktop.addFlatpak(orrery, "Orrery", 1'000);
    const std::string exports = desktop.flatpakFolder(true) + "/exports/share/applications/";
    for (const char* other : {"aaa", "zzz"})
        machine.files.addFile(exports + other + ".desktop",
                              fakes::applicationEntry(other, "/usr/bin/flatpak run x", "X-Flatpak=" + orrery + "\n"));
    ASSERT_THAT(found(), SizeIs(1));
    EXPECT_EQ(found().at(0).name, "Orrery");
    EXPECT_THAT(found().at(0).alongside, ElementsAre("aaa", "zzz"));
}

TEST_F(FlatpakApplicationsTest, isThereWhileAnyRevisionIs) {
    desktop.addFlatpak(orrery, "Orrery", 1'000);
    const AppEntry app = found().at(0);
    machine.files.move(app.url, app.url + "-next");
    EXPECT_TRUE(isFlatpakThere(machine.files, app)) << "an update";
    machine.files.erase(desktop.flatpakFolder(true) + "/app/" + orrery + "/x86_64/stable");
    EXPECT_FALSE(isFlatpakThere(machine.files, app)) << "folders that are empty by now";
}

TEST_F(FlatpakApplicationsTest, skipsWhatIsNoFlatpakOrIsGone) {
    desktop.addFlatpak(orrery, "Orrery", 1'000);
    const std::string exports = desktop.flatpakFolder(true) + "/exports/share/applications/";
    machine.files.addFile(exports + "a.desktop", fakes::applicationEntry("A", "a"));
    machine.files.addFile(exports + "b.desktop", fakes::applicationEntry("B", "b", "X-Flatpak=org.sample.Gone\n"));
    machine.files.addFile(exports + "c.desktop", fakes::applicationEntry("C", "c", "X-Flatpak=--all\n"));
    machine.files.addFile(exports + "d.desktop", fakes::applicationEntry("D", "d", "X-Flatpak=../../etc.x\n"));
    ASSERT_THAT(found(), SizeIs(1));
    machine.files.addFile(exports + orrery + ".desktop",
                          fakes::applicationEntry("Orrery", "x", "NoDisplay=true\nX-Flatpak=" + orrery + "\n"));
    EXPECT_THAT(found(), IsEmpty());
}

TEST(FlatpakNames, areReverseDomains) {
    for (const char* name : {"org.sample.Orrery", "a.b", "org.x_y-z.A1"}) EXPECT_TRUE(isFlatpakID(name)) << name;
    for (const std::string& name :
         {std::string(), std::string("Orrery"), std::string("-a.b"), std::string(".a.b"), std::string("a b.c"),
          std::string("a.b/c"), std::string("a.b;c"), std::string("a.b\n"), "a." + std::string(254, 'x')})
        EXPECT_FALSE(isFlatpakID(name)) << name;
    EXPECT_TRUE(isFlatpakID("a." + std::string(253, 'x')));
}

TEST(FlatpakNames, refsTellInstallationsApart) {
    AppEntry app;
    app.package = orrery;
    const auto refOf = [&](const std::string& url) {
        app.url = url;
        return flatpakRef(app);
    };
    const std::string place = "/home/me/app/x/.local/share/flatpak/app/" + orrery;
    EXPECT_EQ(refOf(place + "/x86_64/stable/abc"), "app/org.sample.Orrery/x86_64/stable");
    EXPECT_EQ(refOf(place + "/aarch64/23.08-extra_1/abc"), "app/org.sample.Orrery/aarch64/23.08-extra_1");
    for (const char* end : {"", "/", "/x86_64", "/x86_64/stable", "/x86_64/stable/", "/x86_64/stable/abc/files",
                            "/-y/stable/abc", "/x86_64/--all/abc", "/x86_64/../abc", "/x86_64/a b/abc", "/x86_64//abc",
                            "/x*/stable/abc", "2/x86_64/stable/abc"})
        EXPECT_EQ(refOf(place + end), std::nullopt) << end;
    app.package = "--all";
    EXPECT_EQ(refOf("/app/--all/x86_64/stable/abc"), std::nullopt);
}

TEST(FlatpakNames, sizesAreOneNumber) {
    EXPECT_EQ(parseFlatpakSize("123456789\n"), 123'456'789U);
    EXPECT_EQ(parseFlatpakSize("0"), 0U);
    for (const char* text : {"", "\n", "3.0 MB\n", "3 MB", "-1", "1\n2", "12a", "99999999999999999999999"})
        EXPECT_EQ(parseFlatpakSize(text), std::nullopt) << text;
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "reclaim/Leftovers.h"

#include <gmock/gmock.h>

#include "fakes/FakePlatform.h"

namespace zelk {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using Paths = std::vector<std::string>;

const std::string leftHome = "/home/me";
const XdgHomes leftHomes{leftHome + "/.local/share", leftHome + "/.config", leftHome + "/.cache",
                         leftHome + "/.local/state"};

AppEntry packaged(const std::string& id, const std::string& program) {
    AppEntry app;
    app.url = "/usr/share/applications/" + id + ".desktop";
    app.name = "Displayed";
    app.bundleID = id;
    app.kind = AppKind::package;
    app.package = program;
    app.program = program;
    return app;
}

Paths placesOf(const AppEntry& app) {
    return leftoverCandidates(leftHome, leftHomes, app);
}

class LeftoversOnDisk : public testing::Test {
protected:
    Leftovers on(SystemKind system) {
        machine.system = system;
        machine.locations.xdg = leftHomes;
        return Leftovers(machine.platform());
    }
    Paths urlsOf(const AppEntry& app, SystemKind system = SystemKind::desktopLinux) {
        Paths urls;
        for (const Leftover& one : on(system).of(app)) urls.push_back(one.url);
        return urls;
    }

    fakes::FakePlatform machine;
};

}  // namespace

TEST(LeftoverCandidates, ofBundleComeByIdentifierThenByName) {
    EXPECT_EQ(
        leftoverCandidates("/Users/me", "org.sample.Inkwell", "Inkwell"),
        (Paths{"/Users/me/Library/Application Support/org.sample.Inkwell",
               "/Users/me/Library/Caches/org.sample.Inkwell", "/Users/me/Library/Preferences/org.sample.Inkwell.plist",
               "/Users/me/Library/Logs/org.sample.Inkwell",
               "/Users/me/Library/Saved Application State/org.sample.Inkwell.savedState",
               "/Users/me/Library/Containers/org.sample.Inkwell", "/Users/me/Library/HTTPStorages/org.sample.Inkwell",
               "/Users/me/Library/WebKit/org.sample.Inkwell", "/Users/me/Library/Application Support/Inkwell",
               "/Users/me/Library/Caches/Inkwell", "/Users/me/Library/Logs/Inkwell"}));
}

TEST(LeftoverCandidates, ofBundleWithoutIdentifierComeByNameOnly) {
    EXPECT_EQ(leftoverCandidates("/Users/me", std::nullopt, "Inkwell"),
              (Paths{"/Users/me/Library/Application Support/Inkwell", "/Users/me/Library/Caches/Inkwell",
                     "/Users/me/Library/Logs/Inkwell"}));
}

TEST(LeftoverCandidates, useNameWithBlankAsItStands) {
    EXPECT_EQ(leftoverCandidates("/Users/me", std::nullopt, "Google Chrome"),
              (Paths{"/Users/me/Library/Application Support/Google Chrome", "/Users/me/Library/Caches/Google Chrome",
                     "/Users/me/Library/Logs/Google Chrome"}));
}

TEST(LeftoverCandidates, ofBundleKeepIdenticalPaths) {
    const Paths paths = leftoverCandidates("/Users/me", "same", "same");
    ASSERT_EQ(paths.size(), 11U);
    EXPECT_EQ(paths[0], paths[8]);
    EXPECT_EQ(paths[1], paths[9]);
    EXPECT_EQ(paths[3], paths[10]);
}

TEST(LeftoverCandidates, ofBundleNeverNameAFolderOfSeveral) {
    const Paths byID = leftoverCandidates("/Users/me", "org.sample.Inkwell", "");
    EXPECT_EQ(byID.size(), 8U);
    const Paths byName = leftoverCandidates("/Users/me", std::nullopt, "Inkwell");
    for (const std::string& odd : {std::string(), std::string("."), std::string(".."), std::string("a/b"),
                                   std::string("/"), std::string("../../x"), std::string("a\0b", 3)}) {
        EXPECT_EQ(leftoverCandidates("/Users/me", odd, "Inkwell"), byName) << odd;
        EXPECT_EQ(leftoverCandidates("/Users/me", "org.sample.Inkwell", odd), byID) << odd;
        EXPECT_THAT(leftoverCandidates("/Users/me", odd, odd), IsEmpty()) << odd;
    }
    EXPECT_EQ(leftoverCandidates("/Users/me", "x", "y").size(), 11U) << "short names are names";
}

TEST(LeftoverCandidates, ofPackageComeByEntryAndProgram) {
    EXPECT_EQ(placesOf(packaged("org.sample.Inkwell", "inkwell")),
              (Paths{leftHome + "/.local/share/org.sample.Inkwell", leftHome + "/.cache/org.sample.Inkwell",
                     leftHome + "/.config/org.sample.Inkwell", leftHome + "/.local/state/org.sample.Inkwell",
                     leftHome + "/.local/share/inkwell", leftHome + "/.cache/inkwell", leftHome + "/.config/inkwell",
                     leftHome + "/.config/autostart/org.sample.Inkwell.desktop"}));
}

TEST(LeftoverCandidates, useAnIdentifierWithoutDotForAutostartOnly) {
    EXPECT_EQ(placesOf(packaged("inkwell", "ink-program")),
              (Paths{leftHome + "/.local/share/ink-program", leftHome + "/.cache/ink-program",
                     leftHome + "/.config/ink-program", leftHome + "/.config/autostart/inkwell.desktop"}));
}

TEST(LeftoverCandidates, nameEachPathOnceOnLinux) {
    EXPECT_EQ(placesOf(packaged("org.same", "org.same")),
              (Paths{leftHome + "/.local/share/org.same", leftHome + "/.cache/org.same", leftHome + "/.config/org.same",
                     leftHome + "/.local/state/org.same", leftHome + "/.config/autostart/org.same.desktop"}));
}

TEST(LeftoverCandidates, ofFlatpakAreItsFolderAndAutostart) {
    for (const AppKind kind : {AppKind::userFlatpak, AppKind::systemFlatpak}) {
        AppEntry app = packaged("org.sample.Orrery", "orrery");
        app.kind = kind;
        EXPECT_EQ(placesOf(app), (Paths{leftHome + "/.var/app/org.sample.Orrery",
                                        leftHome + "/.config/autostart/org.sample.Orrery.desktop"}));
        app.sharesID = true;
        EXPECT_THAT(placesOf(app), IsEmpty());
    }
}

TEST(LeftoverCandidates, ofSnapAreItsFolderAndAutostart) {
    AppEntry app = packaged("chat", "chat");
    app.kind = AppKind::snap;
    EXPECT_EQ(placesOf(app), (Paths{leftHome + "/snap/chat", leftHome + "/.config/autostart/chat.desktop"}));
    app.sharesID = true;
    EXPECT_EQ(placesOf(app), Paths{leftHome + "/snap/chat"}) << "snap takes it along, whoever else has the name";
}

TEST(LeftoverCandidates, neverUseTheDisplayedName) {
    for (const std::string& path : placesOf(packaged("org.sample.Inkwell", "inkwell")))
        EXPECT_EQ(path.find("Displayed"), std::string::npos) << path;
}

TEST(LeftoverCandidates, leaveOutWhatAnotherApplicationHasToo) {
    AppEntry app = packaged("org.sample.Inkwell", "inkwell");
    app.sharesProgram = true;
    EXPECT_THAT(placesOf(app), Not(Contains(leftHome + "/.config/inkwell")));
    EXPECT_THAT(placesOf(app), Contains(leftHome + "/.config/org.sample.Inkwell"));
    app.sharesProgram = false;
    app.sharesID = true;
    EXPECT_EQ(placesOf(app),
              (Paths{leftHome + "/.local/share/inkwell", leftHome + "/.cache/inkwell", leftHome + "/.config/inkwell"}));
}

TEST(LeftoverCandidates, leaveOutFoldersThatManyShare) {
    const auto expectNone = [](const std::string& folder, const Paths& names) {
        for (const std::string& name : names)
            EXPECT_THAT(placesOf(packaged("x", name)), Not(Contains(leftHome + folder + name))) << folder << name;
    };
    expectNone("/.local/share/",
               {"applications", "backgrounds", "desktop-directories", "flatpak", "fonts", "gvfs-metadata", "icons",
                "keyrings", "mime", "sounds", "systemd", "themes", "Trash", "xorg"});
    expectNone("/.config/", {"autostart", "dconf", "environment.d", "fontconfig", "gtk-3.0", "gtk-4.0", "gtk-", "ibus",
                             "menus", "pulse", "systemd", "mozilla"});
    expectNone("/.cache/", {"fontconfig", "mesa_shader_cache", "mesa_shader_cache_db", "mozilla", "thumbnails"});
    // Each only where it is shared, and to the letter.
    EXPECT_THAT(placesOf(packaged("x", "mozilla")), ElementsAre(leftHome + "/.local/share/mozilla"));
    EXPECT_THAT(placesOf(packaged("x", "icons")), ElementsAre(leftHome + "/.cache/icons", leftHome + "/.config/icons"));
    EXPECT_EQ(placesOf(packaged("x", "Icons")).size(), 3U);
    EXPECT_EQ(placesOf(packaged("x", "gtkx")).size(), 3U);
    EXPECT_EQ(placesOf(packaged("x", "dconf2")).size(), 3U);
}

TEST(LeftoverCandidates, leaveOutWhatIsNoNameOfItsOwn) {
    for (const std::string& name :
         {std::string(), std::string("."), std::string(".."), std::string("ab"), std::string("a/b"),
          std::string("../../me"), std::string("/etc"), std::string("abc\0d", 5)}) {
        EXPECT_THAT(placesOf(packaged(name, name)), IsEmpty()) << name;
        AppEntry app = packaged(name, name);
        for (const AppKind kind : {AppKind::userFlatpak, AppKind::snap}) {
            app.kind = kind;
            EXPECT_THAT(placesOf(app), IsEmpty()) << name;
        }
    }
    EXPECT_EQ(placesOf(packaged("abc", "abc")).size(), 4U);
    AppEntry nameless = packaged("x", "abc");
    nameless.bundleID.reset();
    EXPECT_EQ(placesOf(nameless).size(), 3U);
}

TEST_F(LeftoversOnDisk, countOnlyWhatExists) {
    machine.files.addFile(leftHome + "/Library/Caches/Inkwell/a", {}, 100);
    AppEntry app;
    app.name = "Inkwell";
    EXPECT_EQ(on(SystemKind::macOS).of(app), (std::vector<Leftover>{{leftHome + "/Library/Caches/Inkwell", 100}}));
}

TEST_F(LeftoversOnDisk, bundleCountsALinkOfWhomever) {
    machine.files.addFile("/elsewhere", {}, 1);
    machine.files.addLink(leftHome + "/Library/Caches/Inkwell", "/elsewhere");
    machine.files.giveAway(leftHome + "/Library/Caches/Inkwell");
    AppEntry app;
    app.name = "Inkwell";
    EXPECT_THAT(urlsOf(app, SystemKind::macOS), ElementsAre(leftHome + "/Library/Caches/Inkwell"));
}

TEST_F(LeftoversOnDisk, sheetCountsHiddenEntriesAndTheRowDoesNot) {
    machine.files.addFile(leftHome + "/.config/inkwell/settings", {}, 1'000);
    machine.files.addFile(leftHome + "/.config/inkwell/.lock", {}, 200);
    machine.files.addFile(leftHome + "/.config/inkwell/.d/file", {}, 30);
    machine.files.addFile(leftHome + "/.config/autostart/org.sample.Inkwell.desktop", {}, 4);
    const AppEntry app = packaged("org.sample.Inkwell", "inkwell");
    EXPECT_EQ(on(SystemKind::desktopLinux).dataSize(app), 1'004U);
    EXPECT_EQ(on(SystemKind::desktopLinux).of(app),
              (std::vector<Leftover>{{leftHome + "/.config/inkwell", 1'230},
                                     {leftHome + "/.config/autostart/org.sample.Inkwell.desktop", 4}}));
}

TEST_F(LeftoversOnDisk, leaveOutLinksAndWhatIsSomebodyElses) {
    machine.files.addFile("/elsewhere/file", {}, 1);
    machine.files.addLink(leftHome + "/.config/inkwell", "/elsewhere");
    machine.files.addFile(leftHome + "/.cache/inkwell/file", {}, 1);
    machine.files.giveAway(leftHome + "/.cache/inkwell");
    machine.files.addFile(leftHome + "/.local/share/inkwell/file", {}, 1);
    const AppEntry app = packaged("org.sample.Inkwell", "inkwell");
    EXPECT_THAT(urlsOf(app), ElementsAre(leftHome + "/.local/share/inkwell"));
    EXPECT_EQ(on(SystemKind::desktopLinux).dataSize(app), 1U);
}

TEST_F(LeftoversOnDisk, leaveOutWhatALinkOnTheWayLeadsTo) {
    machine.files.addFile("/elsewhere/org.sample.Orrery/file", {}, 1);
    machine.files.addLink(leftHome + "/.var/app", "/elsewhere");
    AppEntry app = packaged("org.sample.Orrery", "orrery");
    app.kind = AppKind::userFlatpak;
    // The fake follows no link in the middle of a path, as little as the real one does for the last part.
    machine.files.addFile(leftHome + "/.var/app/org.sample.Orrery", {}, 1);
    EXPECT_THAT(urlsOf(app), IsEmpty());
}

TEST_F(LeftoversOnDisk, acceptHomesBehindLinks) {
    machine.files.addFile("/volume/config/inkwell/file", {}, 1);
    machine.locations.xdg = leftHomes;
    machine.locations.xdg->config = "/volume/config";
    machine.system = SystemKind::desktopLinux;
    const Leftovers leftovers(machine.platform());
    EXPECT_TRUE(leftovers.counts("/volume/config/inkwell"));
    EXPECT_EQ(leftovers.rootOf("/volume/config/inkwell"), "/volume/config");
    EXPECT_EQ(leftovers.rootOf(leftHome + "/.cache/inkwell"), leftHome + "/.cache");
    EXPECT_EQ(leftovers.rootOf(leftHome + "/snap/chat"), leftHome);
    EXPECT_EQ(on(SystemKind::macOS).rootOf(leftHome + "/Library/Caches/x"), "");
}

TEST_F(LeftoversOnDisk, entriesOfTheUserComeFirstAndAreNoData) {
    AppEntry app = packaged("org.sample.Tidepool", "tidepool");
    app.kind = AppKind::unpacked;
    app.entries = {leftHome + "/.local/share/applications/org.sample.Tidepool.desktop"};
    machine.files.addFile(app.entries.front(), {}, 4'096);
    machine.files.addFile(leftHome + "/.config/tidepool/file", {}, 10);
    EXPECT_THAT(urlsOf(app), ElementsAre(app.entries.front(), leftHome + "/.config/tidepool"));
    EXPECT_EQ(on(SystemKind::desktopLinux).dataSize(app), 10U);
}

TEST_F(LeftoversOnDisk, measureNothingThatIsNotThere) {
    EXPECT_THAT(urlsOf(packaged("org.sample.Inkwell", "inkwell")), IsEmpty());
    EXPECT_EQ(on(SystemKind::desktopLinux).dataSize(packaged("org.sample.Inkwell", "inkwell")), 0U);
}

}  // namespace zelk

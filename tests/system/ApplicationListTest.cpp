// SPDX-License-Identifier: MIT
#include "system/apps/ApplicationList.h"

#include <gmock/gmock.h>

#include "fakes/AppsHome.h"
#include "reclaim/Leftovers.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ApplicationListTest : public testing::Test {
protected:
    std::vector<AppEntry> apps() { return listApplications(machine.platform()); }
    AppEntry app(const std::string& name) {
        for (AppEntry& one : apps())
            if (one.name == name) return one;
        ADD_FAILURE() << name;
        return {};
    }
    std::vector<std::string> leftoversOf(const std::string& name) {
        std::vector<std::string> urls;
        for (const Leftover& one : Leftovers(machine.platform()).of(app(name))) urls.push_back(one.url);
        return urls;
    }
    /// Folders of this name wherever an application could leave one.
    void addFoldersCalled(const std::string& name) {
        for (const char* folder : {"/.local/share/", "/.config/", "/.cache/", "/.local/state/", "/.var/app/", "/snap/"})
            machine.files.addFile(desktop.home + folder + name + "/file", {}, 10);
    }

    fakes::FakePlatform machine;
    fakes::LinuxApps desktop{machine};
};

NodeRef bundlesTree(const std::vector<std::pair<std::string, std::int64_t>>& names) {
    NodeRef top = FSNode::make("", 0);
    FSNode& folder = top->append("/Applications", 0);
    for (const auto& [name, size] : names) folder.append(name, 0).size = size;
    return top;
}

}  // namespace

TEST_F(ApplicationListTest, listsEveryKindLargestFirst) {
    desktop.fill();
    std::vector<std::string> names;
    std::vector<AppKind> kinds;
    for (const AppEntry& one : apps()) {
        names.push_back(one.name);
        kinds.push_back(one.kind);
        EXPECT_EQ(one.obstacle, AppObstacle()) << one.name;
        EXPECT_FALSE(one.sharesID || one.sharesProgram) << one.name;
    }
    EXPECT_THAT(names, ElementsAre("Studio", "Orrery", "Chat", "Sonata", "Tidepool", "Maps"));
    EXPECT_THAT(kinds, ElementsAre(AppKind::package, AppKind::userFlatpak, AppKind::snap, AppKind::appImage,
                                   AppKind::unpacked, AppKind::systemFlatpak));
}

TEST_F(ApplicationListTest, listsOnlyTheUsersOwnInASandbox) {
    desktop.fill();
    machine.locations.sandboxed = true;
    std::vector<std::string> names;
    for (const AppEntry& one : apps()) names.push_back(one.name);
    EXPECT_THAT(names, ElementsAre("Orrery", "Sonata", "Tidepool"));
    EXPECT_EQ(app("Sonata").obstacle, AppObstacle());
    EXPECT_EQ(app("Tidepool").obstacle, AppObstacle());
    EXPECT_THAT(machine.processes.calls(), IsEmpty());
}

// A package that cannot be seen may be called the same, and its data be the user's documents.
TEST_F(ApplicationListTest, takesNoDataAlongInASandbox) {
    desktop.fill();
    addFoldersCalled("tidepool");
    addFoldersCalled("org.sample.Tidepool");
    const std::vector<std::string> outside = leftoversOf("Tidepool");
    EXPECT_GT(outside.size(), 5U);
    machine.locations.sandboxed = true;
    EXPECT_THAT(leftoversOf("Tidepool"), ElementsAre(desktop.ownEntry("org.sample.Tidepool"))) << "what starts it";
    EXPECT_TRUE(app("Sonata").sharesProgram);
}

TEST_F(ApplicationListTest, isEmptyOnAnEmptyMachine) {
    EXPECT_THAT(apps(), IsEmpty());
    EXPECT_THAT(machine.processes.calls(), IsEmpty()) << "nothing to ask about";
}

TEST_F(ApplicationListTest, tenSharedOrReservedNamesAreNeverOffered) {
    // Shared by two packages, by a package and a flatpak, and with an entry of the user's.
    desktop.packages = {{"writer"}, {"draw"}};
    desktop.addEntry("writer", "Writer", "org.office.writer", "/usr/bin/office --writer");
    desktop.addEntry("draw", "Draw", "org.office.draw", "/usr/bin/office --draw");
    desktop.addPackaged({"paint"}, "Paint", "org.sample.Paint");
    desktop.addFlatpak("org.sample.Paint", "Paint as flatpak", 10);
    desktop.addPackaged({"notes"}, "Notes", "org.sample.Notes");
    desktop.addOwnEntry("my-notes", "My notes", "/usr/bin/notes --mine");
    // Of the desktop.
    for (const char* name : {"icons", "systemd", "autostart", "mozilla", "fontconfig", "thumbnails", "gtk-3.0"})
        desktop.addPackaged({name}, name, name);
    for (const char* name : {"office", "org.sample.Paint", "notes", "icons", "systemd", "autostart", "mozilla",
                             "fontconfig", "thumbnails", "gtk-3.0"})
        addFoldersCalled(name);

    EXPECT_THAT(leftoversOf("Writer"), IsEmpty());
    EXPECT_THAT(leftoversOf("Draw"), IsEmpty());
    EXPECT_THAT(leftoversOf("Paint"), IsEmpty());
    EXPECT_THAT(leftoversOf("Paint as flatpak"), IsEmpty());
    EXPECT_THAT(leftoversOf("Notes"), IsEmpty());
    const std::string home = desktop.home;
    EXPECT_THAT(leftoversOf("icons"), ElementsAre(home + "/.cache/icons", home + "/.config/icons"));
    EXPECT_THAT(leftoversOf("systemd"), ElementsAre(home + "/.cache/systemd"));
    EXPECT_THAT(leftoversOf("autostart"), ElementsAre(home + "/.local/share/autostart", home + "/.cache/autostart"));
    EXPECT_THAT(leftoversOf("mozilla"), ElementsAre(home + "/.local/share/mozilla"));
    EXPECT_THAT(leftoversOf("fontconfig"), ElementsAre(home + "/.local/share/fontconfig"));
    EXPECT_THAT(leftoversOf("thumbnails"),
                ElementsAre(home + "/.local/share/thumbnails", home + "/.config/thumbnails"));
    EXPECT_THAT(leftoversOf("gtk-3.0"),
                ElementsAre(home + "/.local/share/gtk-3.0", home + "/.cache/gtk-3.0", home + "/.local/state/gtk-3.0"));
}

TEST_F(ApplicationListTest, twoEntriesOfOneApplicationShareNothing) {
    desktop.packages = {{"office"}};
    desktop.owners["/usr/bin/office"] = "office";
    desktop.addEntry("office", "Office", "office", "/usr/bin/office");
    desktop.addEntry("office", "Office, safe", "office-safe", "/usr/bin/office --safe");
    addFoldersCalled("office");
    EXPECT_THAT(leftoversOf("Office"), testing::SizeIs(3));
}

TEST_F(ApplicationListTest, sameFlatpakForUserAndForAllSharesItsFolder) {
    desktop.addFlatpak("org.sample.Maps", "Own maps", 10);
    desktop.addFlatpak("org.sample.Maps", "Maps of all", 20, false);
    addFoldersCalled("org.sample.Maps");
    EXPECT_THAT(leftoversOf("Own maps"), IsEmpty());
    EXPECT_THAT(leftoversOf("Maps of all"), IsEmpty());
}

TEST_F(ApplicationListTest, hiddenEntriesShareTheirProgramToo) {
    desktop.packages = {{"viewer"}, {"helper"}};
    desktop.addEntry("viewer", "Viewer", "viewer", "/usr/bin/viewer");
    desktop.addEntry("helper", "Helper", "helper", "/usr/bin/viewer --help", "NoDisplay=true\n");
    addFoldersCalled("viewer");
    EXPECT_THAT(leftoversOf("Viewer"), IsEmpty());
}

TEST_F(ApplicationListTest, entriesThatNoPackageOwnsShareTheirNamesToo) {
    desktop.addPackaged({"inkwell"}, "Inkwell", "org.sample.Inkwell");
    desktop.addFlatpak("org.sample.Maps", "Maps", 10, false);
    addFoldersCalled("inkwell");
    addFoldersCalled("org.sample.Maps");
    machine.locations.sharedData = {"/opt/share", "/usr/local/share", "/var/lib/flatpak/exports/share", "/usr/share"};
    EXPECT_THAT(leftoversOf("Inkwell"), testing::SizeIs(3));
    EXPECT_THAT(leftoversOf("Maps"), testing::SizeIs(1)) << "its own entry is nobody else's";
    for (const std::string folder : {"/usr/local/share", "/opt/share"}) {
        const std::string entry = folder + "/applications/built.desktop";
        machine.files.addFile(entry, fakes::applicationEntry("Built", "/usr/local/bin/inkwell"));
        EXPECT_THAT(leftoversOf("Inkwell"), IsEmpty()) << folder;
        machine.files.erase(entry);
    }
}

TEST_F(ApplicationListTest, twoOfOneNameAreTwoApplications) {
    desktop.addFlatpak("org.sample.Maps", "Maps", 10);
    desktop.addPackaged({"maps"}, "Maps", "maps");
    ASSERT_EQ(apps().size(), 2U);
    EXPECT_NE(apps()[0].url, apps()[1].url);
}

TEST(BundleList, takesBundlesDirectlyInTheFolderLargestFirst) {
    fakes::FakePlatform machine;
    machine.files.addFile("/Applications/Small.app/Contents/Info.plist",
                          "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>CFBundleIdentifier</key>"
                          "<string>org.sample.Small</string></dict></plist>");
    machine.files.addFile("/Applications/Odd.app/Contents/Info.plist", "no property list");
    const NodeRef top = bundlesTree({{"Small.app", 10}, {"Utilities", 5'000}, {"Big.app", 300}, {"Odd.app", 20}});
    top->children().front().firstChild()->nextSibling()->append("Inner.app", 0);
    const std::vector<AppEntry> apps = bundlesIn(*top, machine.files);
    ASSERT_EQ(apps.size(), 3U);
    EXPECT_EQ(apps[0].name, "Big");
    EXPECT_EQ(apps[0].url, "/Applications/Big.app");
    EXPECT_EQ(apps[0].bundleID, std::nullopt);
    EXPECT_EQ(apps[0].size, 300U);
    EXPECT_EQ(apps[1].name, "Odd");
    EXPECT_EQ(apps[1].bundleID, std::nullopt);
    EXPECT_EQ(apps[2].bundleID, "org.sample.Small");
    EXPECT_EQ(apps[2].kind, AppKind::bundle);
    EXPECT_EQ(apps[2].dataTotal, 0U);
    EXPECT_EQ(apps[2].icon, "/Applications/Small.app");
}

TEST(BundleList, isEmptyWithoutTheFolder) {
    fakes::FakePlatform machine;
    EXPECT_THAT(bundlesIn(*FSNode::make("", 0), machine.files), IsEmpty());
    EXPECT_THAT(bundlesIn(*bundlesTree({}), machine.files), IsEmpty());
}

TEST(BundleList, cutsExactlyTheEnding) {
    fakes::FakePlatform machine;
    const NodeRef top = bundlesTree({{"My.app.app", 3}, {"Upper.APP", 2}, {"app", 1}, {"x.apps", 1}});
    const std::vector<AppEntry> apps = bundlesIn(*top, machine.files);
    ASSERT_EQ(apps.size(), 1U);
    EXPECT_EQ(apps[0].name, "My.app");
}

}  // namespace zelk

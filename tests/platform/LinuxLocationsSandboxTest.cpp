// SPDX-License-Identifier: MIT
// Which folders are the host's and which the sandbox's, by a fake "/.flatpak-info".
#include <gmock/gmock.h>

#include <filesystem>

#include "fakes/Environment.h"
#include "fakes/FakeSandbox.h"
#include "platform/linux/files/LinuxLocations.h"

namespace zelk {
namespace {

using fakes::EnvironmentVariable;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::StartsWith;

/// The variables as Flatpak sets them.
class SandboxedLocations : public testing::Test {
protected:
    LinuxLocations locations() { return LinuxLocations({}, place.sandbox()); }
    BackgroundItemFolder ownFolderOf(BackgroundItemKind kind) {
        for (const BackgroundItemFolder& folder : locations().backgroundItemFolders())
            if (folder.kind == kind && folder.removable) return folder;
        ADD_FAILURE() << "no such folder";
        return {};
    }

    fakes::FakeSandbox place;
    const std::string host = place.root + "/run/host";
    const EnvironmentVariable home{"HOME", place.home};
    const EnvironmentVariable data{"XDG_DATA_HOME", place.own + "/data"};
    const EnvironmentVariable config{"XDG_CONFIG_HOME", place.own + "/config"};
    const EnvironmentVariable cache{"XDG_CACHE_HOME", place.own + "/cache"};
    const EnvironmentVariable state{"XDG_STATE_HOME", place.own + "/.local/state"};
    const EnvironmentVariable dataFolders{"XDG_DATA_DIRS", "/app/share:/usr/share:/run/host/share"};
    const EnvironmentVariable configFolders{"XDG_CONFIG_DIRS", "/app/etc/xdg:/etc/xdg"};
    const EnvironmentVariable runtime{"XDG_RUNTIME_DIR", "/run/user/7"};
    const EnvironmentVariable programs{"PATH", "/app/bin:/usr/bin"};
    const EnvironmentVariable hostData{"HOST_XDG_DATA_HOME", std::nullopt};
    const EnvironmentVariable hostConfig{"HOST_XDG_CONFIG_HOME", std::nullopt};
    const EnvironmentVariable hostCache{"HOST_XDG_CACHE_HOME", std::nullopt};
    const EnvironmentVariable hostState{"HOST_XDG_STATE_HOME", std::nullopt};
};

TEST_F(SandboxedLocations, sayThatTheyAre) {
    EXPECT_TRUE(locations().isSandboxed());
    place.leave();
    EXPECT_FALSE(locations().isSandboxed());
}

TEST_F(SandboxedLocations, haveTheUsualHomesOfTheHost) {
    EXPECT_EQ(locations().xdgHomes(), (XdgHomes{place.home + "/.local/share", place.home + "/.config",
                                                place.home + "/.cache", place.home + "/.local/state"}));
}

TEST_F(SandboxedLocations, haveTheHomesThatTheHostNames) {
    const EnvironmentVariable ownData("HOST_XDG_DATA_HOME", "/else/data");
    const EnvironmentVariable ownConfig("HOST_XDG_CONFIG_HOME", "/else/config/");
    const EnvironmentVariable ownCache("HOST_XDG_CACHE_HOME", "/else/cache");
    const EnvironmentVariable ownState("HOST_XDG_STATE_HOME", "/else/state");
    EXPECT_EQ(locations().xdgHomes(), (XdgHomes{"/else/data", "/else/config", "/else/cache", "/else/state"}));
}

TEST_F(SandboxedLocations, neverTakeAFolderOfTheSandboxForTheHosts) {
    for (const std::string& value : {std::string(), std::string("relative"), place.own + "/data"}) {
        const EnvironmentVariable ownData("HOST_XDG_DATA_HOME", value);
        const EnvironmentVariable ownCache("HOST_XDG_CACHE_HOME", value);
        EXPECT_EQ(locations().xdgHomes()->data, place.home + "/.local/share") << value;
        EXPECT_EQ(locations().xdgHomes()->cache, place.home + "/.cache") << value;
    }
}

TEST_F(SandboxedLocations, keepWhatZelkWritesInTheSandbox) {
    EXPECT_EQ(locations().applicationSupport(), place.own + "/data");
    const EnvironmentVariable ownData("HOST_XDG_DATA_HOME", "/else/data");
    EXPECT_EQ(locations().applicationSupport(), place.own + "/data");
}

TEST_F(SandboxedLocations, ignoreTheVariablesOfTheHostWhereThereIsNoSandbox) {
    place.leave();
    const EnvironmentVariable ownData("HOST_XDG_DATA_HOME", "/else/data");
    EXPECT_EQ(locations().xdgHomes()->data, place.own + "/data");
}

TEST_F(SandboxedLocations, ofAGivenHomeIgnoreTheEnvironment) {
    const EnvironmentVariable ownData("HOST_XDG_DATA_HOME", "/else/data");
    LinuxLocations given("/given", place.sandbox());
    EXPECT_EQ(given.xdgHomes()->data, "/given/.local/share");
    EXPECT_EQ(given.applicationSupport(), "/given/.local/share");
}

TEST_F(SandboxedLocations, offerNothingOfTheSandbox) {
    const TrashPlaces kept = locations().trashPlaces();
    for (const std::string& path :
         {place.own, place.own + "/cache/qmlcache", place.root + "/usr/lib/node_modules", place.root + "/var/cache/x",
          host + "/usr/lib/node_modules", place.home + "/.local/share/Trash/files/x"})
        EXPECT_TRUE(kept.hold(path)) << path;
    for (const std::string& path : {place.home + "/.cache", place.home + "/.var/app/org.other.App/cache",
                                    place.home + "/.local/share/pnpm", place.root + "/run/media/me/disk/node_modules"})
        EXPECT_FALSE(kept.hold(path)) << path;
}

TEST_F(SandboxedLocations, readWhatStartsFromTheHost) {
    std::vector<std::string> paths;
    for (const BackgroundItemFolder& folder : locations().backgroundItemFolders()) paths.push_back(folder.path);
    EXPECT_THAT(paths,
                ElementsAre(place.home + "/.config/autostart", place.home + "/.config/systemd/user",
                            host + "/etc/xdg/autostart", host + "/etc/systemd/user", host + "/etc/systemd/system"));
}

TEST_F(SandboxedLocations, hideOnlyWhatTheHostHas) {
    EXPECT_THAT(ownFolderOf(BackgroundItemKind::autostartEntries).hides,
                ElementsAre(host + "/etc/xdg/autostart", host + "/usr/local/share/gnome/autostart",
                            host + "/usr/share/gnome/autostart"));
    const std::vector<std::string> units = ownFolderOf(BackgroundItemKind::userUnits).hides;
    EXPECT_THAT(units, Contains(host + "/usr/lib/systemd/user"));
    EXPECT_THAT(units, Contains(place.home + "/.local/share/systemd/user"));
    EXPECT_THAT(units, Each(StartsWith(place.root)));
}

TEST_F(SandboxedLocations, cannotSeeAllThatAUnitMayHide) {
    place.showHost();
    EXPECT_TRUE(ownFolderOf(BackgroundItemKind::userUnits).hidesUnseen);
    EXPECT_FALSE(ownFolderOf(BackgroundItemKind::autostartEntries).hidesUnseen);
    place.leave();
    EXPECT_FALSE(ownFolderOf(BackgroundItemKind::userUnits).hidesUnseen);
    EXPECT_FALSE(ownFolderOf(BackgroundItemKind::autostartEntries).hidesUnseen);
}

TEST_F(SandboxedLocations, cannotSeeWhatAnEntryMayHideWithoutTheHostsSystem) {
    for (const char* missing : {"/usr", "/etc"}) {
        place.showHost();
        std::filesystem::remove_all(host + missing);
        EXPECT_TRUE(ownFolderOf(BackgroundItemKind::autostartEntries).hidesUnseen) << missing;
    }
}

TEST_F(SandboxedLocations, cannotSeeWhatAnEntryMayHideBehindALinkThatLeadsNowhere) {
    place.showHost();
    std::filesystem::create_directory_symlink("/nowhere/static/xdg", host + "/etc/xdg");
    EXPECT_TRUE(ownFolderOf(BackgroundItemKind::autostartEntries).hidesUnseen);
    std::filesystem::remove(host + "/etc/xdg");
    std::filesystem::create_directory_symlink("../usr", host + "/etc/xdg");
    EXPECT_FALSE(ownFolderOf(BackgroundItemKind::autostartEntries).hidesUnseen) << "this link is one within it";
}

TEST_F(SandboxedLocations, lookForProgramsAndDataOfTheHost) {
    EXPECT_THAT(locations().programFolders(), ElementsAre(host + "/usr/local/bin", host + "/usr/bin", host + "/bin"));
    EXPECT_THAT(locations().sharedDataFolders(), ElementsAre(host + "/usr/local/share", host + "/usr/share"));
}

TEST_F(SandboxedLocations, findFilesOfTheSystemBelowTheHosts) {
    LinuxLocations here = locations();
    EXPECT_EQ(here.pathInSandbox(place.root + "/usr/bin/sync"), host + place.root + "/usr/bin/sync");
    for (const std::string& path : {place.home + "/bin/own", place.own + "/x", std::string("/opt/app/run")})
        EXPECT_EQ(here.pathInSandbox(path), path);
    place.leave();
    EXPECT_EQ(locations().pathInSandbox("/usr/bin/sync"), "/usr/bin/sync");
}

}  // namespace
}  // namespace zelk

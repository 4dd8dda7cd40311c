// SPDX-License-Identifier: MIT
#include "platform/linux/files/LinuxLocations.h"

#include <gmock/gmock.h>
#include <pwd.h>
#include <unistd.h>

#include <filesystem>

#include "fakes/Environment.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using fakes::EnvironmentVariable;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

TEST(LinuxLocations, homeComesFromTheEnvironment) {
    const EnvironmentVariable home("HOME", "/home/some one");
    const EnvironmentVariable data("XDG_DATA_HOME", std::nullopt);
    LinuxLocations locations;
    EXPECT_EQ(locations.home(), "/home/some one");
    EXPECT_EQ(locations.applicationSupport(), "/home/some one/.local/share");
}

TEST(LinuxLocations, homeFallsBackToTheUserDatabase) {
    const passwd* entry = ::getpwuid(::getuid());
    const std::string expected = entry != nullptr ? entry->pw_dir : "/";
    for (const std::optional<std::string>& value :
         {std::optional<std::string>(), std::optional<std::string>(""), std::optional<std::string>("relative/home")}) {
        const EnvironmentVariable home("HOME", value);
        EXPECT_EQ(LinuxLocations().home(), expected) << value.value_or("unset");
    }
}

TEST(LinuxLocations, homeHasNoTrailingSlash) {
    const EnvironmentVariable home("HOME", "/home/me//");
    const EnvironmentVariable data("XDG_DATA_HOME", "/data///");
    LinuxLocations locations;
    EXPECT_EQ(locations.home(), "/home/me");
    EXPECT_EQ(locations.applicationSupport(), "/data");
    EXPECT_EQ(LinuxLocations("/given/").home(), "/given");
}

TEST(LinuxLocations, homeHasNoDotComponents) {
    EXPECT_EQ(LinuxLocations("/given/./home//.").home(), "/given/home");
    EXPECT_EQ(LinuxLocations("/given/./home").applicationSupport(), "/given/home/.local/share");
}

TEST(LinuxLocations, rootAsHomeIsOneSlash) {
    const EnvironmentVariable home("HOME", "/");
    const EnvironmentVariable data("XDG_DATA_HOME", std::nullopt);
    LinuxLocations locations;
    EXPECT_EQ(locations.home(), "/");
    EXPECT_EQ(locations.applicationSupport(), "/.local/share");
}

TEST(LinuxLocations, applicationSupportIsTheDataHome) {
    const EnvironmentVariable home("HOME", "/home/me");
    const EnvironmentVariable data("XDG_DATA_HOME", "/else/where");
    EXPECT_EQ(LinuxLocations().applicationSupport(), "/else/where");
}

TEST(LinuxLocations, ignoresRelativeDataHome) {
    const EnvironmentVariable home("HOME", "/home/me");
    for (const char* value : {"", "relative", "./relative", "~/data"}) {
        const EnvironmentVariable data("XDG_DATA_HOME", value);
        EXPECT_EQ(LinuxLocations().applicationSupport(), "/home/me/.local/share") << value;
    }
}

TEST(LinuxLocations, givenHomeOverridesTheEnvironment) {
    const EnvironmentVariable home("HOME", "/home/me");
    const EnvironmentVariable data("XDG_DATA_HOME", "/else/where");
    LinuxLocations locations("/given");
    EXPECT_EQ(locations.home(), "/given");
    EXPECT_EQ(locations.applicationSupport(), "/given/.local/share");
}

TEST(LinuxLocations, xdgHomesLieBelowTheHomeWhereNoVariableNamesThem) {
    const EnvironmentVariable home("HOME", "/home/me");
    const EnvironmentVariable data("XDG_DATA_HOME", "relative");
    const EnvironmentVariable config("XDG_CONFIG_HOME", std::nullopt);
    const EnvironmentVariable cache("XDG_CACHE_HOME", "");
    const EnvironmentVariable state("XDG_STATE_HOME", std::nullopt);
    EXPECT_EQ(LinuxLocations().xdgHomes(),
              (XdgHomes{"/home/me/.local/share", "/home/me/.config", "/home/me/.cache", "/home/me/.local/state"}));
}

TEST(LinuxLocations, xdgHomesAreThoseOfTheirVariables) {
    const EnvironmentVariable home("HOME", "/home/me");
    const EnvironmentVariable data("XDG_DATA_HOME", "/else/data/");
    const EnvironmentVariable config("XDG_CONFIG_HOME", "/else/./config");
    const EnvironmentVariable cache("XDG_CACHE_HOME", "/else/cache");
    const EnvironmentVariable state("XDG_STATE_HOME", "/else/state");
    EXPECT_EQ(LinuxLocations().xdgHomes(), (XdgHomes{"/else/data", "/else/config", "/else/cache", "/else/state"}));
    EXPECT_EQ(LinuxLocations("/given").xdgHomes(),
              (XdgHomes{"/given/.local/share", "/given/.config", "/given/.cache", "/given/.local/state"}));
}

TEST(LinuxLocations, trashPlacesIncludeTheHomeTrash) {
    const EnvironmentVariable home("HOME", "/home/me");
    for (const std::optional<std::string>& value :
         {std::optional<std::string>(), std::optional<std::string>("/data")}) {
        const EnvironmentVariable data("XDG_DATA_HOME", value);
        const TrashPlaces places = LinuxLocations().trashPlaces();
        EXPECT_TRUE(places.areAt(LinuxTrash().location())) << value.value_or("unset");
        EXPECT_EQ(places.areAt("/data/Trash/files"), value.has_value());
        EXPECT_FALSE(places.areAt("/home/you/.local/share/Trash/files"));
    }
    EXPECT_TRUE(LinuxLocations("/given").trashPlaces().areAt(LinuxTrash("/given").location()));
}

TEST(LinuxLocations, trashPlacesIncludeThisUsersVolumeTrashes) {
    const TrashPlaces places = LinuxLocations("/given").trashPlaces();
    const std::string user = std::to_string(::geteuid());
    for (const std::string& top : {std::string(), std::string("/media/stick"), std::string("/mnt/a b")}) {
        EXPECT_TRUE(places.areAt(top + "/.Trash-" + user + "/files")) << top;
        EXPECT_TRUE(places.areAt(top + "/.Trash/" + user + "/files")) << top;
        EXPECT_FALSE(places.areAt(top + "/.Trash-" + user + "1/files")) << top;
        EXPECT_FALSE(places.areAt(top + "/.Trash/1" + user + "/files")) << top;
    }
}

TEST(LinuxLocations, trashPlacesIncludeTheResolvedDataHome) {
    const zoo::TempFolder temp;
    std::filesystem::create_directories(temp / "real/me");
    std::filesystem::create_directory_symlink(temp / "real", temp / "link");
    const TrashPlaces places = LinuxLocations(temp / "link/me").trashPlaces();
    EXPECT_TRUE(places.areAt(temp / "link/me/.local/share/Trash/files"));
    EXPECT_TRUE(places.areAt(temp / "real/me/.local/share/Trash/files"));
}

/// The folders of `kind`, in order; of the user's own or of the system.
std::vector<std::string> itemFolders(BackgroundItemKind kind, bool removable) {
    std::vector<std::string> paths;
    for (const BackgroundItemFolder& folder : LinuxLocations().backgroundItemFolders())
        if (folder.kind == kind && folder.removable == removable) paths.push_back(folder.path);
    return paths;
}

TEST(LinuxLocations, backgroundItemsAreInConfigurationFolders) {
    const EnvironmentVariable home("HOME", "/home/me");
    const EnvironmentVariable config("XDG_CONFIG_HOME", std::nullopt);
    const EnvironmentVariable folders("XDG_CONFIG_DIRS", std::nullopt);
    EXPECT_THAT(itemFolders(BackgroundItemKind::autostartEntries, true), ElementsAre("/home/me/.config/autostart"));
    EXPECT_THAT(itemFolders(BackgroundItemKind::autostartEntries, false), ElementsAre("/etc/xdg/autostart"));
    EXPECT_THAT(itemFolders(BackgroundItemKind::userUnits, true), ElementsAre("/home/me/.config/systemd/user"));
    EXPECT_THAT(itemFolders(BackgroundItemKind::userUnits, false), ElementsAre("/etc/systemd/user"));
    EXPECT_THAT(itemFolders(BackgroundItemKind::systemUnits, false), ElementsAre("/etc/systemd/system"));
    EXPECT_THAT(itemFolders(BackgroundItemKind::systemUnits, true), IsEmpty());
    EXPECT_THAT(itemFolders(BackgroundItemKind::launchdPropertyLists, false), IsEmpty());
}

TEST(LinuxLocations, configurationFoldersComeFromTheEnvironment) {
    const EnvironmentVariable home("HOME", "/home/me");
    const EnvironmentVariable config("XDG_CONFIG_HOME", "/conf//");
    const EnvironmentVariable folders("XDG_CONFIG_DIRS", "/a:relative::/b/:/a:/conf");
    EXPECT_THAT(itemFolders(BackgroundItemKind::autostartEntries, true), ElementsAre("/conf/autostart"));
    // The user's own is not listed again as one of the system.
    EXPECT_THAT(itemFolders(BackgroundItemKind::autostartEntries, false), ElementsAre("/a/autostart", "/b/autostart"));
    EXPECT_THAT(itemFolders(BackgroundItemKind::userUnits, true), ElementsAre("/conf/systemd/user"));
}

/// What the user's own folder of `kind` hides.
std::vector<std::string> hiddenBy(LinuxLocations& locations, BackgroundItemKind kind) {
    for (const BackgroundItemFolder& folder : locations.backgroundItemFolders())
        if (folder.kind == kind && folder.removable) return folder.hides;
    return {"no such folder"};
}

TEST(LinuxLocations, foldersOfTheSystemHideNothing) {
    for (const BackgroundItemFolder& folder : LinuxLocations().backgroundItemFolders())
        EXPECT_TRUE(folder.removable || folder.hides.empty()) << folder.path;
}

TEST(LinuxLocations, ownItemFoldersHideAllOthersOfTheirKind) {
    const EnvironmentVariable home("HOME", "/home/me");
    const EnvironmentVariable config("XDG_CONFIG_HOME", std::nullopt);
    const EnvironmentVariable data("XDG_DATA_HOME", std::nullopt);
    const EnvironmentVariable folders("XDG_CONFIG_DIRS", "/a:/b");
    const EnvironmentVariable shared("XDG_DATA_DIRS", "/exports/share:/usr/share");
    const EnvironmentVariable runtime("XDG_RUNTIME_DIR", "/run/user/7/");
    LinuxLocations locations;
    EXPECT_THAT(
        hiddenBy(locations, BackgroundItemKind::autostartEntries),
        ElementsAre("/a/autostart", "/b/autostart", "/exports/share/gnome/autostart", "/usr/share/gnome/autostart"));
    EXPECT_THAT(hiddenBy(locations, BackgroundItemKind::userUnits),
                ElementsAre("/a/systemd/user", "/b/systemd/user", "/etc/systemd/user", "/run/user/7/systemd/user",
                            "/run/user/7/systemd/transient", "/run/user/7/systemd/generator.early",
                            "/run/user/7/systemd/generator", "/run/user/7/systemd/generator.late",
                            "/home/me/.local/share/systemd/user", "/exports/share/systemd/user",
                            "/usr/share/systemd/user", "/run/systemd/user", "/usr/local/lib/systemd/user",
                            "/usr/local/share/systemd/user", "/usr/lib/systemd/user"));
}

TEST(LinuxLocations, hiddenFoldersHaveDefaults) {
    const EnvironmentVariable home("HOME", "/home/me");
    const EnvironmentVariable config("XDG_CONFIG_HOME", std::nullopt);
    const EnvironmentVariable data("XDG_DATA_HOME", "/data");
    const EnvironmentVariable folders("XDG_CONFIG_DIRS", std::nullopt);
    const EnvironmentVariable shared("XDG_DATA_DIRS", "");
    const std::string session = "/run/user/" + std::to_string(::getuid());
    for (const std::optional<std::string>& value :
         {std::optional<std::string>(), std::optional<std::string>("relative")}) {
        const EnvironmentVariable runtime("XDG_RUNTIME_DIR", value);
        LinuxLocations locations;
        EXPECT_THAT(
            hiddenBy(locations, BackgroundItemKind::autostartEntries),
            ElementsAre("/etc/xdg/autostart", "/usr/local/share/gnome/autostart", "/usr/share/gnome/autostart"));
        EXPECT_THAT(hiddenBy(locations, BackgroundItemKind::userUnits),
                    ElementsAre("/etc/xdg/systemd/user", "/etc/systemd/user", session + "/systemd/user",
                                session + "/systemd/transient", session + "/systemd/generator.early",
                                session + "/systemd/generator", session + "/systemd/generator.late",
                                "/data/systemd/user", "/usr/local/share/systemd/user", "/usr/share/systemd/user",
                                "/run/systemd/user", "/usr/local/lib/systemd/user", "/usr/lib/systemd/user"));
    }
}

TEST(LinuxLocations, sharedDataFoldersAreThoseOfTheEnvironment) {
    const EnvironmentVariable shared("XDG_DATA_DIRS", "/exports/share/:relative:/usr/share");
    EXPECT_THAT(LinuxLocations().sharedDataFolders(), ElementsAre("/exports/share", "/usr/share"));
    EXPECT_THAT(LinuxLocations("/given").sharedDataFolders(), ElementsAre("/usr/local/share", "/usr/share"));
    const EnvironmentVariable unset("XDG_DATA_DIRS", std::nullopt);
    EXPECT_THAT(LinuxLocations().sharedDataFolders(), ElementsAre("/usr/local/share", "/usr/share"));
}

TEST(LinuxLocations, ownItemFolderNeverHidesItself) {
    const EnvironmentVariable home("HOME", "/home/me");
    const EnvironmentVariable config("XDG_CONFIG_HOME", "/conf");
    const EnvironmentVariable data("XDG_DATA_HOME", "/conf/");
    const EnvironmentVariable folders("XDG_CONFIG_DIRS", "/conf:/a");
    const EnvironmentVariable shared("XDG_DATA_DIRS", "/conf:/b");
    LinuxLocations locations;
    EXPECT_THAT(hiddenBy(locations, BackgroundItemKind::autostartEntries),
                ElementsAre("/a/autostart", "/conf/gnome/autostart", "/b/gnome/autostart"));
    EXPECT_THAT(hiddenBy(locations, BackgroundItemKind::userUnits), Not(Contains("/conf/systemd/user")));
    EXPECT_THAT(hiddenBy(locations, BackgroundItemKind::userUnits), Contains("/b/systemd/user"));
}

TEST(LinuxLocations, givenHomeHasItsOwnItemFolders) {
    const EnvironmentVariable config("XDG_CONFIG_HOME", "/conf");
    const EnvironmentVariable folders("XDG_CONFIG_DIRS", "/a");
    const EnvironmentVariable shared("XDG_DATA_DIRS", "/b");
    const EnvironmentVariable runtime("XDG_RUNTIME_DIR", "/run/user/7");
    LinuxLocations locations("/given");
    EXPECT_EQ(locations.backgroundItemFolders().front().path, "/given/.config/autostart");
    EXPECT_THAT(hiddenBy(locations, BackgroundItemKind::autostartEntries),
                ElementsAre("/etc/xdg/autostart", "/usr/local/share/gnome/autostart", "/usr/share/gnome/autostart"));
    EXPECT_THAT(hiddenBy(locations, BackgroundItemKind::userUnits),
                ElementsAre("/etc/xdg/systemd/user", "/etc/systemd/user", "/given/.local/share/systemd/user",
                            "/usr/local/share/systemd/user", "/usr/share/systemd/user", "/run/systemd/user",
                            "/usr/local/lib/systemd/user", "/usr/lib/systemd/user"));
}

TEST(LinuxLocations, programsAndLocalesComeFromTheEnvironment) {
    const EnvironmentVariable path("PATH", "/x/bin:relative:/y");
    const EnvironmentVariable all("LC_ALL", "de_AT.UTF-8");
    LinuxLocations locations;
    EXPECT_THAT(locations.programFolders(), ElementsAre("/x/bin", "/y"));
    EXPECT_THAT(locations.entryLocales(), ElementsAre("de_AT", "de"));
}

TEST(LinuxLocations, readsTheEnvironmentOnce) {
    const EnvironmentVariable home("HOME", "/home/me");
    const EnvironmentVariable data("XDG_DATA_HOME", "/data");
    LinuxLocations locations;
    const EnvironmentVariable otherHome("HOME", "/home/you");
    const EnvironmentVariable otherData("XDG_DATA_HOME", "/other");
    EXPECT_EQ(locations.home(), "/home/me");
    EXPECT_EQ(locations.applicationSupport(), "/data");
}

TEST(LinuxLocations, keepsHomeThatIsNotUtf8) {
    const EnvironmentVariable home("HOME", "/home/\xff");
    EXPECT_EQ(LinuxLocations().home(), "/home/\xff");
}

}  // namespace
}  // namespace zelk

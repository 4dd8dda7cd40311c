// SPDX-License-Identifier: MIT
#include "platform/linux/files/LinuxLocations.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <filesystem>

#include "fakes/Environment.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using fakes::EnvironmentVariable;

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

TEST(LinuxLocations, namesTheXdgDataHome) {
    const EnvironmentVariable home("HOME", "/home/me");
    const EnvironmentVariable data("XDG_DATA_HOME", "/else/where/");
    EXPECT_EQ(LinuxLocations().xdgDataHome(), "/else/where");
    EXPECT_EQ(LinuxLocations("/given").xdgDataHome(), "/given/.local/share");
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

// SPDX-License-Identifier: MIT
#include "platform/linux/Sandbox.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "fakes/Environment.h"
#include "fakes/FakeSandbox.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::EnvironmentVariable;
using testing::Contains;
using testing::IsEmpty;
using testing::Not;

class FlatpakSandbox : public testing::Test {
protected:
    std::optional<std::string> told(const std::optional<std::string>& value, const char* variable = "XDG_DATA_HOME") {
        const EnvironmentVariable host((std::string("HOST_") + variable).c_str(), value);
        return place.sandbox().homeOnHost(variable, place.home);
    }
    std::vector<std::string> own() { return place.sandbox().ownFolders(place.home); }
    bool isPart(const std::string& path) { return place.sandbox().isPartOf(path, place.home); }

    fakes::FakeSandbox place;
};

TEST_F(FlatpakSandbox, isToldByItsDescription) {
    EXPECT_TRUE(place.sandbox().isInside());
    place.leave();
    EXPECT_FALSE(place.sandbox().isInside());
}

TEST_F(FlatpakSandbox, isOneHoweverItIsDescribed) {
    for (const char* text : {"", "name=\n", "[Application]\nname=\n", "[Application]\nname=a/b\n", "\xff\n[",
                             "[Application]\nname=..\n", "[Instance]\nname=other.Name\n"}) {
        place.describe(text);
        EXPECT_TRUE(place.sandbox().isInside()) << text;
        EXPECT_THAT(own(), Contains(place.own)) << text;
    }
}

TEST_F(FlatpakSandbox, isLookedForOnce) {
    const Sandbox sandbox = place.sandbox();
    place.leave();
    EXPECT_TRUE(sandbox.isInside());
}

TEST_F(FlatpakSandbox, keepsItsFilesByTheNameOfItsApplication) {
    place.describe("[Instance]\nname=no.such.Name\n[Application]\n name = io.github.zelk.Zelk.Devel \n");
    EXPECT_THAT(own(), Contains(place.own + ".Devel"));
    EXPECT_THAT(own(), Not(Contains(place.own)));
}

TEST_F(FlatpakSandbox, hasTheSystemOfTheHostElsewhere) {
    EXPECT_EQ(place.sandbox().hostPath("/etc/xdg"), place.root + "/run/host/etc/xdg");
    place.leave();
    EXPECT_EQ(place.sandbox().hostPath("/etc/xdg"), "/etc/xdg");
}

TEST_F(FlatpakSandbox, believesTheVariableOfTheHost) {
    EXPECT_EQ(told(place.home + "/data/"), place.home + "/data");
    EXPECT_EQ(told("/media/disk/./data"), "/media/disk/data");
    EXPECT_EQ(told(place.home), place.home) << "as outside";
    EXPECT_EQ(told("/config", "XDG_CONFIG_HOME"), "/config");
}

TEST_F(FlatpakSandbox, believesNoVariableWithoutASandbox) {
    place.leave();
    EXPECT_EQ(told("/data"), std::nullopt);
}

TEST_F(FlatpakSandbox, ignoresAVariableThatNamesNoFolderOfTheHost) {
    EXPECT_EQ(told(std::nullopt), std::nullopt);
    for (const std::string& value :
         {std::string(), std::string("data"), std::string("./data"), std::string("~/.local/share"), std::string("/"),
          std::string("//."), place.home + "/x/../data", place.home + "/x/../../me/.var/app/io.github.zelk.Zelk/data",
          std::string("/..")})
        EXPECT_EQ(told(value), std::nullopt) << value;
}

TEST_F(FlatpakSandbox, ignoresAVariableThatLeadsIntoASandbox) {
    for (const std::string& value :
         {place.own + "/data", place.own, place.home + "/.var/app", place.home + "/.var/app/org.other.App/data/",
          place.home + "//.var/./app/x", place.root + "/var/data", place.root + "/usr/share", place.root + "/app",
          place.root + "/run/host/usr", place.root + "/tmp/x"})
        EXPECT_EQ(told(value), std::nullopt) << value;
    EXPECT_EQ(told(place.home + "/.var/application"), place.home + "/.var/application") << "is called alike";
}

TEST_F(FlatpakSandbox, ignoresAVariableThatLeadsIntoASandboxByALink) {
    fs::create_directories(place.own + "/data");
    fs::create_directory_symlink(place.own, place.home + "/link");
    EXPECT_EQ(told(place.home + "/link"), std::nullopt);
    EXPECT_EQ(told(place.home + "/link/not there yet"), std::nullopt);
    fs::create_directory_symlink(place.root + "/home", place.root + "/homes");
    EXPECT_EQ(told(place.root + "/homes/me/.var/app/x"), std::nullopt);
}

TEST_F(FlatpakSandbox, ignoresAVariableThatLeadsIntoASandboxOfALinkedHome) {
    fs::create_directory_symlink(place.root + "/home", place.root + "/homes");
    const EnvironmentVariable host("HOST_XDG_DATA_HOME", place.home + "/.var/app/org.other.App");
    EXPECT_EQ(place.sandbox().homeOnHost("XDG_DATA_HOME", place.root + "/homes/me"), std::nullopt);
}

TEST_F(FlatpakSandbox, ownsItsFolderAndItsRuntime) {
    for (const std::string& path :
         {place.own, place.own + "/data/Trash/files/x", place.root + "/usr/share/applications/a.desktop",
          place.root + "/etc/passwd", place.root + "/var/lib/flatpak", place.root + "/var/cache/x",
          place.root + "/app/bin/zelk", place.root + "/run/host/usr/lib", place.root + "/tmp/file",
          place.root + "/lib64"})
        EXPECT_TRUE(isPart(path)) << path;
}

TEST_F(FlatpakSandbox, ownsNothingOfTheUsers) {
    for (const std::string& path :
         {place.home + "/file", place.home + "/.var/app/org.other.App/cache", place.own + "2/cache",
          place.home + "/.cache/yarn", place.root + "/run/media/me/disk/file", place.root + "/media/disk",
          place.root + "/usrlocal", place.root + "/opt/app", place.root + "/var/home/me"})
        EXPECT_FALSE(isPart(path)) << path;
}

TEST_F(FlatpakSandbox, wouldLoseItsOwnWithAFolderAround) {
    for (const std::string& path : {place.home + "/.var/app", place.home + "/.var", place.home, place.root + "/run",
                                    place.root + "/var", std::string("/")})
        EXPECT_TRUE(isPart(path)) << path;
}

// Some distributions have the homes there.
TEST_F(FlatpakSandbox, leavesAHomeInAFolderOfTheRuntimeToItsUser) {
    const std::string home = place.root + "/var/data/me";
    const Sandbox sandbox = place.sandbox();
    EXPECT_FALSE(sandbox.isPartOf(home + "/file", home));
    EXPECT_TRUE(sandbox.isPartOf(home + "/.var/app/io.github.zelk.Zelk", home));
    EXPECT_TRUE(sandbox.isPartOf(place.root + "/var/cache/x", home));
}

TEST_F(FlatpakSandbox, leavesAHomeThatIsLinkedIntoAFolderOfTheRuntimeToItsUser) {
    const std::string home = place.root + "/tmp/me";
    fs::create_directory(place.root + "/tmp");
    fs::create_directory_symlink(place.home, home);
    EXPECT_FALSE(place.sandbox().isPartOf(home + "/file", home));
    EXPECT_FALSE(place.sandbox().isPartOf(place.home + "/file", home));
    EXPECT_TRUE(place.sandbox().isPartOf(place.own, home));
}

TEST_F(FlatpakSandbox, knowsItsFolderByTheRealPathOfTheHomeToo) {
    fs::create_directories(place.root + "/tmp/homes/me");
    fs::remove_all(place.home);
    fs::create_directory_symlink(place.root + "/tmp/homes/me", place.home);
    EXPECT_TRUE(isPart(place.own + "/data"));
    EXPECT_TRUE(isPart(place.root + "/tmp/homes/me/.var/app/io.github.zelk.Zelk/data"));
    EXPECT_FALSE(isPart(place.root + "/tmp/homes/me/file"));
}

TEST_F(FlatpakSandbox, hasNothingOfItsOwnWhereThereIsNone) {
    place.leave();
    EXPECT_THAT(own(), IsEmpty());
    EXPECT_FALSE(isPart(place.own));
    EXPECT_FALSE(isPart("/"));
}

}  // namespace
}  // namespace zelk

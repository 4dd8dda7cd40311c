// SPDX-License-Identifier: MIT
#include "ui/shell/ShaderCaches.h"

#include <gmock/gmock.h>
#include <pwd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <cstdlib>
#include <filesystem>
#include <map>

#include "fakes/Environment.h"
#include "fakes/InChild.h"
#include "fakes/Mounts.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk {

namespace {

using fakes::EnvironmentVariable;
using testing::Contains;
using testing::ElementsAre;

using Rooms = std::map<std::string, std::optional<std::int64_t>>;

bool haveRoom(const Rooms& rooms) {
    std::vector<std::string> folders;
    for (const auto& [folder, room] : rooms) folders.push_back(folder);
    return shaderCachesHaveRoom(folders, [&](const std::string& folder) { return rooms.at(folder); });
}

/// The environment of a user with this home and nothing else set.
struct UserEnvironment {
    explicit UserEnvironment(const std::string& folder) : home("HOME", folder) {}

    EnvironmentVariable home;
    EnvironmentVariable cache{"XDG_CACHE_HOME", std::nullopt};
    EnvironmentVariable mesa{"MESA_SHADER_CACHE_DIR", std::nullopt};
    EnvironmentVariable oldMesa{"MESA_GLSL_CACHE_DIR", std::nullopt};
    EnvironmentVariable nvidia{"__GL_SHADER_DISK_CACHE_PATH", std::nullopt};
};

}  // namespace

TEST(ShaderCaches, needSixtyFourMegabytes) {
    EXPECT_TRUE(haveRoom({{"/home/me", 64'000'000}}));
    EXPECT_FALSE(haveRoom({{"/home/me", 63'999'999}}));
    EXPECT_FALSE(haveRoom({{"/home/me", 0}}));
}

TEST(ShaderCaches, needRoomInEveryFolder) {
    EXPECT_TRUE(haveRoom({{"/a", 64'000'000}, {"/b", 64'000'000}}));
    EXPECT_FALSE(haveRoom({{"/a", 0}, {"/b", 64'000'000}}));
    EXPECT_FALSE(haveRoom({{"/a", 64'000'000}, {"/b", 0}}));
}

TEST(ShaderCaches, needKnownRoom) {
    EXPECT_FALSE(haveRoom({{"/home/me", std::nullopt}}));
}

#ifdef __linux__
TEST(ShaderCaches, lieInHomeAndItsCacheFolder) {
    const std::string home = ::getpwuid(::getuid())->pw_dir;
    const UserEnvironment user(home);
    EXPECT_THAT(shaderCacheFolders(), ElementsAre(home, home + "/.cache"));
}

TEST(ShaderCaches, includeHomeFromUserDatabase) {
    const UserEnvironment user("/home/another");
    EXPECT_THAT(shaderCacheFolders(), ElementsAre("/home/another", "/home/another/.cache",
                                                  ::getpwuid(::getuid())->pw_dir + std::string("/.cache")));
}

TEST(ShaderCaches, followEnvironmentVariables) {
    const UserEnvironment user("/home/me");
    const EnvironmentVariable cache("XDG_CACHE_HOME", "/caches");
    const EnvironmentVariable mesa("MESA_SHADER_CACHE_DIR", "/mesa");
    const EnvironmentVariable oldMesa("MESA_GLSL_CACHE_DIR", "/old");
    const EnvironmentVariable nvidia("__GL_SHADER_DISK_CACHE_PATH", "/nvidia");
    EXPECT_THAT(shaderCacheFolders(), ElementsAre("/home/me", "/caches", "/mesa", "/old", "/nvidia"));
}
#endif

TEST(ShaderCaches, roomIsThatOfNearestExistingFolder) {
    const zoo::TempFolder folder;
    const std::optional<std::int64_t> room = roomForCacheIn(folder / "not/yet/there");
    ASSERT_TRUE(room.has_value());
    EXPECT_GT(*room, 0);
}

TEST(ShaderCaches, areSwitchedOffWithoutHomeFolder) {
    const zoo::TempFolder folder;
    const UserEnvironment user(folder / "home");
    EXPECT_EQ(roomForCacheIn(folder / "home"), 0);
    EXPECT_TRUE(fakes::inChild([] { return switchOffShaderCachesWhereRoomIsShort(); }));
    EXPECT_TRUE(fakes::namesIn(folder.path()).empty());
}

#ifdef __linux__
TEST(ShaderCaches, roomExcludesBlocksReservedForRoot) {
    const zoo::TempFolder folder;
    const std::string image = folder / "image";
    const std::string volume = folder / "volume";
    const auto runs = [](const std::string& line) { return std::system((line + " >/dev/null 2>&1").c_str()) == 0; };
    if (!runs("truncate -s 64M " + image) || !runs("PATH=$PATH:/usr/sbin:/sbin mkfs.ext4 -q -m 50 " + image))
        GTEST_SKIP() << "mkfs.ext4 is not installed";
    EXPECT_TRUE(fakes::inChild([&] {
        fakes::Mounts mounts;
        if (!mounts.allowed() || !runs("mkdir " + volume + " && mount -o loop " + image + " " + volume)) return true;
        const std::optional<std::int64_t> room = roomForCacheIn(volume);
        const auto free = static_cast<std::int64_t>(std::filesystem::space(volume).free);
        return runs("umount " + volume) && room && *room > 0 && *room < free - 20'000'000;
    }));
}

TEST(ShaderCaches, areSwitchedOffOnSmallVolumesOnly) {
    const zoo::TempFolder folder;
    const UserEnvironment user(folder / "home");
    const EnvironmentVariable cache("XDG_CACHE_HOME", folder / "home/.cache");  // not on a volume of this machine
    const auto switchedOffWith = [&](const char* options, bool expected) {
        return fakes::inChild([&] {
            fakes::Mounts mounts;
            if (!mounts.allowed()) return true;
            mounts.memory(folder / "home", options);
            return switchOffShaderCachesWhereRoomIsShort() == expected &&
                   QCoreApplication::testAttribute(Qt::AA_DisableShaderDiskCache) == expected &&
                   qgetenv("MESA_SHADER_CACHE_DISABLE").isEmpty() != expected;
        });
    };
    EXPECT_TRUE(switchedOffWith("size=1m", true));
    EXPECT_TRUE(switchedOffWith("size=100m", false));
}
#endif

TEST(ShaderCaches, areSwitchedOffForEveryDriverAndQt) {
    const zoo::TempFolder folder;
    const UserEnvironment user(folder / "home");
    EXPECT_TRUE(fakes::inChild([] {
        switchOffShaderCachesWhereRoomIsShort();
        return qgetenv("MESA_SHADER_CACHE_DISABLE") == "true" && qgetenv("MESA_GLSL_CACHE_DISABLE") == "true" &&
               qgetenv("__GL_SHADER_DISK_CACHE") == "0" && qgetenv("QSG_RHI_DISABLE_DISK_CACHE") == "1" &&
               QCoreApplication::testAttribute(Qt::AA_DisableShaderDiskCache);
    }));
}

}  // namespace zelk

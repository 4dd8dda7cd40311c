// SPDX-License-Identifier: MIT
// The Trash in a sandbox of Flatpak, by a fake "/.flatpak-info" and mounts like those of one.
#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>

#include "fakes/Environment.h"
#include "fakes/FakeSandbox.h"
#include "fakes/Mounts.h"
#include "fakes/TrashContent.h"
#include "platform/linux/trash/LinuxTrash.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::EnvironmentVariable;
using fakes::fileContent;
using fakes::namesIn;
using fakes::restorable;
using fakes::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::Pair;

class SandboxedTrash : public testing::Test {
protected:
    SandboxedTrash() {
        fs::create_directories(place.own + "/data");
        writeFile(item, "content");
    }

    Failure trashed(const std::string& path) {
        LinuxTrash itsTrash({}, place.sandbox());
        return itsTrash.trash(ItemPath::from(path).value()).failure;
    }
    std::string location() {
        LinuxTrash itsTrash({}, place.sandbox());
        return itsTrash.location();
    }

    fakes::FakeSandbox place;
    const std::string item = place.home + "/item";
    const EnvironmentVariable home{"HOME", place.home};
    const EnvironmentVariable data{"XDG_DATA_HOME", place.own + "/data"};
    const EnvironmentVariable hostData{"HOST_XDG_DATA_HOME", std::nullopt};
};

TEST_F(SandboxedTrash, isTheUsualOneOfTheHost) {
    EXPECT_EQ(location(), place.home + "/.local/share/Trash/files");
    EXPECT_EQ(trashed(item), std::nullopt);
    EXPECT_THAT(restorable(place.home + "/.local/share/Trash"), ElementsAre(Pair(item, testing::_)));
    EXPECT_THAT(namesIn(place.own + "/data"), IsEmpty());
}

TEST_F(SandboxedTrash, isWhereTheHostHasIt) {
    const EnvironmentVariable named("HOST_XDG_DATA_HOME", place.home + "/data");
    EXPECT_EQ(location(), place.home + "/data/Trash/files");
    EXPECT_EQ(trashed(item), std::nullopt);
    EXPECT_THAT(restorable(place.home + "/data/Trash"), ElementsAre(Pair(item, testing::_)));
}

TEST_F(SandboxedTrash, isNeverInTheSandbox) {
    for (const std::string& value : {std::string(), std::string("data"), place.own + "/data", place.own + "/../x"}) {
        const EnvironmentVariable named("HOST_XDG_DATA_HOME", value);
        EXPECT_EQ(location(), place.home + "/.local/share/Trash/files") << value;
    }
}

TEST_F(SandboxedTrash, followsTheVariableOfThisProcessWithoutASandbox) {
    place.leave();
    const EnvironmentVariable named("HOST_XDG_DATA_HOME", place.home + "/data");
    EXPECT_EQ(location(), place.own + "/data/Trash/files");
}

TEST_F(SandboxedTrash, leavesWhatIsTheSandboxsOwn) {
    writeFile(place.own + "/data/history", "records");
    fs::create_directories(place.root + "/var/cache/x");
    for (const std::string& path : {place.own + "/data/history", place.own + "/data", place.own, place.home + "/.var",
                                    place.root + "/var/cache/x"})
        EXPECT_THAT(trashed(path), Optional("“" + fs::path(path).filename().string() +
                                            "” couldn’t be moved to the Trash: it belongs to the sandbox that Zelk "
                                            "runs in"));
    EXPECT_EQ(fileContent(place.own + "/data/history"), "records");
    fs::create_directory_symlink(place.own, place.home + "/link");
    EXPECT_NE(trashed(place.home + "/link/data"), std::nullopt);
    EXPECT_EQ(fileContent(place.own + "/data/history"), "records");
}

TEST_F(SandboxedTrash, takesTheSameFoldersWithoutASandbox) {
    writeFile(place.own + "/data/history", "records");
    place.leave();
    const EnvironmentVariable outside("XDG_DATA_HOME", std::nullopt);
    EXPECT_EQ(trashed(place.own), std::nullopt);
}

/// Flatpak mounts the folders of sandboxes by themselves, and disks as they are.
class SandboxedVolumes : public SandboxedTrash {
protected:
    void SetUp() override {
        if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    }

    fakes::Mounts mounts;
};

TEST_F(SandboxedVolumes, withoutATrashThatTheHostFindsKeepTheirItems) {
    const std::string sandboxes = place.home + "/.var/app";
    fs::create_directories(sandboxes + "/org.other.App/cache");
    mounts.again(sandboxes, sandboxes);
    EXPECT_THAT(
        trashed(sandboxes + "/org.other.App/cache"),
        Optional(std::string("“cache” couldn’t be moved to the Trash: Flatpak’s sandbox has no Trash for its folder")));
    EXPECT_THAT(namesIn(sandboxes), ElementsAre("io.github.zelk.Zelk", "org.other.App"));
    EXPECT_THAT(namesIn(sandboxes + "/org.other.App"), ElementsAre("cache"));
}

TEST_F(SandboxedVolumes, haveTheirTrashAtTheTopAsOutside) {
    const std::string disk = place.root + "/media/disk";
    mounts.memory(disk);
    writeFile(disk + "/file", "content");
    EXPECT_EQ(trashed(disk + "/file"), std::nullopt);
    EXPECT_THAT(restorable(disk + "/.Trash-" + std::to_string(::geteuid())), ElementsAre(Pair("file", testing::_)));
}

TEST_F(SandboxedVolumes, areMountedAnywhereWithoutASandbox) {
    place.leave();
    const std::string part = place.root + "/part";
    fs::create_directories(part);
    writeFile(part + "/file", "content");
    mounts.again(part, part);
    EXPECT_EQ(trashed(part + "/file"), std::nullopt);
    EXPECT_THAT(restorable(part + "/.Trash-" + std::to_string(::geteuid())), ElementsAre(Pair("file", testing::_)));
}

}  // namespace
}  // namespace zelk

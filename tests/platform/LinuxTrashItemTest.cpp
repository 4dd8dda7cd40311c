// SPDX-License-Identifier: MIT
// Moving items into the home trash.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <filesystem>
#include <thread>

#include "fakes/Environment.h"
#include "fakes/InChild.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::asOrdinaryUser;
using fakes::behindGate;
using fakes::fileContent;
using fakes::namesIn;
using fakes::restorable;
using fakes::writeFile;
using testing::ElementsAre;
using testing::Optional;
using testing::Pair;
using testing::StartsWith;

class TrashItem : public testing::Test {
protected:
    Failure trashed(const std::string& path) { return itsTrash.trash(ItemPath::from(path).value()).failure; }

    /// Expects that nothing reached the Trash and that no info is left.
    void expectTrashUntouched() const {
        for (const char* folder : {"/files", "/info"}) {
            if (fs::exists(trash + folder)) {
                EXPECT_TRUE(namesIn(trash + folder).empty()) << folder;
            }
        }
    }

    void expectOnlyItem(const std::string& path, const std::string& content) const {
        const auto found = restorable(trash);
        ASSERT_THAT(found, ElementsAre(Pair(path, testing::_)));
        EXPECT_EQ(fileContent(found.begin()->second), content);
        EXPECT_FALSE(fs::exists(fs::symlink_status(path)));
    }

    void SetUp() override {
        zoo::makeFolder(temp / "items");
        zoo::makeFolder(home);
        fs::permissions(home, fs::perms::all);  // for any user that a test runs as
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string home = temp / "home";
    const std::string trash = home + "/.local/share/Trash";
    const std::string items = temp / "items";
    const std::string item = items + "/item.txt";
    LinuxTrash itsTrash{home};
};

TEST_F(TrashItem, createsPrivateDataFolder) {
    writeFile(item, "content");
    EXPECT_EQ(trashed(item), std::nullopt);
    expectOnlyItem(item, "content");
    for (const char* folder : {"", "/files", "/info"})
        EXPECT_EQ(fs::status(trash + folder).permissions(), fs::perms(0700)) << folder;
    EXPECT_EQ(fs::status(trash + "/info/item.txt.trashinfo").permissions() & fs::perms::all, fs::perms(0600));
}

TEST_F(TrashItem, usesXdgDataHomeNeverTheWorkingDirectory) {
    const fakes::EnvironmentVariable itsHome("HOME", home);
    for (const std::optional<std::string>& value :
         {std::optional<std::string>(), std::optional<std::string>(""), std::optional<std::string>("relative")}) {
        const fakes::EnvironmentVariable data("XDG_DATA_HOME", value);
        writeFile(item, "content");
        EXPECT_EQ(LinuxTrash().trash(ItemPath::from(item).value()).failure, std::nullopt);
        expectOnlyItem(item, "content");
        fs::remove_all(trash);
    }
    const fakes::EnvironmentVariable data("XDG_DATA_HOME", temp / "data");
    writeFile(item, "content");
    EXPECT_EQ(LinuxTrash().trash(ItemPath::from(item).value()).failure, std::nullopt);
    EXPECT_EQ(restorable(temp / "data/Trash").count(item), 1u);
}

TEST_F(TrashItem, recordsDeletionDateInLocalTime) {
    const fakes::EnvironmentVariable zone("TZ", "XYZ-5:30");
    ::tzset();
    writeFile(item, "content");
    const std::time_t before = ::time(nullptr) + 19800;
    EXPECT_EQ(trashed(item), std::nullopt);
    const std::time_t after = ::time(nullptr) + 19800;
    const std::string info = fileContent(trash + "/info/item.txt.trashinfo");
    const std::string date = info.substr(info.find("DeletionDate=") + 13, 19);
    const auto text = [](std::time_t time) {
        char buffer[32];
        return std::string(buffer, std::strftime(buffer, sizeof buffer, "%Y-%m-%dT%H:%M:%S", ::gmtime(&time)));
    };
    EXPECT_GE(date, text(before));
    EXPECT_LE(date, text(after));
}

TEST_F(TrashItem, longNamesKeepTheirExtension) {
    for (const std::size_t bytes : {245u, 246u, 250u, 255u}) {
        const std::string path = items + "/" + std::string(bytes - 4, 'n') + ".txt";
        writeFile(path, "content");
        EXPECT_EQ(trashed(path), std::nullopt);
        const auto found = restorable(trash);
        ASSERT_EQ(found.count(path), 1u) << bytes;
        EXPECT_EQ(fileContent(found.at(path)), "content");
        EXPECT_TRUE(found.at(path).ends_with(".txt"));
    }
    EXPECT_EQ(namesIn(trash + "/files").size(), 4u);
}

TEST_F(TrashItem, longNamesAreCutBetweenCharacters) {
    std::string name;
    while (name.size() < 250) name += "文";
    writeFile(items + "/" + name, "content");
    EXPECT_EQ(trashed(items + "/" + name), std::nullopt);
    EXPECT_THAT(namesIn(trash + "/files"), ElementsAre(name.substr(0, 243)));
    expectOnlyItem(items + "/" + name, "content");
}

TEST_F(TrashItem, recordsPathsThatAreNotUtf8) {
    for (const char* name : {"new\nPath=passwd", "100%25", "%", "\xff\xfe", " ", "a\tb", "[Trash Info]", "ü", "\x01",
                             ".hidden", "...", "-rf"}) {
        const std::string path = items + "/" + name;
        writeFile(path, name);
        EXPECT_EQ(trashed(path), std::nullopt) << name;
        expectOnlyItem(path, name);
        fs::remove_all(trash);
    }
}

TEST_F(TrashItem, movesFolderWithItsContent) {
    zoo::makeNames(items + "/folder");
    const auto names = namesIn(items + "/folder");
    EXPECT_EQ(trashed(items + "/folder/"), std::nullopt);
    EXPECT_EQ(namesIn(restorable(trash).at(items + "/folder")), names);
}

TEST_F(TrashItem, movesDanglingLink) {
    fs::create_symlink("/nowhere", item);
    EXPECT_EQ(trashed(item), std::nullopt);
    EXPECT_EQ(fs::read_symlink(restorable(trash).at(item)), "/nowhere");
}

TEST_F(TrashItem, movesLinkNotItsTargetDespiteTrailingSlash) {
    zoo::makeFile(items + "/target/kept");
    fs::create_directory_symlink(items + "/target", item);
    EXPECT_EQ(trashed(item + "/"), std::nullopt);
    EXPECT_EQ(fs::read_symlink(restorable(trash).at(item)), items + "/target");
    EXPECT_TRUE(fs::exists(items + "/target/kept"));
}

TEST_F(TrashItem, recordsPathAsGivenThroughALink) {
    writeFile(item, "content");
    fs::create_directory_symlink(items, temp / "link");
    EXPECT_EQ(trashed(temp / "link/item.txt"), std::nullopt);
    expectOnlyItem(temp / "link/item.txt", "content");
}

TEST_F(TrashItem, refusesParentSwappedForALink) {
    fs::create_directories(temp / "other/deep");
    writeFile(temp / "other/item.txt", "another");
    writeFile(temp / "other/deep/item.txt", "another");
    fs::remove_all(items);
    fs::create_directory_symlink(temp / "other", items);
    for (const char* path : {"/item.txt", "/deep/item.txt"}) {
        EXPECT_THAT(itsTrash.trash(ItemPath::below(temp.path(), items + path).value()).failure,
                    Optional(std::string("“item.txt” couldn’t be moved to the Trash: "
                                         "the folder that it was found in is no longer there")));
    }
    EXPECT_EQ(fileContent(temp / "other/item.txt"), "another");
    EXPECT_EQ(fileContent(temp / "other/deep/item.txt"), "another");
    expectTrashUntouched();
}

TEST_F(TrashItem, followsLinkThatIsTheRoot) {
    fs::create_directory(items + "/folder");
    writeFile(items + "/folder/item.txt", "content");
    fs::create_directory_symlink(items, temp / "link");
    EXPECT_EQ(itsTrash.trash(ItemPath::below(temp / "link", temp / "link/folder/item.txt").value()).failure,
              std::nullopt);
    expectOnlyItem(temp / "link/folder/item.txt", "content");
}

TEST_F(TrashItem, reportsMissingItem) {
    EXPECT_THAT(trashed(item),
                Optional(std::string("“item.txt” couldn’t be moved to the Trash: No such file or directory")));
    EXPECT_THAT(trashed(item + "/below"),
                Optional(std::string("“below” couldn’t be moved to the Trash: No such file or directory")));
    expectTrashUntouched();
}

TEST_F(TrashItem, takenNameGetsTheNextNumber) {
    for (const char* content : {"first", "second", "third"}) {
        writeFile(item, content);
        EXPECT_EQ(trashed(item), std::nullopt);
    }
    EXPECT_EQ(fileContent(trash + "/files/item.txt"), "first");
    EXPECT_EQ(fileContent(trash + "/files/item.2.txt"), "second");
    EXPECT_EQ(fileContent(trash + "/files/item.3.txt"), "third");
}

TEST_F(TrashItem, neverOverwritesOrphanContent) {
    zoo::makeFolder(trash + "/files/empty");
    zoo::makeFolder(trash + "/info");
    writeFile(trash + "/files/item.txt", "orphan");
    for (const char* name : {"/item.txt", "/empty"}) {
        writeFile(items + name, "content");
        EXPECT_EQ(trashed(items + name), std::nullopt);
    }
    EXPECT_EQ(fileContent(trash + "/files/item.txt"), "orphan");
    EXPECT_TRUE(fs::is_directory(trash + "/files/empty"));
    EXPECT_EQ(fileContent(trash + "/files/item.2.txt"), "content");
    EXPECT_THAT(namesIn(trash + "/info"), ElementsAre("empty.2.trashinfo", "item.2.txt.trashinfo"));
}

TEST_F(TrashItem, neverOverwritesContentThatAppearsMeanwhile) {
    // With RENAME_NOREPLACE, and on a volume without it.
    for (const int answer : {0, EINVAL}) {
        fs::remove_all(trash);
        writeFile(item, "content");
        Failure failure = "not run";
        behindGate(
            SYS_renameat2,
            [&](unsigned call) {
                if (call == 0) writeFile(trash + "/files/item.txt", "orphan");
                return answer;
            },
            [&] { failure = trashed(item); });
        EXPECT_EQ(failure, std::nullopt);
        EXPECT_EQ(fileContent(trash + "/files/item.txt"), "orphan");
        expectOnlyItem(item, "content");
        EXPECT_THAT(namesIn(trash + "/info"), ElementsAre("item.2.txt.trashinfo"));
    }
}

TEST_F(TrashItem, worksWithoutRenameNoReplace) {
    for (const int error : {EINVAL, ENOSYS, EPERM}) {
        fs::remove_all(trash);
        writeFile(item, "content");
        zoo::makeFile(items + "/folder/below");
        fs::create_symlink("/nowhere", items + "/link");
        behindGate(
            SYS_renameat2, [&](unsigned) { return error; },
            [&] {
                for (const char* name : {"/item.txt", "/folder", "/link"})
                    EXPECT_EQ(trashed(items + name), std::nullopt) << name;
            });
        const auto found = restorable(trash);
        ASSERT_EQ(found.size(), 3u);
        EXPECT_EQ(fileContent(found.at(item)), "content");
        EXPECT_TRUE(fs::exists(found.at(items + "/folder") + "/below"));
        EXPECT_TRUE(fs::is_symlink(fs::symlink_status(found.at(items + "/link"))));
    }
}

TEST_F(TrashItem, failedRenameLeavesNothingInTheTrash) {
    writeFile(item, "content");
    fs::create_directory(items + "/folder");
    for (const char* name : {"/item.txt", "/folder"}) {
        EXPECT_TRUE(fakes::inChild([&] {
            Failure failure;
            behindGate(
                SYS_renameat2, [](unsigned) { return EINVAL; },
                [&] {
                    if (fakes::filterCalls(SYS_renameat, SECCOMP_RET_ERRNO | EIO) == 0) failure = trashed(items + name);
                });
            return failure && failure->ends_with("couldn’t be moved to the Trash: Input/output error");
        }));
    }
    EXPECT_EQ(fileContent(item), "content");
    expectTrashUntouched();
}

TEST_F(TrashItem, ignoresSwappedParentFolder) {
    for (const long call : {SYS_mkdirat, SYS_fsync, SYS_renameat2}) {
        for (const std::string& path : {home, items, temp / "aside", temp / "other"}) fs::remove_all(path);
        for (const std::string& path : {home, items, temp / "other"}) fs::create_directory(path);
        writeFile(item, "content");
        writeFile(temp / "other/item.txt", "another");
        Failure failure = "not run";
        behindGate(
            static_cast<int>(call),
            [&](unsigned number) {
                if (number == 0) {
                    fs::rename(items, temp / "aside");
                    fs::create_directory_symlink(temp / "other", items);
                }
                return 0;
            },
            [&] { failure = trashed(item); });
        EXPECT_EQ(failure, std::nullopt);
        EXPECT_EQ(fileContent(restorable(trash).at(item)), "content");
        EXPECT_EQ(fileContent(temp / "other/item.txt"), "another");
    }
}

TEST_F(TrashItem, neverCopiesAcrossVolumes) {
    writeFile(item, "content");
    Failure failure;
    behindGate(
        SYS_renameat2, [](unsigned) { return EXDEV; }, [&] { failure = trashed(item); });
    EXPECT_THAT(failure, Optional(std::string("“item.txt” couldn’t be moved to the Trash: "
                                              "it is not on the same volume as its Trash")));
    EXPECT_EQ(fileContent(item), "content");
    expectTrashUntouched();
}

TEST_F(TrashItem, refusesFolderThatHoldsTheTrash) {
    writeFile(item, "content");
    EXPECT_EQ(trashed(item), std::nullopt);
    for (const std::string& above : {home, home + "/.local", trash + "/files"}) {
        const Failure failure = trashed(above);
        ASSERT_TRUE(failure) << above;
        EXPECT_TRUE(fs::is_directory(above));
    }
    EXPECT_THAT(trashed(home + "/.local"),
                Optional(std::string("“.local” couldn’t be moved to the Trash: the Trash is in it")));
    expectOnlyItem(item, "content");
    EXPECT_EQ(namesIn(trash + "/info").size(), 1u);
}

TEST_F(TrashItem, refusesPartOfTheTrash) {
    writeFile(item, "content");
    EXPECT_EQ(trashed(item), std::nullopt);
    for (const std::string& part : {trash + "/info", trash + "/files", trash}) EXPECT_TRUE(trashed(part)) << part;
    EXPECT_THAT(trashed(trash + "/info"),
                Optional(std::string("“info” couldn’t be moved to the Trash: it is part of the Trash itself")));
    expectOnlyItem(item, "content");
}

TEST_F(TrashItem, staysWhenInfoCannotBeWritten) {
    zoo::makeFolder(trash + "/files");
    zoo::makeFolder(trash + "/info");
    writeFile(item, "content");
    for (const std::string& path : {home, items}) fakes::giveToOrdinaryUser(path);
    ASSERT_EQ(::chmod((trash + "/info").c_str(), 0500), 0);
    EXPECT_TRUE(asOrdinaryUser(
        [&] { return trashed(item) == "“item.txt” couldn’t be moved to the Trash: Permission denied"; }));
    EXPECT_EQ(fileContent(item), "content");
    expectTrashUntouched();
}

TEST_F(TrashItem, staysWhenItsFolderIsNotWritable) {
    writeFile(item, "content");
    zoo::makeFolder(items + "/nowhere");
    ASSERT_EQ(::chmod((items + "/nowhere").c_str(), 0555), 0);
    ASSERT_EQ(::chmod(items.c_str(), 0555), 0);
    EXPECT_TRUE(asOrdinaryUser([&] {
        const Failure failure = LinuxTrash(items + "/nowhere").trash(ItemPath::from(item).value()).failure;
        return failure && failure->starts_with("“item.txt” couldn’t be moved to the Trash: “" + items +
                                               "/nowhere/.local/share” couldn’t be created");
    }));
    ASSERT_EQ(::chmod(temp.path().c_str(), 0777), 0);
    EXPECT_TRUE(asOrdinaryUser(
        [&] { return trashed(item) == "“item.txt” couldn’t be moved to the Trash: Permission denied"; }));
    EXPECT_EQ(fileContent(item), "content");
    expectTrashUntouched();
}

TEST_F(TrashItem, needsNoReadPermissionOnItsFolder) {
    ASSERT_EQ(::chmod(temp.path().c_str(), 0777), 0);
    writeFile(item, "content");
    fakes::giveToOrdinaryUser(items);
    ASSERT_EQ(::chmod(items.c_str(), 0300), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return !trashed(item); }));
    ASSERT_EQ(::chmod(items.c_str(), 0700), 0);
    expectOnlyItem(item, "content");
}

class HostileHomeTrash : public TrashItem, public testing::WithParamInterface<const char*> {};

TEST_P(HostileHomeTrash, rejectsLink) {
    writeFile(item, "content");
    zoo::makeFolder(temp / "elsewhere/files");
    zoo::makeFolder(temp / "elsewhere/info");
    fs::create_directories(fs::path(trash + GetParam()).parent_path());
    fs::create_directory_symlink(temp / "elsewhere", trash + GetParam());
    EXPECT_THAT(trashed(item),
                Optional("“item.txt” couldn’t be moved to the Trash: “" + trash + GetParam() + "” is a link"));
    EXPECT_EQ(fileContent(item), "content");
    EXPECT_THAT(namesIn(temp / "elsewhere"), ElementsAre("files", "info"));
}

TEST_P(HostileHomeTrash, rejectsFile) {
    writeFile(item, "content");
    zoo::makeFile(trash + GetParam());
    EXPECT_THAT(trashed(item),
                Optional("“item.txt” couldn’t be moved to the Trash: “" + trash + GetParam() + "” is not a folder"));
    EXPECT_EQ(fileContent(item), "content");
}

TEST_P(HostileHomeTrash, rejectsFolderOfAnotherUser) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
    writeFile(item, "content");
    zoo::makeFolder(trash + "/files");
    zoo::makeFolder(trash + "/info");
    ASSERT_EQ(::chown((trash + GetParam()).c_str(), fakes::ordinaryUser, fakes::ordinaryUser), 0);
    EXPECT_THAT(trashed(item), Optional("“item.txt” couldn’t be moved to the Trash: “" + trash + GetParam() +
                                        "” belongs to another user"));
    EXPECT_EQ(fileContent(item), "content");
    expectTrashUntouched();
}

INSTANTIATE_TEST_SUITE_P(EachFolder, HostileHomeTrash, testing::Values("", "/files", "/info"));

TEST_F(TrashItem, twoThousandEqualNamesCostLinearWork) {
    unsigned opened = 0;
    const auto trashMany = [&](int count) {
        opened = 0;
        behindGate(
            SYS_openat, [&](unsigned) { return ++opened, 0; },
            [&] {
                for (int i = 0; i < count; ++i) {
                    fs::create_directory(items + "/__pycache__");
                    ASSERT_EQ(trashed(items + "/__pycache__"), std::nullopt);
                }
            });
        return opened;
    };
    const unsigned few = trashMany(100);
    const unsigned many = trashMany(1900);
    EXPECT_LE(many, 19 * few + 1900);
    EXPECT_EQ(namesIn(trash + "/files").size(), 2000u);
    EXPECT_EQ(namesIn(trash + "/info").size(), 2000u);
    // A new instance searches once only.
    LinuxTrash another(home);
    const auto lookups = [&] {
        unsigned calls = 0;
        fs::create_directory(items + "/__pycache__");
        behindGate(
            SYS_faccessat2, [&](unsigned) { return ++calls, 0; },
            [&] { EXPECT_EQ(another.trash(ItemPath::from(items + "/__pycache__").value()).failure, std::nullopt); });
        return calls;
    };
    EXPECT_GE(lookups(), 2000u);
    EXPECT_LE(lookups(), 3u);
}

TEST_F(TrashItem, concurrentThreadsLoseNothing) {
    constexpr int threads = 8;
    constexpr int each = 25;
    std::vector<std::thread> workers;
    for (int thread = 0; thread < threads; ++thread) {
        workers.emplace_back([&, thread] {
            for (int i = 0; i < each; ++i) {
                const std::string folder = items + "/" + std::to_string(thread) + "." + std::to_string(i);
                zoo::makeFolder(folder);
                writeFile(folder + "/same", folder);
                EXPECT_EQ(trashed(folder + "/same"), std::nullopt);
            }
        });
    }
    for (std::thread& worker : workers) worker.join();
    const auto found = restorable(trash);
    EXPECT_EQ(found.size(), static_cast<std::size_t>(threads * each));
    for (const auto& [path, content] : found)
        EXPECT_EQ(fileContent(content), path.substr(0, path.size() - std::string("/same").size()));
}

TEST_F(TrashItem, movesItemWithPathLongerThanPathMax) {
    zoo::makeChain(items + "/chain", 30, 200);
    std::string name;
    for (const std::string& entry : namesIn(items + "/chain")) {
        if (entry.size() == 200) name = entry;
    }
    std::string deep = items + "/chain";
    while (deep.size() < 5000) deep += "/" + name;
    EXPECT_EQ(trashed(deep), std::nullopt);
    EXPECT_TRUE(fs::is_directory(restorable(trash).at(deep)));
}

TEST_F(TrashItem, leaksNoDescriptor) {
    writeFile(item, "content");
    const std::ptrdiff_t before = fakes::openDescriptors();
    EXPECT_EQ(trashed(item), std::nullopt);
    EXPECT_TRUE(trashed(item));
    EXPECT_EQ(itsTrash.empty(), 1u);
    EXPECT_EQ(fakes::openDescriptors(), before);
}

}  // namespace
}  // namespace zelk

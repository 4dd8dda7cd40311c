// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <future>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <utility>

#include "fakes/InChild.h"
#include "fakes/Mounts.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/HomeTrash.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "platform/posix/Descriptor.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::asOrdinaryUser;
using fakes::namesIn;
using fakes::restorable;
using fakes::writeFile;
using testing::ElementsAre;
using testing::IsEmpty;

class EmptyingTrash : public HomeTrash {
protected:
    void add(const std::string& name) {
        addInfo(name);
        zoo::makeFile(contentOf(name), 10);
    }

    /// Adds a folder of the ordinary user that contains another user's folder.
    void addLocked() {
        zoo::makeFile(files + "/locked/theirs/file");
        addInfo("locked");
        fakes::giveToOrdinaryUser(home);
        if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
        ASSERT_EQ(::chown((files + "/locked/theirs").c_str(), 0, 0), 0);
    }

    void trashNewcomer() {
        writeFile(temp / "same", "newcomer");
        EXPECT_EQ(LinuxTrash(home).trash(ItemPath::from(temp / "same").value()).failure, std::nullopt);
    }

    /// Its path in the Trash; empty if it could not be restored.
    std::string newcomer() {
        const auto found = restorable(trash);
        const auto at = found.find(temp / "same");
        return at == found.end() ? "" : at->second;
    }

    void expectNewcomerAlone() {
        EXPECT_EQ(namesIn(files).size(), 1u);
        EXPECT_EQ(namesIn(info).size(), 1u);
        EXPECT_EQ(fakes::fileContent(newcomer()), "newcomer");
        EXPECT_EQ(itsTrash.empty(), 1u);
    }

    /// Trashes a new item of the same name just before the emptying's call number `at`, from 0.
    void emptyAsANewcomerComes(unsigned at) {
        const auto rule = [&](unsigned call) {
            if (call == at) trashNewcomer();
            return 0;
        };
        fakes::behindGate(SYS_unlinkat, rule, [&] { EXPECT_EQ(itsTrash.empty(), 1u); });
        expectNewcomerAlone();
    }
};

TEST_F(EmptyingTrash, removesContentAndInfo) {
    add("file");
    add(".hidden");
    add("\xff\n");
    zoo::makeFile(files + "/folder/below/file");
    addInfo("folder");
    EXPECT_EQ(itsTrash.empty(), 4u);
    EXPECT_THAT(namesIn(files), IsEmpty());
    EXPECT_THAT(namesIn(info), IsEmpty());
}

TEST_F(EmptyingTrash, removesNothingFromAnEmptyTrash) {
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_EQ(LinuxTrash(temp / "missing").empty(), 0u);
    EXPECT_FALSE(fs::exists(temp / "missing"));
}

TEST_F(EmptyingTrash, doesNotFollowLinks) {
    zoo::makeFile(temp / "outside/kept");
    fs::create_directory_symlink(temp / "outside", files + "/link");
    zoo::makeFolder(files + "/folder");
    fs::create_directory_symlink(temp / "outside", files + "/folder/link");
    EXPECT_EQ(itsTrash.empty(), 2u);
    EXPECT_THAT(namesIn(files), IsEmpty());
    EXPECT_TRUE(fs::exists(temp / "outside/kept"));
}

TEST_F(EmptyingTrash, refusesTrashThatIsALink) {
    fs::rename(trash, temp / "elsewhere");
    zoo::makeFile(temp / "elsewhere/files/kept");
    fs::create_directory_symlink(temp / "elsewhere", trash);
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_TRUE(fs::exists(temp / "elsewhere/files/kept"));
}

TEST_F(EmptyingTrash, removesContentWithoutInfo) {
    zoo::makeFile(files + "/orphan");
    EXPECT_EQ(itsTrash.empty(), 1u);
    EXPECT_THAT(namesIn(files), IsEmpty());
}

TEST_F(EmptyingTrash, removesOrphanInfoWithoutCountingIt) {
    addInfo("orphan");
    add("file");
    EXPECT_EQ(itsTrash.empty(), 1u);
    EXPECT_THAT(namesIn(info), IsEmpty());
}

TEST_F(EmptyingTrash, keepsOrphanInfoYoungerThanAMinute) {
    writeFile(info + "/coming.trashinfo", "");
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_THAT(namesIn(info), ElementsAre("coming.trashinfo"));
}

TEST_F(EmptyingTrash, keepsInfoOfAnItemBeingTrashed) {
    addInfo("slow");
    const Descriptor trashing(::open(info.c_str(), O_RDONLY | O_DIRECTORY));
    ASSERT_EQ(::flock(trashing.get(), LOCK_SH), 0);
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_THAT(namesIn(info), ElementsAre("slow.trashinfo"));
}

TEST_F(EmptyingTrash, keepsFilesThatAreNotInfo) {
    zoo::makeFile(info + "/notes.txt");
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_THAT(namesIn(info), ElementsAre("notes.txt"));
}

TEST_F(EmptyingTrash, removesCachedDirectorySizes) {
    writeFile(trash + "/directorysizes", "1 1 folder\n");
    EXPECT_EQ(itsTrash.empty(), 0u);
    EXPECT_TRUE(fs::exists(trash + "/directorysizes"));
    add("file");
    EXPECT_EQ(itsTrash.empty(), 1u);
    EXPECT_FALSE(fs::exists(trash + "/directorysizes"));
}

TEST_F(EmptyingTrash, removesReadOnlyFolder) {
    for (const char* folder : {"locked", "locked/below"}) zoo::makeFile(files + "/" + folder + "/file");
    addInfo("locked");
    fakes::giveToOrdinaryUser(home);
    for (const char* folder : {"locked/below", "locked"}) ASSERT_EQ(::chmod((files + "/" + folder).c_str(), 0500), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return itsTrash.empty() == 1; }));
    EXPECT_THAT(namesIn(files), IsEmpty());
    EXPECT_THAT(namesIn(info), IsEmpty());
}

TEST_F(EmptyingTrash, keepsInfoOfUnremovableEntryAndContinues) {
    for (const char* name : {"a", "z"}) add(name);
    addLocked();
    EXPECT_TRUE(asOrdinaryUser([&] { return itsTrash.empty() == 2; }));
    EXPECT_THAT(namesIn(files), ElementsAre("locked"));
    EXPECT_THAT(namesIn(info), ElementsAre("locked.trashinfo"));
    EXPECT_TRUE(fs::exists(files + "/locked/theirs/file"));
}

// So many that several threads share them.
TEST_F(EmptyingTrash, removesManyEntries) {
    constexpr int many = 500;
    for (int number = 0; number < many; ++number) {
        const std::string name = std::to_string(number);
        if (number % 5 != 0) addInfo(name);
        zoo::makeFile(files + "/" + name + (number % 2 == 0 ? "/below/file" : ""));
    }
    EXPECT_EQ(itsTrash.empty(), std::size_t{many});
    EXPECT_THAT(namesIn(files), IsEmpty());
    EXPECT_THAT(namesIn(info), IsEmpty());
}

TEST_F(EmptyingTrash, keepsUnremovableEntriesAmongMany) {
    constexpr int many = 300;
    std::set<std::string> kept;
    for (int number = 0; number < many; ++number) {
        const std::string name = std::to_string(number);
        zoo::makeFile(files + "/" + name + "/theirs/file");
        addInfo(name);
        if (number % 7 == 0) kept.insert(name);
    }
    fakes::giveToOrdinaryUser(home);
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
    for (const std::string& name : kept) ASSERT_EQ(::chown((files + "/" + name + "/theirs").c_str(), 0, 0), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return itsTrash.empty() == many - kept.size(); }));
    EXPECT_EQ(namesIn(files), kept);
    EXPECT_EQ(namesIn(info).size(), kept.size());
    for (const std::string& name : kept) EXPECT_TRUE(fs::exists(info + "/" + name + ".trashinfo"));
}

TEST_F(EmptyingTrash, leavesEntriesWithAMountAsTheyAre) {
    fakes::Mounts mounts;
    if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    zoo::makeFile(temp / "elsewhere/kept");
    for (int number = 0; number < 100; ++number) {
        zoo::makeFile(files + "/" + std::to_string(number) + "/file");
        addInfo(std::to_string(number));
    }
    for (const char* name : {"7", "42"}) {
        zoo::makeFolder(files + "/" + name + "/mounted");
        mounts.again(temp / "elsewhere", files + "/" + name + "/mounted");
    }
    EXPECT_EQ(itsTrash.empty(), 98u);
    EXPECT_THAT(namesIn(files), ElementsAre("42", "7"));
    EXPECT_THAT(namesIn(info), ElementsAre("42.trashinfo", "7.trashinfo"));
    for (const char* name : {"7", "42"}) EXPECT_TRUE(fs::exists(files + "/" + name + "/file"));
    EXPECT_TRUE(fs::exists(temp / "elsewhere/kept"));
}

// Its table of mounts was read before; what is mounted since then is noticed on the way.
TEST_F(EmptyingTrash, doesNotCrossAMountMadeMeanwhile) {
    fakes::Mounts mounts;
    if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    zoo::makeFile(temp / "elsewhere/kept");
    for (const char* name : {"a", "b"}) {
        zoo::makeFile(files + "/" + name + "/mounted/file");
        addInfo(name);
    }
    bool mounted = false;
    fakes::behindGate(
        SYS_unlinkat,
        [&](unsigned) {
            if (std::exchange(mounted, true)) return 0;
            // One entry is under way; the other has still its name.
            for (const std::string& name : namesIn(files))
                mounts.again(temp / "elsewhere", files + "/" + name + "/mounted");
            return 0;
        },
        [&] { EXPECT_EQ(itsTrash.empty(), 0u); });
    // One of them has moved with the entry that holds it.
    for (const char* name : {"a", "b"}) ::umount2((files + "/" + name + "/mounted").c_str(), MNT_DETACH);
    EXPECT_TRUE(fs::exists(temp / "elsewhere/kept"));
    EXPECT_THAT(namesIn(files), ElementsAre("a", "b"));
}

TEST_F(EmptyingTrash, keepsUnremovableEntryWithoutHardLinks) {
    add("file");
    addLocked();
    const auto emptied = [&] {
        std::size_t removed = 0;
        fakes::behindGate(
            SYS_linkat, [](unsigned) { return EPERM; }, [&] { removed = itsTrash.empty(); });
        return removed == 1;
    };
    EXPECT_TRUE(asOrdinaryUser(emptied));
    EXPECT_THAT(namesIn(files), ElementsAre("locked"));
    EXPECT_THAT(namesIn(info), ElementsAre("locked.trashinfo"));
}

TEST_F(EmptyingTrash, unremovableEntryYieldsItsNameToANewItem) {
    addLocked();
    zoo::makeFolder(temp / "mine");
    writeFile(temp / "mine/locked", "newcomer");
    fakes::giveToOrdinaryUser(temp / "mine");
    const auto emptied = [&] {
        const auto rule = [&](unsigned call) {
            // The entry has been renamed by now, and nothing of it could be deleted yet.
            return call == 1 && LinuxTrash(home).trash(ItemPath::from(temp / "mine/locked").value()).failure ? EIO : 0;
        };
        std::size_t removed = 1;
        fakes::behindGate(SYS_unlinkat, rule, [&] { removed = itsTrash.empty(); });
        return removed == 0;
    };
    EXPECT_TRUE(asOrdinaryUser(emptied));
    const auto found = restorable(trash);
    EXPECT_EQ(found.size(), namesIn(files).size());
    ASSERT_EQ(found.count(temp / "mine/locked"), 1u);
    EXPECT_EQ(fakes::fileContent(found.at(temp / "mine/locked")), "newcomer");
    ASSERT_EQ(found.count("/was/locked"), 1u);
    EXPECT_TRUE(fs::exists(found.at("/was/locked") + "/theirs/file"));
}

TEST_F(EmptyingTrash, concurrentTrashingKeepsContentAndInfoTogether) {
    for (unsigned at = 0; at < 3; ++at) {
        add("same");
        emptyAsANewcomerComes(at);
    }
}

TEST_F(EmptyingTrash, keepsInfoOfANewItemNamedLikeOrphanContent) {
    for (unsigned at = 0; at < 2; ++at) {
        zoo::makeFile(files + "/same");
        // Content without info keeps its name only until it is renamed.
        emptyAsANewcomerComes(at);
    }
}

// Another program, which takes no locks, empties the Trash meanwhile, and a new item gets the name.
TEST_F(EmptyingTrash, keepsNewItemWithTheNameOfAListedEntry) {
    for (const long call : {SYS_statx, SYS_linkat, SYS_renameat2}) {
        unsigned calls = 0;
        add("same");
        fakes::behindGate(
            static_cast<int>(call), [&](unsigned) { return ++calls, 0; }, [&] { EXPECT_EQ(itsTrash.empty(), 1u); });
        ASSERT_GT(calls, 0u);
        unsigned kept = 0;
        for (unsigned at = 0; at < calls; ++at) {
            add("same");
            fakes::behindGate(
                static_cast<int>(call),
                [&](unsigned number) {
                    if (number != at) return 0;
                    for (const std::string& folder : {files, info})
                        for (const std::string& name : namesIn(folder)) fs::remove_all(folder + "/" + name);
                    trashNewcomer();
                    return 0;
                },
                [&] { itsTrash.empty(); });
            EXPECT_EQ(restorable(trash).size(), namesIn(files).size()) << call << " " << at;
            const bool isKept = fs::exists(newcomer());
            EXPECT_TRUE(isKept || kept == 0) << call << " " << at << ": it came after the listing";
            if (isKept) ++kept;
            itsTrash.empty();
        }
        EXPECT_EQ(kept, call == SYS_statx ? kept : calls) << call;
        EXPECT_GT(kept, 0u) << call;
    }
}

// Another program takes the old info, whose content has already been renamed, for an orphan.
TEST_F(EmptyingTrash, keepsInfoOfANewItemNamedLikeARenamedEntry) {
    add("same");
    bool came = false;
    fakes::behindGate(
        SYS_statx,
        [&](unsigned) {
            if (came || fs::exists(files + "/same")) return 0;
            came = true;
            fs::remove(info + "/same.trashinfo");
            trashNewcomer();
            EXPECT_EQ(newcomer(), files + "/same");
            return 0;
        },
        [&] { EXPECT_EQ(itsTrash.empty(), 1u); });
    ASSERT_TRUE(came);
    expectNewcomerAlone();
}

TEST_F(EmptyingTrash, waitsForAnotherEmptyingBeforeListing) {
    for (unsigned at = 0; at < 3; ++at) {
        add("same");
        std::promise<void> first;
        std::promise<void> second;
        std::once_flag told;
        std::shared_future<void> firstEnded = first.get_future().share();
        std::thread other;
        const auto beSecond = [&] {
            fakes::behindGate(
                SYS_flock,
                [&](unsigned) {
                    std::call_once(told, [&] { second.set_value(); });
                    firstEnded.wait();
                    return 0;
                },
                [&] { LinuxTrash(home).empty(); });
            std::call_once(told, [&] { second.set_value(); });
        };
        fakes::behindGate(
            SYS_unlinkat,
            [&](unsigned call) {
                if (call != at) return 0;
                other = std::thread(beSecond);
                second.get_future().wait();
                trashNewcomer();
                return 0;
            },
            [&] { itsTrash.empty(); });
        EXPECT_EQ(fakes::fileContent(newcomer()), "newcomer") << at;
        first.set_value();
        other.join();
        EXPECT_EQ(restorable(trash).size(), namesIn(files).size()) << at;
        EXPECT_EQ(itsTrash.empty(), namesIn(files).size());
    }
}

TEST_F(EmptyingTrash, concurrentEmptyingsTakeTurns) {
    const Descriptor others(::open(files.c_str(), O_RDONLY | O_DIRECTORY));
    ASSERT_EQ(::flock(others.get(), LOCK_EX), 0);
    add("file");
    std::thread emptier;
    std::promise<void> waits;
    std::atomic<bool> ended{false};
    emptier = std::thread([&] {
        bool first = true;
        fakes::behindGate(
            SYS_flock,
            [&](unsigned) {
                if (std::exchange(first, false)) waits.set_value();
                return 0;
            },
            [&] { itsTrash.empty(); });
        ended = true;
    });
    waits.get_future().wait();
    EXPECT_FALSE(ended);
    EXPECT_THAT(namesIn(files), ElementsAre("file"));
    ASSERT_EQ(::flock(others.get(), LOCK_UN), 0);
    emptier.join();
    EXPECT_THAT(namesIn(files), IsEmpty());
}

TEST_F(EmptyingTrash, worksWithoutLocks) {
    for (const int error : {EOPNOTSUPP, ENOLCK, ENOSYS, EINVAL}) {
        add("file");
        fakes::behindGate(
            SYS_flock, [&](unsigned) { return error; }, [&] { EXPECT_EQ(itsTrash.empty(), 1u); });
        EXPECT_THAT(namesIn(info), IsEmpty());
    }
    add("file");
    fakes::behindGate(
        SYS_flock, [&](unsigned) { return EIO; }, [&] { EXPECT_EQ(itsTrash.empty(), 0u); });
    EXPECT_EQ(restorable(trash).size(), 1u);
}

TEST_F(EmptyingTrash, worksWithoutHardLinks) {
    for (const int error : {EPERM, EOPNOTSUPP, ENOSYS, EMLINK}) {
        add("file");
        zoo::makeFile(files + "/orphan");
        fakes::behindGate(
            SYS_linkat, [&](unsigned) { return error; }, [&] { EXPECT_EQ(itsTrash.empty(), 2u); });
        EXPECT_THAT(namesIn(files), IsEmpty());
        EXPECT_THAT(namesIn(info), IsEmpty());
    }
}

TEST_F(EmptyingTrash, removesLeftoversOfAKilledEmptying) {
    const std::string own = "emptying." + std::to_string(::getpid()) + ".";
    for (const char* number : {"0", "1"}) add(own + number);
    zoo::makeFile(files + "/" + own + "2");
    addInfo(own + "3");
    add("file");
    zoo::makeFile(files + "/orphan");
    EXPECT_EQ(itsTrash.empty(), 5u);
    EXPECT_THAT(namesIn(files), IsEmpty());
    EXPECT_THAT(namesIn(info), IsEmpty());
}

TEST_F(EmptyingTrash, restartsNumbering) {
    for (const char* round : {"one", "two"}) {
        for (const char* content : {"a", "b"}) {
            writeFile(temp / "item", content);
            EXPECT_EQ(itsTrash.trash(ItemPath::from(temp / "item").value()).failure, std::nullopt);
        }
        EXPECT_THAT(namesIn(files), ElementsAre("item", "item.2")) << round;
        EXPECT_EQ(itsTrash.empty(), 2u);
    }
}

}  // namespace
}  // namespace zelk

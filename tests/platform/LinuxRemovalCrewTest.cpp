// SPDX-License-Identifier: MIT
// Several threads remove one tree. Whatever they do, it must look from outside as if one had done it.
#include "platform/posix/RemovalCrew.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <stdio.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "fakes/InChild.h"
#include "fakes/Mounts.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/RemoveEntry.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::behindGate;
using fakes::namesIn;
using testing::Optional;

/// Three helpers from the first folder on, whatever the machine has.
constexpr RemovalCrew::Size atOnce{3, 0};
constexpr RemovalCrew::Size oneThread{0, 0};

Failure removedBy(RemovalCrew::Size size, const std::string& folder, const std::string& item) {
    const RemovalPermit permit;
    const Descriptor parent(openForLookups(folder));
    return RemovalCrew(parent.get(), item, size).run();
}

/// Every path below `folder`, without the folder itself.
std::set<std::string> pathsBelow(const std::string& folder) {
    std::set<std::string> paths;
    if (!fs::exists(folder)) return paths;
    for (const auto& entry : fs::recursive_directory_iterator(folder, fs::directory_options::skip_permission_denied))
        paths.insert(entry.path().string().substr(folder.size()));
    return paths;
}

class Crew : public testing::Test {
protected:
    Failure removed(RemovalCrew::Size size = atOnce) const { return removedBy(size, temp.path(), "victim"); }

    /// Folders of `width` folders each, with a file in every one.
    void makeTree(int depth, int width, const std::string& folder) const {
        zoo::makeFile(folder + "/file");
        for (int number = 0; depth > 0 && number < width; ++number)
            makeTree(depth - 1, width, folder + "/" + std::to_string(number));
    }

    /// In each folder two more, so that there is something to give away at every level.
    void makeComb(const std::string& folder, int depth) const {
        Descriptor at(openRootDirectory(folder));
        for (int level = 0; level < depth; ++level) {
            for (const char* name : {"a", "b", "c"}) ASSERT_EQ(::mkdirat(at.get(), name, 0755), 0);
            at = Descriptor(openSubdirectory(at.get(), "b"));
        }
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string victim = temp / "victim";
    const std::string outside = temp / "outside";
};

TEST_F(Crew, removesTreesOfEveryShape) {
    for (int run = 0; run < 4; ++run) {
        fs::remove_all(outside);
        zoo::makeFile(outside + "/kept");
        makeTree(4, 5, victim);
        zoo::makeWide(victim + "/wide", 300, 300);
        zoo::makeLinks(victim + "/links", outside);
        zoo::makeNames(victim + "/names");
        zoo::makeSpecialFiles(victim + "/special");
        zoo::makeChain(victim + "/chain", 60, 200);
        zoo::makeRandomTree(victim + "/random", static_cast<std::uint64_t>(run), 300);
        EXPECT_EQ(removed(), std::nullopt);
        EXPECT_FALSE(fs::exists(victim));
        EXPECT_TRUE(namesIn(outside).contains("kept"));
    }
}

TEST_F(Crew, worksOnSeveralThreads) {
    std::set<pid_t> threads;
    // A helper may come when everything is done.
    for (int run = 0; threads.size() < 2; ++run) {
        makeTree(3, 6, victim);
        threads.clear();
        behindGate(
            SYS_unlinkat, [&](unsigned, pid_t thread) { return threads.insert(thread), 0; },
            [&] { EXPECT_EQ(removed(), std::nullopt); });
        EXPECT_FALSE(fs::exists(victim)) << run;
    }
}

TEST_F(Crew, startsNoThreadForASmallTree) {
    makeTree(2, 10, victim);
    unsigned started = 0;
    behindGate(
        SYS_clone3, [&](unsigned) { return ++started, 0; },
        [&] {
            EXPECT_EQ(removed(RemovalCrew::Size{3, 512}), std::nullopt);
        });
    EXPECT_EQ(started, 0u);
    makeTree(3, 10, victim);
    behindGate(
        SYS_clone3, [&](unsigned) { return ++started, 0; },
        [&] {
            EXPECT_EQ(removed(RemovalCrew::Size{3, 512}), std::nullopt);
        });
    EXPECT_GE(started, 1u);
}

TEST_F(Crew, removesAllAloneIfNoThreadStarts) {
    makeTree(3, 6, victim);
    unsigned refused = 0;
    behindGate(
        SYS_clone3, [&](unsigned) { return ++refused, EAGAIN; }, [&] { EXPECT_EQ(removed(), std::nullopt); });
    EXPECT_GE(refused, 1u);
    EXPECT_FALSE(fs::exists(victim));
}

TEST_F(Crew, removesNestedFoldersWithManyToShareAndFewDescriptors) {
    constexpr int deep = 5000;
    for (const rlim_t descriptors : {40, 70, 200}) {
        zoo::makeFolder(victim);
        makeComb(victim, deep);
        EXPECT_TRUE(fakes::inChild([&] {
            const rlimit few{descriptors, descriptors};
            return ::setrlimit(RLIMIT_NOFILE, &few) == 0 && !removed();
        })) << descriptors;
        EXPECT_FALSE(fs::exists(victim));
    }
}

TEST_F(Crew, leavesNeitherDescriptorsNorPermitsBehind) {
    EXPECT_TRUE(fakes::inChild([&] {
        const rlimit some{32 * 8, 32 * 8};
        if (::setrlimit(RLIMIT_NOFILE, &some) != 0) return false;
        const std::ptrdiff_t before = fakes::openDescriptors();
        for (unsigned failing = 0; failing < 60; failing += 7) {
            fs::remove_all(victim);
            makeTree(3, 5, victim);
            behindGate(
                SYS_unlinkat, [&](unsigned call) { return call == failing ? EIO : 0; },
                [&] {
                    if (!removed()) ::_exit(2);
                });
        }
        std::vector<std::unique_ptr<RemovalPermit>> all;
        for (int permit = 0; permit < 8; ++permit) all.push_back(RemovalPermit::ifFree());
        return all.back() != nullptr && RemovalPermit::ifFree() == nullptr && fakes::openDescriptors() == before;
    }));
}

TEST_F(Crew, removesFoldersWithoutOwnerPermission) {
    for (int run = 0; run < 5; ++run) {
        makeTree(4, 4, victim);
        ASSERT_EQ(::chmod(temp.path().c_str(), 0777), 0);
        fakes::giveToOrdinaryUser(victim);
        std::mt19937 chance(static_cast<unsigned>(run));
        std::vector<std::string> folders;
        for (const auto& entry : fs::recursive_directory_iterator(victim))
            if (entry.is_directory() && chance() % 2 == 0) folders.push_back(entry.path().string());
        for (auto folder = folders.rbegin(); folder != folders.rend(); ++folder)
            ASSERT_EQ(::chmod(folder->c_str(), chance() % 2 == 0 ? 0 : 0500), 0);
        EXPECT_TRUE(fakes::asOrdinaryUser([&] { return !removed(); }));
        EXPECT_FALSE(fs::exists(victim));
    }
}

// As it looks to one of two that meet the same closed folder: refused, and then there is nothing left to grant.
TEST_F(Crew, triesAgainWhereAFellowHasGrantedAccessMeanwhile) {
    for (const int number : {SYS_unlinkat, SYS_openat2}) {
        for (unsigned refused = 1; refused < 6; ++refused) {
            makeTree(2, 2, victim);
            Failure failure;
            behindGate(
                number, [&](unsigned call) { return call == refused ? EACCES : 0; },
                [&] { failure = removed(oneThread); });
            EXPECT_EQ(failure, std::nullopt) << number << " " << refused;
            EXPECT_FALSE(fs::exists(victim));
            fs::remove_all(victim);
        }
    }
}

// The folders that cannot be removed are another user's, somewhere in the tree. Of two equal trees one thread removes
// one and the crew the other.
TEST_F(Crew, removesWhatOneThreadWouldAndReportsItsFailure) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can be two users";
    ASSERT_EQ(::chmod(temp.path().c_str(), 0777), 0);
    const std::string copy = temp / "copy";
    for (unsigned run = 0; run < 25; ++run) {
        std::mt19937 chance(run);
        const int locked = static_cast<int>(chance() % 5);
        std::vector<std::string> places;
        for (int number = 0; number < locked; ++number) {
            std::string place;
            for (unsigned level = 0; level < 1 + chance() % 4; ++level) place += "/" + std::to_string(chance() % 4);
            places.push_back(place + "/theirs" + std::to_string(number));
        }
        std::set<std::string> mine;
        for (const std::string& parent : {victim, copy}) {
            makeTree(4, 4, parent + "/victim");
            for (const std::string& place : places) zoo::makeFile(parent + "/victim" + place + "/" + place.back());
            fakes::giveToOrdinaryUser(parent);
            for (const std::string& place : places) ASSERT_EQ(::chown((parent + "/victim" + place).c_str(), 0, 0), 0);
        }
        const std::string text = temp / "text";
        const auto note = [&](RemovalCrew::Size size, const std::string& parent) {
            fakes::writeFile(text, "");
            ASSERT_EQ(::chmod(text.c_str(), 0666), 0);
            EXPECT_TRUE(fakes::asOrdinaryUser([&] {
                fakes::writeFile(text, removedBy(size, parent, "victim").value_or("removed"));
                return true;
            }));
        };
        note(oneThread, copy);
        const std::string ofOne = fakes::fileContent(text);
        note(atOnce, victim);
        EXPECT_EQ(fakes::fileContent(text), ofOne) << run;
        EXPECT_EQ(ofOne == "removed", locked == 0);
        const std::set<std::string> leftByOne = pathsBelow(copy);
        for (const std::string& left : pathsBelow(victim)) EXPECT_TRUE(leftByOne.contains(left)) << run << " " << left;
        for (const std::string& place : places)
            EXPECT_TRUE(fs::exists(victim + "/victim" + place + "/" + place.back()));
        for (const std::string& parent : {victim, copy}) fs::remove_all(parent);
    }
}

TEST_F(Crew, stopsOthersAfterAFailure) {
    makeTree(2, 60, victim);
    const std::size_t all = pathsBelow(victim).size();
    Failure failure;
    behindGate(
        SYS_unlinkat, [](unsigned) { return EROFS; }, [&] { failure = removed(); });
    EXPECT_THAT(failure, Optional(testing::EndsWith("couldn’t be removed: Read-only file system")));
    EXPECT_EQ(pathsBelow(victim).size(), all);

    // The first listed fails; the others get to a few more before they are told.
    pid_t first = 0;
    behindGate(
        SYS_unlinkat,
        [&](unsigned call, pid_t thread) {
            if (call == 0) first = thread;
            return thread == first && call > 10 ? EROFS : 0;
        },
        [&] { failure = removed(); });
    EXPECT_TRUE(failure);
    EXPECT_GT(pathsBelow(victim).size(), 0u);
}

// The threads of the two are refused, so that one does the shares of all, in an order that can be compared.
TEST_F(Crew, doesItsSharesInTheOrderOfOneThread) {
    const std::string copy = temp / "copy";
    for (const int number : {SYS_unlinkat, SYS_openat2, SYS_getdents64}) {
        bool failed = true;
        for (unsigned failing = 0; failed; ++failing) {
            for (const std::string& parent : {temp.path(), copy}) {
                fs::remove_all(parent + "/victim");
                makeTree(2, 4, parent + "/victim");
            }
            const auto rule = [failing](unsigned call) { return call == failing ? EIO : 0; };
            Failure ofOne;
            behindGate(number, rule, [&] { ofOne = removedBy(oneThread, copy, "victim"); });
            Failure ofShares;
            behindGate(number, rule, [&] {
                ASSERT_EQ(fakes::filterCalls(SYS_clone3, SECCOMP_RET_ERRNO | EAGAIN), 0);
                ofShares = removed();
            });
            EXPECT_EQ(ofShares, ofOne) << number << " " << failing;
            EXPECT_EQ(pathsBelow(victim), pathsBelow(copy + "/victim")) << number << " " << failing;
            failed = ofOne.has_value();
        }
        EXPECT_FALSE(fs::exists(victim));
    }
}

TEST_F(Crew, doesNothingTwice) {
    makeTree(3, 6, victim);
    const std::size_t entries = pathsBelow(victim).size() + 1;
    const std::size_t folders = entries / 2;  // there is a file in each
    for (int run = 0; run < 5; ++run) {
        for (const auto& [number, expected] : {std::pair(SYS_unlinkat, entries), std::pair(SYS_openat2, folders)}) {
            if (!fs::exists(victim)) makeTree(3, 6, victim);
            std::size_t calls = 0;
            behindGate(
                number, [&](unsigned) { return ++calls, 0; }, [&] { EXPECT_EQ(removed(), std::nullopt); });
            EXPECT_EQ(calls, expected) << number;
        }
    }
}

// The item's own remover fails while a fellow is at work, which learns of it in the middle of a folder.
class CrewWithAFailure : public Crew {
protected:
    /// Removes trees until the remover has failed in one of its first calls, with a fellow at work. From then on the
    /// fellow's calls fail with `late`.
    void failAmongTwo(int late) {
        for (bool failed = false; !failed;) {
            fs::remove_all(victim);
            makeTree(2, 30, victim);
            std::optional<pid_t> first;
            unsigned calls = 0;
            bool helped = false;
            behindGate(
                SYS_unlinkat,
                [&](unsigned, pid_t thread) {
                    if (!first) first = thread;
                    if (thread == *first) {
                        callsAfterFailure += failed ? 1U : 0U;
                        failed = failed || (helped && calls < 60);
                        ++calls;
                        return failed ? EROFS : 0;
                    }
                    helped = true;
                    if (!failed) return 0;
                    for (int times = 0; times < 1000; ++times) std::this_thread::yield();  // until it has been told
                    return late;
                },
                [&] {
                    failure = removed(RemovalCrew::Size{1, 0});
                });
            EXPECT_EQ(failure.has_value(), failed);
        }
    }

    Failure failure;
    unsigned callsAfterFailure = 0;
};

TEST_F(CrewWithAFailure, reportsTheOneThatOneThreadWouldMeet) {
    for (int run = 0; run < 5; ++run) {
        failAmongTwo(EIO);
        EXPECT_THAT(failure, Optional(testing::EndsWith("couldn’t be removed: Read-only file system")));
    }
}

TEST_F(CrewWithAFailure, takesNothingOnAfterIt) {
    for (int run = 0; run < 5; ++run) failAmongTwo(0);
    EXPECT_EQ(callsAfterFailure, 0u);
}

TEST_F(Crew, comesToLargeItemsOnly) {
    if (RemovalHelpers::usualMost() == 0) return;  // with one processor there are no helpers
    for (const auto& [width, expected] : {std::pair(15, false), std::pair(30, true)}) {
        makeTree(2, width, victim);
        bool started = false;
        const Descriptor parent(openForLookups(temp.path()));
        behindGate(
            SYS_clone3, [&](unsigned) { return started = true, 0; },
            [&] { EXPECT_EQ(removeEntry(parent.get(), "victim"), std::nullopt); });
        EXPECT_EQ(started, expected) << width;
    }
}

TEST_F(Crew, givesUpOnFoldersThatKeepRefilling) {
    for (int run = 0; run < 3; ++run) {
        makeTree(2, 8, victim);
        unsigned made = 0;
        Failure failure;
        behindGate(
            SYS_unlinkat,
            [&](unsigned) {
                for (int folder = 0; folder < 8; ++folder) {
                    const std::string late = victim + "/" + std::to_string(folder) + "/1";
                    std::error_code gone;
                    if (fs::is_empty(late, gone) && !gone) zoo::makeFile(late + "/late" + std::to_string(made++));
                }
                return 0;
            },
            [&] { failure = removed(); });
        EXPECT_THAT(failure, Optional(testing::EndsWith("couldn’t be removed: Directory not empty")));
        fs::remove_all(victim);
    }
}

TEST_F(Crew, acceptsEntriesRemovedByOthers) {
    std::atomic<bool> done{false};
    std::thread other([&] {
        while (!done) {
            std::error_code ignored;
            for (int number = 0; number < 5; ++number) fs::remove_all(victim + "/" + std::to_string(number), ignored);
        }
    });
    for (int run = 0; run < 40; ++run) {
        try {
            makeTree(3, 5, victim);
        } catch (const std::system_error&) {  // taken away while being created
        }
        EXPECT_EQ(removed(), std::nullopt);
        EXPECT_FALSE(fs::exists(victim));
    }
    done = true;
    other.join();
}

TEST_F(Crew, racingSwapsTouchNothingOutside) {
    const std::string spare = temp / "spare";
    // None of these names is in the tree: through the link, the swapper itself would move what is there.
    for (const char* name : {"/kept", "/a/kept", "/b/c/kept", "/d/kept"}) zoo::makeFile(outside + name);
    const std::set<std::string> kept = pathsBelow(outside);
    fs::create_directory_symlink(outside, spare);
    std::atomic<bool> done{false};
    std::atomic<std::size_t> swaps{0};
    std::thread swapper([&] {
        while (!done) {
            for (const char* place : {"/1/1/1", "/1/1", "/2/0", "/1", "/0/2"})
                swaps += ::renameat2(AT_FDCWD, (victim + place).c_str(), AT_FDCWD, spare.c_str(), RENAME_EXCHANGE) == 0;
        }
    });
    std::size_t complete = 0;
    for (int run = 0; run < 100 || swaps == 0 || complete == 0; ++run) {
        try {
            makeTree(3, 3, victim);
        } catch (const std::system_error&) {  // swapped while being created
        }
        complete += !removed();
    }
    done = true;
    swapper.join();
    // More may have been created there through the link.
    const std::set<std::string> left = pathsBelow(outside);
    EXPECT_TRUE(std::includes(left.begin(), left.end(), kept.begin(), kept.end()));
}

TEST(CrewAndMounts, stopsAtAMountAndNamesIt) {
    const zoo::TempFolder temp(zoo::TempFolder::Medium::memory);
    fakes::Mounts mounts;
    if (!mounts.allowed()) GTEST_SKIP() << "mounting is not allowed here";
    const auto refill = [&] {
        for (int folder = 0; folder < 20; ++folder) {
            const std::string file = temp / ("victim/" + std::to_string(folder) + "/a/b/file");
            if (!fs::exists(file)) zoo::makeFile(file);
        }
    };
    refill();
    zoo::makeFile(temp / "elsewhere/kept");
    zoo::makeFolder(temp / "victim/7/mounted");
    mounts.again(temp / "elsewhere", temp / "victim/7/mounted");
    for (int run = 0; run < 20; ++run) {
        EXPECT_THAT(
            removedBy(atOnce, temp.path(), "victim"),
            Optional(std::string("“mounted” in “victim” couldn’t be removed: another volume is mounted there")));
        refill();
    }
    EXPECT_TRUE(fs::exists(temp / "elsewhere/kept"));
}

}  // namespace
}  // namespace zelk

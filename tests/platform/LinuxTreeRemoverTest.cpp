// SPDX-License-Identifier: MIT
// One remover with fellows that do what a test says: what it gives away, what it waits for and when it stops.
#include "platform/posix/TreeRemover.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "fakes/OpenDescriptors.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/OpenDirectory.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::behindGate;
using fakes::namesIn;

class ToldFellows : public FellowRemovers {
public:
    ToldFellows() : FellowRemovers("victim") {}

    bool wantFolders(std::size_t removed) override {
        asked.push_back(removed);
        return want();
    }
    std::unique_ptr<RemovalPermit> permitForShare() override { return mayShare ? RemovalPermit::ifFree() : nullptr; }
    void take(TreeRemover&, FolderShare share) override { shares.push_back(std::move(share)); }

    std::function<bool()> want = [] { return false; };
    bool mayShare = true;
    std::vector<std::size_t> asked;
    std::vector<FolderShare> shares;
};

class RemoverAmongFellows : public testing::Test {
protected:
    using State = TreeRemover::State;

    void wantOnce() {
        fellows.want = [this] { return fellows.shares.empty(); };
    }

    /// The names in `folder` in the order of its listing, in which a remover begins with the last.
    static std::vector<std::string> listed(const std::string& folder) {
        return directoryNames(Descriptor(openRootDirectory(folder))).value();
    }

    /// A folder in `folder` for each number below `count`, each with a file in it.
    static void makeFolders(const std::string& folder, int count) {
        zoo::makeFolder(folder);
        for (int number = 0; number < count; ++number) zoo::makeFile(folder + "/" + std::to_string(number) + "/file");
    }

    /// Shares of `names` in the victim, as another remover gave them away.
    FolderShare shareOf(std::vector<std::string> names) const {
        return {RemovalPermit::ifFree(), Descriptor(openForLookups(victim)), std::move(names), 1};
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string victim = temp / "victim";
    const Descriptor parent{openForLookups(temp.path())};
    ToldFellows fellows;
};

TEST_F(RemoverAmongFellows, countsWhatItHasRemovedAfterEveryFolder) {
    makeFolders(victim, 3);
    zoo::makeFile(victim + "/file");
    TreeRemover remover(fellows, parent.get());
    EXPECT_EQ(remover.run(), State::done);
    // A file, then a folder with its file three times; the folder is asked about before it is gone itself.
    EXPECT_THAT(fellows.asked, testing::ElementsAre(1u, 2u, 4u, 6u));
    EXPECT_FALSE(fs::exists(victim));
}

TEST_F(RemoverAmongFellows, givesTheFirstHalfAwayAndWaitsForIt) {
    for (const int count : {2, 3, 10, 11}) {
        makeFolders(victim, count);
        const std::vector<std::string> names = listed(victim);
        fellows.shares.clear();
        wantOnce();
        TreeRemover remover(fellows, parent.get());
        EXPECT_EQ(remover.run(), State::waiting);
        ASSERT_EQ(fellows.shares.size(), 1u);
        EXPECT_EQ(remover.waitsAt(), 1u);
        FolderShare& share = fellows.shares.front();
        EXPECT_EQ(share.level, 1u);
        EXPECT_EQ(share.names, std::vector<std::string>(names.begin(), names.begin() + count / 2)) << count;
        EXPECT_EQ(namesIn(victim), std::set<std::string>(share.names.begin(), share.names.end()));
        TreeRemover fellow(fellows, std::move(share));
        EXPECT_EQ(fellow.run(), State::done);
        EXPECT_TRUE(namesIn(victim).empty());
        EXPECT_EQ(remover.run(), State::done);
        EXPECT_FALSE(fs::exists(victim));
    }
}

TEST_F(RemoverAmongFellows, givesNothingOfASingleFolder) {
    zoo::makeFile(victim + "/only/one/file");
    fellows.want = [] { return true; };
    TreeRemover remover(fellows, parent.get());
    EXPECT_EQ(remover.run(), State::done);
    EXPECT_TRUE(fellows.shares.empty());
}

TEST_F(RemoverAmongFellows, keepsItsFoldersWithoutAPermit) {
    makeFolders(victim, 8);
    fellows.want = [] { return true; };
    fellows.mayShare = false;
    EXPECT_EQ(TreeRemover(fellows, parent.get()).run(), State::done);
    EXPECT_TRUE(fellows.shares.empty());
    EXPECT_FALSE(fs::exists(victim));
}

TEST_F(RemoverAmongFellows, keepsItsFoldersWithoutADescriptor) {
    fellows.want = [] { return true; };
    unsigned calls = 0;
    std::size_t given = 0;
    const auto runFailing = [&](std::optional<unsigned> failing) {
        fs::remove_all(victim);
        makeFolders(victim, 8);
        fellows.shares.clear();
        State state = State::stopped;
        calls = 0;
        given = 0;
        behindGate(
            SYS_fcntl, [&](unsigned call) { return ++calls, call == failing ? EMFILE : 0; },
            [&] { state = TreeRemover(fellows, parent.get()).run(); });
        for (const FolderShare& share : fellows.shares) {
            EXPECT_TRUE(share.parent);
            given += share.names.size();
        }
        return state;
    };
    EXPECT_EQ(runFailing(std::nullopt), State::waiting);
    const std::size_t most = given;
    bool kept = false;
    // What cannot be listed is a failure, what cannot be given away is not.
    for (unsigned failing = 0, all = calls; failing < all; ++failing)
        kept = (runFailing(failing) == State::waiting && given < most) || kept;
    EXPECT_TRUE(kept);
}

// What is highest is the most work, and whoever gave it waits for all of it.
TEST_F(RemoverAmongFellows, passesOnOfWhatItWasGivenFirst) {
    for (int number = 0; number < 6; ++number) makeFolders(victim + "/" + std::to_string(number), 4);
    const std::vector<std::string> names = listed(victim);
    wantOnce();
    TreeRemover remover(fellows, shareOf(names));
    EXPECT_EQ(remover.run(), State::done);
    ASSERT_EQ(fellows.shares.size(), 1u);
    EXPECT_EQ(fellows.shares.front().level, 0u);
    EXPECT_EQ(fellows.shares.front().names, std::vector<std::string>(names.begin(), names.begin() + 3));
    EXPECT_EQ(namesIn(victim).size(), 3u);
}

TEST_F(RemoverAmongFellows, givesOfTheNextLevelOnceTheHighestIsOnTheWayDown) {
    makeFolders(victim + "/only", 4);
    wantOnce();
    TreeRemover remover(fellows, parent.get());
    EXPECT_EQ(remover.run(), State::waiting);
    ASSERT_EQ(fellows.shares.size(), 1u);
    EXPECT_EQ(fellows.shares.front().level, 2u);
    EXPECT_EQ(remover.waitsAt(), 2u);
    EXPECT_EQ(namesIn(victim + "/only").size(), 2u);
}

// Of a deep way only the lowest folders are open, and a closed one cannot be given away.
TEST_F(RemoverAmongFellows, givesOfTheHighestOpenLevelDeepInATree) {
    constexpr std::size_t deep = 30;
    std::string way = victim;
    std::vector<fakes::Identity> levels(1);
    for (std::size_t level = 0; level < deep; ++level) {
        for (const char* name : {"a", "b", "c"}) zoo::makeFolder(way + "/" + name);
        levels.push_back(fakes::identityOf(Descriptor(openRootDirectory(way)).get()));
        way += "/" + listed(way)[1];  // with one before and one behind it, whatever the order
    }
    zoo::makeFile(way + "/bottom");
    fellows.want = [&] { return fellows.shares.empty() && !fs::exists(way + "/bottom"); };
    TreeRemover remover(fellows, parent.get());
    EXPECT_EQ(remover.run(), State::waiting);
    ASSERT_EQ(fellows.shares.size(), 1u);
    const FolderShare& share = fellows.shares.front();
    EXPECT_EQ(share.level, deep + 2 - DirectoryLadder::maximumOpen);
    EXPECT_EQ(fakes::identityOf(share.parent.get()), levels.at(share.level));
    ASSERT_EQ(share.names.size(), 1u);
    EXPECT_EQ(::faccessat(share.parent.get(), share.names.front().c_str(), F_OK, 0), 0);
}

TEST_F(RemoverAmongFellows, stopsBetweenTwoFiles) {
    zoo::makeWide(victim, 50, 0);
    TreeRemover remover(fellows, parent.get());
    State state = State::done;
    behindGate(
        SYS_unlinkat,
        [&](unsigned call) {
            if (call == 3) remover.stop();
            return 0;
        },
        [&] { state = remover.run(); });
    EXPECT_EQ(state, State::stopped);
    EXPECT_TRUE(remover.isStopped());
    EXPECT_EQ(namesIn(victim).size(), 46u);
}

TEST_F(RemoverAmongFellows, stopsBetweenTwoFolders) {
    makeFolders(victim, 10);
    TreeRemover remover(fellows, parent.get());
    fellows.want = [&] {
        if (fellows.asked.size() == 4) remover.stop();
        return false;
    };
    EXPECT_EQ(remover.run(), State::stopped);
    EXPECT_EQ(fellows.asked.size(), 4u);
    EXPECT_EQ(namesIn(victim).size(), 8u);
}

TEST_F(RemoverAmongFellows, namesAFolderOfAShareAsPartOfTheItem) {
    for (const long call : {SYS_openat2, SYS_getdents64}) {
        fs::remove_all(victim);
        makeFolders(victim, 1);
        TreeRemover remover(fellows, shareOf({"0"}));
        State state = State::done;
        behindGate(
            static_cast<int>(call), [](unsigned) { return EIO; }, [&] { state = remover.run(); });
        EXPECT_EQ(state, State::failed);
        EXPECT_EQ(remover.failure(), "“0” in “victim” couldn’t be removed: Input/output error") << call;
    }
}

}  // namespace
}  // namespace zelk

// SPDX-License-Identifier: MIT
// Keeping the first file of every set never loses a content: on a real disk with its Trash, however the roots lead to a
// file, and whatever other processes do between the search and the removal.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "fakes/InChild.h"
#include "fakes/Mounts.h"
#include "fakes/TestFiles.h"
#include "platform/NativePlatform.h"
#include "reclaim/DuplicateFinder.h"
#include "reclaim/DuplicateRemoval.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

constexpr std::int64_t minimum = 1'000;

/// The contents of all files below `folder` that are in no Trash.
std::set<std::string> contentsOutsideTrash(const std::string& folder) {
    std::set<std::string> contents;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string path = entry.path().string();
        if (path.find("/Trash") == std::string::npos && path.find("/.Trash") == std::string::npos &&
            fs::is_regular_file(fs::symlink_status(entry.path())))
            contents.insert(fakes::fileContent(path));
    }
    return contents;
}

bool includes(const std::set<std::string>& all, const std::set<std::string>& some) {
    return std::includes(all.begin(), all.end(), some.begin(), some.end());
}

/// Keeps the first file of each set, after `change`. Returns the number of files moved.
std::size_t keepFirsts(
    const Platform& platform, const Strings& roots, const std::function<void()>& change = [] {}) {
    const std::vector<DuplicateGroup> groups = DuplicateFinder(platform).find(roots, minimum);
    change();
    std::size_t moved = 0;
    for (const DuplicateGroup& group : groups) {
        Removal removal(group.paths.size() - 1, [](const Removal&) {});
        moved += trashDuplicates(group, group.paths.front(), platform, removal).moved;
    }
    return moved;
}

#ifdef __linux__

enum class Route { sameFolder, overlap, linkedRoot, boundRoot, hardLink };
constexpr std::array routes{Route::sameFolder, Route::overlap, Route::linkedRoot, Route::boundRoot, Route::hardLink};

/// A folder with one file of its own and one that there is twice, and several ways to them.
class Maze {
public:
    explicit Maze(const std::string& top) : top_(top), roots_{top + "/data"} {
        fs::create_directories(top_ + "/home");
        fs::create_directories(top_ + "/data/sub/deep");
        fakes::writeFile(top_ + "/data/sub/one", std::string(3'000, 'o'));
        fakes::writeFile(top_ + "/data/sub/deep/two", std::string(3'001, 't'));
        fakes::writeFile(top_ + "/data/two", std::string(3'001, 't'));
    }

    void open(Route route, int number, fakes::Mounts& mounts) {
        const std::string own = top_ + "/way" + std::to_string(number);
        // The second one leads to what the first one made.
        const std::string to = number == 0 ? top_ + "/data" : roots_.back();
        switch (route) {
            case Route::sameFolder:
                return roots_.push_back(to);
            case Route::overlap:
                return roots_.push_back(fs::is_directory(to + "/sub") ? to + "/sub" : to + "/deep");
            case Route::linkedRoot:
                fs::create_directory_symlink(to, own);
                return roots_.push_back(own);
            case Route::boundRoot:
                fs::create_directory(own);
                mounts.again(to, own);
                return roots_.push_back(own);
            case Route::hardLink: {
                const std::string link = top_ + "/data/link" + std::to_string(number);
                return fs::create_hard_link(top_ + "/data/sub/one", link);
            }
        }
    }

    Strings roots() const { return roots_; }

private:
    const std::string top_;
    Strings roots_;
};

void expectNothingIsLost(const std::vector<Route>& ways, bool backwards) {
    const zoo::TempFolder temp;
    EXPECT_TRUE(fakes::inChild([&] {
        fakes::Mounts mounts;
        if (!mounts.allowed()) return false;
        const std::string top = fs::canonical(temp.path()).string();
        Maze maze(top);
        for (std::size_t number = 0; number < ways.size(); ++number)
            maze.open(ways[number], static_cast<int>(number), mounts);
        Strings roots = maze.roots();
        if (backwards) std::reverse(roots.begin(), roots.end());
        const std::set<std::string> before = contentsOutsideTrash(top);
        const auto links = std::count(ways.begin(), ways.end(), Route::hardLink);
        {
            NativePlatform native(top + "/home");
            // The true copy and the hard links go, and nothing that is merely reached twice.
            EXPECT_EQ(keepFirsts(native.platform(), roots), static_cast<std::size_t>(1 + links));
            native.drain(60);
        }
        EXPECT_EQ(contentsOutsideTrash(top), before);
        std::fflush(stdout);
        return !testing::Test::HasFailure();
    })) << static_cast<int>(ways.front())
        << " " << static_cast<int>(ways.back()) << (backwards ? " backwards" : "");
}

#endif

/// Shell commands that change a folder of a few files, as other programs do.
class Changes {
public:
    explicit Changes(unsigned seed) : random_(seed) {}

    std::string any(const std::string& folder) {
        std::string commands = "cd '" + folder + "'";
        for (int count = pick(4); count > 0; --count) commands += "; " + one() + " 2>/dev/null";
        return commands;
    }
    int pick(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

private:
    std::string one() {
        const std::string a = file();
        const std::string b = file();
        switch (pick(9)) {
            case 0:
                return "rm -f " + a;
            case 1:
                return "mv -f " + a + " " + b;
            case 2:
                return "ln -f " + a + " " + b;
            case 3:
                return "cp -p " + a + " " + b;
            case 4:
                return "ln -sf " + a.substr(a.rfind('/') + 1) + " " + b;
            case 5:  // another content of the same length and times
                return "test -f " + a + " && touch -r " + a + " t && tr 'a-c' 'b-d' < " + a + " > u && cat u > " + a +
                       " && touch -r t " + a + "; rm -f t u";
            case 6:
                return "echo more >> " + a;
            case 7:  // the folders change places
                return "mv 0 z; mv 1 0; mv z 1";
            default:
                return "mv 0 z; ln -s 1 0; rm -rf 9; mv z 9";
        }
    }
    std::string file() { return std::to_string(pick(2)) + "/" + std::to_string(pick(5)); }

    std::mt19937 random_;
};

}  // namespace

#ifdef __linux__
TEST(DuplicateRoutes, eachLeavesEveryContentOutsideTheTrash) {
    for (const Route route : routes)
        for (const bool backwards : {false, true}) expectNothingIsLost({route}, backwards);
}

TEST(DuplicateRoutes, twoAtOnceLeaveEveryContentOutsideTheTrash) {
    for (const Route first : routes)
        for (const Route second : routes)
            for (const bool backwards : {false, true}) expectNothingIsLost({first, second}, backwards);
}
#endif

TEST(DuplicateRounds, changesOfOtherProcessesLoseNothing) {
    const zoo::TempFolder temp(zoo::TempFolder::Medium::memory);
    const std::string top = fs::canonical(temp.path()).string();
    std::size_t moved = 0;
    std::size_t kept = 0;
    fs::create_directories(top + "/home");
    NativePlatform native(top + "/home");
    for (unsigned round = 0; round < 1'000; ++round) {
        Changes changes(round);
        const std::string folder = top + "/round";
        fs::remove_all(folder);
        for (const char* half : {"/0/", "/1/"}) {
            fs::create_directories(folder + half);
            for (int file = 0; file < 5; ++file) {
                const auto content = static_cast<char>('a' + changes.pick(3));
                fakes::writeFile(folder + half + std::to_string(file),
                                 std::string(1'000 + static_cast<std::size_t>(changes.pick(2)), content));
            }
        }
        std::set<std::string> before;
        const std::size_t went = keepFirsts(native.platform(), {folder}, [&] {
            EXPECT_NE(std::system(changes.any(folder).c_str()), -1);
            before = contentsOutsideTrash(folder);
        });
        moved += went;
        if (went == 0) ++kept;
        const std::set<std::string> after = contentsOutsideTrash(folder);
        ASSERT_TRUE(includes(after, before)) << "round " << round;
    }
    EXPECT_GT(moved, 2'000U);
    EXPECT_GT(kept, 0U);
    EXPECT_TRUE(native.drain(60));
}

/// A hard link is a copy here, and its move changes the times of the others.
TEST(DuplicateRounds, ofHardLinksOneNameStays) {
    const zoo::TempFolder temp;
    const std::string top = fs::canonical(temp.path()).string();
    fs::create_directories(top + "/home");
    fs::create_directories(top + "/data");
    fakes::writeFile(top + "/data/0", std::string(5'000, 'x'));
    for (const char* name : {"/data/1", "/data/2", "/data/3"}) fs::create_hard_link(top + "/data/0", top + name);
    NativePlatform native(top + "/home");
    EXPECT_EQ(keepFirsts(native.platform(), {top + "/data"}), 3U);
    EXPECT_EQ(fakes::namesIn(top + "/data"), std::set<std::string>{"0"});
    EXPECT_TRUE(native.drain(60));
}

/// The same of a file that has not changed for a while, so that only the stamps are compared.
TEST(DuplicateRounds, ofOldHardLinksOneNameStays) {
    /// Takes what was just written for old.
    class LaterClock : public Clock {
    public:
        explicit LaterClock(Clock& real) : real_(real) {}
        TimePoint now() override { return real_.now() + 60; }
        double monotonic() override { return real_.monotonic(); }

    private:
        Clock& real_;
    };
    const zoo::TempFolder temp;
    const std::string top = fs::canonical(temp.path()).string();
    fs::create_directories(top + "/home");
    fs::create_directories(top + "/data");
    fakes::writeFile(top + "/data/0", std::string(5'000, 'x'));
    for (const char* name : {"/data/1", "/data/2"}) fs::create_hard_link(top + "/data/0", top + name);
    fakes::writeFile(top + "/data/3", std::string(5'000, 'x'));
    NativePlatform native(top + "/home");
    LaterClock clock(native.platform().clock);
    const Platform& real = native.platform();
    const Platform later{clock,          real.directories, real.files,     real.contents,  real.trash, real.vitals,
                         real.locations, real.tasks,       real.processes, real.workspace, real.system};
    EXPECT_EQ(keepFirsts(later, {top + "/data"}), 3U);
    EXPECT_EQ(fakes::namesIn(top + "/data"), std::set<std::string>{"0"});
    EXPECT_TRUE(native.drain(60));
}

}  // namespace zelk

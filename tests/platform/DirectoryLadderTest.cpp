// SPDX-License-Identifier: MIT
#include "platform/posix/DirectoryLadder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "fakes/InChild.h"
#include "fakes/OpenDescriptors.h"
#include "platform/posix/Descriptor.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::Identity;
using fakes::identityOf;
using fakes::openDescriptors;

const Identity none{};

/// A chain of folders "d" with a sibling "s" on every level, and a second tree with the same names.
class DirectoryLadderTest : public testing::Test {
protected:
    DirectoryLadderTest() : temp(zoo::TempFolder::Medium::memory) {
        zoo::makeFolder(temp / "root");
        zoo::makeFolder(temp / "other/s");
        top = Descriptor(::open((temp / "root").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }
    ~DirectoryLadderTest() override { top.close(); }

    void makeLevels(std::size_t levels) {
        Descriptor at(::openat(top.get(), ".", O_RDONLY | O_DIRECTORY));
        for (std::size_t level = 0; level <= levels; ++level) {
            ASSERT_EQ(::mkdirat(at.get(), "s", 0755), 0);
            ASSERT_EQ(::mkdirat(at.get(), "d", 0755), 0);
            rungs.push_back(identityOf(at.get()));
            siblings.push_back(identityOf(Descriptor(::openat(at.get(), "s", O_RDONLY)).get()));
            at = Descriptor(::openat(at.get(), "d", O_RDONLY | O_DIRECTORY));
        }
    }

    Identity standing() const { return identityOf(ladder.current()); }

    bool descendAll(std::size_t levels) {
        bool good = true;
        for (; levels > 0; --levels) good = ladder.descend("d") && good;
        return good;
    }
    void ascendAll(std::size_t levels) {
        for (; levels > 0; --levels) ladder.ascend();
    }

    /// Enters the sibling and returns.
    Identity sibling() {
        ladder.descend("s");
        const Identity found = standing();
        ladder.ascend();
        return found;
    }

    /// Walks down to the level `levels` and back up, entering every sibling on both ways.
    void expectWalked(std::size_t levels) {
        makeLevels(levels);
        const std::ptrdiff_t before = openDescriptors();
        std::ptrdiff_t most = 0;
        ASSERT_TRUE(ladder.open(top.get(), ""));
        for (std::size_t level = 0; level < levels; ++level) {
            ASSERT_EQ(standing(), rungs[level]) << level;
            ASSERT_EQ(sibling(), siblings[level]) << level;
            ASSERT_EQ(standing(), rungs[level]) << level;
            ASSERT_TRUE(ladder.descend("d"));
            if (level % 50 == 0) most = std::max(most, openDescriptors());
        }
        for (std::size_t level = levels; level > 0; --level) {
            ASSERT_EQ(standing(), rungs[level]) << level;
            ASSERT_EQ(sibling(), siblings[level]) << level;
            if (level % 50 == 0) most = std::max(most, openDescriptors());
            ladder.ascend();
        }
        EXPECT_EQ(standing(), rungs[0]);
        EXPECT_EQ(sibling(), siblings[0]);
        EXPECT_LE(most - before, static_cast<std::ptrdiff_t>(DirectoryLadder::maximumOpen));
    }

    const zoo::TempFolder temp;
    Descriptor top;
    std::vector<Identity> rungs;     ///< [0] is the root
    std::vector<Identity> siblings;  ///< the siblings on the same levels
    DirectoryLadder ladder;
};

TEST_F(DirectoryLadderTest, hasNoCurrentDirectoryBeforeOpen) {
    EXPECT_EQ(ladder.current(), -1);
}

TEST_F(DirectoryLadderTest, walksTwoHundredLevelsWithFewDescriptors) {
    expectWalked(200);
}

TEST_F(DirectoryLadderTest, walksFiveThousandLevelsWithFewDescriptors) {
    expectWalked(5000);
}

TEST_F(DirectoryLadderTest, walksEveryDepthAroundTheDescriptorLimit) {
    makeLevels(3 * DirectoryLadder::maximumOpen);
    for (std::size_t levels = 1; levels < rungs.size(); ++levels) {
        ASSERT_TRUE(ladder.open(top.get(), ""));
        ASSERT_TRUE(descendAll(levels));
        for (std::size_t level = levels; level > 0; --level) {
            ASSERT_EQ(standing(), rungs[level]);
            ASSERT_EQ(sibling(), siblings[level]);
            ladder.ascend();
        }
        ASSERT_EQ(standing(), rungs[0]);
    }
}

TEST_F(DirectoryLadderTest, turningAroundOpensNoMoreDescriptors) {
    makeLevels(80);
    const std::ptrdiff_t before = openDescriptors();
    ASSERT_TRUE(ladder.open(top.get(), ""));
    ASSERT_TRUE(descendAll(80));
    for (std::size_t levels = 10; levels <= 80; levels += 5) {
        ascendAll(levels);
        ASSERT_EQ(standing(), rungs[80 - levels]);
        ASSERT_TRUE(descendAll(levels));
        ASSERT_EQ(standing(), rungs[80]);
        EXPECT_LE(openDescriptors() - before, static_cast<std::ptrdiff_t>(DirectoryLadder::maximumOpen)) << levels;
    }
}

TEST_F(DirectoryLadderTest, descendsAndAscendsBelowADeepStart) {
    makeLevels(3100);
    std::string below = "d";
    for (int level = 1; level < 3000; ++level) below += "/d";
    const std::ptrdiff_t before = openDescriptors();
    ASSERT_TRUE(ladder.open(top.get(), below));
    EXPECT_EQ(standing(), rungs[3000]);
    EXPECT_EQ(openDescriptors(), before + 1);
    ASSERT_TRUE(descendAll(100));
    EXPECT_EQ(standing(), rungs[3100]);
    ascendAll(100);
    EXPECT_EQ(standing(), rungs[3000]);
    EXPECT_EQ(sibling(), siblings[3000]);
}

TEST_F(DirectoryLadderTest, openReplacesTheCurrentPosition) {
    makeLevels(40);
    const std::ptrdiff_t before = openDescriptors();
    for (int time = 0; time < 3; ++time) {
        ASSERT_TRUE(ladder.open(top.get(), ""));
        ASSERT_TRUE(descendAll(40));
        EXPECT_FALSE(ladder.descend("nowhere"));
        ASSERT_TRUE(ladder.open(top.get(), "d/d"));
        EXPECT_EQ(standing(), rungs[2]);
        EXPECT_EQ(openDescriptors(), before + 1);
        EXPECT_TRUE(ladder.descend("d"));
        EXPECT_EQ(standing(), rungs[3]);
        ladder.ascend();
        EXPECT_EQ(standing(), rungs[2]);
    }
}

TEST_F(DirectoryLadderTest, closesItsDescriptorsButNotTheRoot) {
    makeLevels(40);
    const std::ptrdiff_t before = openDescriptors();
    {
        DirectoryLadder other;
        ASSERT_TRUE(other.open(top.get(), ""));
        for (int level = 0; level < 40; ++level) ASSERT_TRUE(other.descend("d"));
        for (int level = 0; level < 30; ++level) other.ascend();
        EXPECT_FALSE(other.descend("nowhere"));
    }
    EXPECT_EQ(openDescriptors(), before);
    EXPECT_EQ(identityOf(top.get()), rungs[0]);
}

TEST_F(DirectoryLadderTest, failedDescendStillGoesDownALevel) {
    makeLevels(20);
    zoo::makeFile(temp / "root/file");
    fs::create_directory_symlink("d", temp / "root/link");
    for (const char* const name : {"nowhere", "file", "link"}) {
        ASSERT_TRUE(ladder.open(top.get(), ""));
        EXPECT_FALSE(ladder.descend(name)) << name;
        EXPECT_EQ(ladder.current(), -1) << name;
        EXPECT_FALSE(ladder.descend("d")) << name;
        EXPECT_EQ(ladder.current(), -1) << name;
        ascendAll(2);
        EXPECT_EQ(standing(), rungs[0]) << name;
        EXPECT_EQ(sibling(), siblings[0]) << name;
    }
}

// More failed levels than descriptors are kept: they must not displace open ones.
TEST_F(DirectoryLadderTest, manyFailedDescendsKeepTheWayBack) {
    makeLevels(60);
    for (const std::size_t levels : {std::size_t{3}, DirectoryLadder::maximumOpen - 1, DirectoryLadder::maximumOpen,
                                     DirectoryLadder::maximumOpen + 1, std::size_t{60}}) {
        ASSERT_TRUE(ladder.open(top.get(), ""));
        ASSERT_TRUE(descendAll(levels));
        EXPECT_FALSE(ladder.descend("nowhere"));
        EXPECT_FALSE(descendAll(99));
        ascendAll(100);
        for (std::size_t level = levels; level > 0; --level) {
            ASSERT_EQ(standing(), rungs[level]) << levels;
            ASSERT_EQ(sibling(), siblings[level]) << levels;
            ladder.ascend();
        }
        EXPECT_EQ(standing(), rungs[0]);
    }
}

TEST_F(DirectoryLadderTest, unopenableRootIsNoPosition) {
    makeLevels(2);
    EXPECT_FALSE(ladder.open(top.get(), "d/nowhere"));
    EXPECT_EQ(ladder.current(), -1);
    EXPECT_FALSE(ladder.descend("d"));
    EXPECT_FALSE(ladder.descend("s"));
    ascendAll(2);
    EXPECT_EQ(ladder.current(), -1);
    EXPECT_FALSE(ladder.open(-1, ""));
    EXPECT_EQ(ladder.current(), -1);
    ASSERT_TRUE(ladder.open(top.get(), "d"));
    EXPECT_EQ(standing(), rungs[1]);
}

TEST_F(DirectoryLadderTest, refusesFolderSwappedForALink) {
    makeLevels(4);
    ASSERT_TRUE(ladder.open(top.get(), "d"));
    fs::rename(temp / "root/d/d", temp / "taken");
    fs::create_directory_symlink(temp / "taken", temp / "root/d/d");
    EXPECT_FALSE(ladder.descend("d"));
    EXPECT_FALSE(ladder.descend("d"));
    ascendAll(2);
    EXPECT_EQ(standing(), rungs[1]);
    EXPECT_EQ(sibling(), siblings[1]);
}

TEST_F(DirectoryLadderTest, ascendsByOpenDescriptorFromAMovedFolder) {
    makeLevels(10);
    ASSERT_TRUE(ladder.open(top.get(), ""));
    ASSERT_TRUE(descendAll(10));
    fs::rename(temp / "root/d/d/d", temp / "other/d");
    for (std::size_t level = 10; level > 0; --level) {
        EXPECT_EQ(standing(), rungs[level]);
        EXPECT_EQ(sibling(), siblings[level]);
        ladder.ascend();
    }
    EXPECT_EQ(standing(), rungs[0]);
}

// Above the moved folder the way back is lost; its new parent must not be taken for the old one.
TEST_F(DirectoryLadderTest, ascendRejectsTheNewParentOfAMovedFolder) {
    makeLevels(60);
    ASSERT_TRUE(ladder.open(top.get(), ""));
    ASSERT_TRUE(descendAll(60));
    fs::rename(temp / "root/d/d/d/d/d", temp / "other/d");  // the fifth level
    for (std::size_t level = 60; level >= 5; --level) {
        ASSERT_EQ(standing(), rungs[level]) << level;
        ASSERT_EQ(sibling(), siblings[level]) << level;
        EXPECT_EQ(ladder.ascend(), level > 5) << level;
    }
    for (std::size_t level = 5; level-- > 0;) {
        EXPECT_EQ(ladder.current(), -1) << level;
        EXPECT_EQ(sibling(), none) << level;
        EXPECT_FALSE(ladder.descend("d")) << level;
        EXPECT_FALSE(ladder.ascend()) << level;
        EXPECT_FALSE(ladder.ascend()) << level;
    }
    ASSERT_TRUE(ladder.open(top.get(), ""));
    EXPECT_EQ(standing(), rungs[0]);
    EXPECT_EQ(sibling(), siblings[0]);
}

// The new parent is in the same tree, and the ladder has even gone through it.
TEST_F(DirectoryLadderTest, ascendRejectsAnotherLevelOfTheSameTree) {
    makeLevels(60);
    ASSERT_TRUE(ladder.open(top.get(), ""));
    ASSERT_TRUE(descendAll(60));
    fs::rename(temp / "root/d/d/d/d/d", temp / "root/moved");
    ascendAll(55);
    EXPECT_EQ(standing(), rungs[5]);
    for (std::size_t level = 5; level-- > 0;) {
        ladder.ascend();
        const Identity found = standing();
        EXPECT_TRUE(found == none || found == rungs[level]) << level;
        const Identity beside = sibling();
        EXPECT_TRUE(beside == none || beside == siblings[level]) << level;
    }
}

TEST_F(DirectoryLadderTest, survivesRemovedFolders) {
    makeLevels(60);
    ASSERT_TRUE(ladder.open(top.get(), ""));
    ASSERT_TRUE(descendAll(60));
    ASSERT_GT(fs::remove_all(temp / "root/d"), 100u);
    EXPECT_FALSE(ladder.descend("d"));
    ladder.ascend();
    for (std::size_t level = 60; level-- > 0;) {
        ladder.ascend();
        const Identity found = standing();
        EXPECT_TRUE(found == none || found == rungs[level]) << level;
        EXPECT_FALSE(ladder.descend("d")) << level;
        ladder.ascend();
    }
}

TEST_F(DirectoryLadderTest, survivesPermissionWithdrawnAbove) {
    ASSERT_EQ(::chmod((temp / "root").c_str(), 0777), 0);
    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        makeLevels(60);
        const bool down = ladder.open(top.get(), "") && descendAll(60);
        const bool closed = ::chmod((temp / "root/d/d/d/d/d").c_str(), 0) == 0;
        bool right = true;
        for (std::size_t level = 60; level > 0; --level) {
            const bool known = level > 5 || standing() == none || standing() == rungs[level];
            right = right && known && (level <= 5 || sibling() == siblings[level]);
            ladder.ascend();
        }
        const bool opened = ::chmod((temp / "root/d/d/d/d/d").c_str(), 0755) == 0;
        return down && closed && right && opened;
    }));
}

TEST_F(DirectoryLadderTest, randomWalkEndsInTheExpectedFolder) {
    struct Level {
        std::optional<std::string> path;  ///< absent if it could not be opened
    };
    std::vector<std::string> folders{temp / "root"};
    std::mt19937 random(7);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    while (folders.size() < 400) {
        // Mostly below the newest folder, to make the tree deep.
        const std::string& parent = below(8) == 0 ? folders[below(folders.size())] : folders.back();
        const std::string made = parent + "/" + std::to_string(below(3));
        if (fs::create_directory(made)) folders.push_back(made);
    }
    fs::create_directory_symlink(temp / "other", temp / "root/link");
    std::vector<Level> way;
    std::size_t deepest = 0;
    const std::ptrdiff_t before = openDescriptors();
    std::ptrdiff_t most = 0;
    for (int step = 0; step < 30000; ++step) {
        if (way.empty() || below(4000) == 0) {
            const std::string start = folders[below(folders.size())];
            const std::size_t rootLength = (temp / "root").size();
            ASSERT_TRUE(ladder.open(top.get(), start.size() == rootLength ? "" : start.substr(rootLength + 1)));
            way = {{start}};
        } else if (way.size() > 1 && below(100) < 48) {
            ladder.ascend();
            way.pop_back();
        } else {
            const std::string name = below(20) == 0 ? "link" : std::to_string(below(3));
            std::optional<std::string> next;
            if (way.back().path) next = *way.back().path + "/" + name;
            if (next && !fs::is_directory(fs::symlink_status(*next))) next.reset();
            ASSERT_EQ(ladder.descend(name), next.has_value());
            way.push_back({next});
        }
        if (way.size() > deepest || step % 20 == 0) most = std::max(most, openDescriptors());
        deepest = std::max(deepest, way.size());
        Identity wanted = none;
        struct stat status {};
        if (way.back().path && ::stat(way.back().path->c_str(), &status) == 0) wanted = {status.st_dev, status.st_ino};
        ASSERT_EQ(standing(), wanted) << step;
    }
    EXPECT_GT(deepest, DirectoryLadder::maximumOpen);
    EXPECT_LE(most - before, static_cast<std::ptrdiff_t>(DirectoryLadder::maximumOpen));
}

}  // namespace
}  // namespace zelk

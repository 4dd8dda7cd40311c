// SPDX-License-Identifier: MIT
// Changes to the tree between two steps of a reader, at the worst moments.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <set>
#include <string>

#include "platform/NativePlatform.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::zoo {

namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

/// A reader at the root, and a canary beside it that contains the same names.
class Changed : public testing::Test {
protected:
    Changed() {
        for (const char* const place : {"root", "canary"}) {
            makeFile(temp / place + "/a/b/c/file");
            makeFile(temp / place + "/a/sibling/file");
        }
        makeFile(temp / "canary/a/b/c/canary");
        makeFile(temp / "canary/a/sibling/canary");
        root = native.platform().directories.openRoot(temp / "root");
    }

    void swapForLink(const std::string& below) {
        fs::rename(temp / "root" + below, temp / "gone");
        fs::create_symlink(temp / "canary" + below, temp / "root" + below);
    }

    static Names namesOf(const DirectoryReader::Entries* entries) {
        if (entries == nullptr) return {"<unreadable>"};
        Names names;
        for (const DirEntry& entry : *entries) names.emplace(entry.name);
        return names;
    }

    Names opened(const std::string& below) { return namesOf(reader->open(*root, below)); }
    Names descended(const std::string& name) { return namesOf(reader->descend(name)); }

    const TempFolder temp;
    NativePlatform native;
    std::shared_ptr<const DirectoryRoot> root;
    const std::unique_ptr<DirectoryReader> reader = native.platform().directories.makeReader();
    const Names unreadable{"<unreadable>"};
};

}  // namespace

TEST_F(Changed, openRefusesFolderThatBecameALink) {
    ASSERT_EQ(opened("a"), (Names{"b", "sibling"}));
    swapForLink("/a/b");
    EXPECT_EQ(opened("a/b"), unreadable);
    EXPECT_EQ(opened("a/sibling"), Names{"file"});
}

TEST_F(Changed, openRefusesLinkWithinThePath) {
    ASSERT_EQ(opened("a/b"), Names{"c"});
    swapForLink("/a");
    EXPECT_EQ(opened("a/b/c"), unreadable);
    EXPECT_EQ(opened("a"), unreadable);
}

TEST_F(Changed, descendRefusesFolderThatBecameALink) {
    ASSERT_EQ(opened("a"), (Names{"b", "sibling"}));
    swapForLink("/a/b");
    EXPECT_EQ(descended("b"), unreadable);
    reader->ascend();
    EXPECT_EQ(descended("sibling"), Names{"file"});
}

TEST_F(Changed, replacedOrRemovedFolderIsUnreadable) {
    ASSERT_EQ(opened("a"), (Names{"b", "sibling"}));
    fs::remove_all(temp / "root/a/b");
    EXPECT_EQ(descended("b"), unreadable);
    reader->ascend();
    makeFile(temp / "root/a/b");
    EXPECT_EQ(descended("b"), unreadable);
    reader->ascend();
    EXPECT_EQ(descended("sibling"), Names{"file"});
}

TEST_F(Changed, parentSwappedForALinkIsNotFollowed) {
    ASSERT_EQ(opened("a"), (Names{"b", "sibling"}));
    ASSERT_EQ(descended("b"), Names{"c"});
    swapForLink("/a");
    EXPECT_EQ(descended("c"), Names{"file"});
    reader->ascend();
    reader->ascend();
    EXPECT_EQ(descended("sibling"), Names{"file"});  // in the folder that is still open
}

// At this depth not all parents are kept open. If the current folder is moved meanwhile, ".." is another folder, which
// may contain the same names.
TEST_F(Changed, readerDoesNotFollowAMovedFolder) {
    makeFolder(temp / "root/deep/sibling");
    makeChain(temp / "root/deep/moved", 100, 1);
    makeFile(temp / "canary/sibling/canary");
    ASSERT_EQ(opened("deep"), (Names{"moved", "sibling"}));
    ASSERT_EQ(descended("moved"), Names{"d"});
    for (int level = 0; level < 99; ++level) ASSERT_EQ(descended("d"), (Names{"d", "file"}));
    fs::rename(temp / "root/deep/moved", temp / "canary/moved");
    for (int level = 0; level < 100; ++level) reader->ascend();
    const Names found = descended("sibling");
    EXPECT_TRUE(found == unreadable || found.empty()) << *found.begin();
}

TEST_F(Changed, movedRootStaysUsable) {
    fs::rename(temp / "root", temp / "elsewhere");
    fs::create_symlink("canary", temp / "root");
    EXPECT_EQ(opened("a/b/c"), Names{"file"});
}

}  // namespace zelk::zoo

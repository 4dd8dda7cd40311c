// SPDX-License-Identifier: MIT
// Restores items from the home trash to where they were.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "RestoreFixture.h"
#include "fakes/InChild.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/SystemCallGate.h"

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

// The result of a move to the Trash.

TEST_F(RestoreItem, moveReportsWhereTheItemWent) {
    writeFile(item, "content");
    const FileIdentity itself = identityOnDisk(item);
    const TrashedItem moved = trashed(item);
    EXPECT_EQ(moved.origin, *ItemPath::below(temp.path(), item));
    EXPECT_EQ(moved.parent, identityOnDisk(items));
    EXPECT_EQ(moved.path, trash + "/files/item.txt");
    EXPECT_EQ(moved.identity, itself);
    EXPECT_EQ(moved.info, fileContent(trash + "/info/item.txt.trashinfo"));
}

TEST_F(RestoreItem, moveReportsTheNumberedName) {
    trashedFile(item, "first");
    EXPECT_EQ(trashedFile(item, "second").path, trash + "/files/item.2.txt");
}

TEST_F(RestoreItem, failedMoveReportsNoItem) {
    const TrashResult result = itsTrash.trash(ItemPath::from(item).value());
    EXPECT_TRUE(result.failure);
    EXPECT_FALSE(result.item);
}

TEST_F(RestoreItem, moveReportsTheItemThatWasReallyMoved) {
    writeFile(item, "looked at");
    TrashResult result;
    behindGate(
        SYS_renameat2,
        [&](unsigned) {
            fs::rename(item, aside);
            writeFile(item, "moved");
            return 0;
        },
        [&] { result = itsTrash.trash(ItemPath::below(temp.path(), item).value()); });
    ASSERT_TRUE(result.item);
    EXPECT_EQ(restored(*result.item), std::nullopt);
    EXPECT_EQ(fileContent(item), "moved");
}

// Successful restores.

TEST_F(RestoreItem, restoresFileAndRemovesItsInfo) {
    writeFile(item, "content");
    ASSERT_EQ(::chmod(item.c_str(), 0640), 0);
    const FileIdentity itself = identityOnDisk(item);
    EXPECT_EQ(restored(trashed(item)), std::nullopt);
    EXPECT_EQ(fileContent(item), "content");
    EXPECT_EQ(identityOnDisk(item), itself);
    EXPECT_EQ(fs::status(item).permissions(), fs::perms(0640));
    EXPECT_THAT(namesIn(items), ElementsAre("item.txt"));
    expectTrashEmpty();
}

TEST_F(RestoreItem, restoresFolderWithItsContent) {
    zoo::makeNames(items + "/folder");
    const auto names = namesIn(items + "/folder");
    EXPECT_EQ(restored(trashed(items + "/folder")), std::nullopt);
    EXPECT_EQ(namesIn(items + "/folder"), names);
    expectTrashEmpty();
}

TEST_F(RestoreItem, restoresLinkItselfAndNotItsTarget) {
    for (const std::string& target : {std::string("/nowhere"), home}) {
        fs::create_symlink(target, items + "/link");
        EXPECT_EQ(restored(trashed(items + "/link")), std::nullopt);
        EXPECT_EQ(fs::read_symlink(items + "/link"), target);
        fs::remove(items + "/link");
    }
    expectTrashEmpty();
}

TEST_F(RestoreItem, restoresNamesThatAreNotText) {
    for (const std::string& name : {std::string("new\nPath=passwd"), std::string("\xff\xfe"), std::string(" "),
                                    std::string("%"), std::string("-rf"), std::string(255, 'n')}) {
        EXPECT_EQ(restored(trashedFile(items + "/" + name, name)), std::nullopt) << name;
        EXPECT_EQ(fileContent(items + "/" + name), name);
        fs::remove(items + "/" + name);
        expectTrashEmpty();
    }
}

TEST_F(RestoreItem, restoresSeveralItemsOfOneName) {
    zoo::makeFolder(items + "/a");
    zoo::makeFolder(items + "/b");
    const TrashedItem a = trashedFile(items + "/a/same", "a");
    const TrashedItem b = trashedFile(items + "/b/same", "b");
    EXPECT_EQ(restored(a), std::nullopt);
    EXPECT_EQ(restored(b), std::nullopt);
    EXPECT_EQ(fileContent(items + "/a/same"), "a");
    EXPECT_EQ(fileContent(items + "/b/same"), "b");
    expectTrashEmpty();
}

TEST_F(RestoreItem, restoresThroughALinkedRoot) {
    fs::create_directory_symlink(items, temp / "link");
    writeFile(item, "content");
    const TrashResult result = itsTrash.trash(ItemPath::below(temp / "link", temp / "link/item.txt").value());
    EXPECT_EQ(restored(result.item.value()), std::nullopt);
    EXPECT_EQ(fileContent(item), "content");
}

TEST_F(RestoreItem, restoresPathsBeyondPathMax) {
    zoo::makeChain(items + "/chain", 30, 200);
    std::string name;
    for (const std::string& entry : namesIn(items + "/chain")) {
        if (entry.size() == 200) name = entry;
    }
    std::string deep = items + "/chain";
    while (deep.size() < 5000) deep += "/" + name;
    EXPECT_EQ(restored(trashed(deep)), std::nullopt);
    expectTrashEmpty();
    EXPECT_EQ(restored(trashed(deep)), std::nullopt) << "it is where it was";
}

TEST_F(RestoreItem, restoresIntoAFolderThatMayNotBeListed) {
    writeFile(item, "content");
    fakes::giveToOrdinaryUser(items);
    ASSERT_EQ(::chmod(items.c_str(), 0300), 0);
    EXPECT_TRUE(asOrdinaryUser([&] { return !restored(trashed(item)); }));
    ASSERT_EQ(::chmod(items.c_str(), 0700), 0);
    EXPECT_EQ(fileContent(item), "content");
}

TEST_F(RestoreItem, leavesNoDescriptorOpen) {
    const TrashedItem moved = trashedFile(item);
    const std::ptrdiff_t before = fakes::openDescriptors();
    EXPECT_EQ(restored(moved), std::nullopt);
    EXPECT_TRUE(restored(moved));
    EXPECT_EQ(fakes::openDescriptors(), before);
}

// Refused restores.

TEST_F(RestoreItem, refusesToReplaceAnything) {
    const TrashedItem moved = trashedFile(item);
    const auto expectRefused = [&] {
        EXPECT_EQ(restored(moved), refusal("something else is there now"));
        expectOnlyItemInTrash();
    };
    writeFile(item, "newcomer");
    expectRefused();
    EXPECT_EQ(fileContent(item), "newcomer");
    fs::remove(item);
    fs::create_symlink("/nowhere", item);
    expectRefused();
    EXPECT_EQ(fs::read_symlink(item), "/nowhere");
    fs::remove(item);
    fs::create_directory(item);
    expectRefused();
    EXPECT_TRUE(fs::is_empty(item));
    fs::remove(item);
    EXPECT_EQ(restored(moved), std::nullopt) << "as soon as the place is free";
}

TEST_F(RestoreItem, leavesTheTrashAloneIfThePathIsTaken) {
    const TrashedItem moved = trashedFile(item);
    writeFile(item, "newcomer");
    unsigned renames = 0;
    behindGate(
        SYS_renameat2, [&](unsigned) { return ++renames, 0; }, [&] { EXPECT_TRUE(restored(moved)); });
    EXPECT_EQ(renames, 0u);
}

TEST_F(RestoreItem, refusesToReplaceAnEmptyFolderByAFolder) {
    const std::string folder = items + "/folder";
    zoo::makeFile(folder + "/below");
    const TrashedItem moved = trashed(folder);
    fs::create_directory(folder);
    EXPECT_TRUE(restored(moved));
    EXPECT_TRUE(fs::is_empty(folder));
    EXPECT_TRUE(fs::exists(restorable(trash).at(folder) + "/below"));
}

TEST_F(RestoreItem, refusesAMissingParentAndCreatesNone) {
    const TrashedItem moved = trashedFile(item);
    fs::rename(items, aside);
    EXPECT_EQ(restored(moved), refusal("the folder it was in is no longer there"));
    EXPECT_FALSE(fs::exists(items));
    writeFile(items, "no folder");
    EXPECT_EQ(restored(moved), refusal("the folder it was in is no longer there"));
    expectOnlyItemInTrash();
    fs::remove(items);
    fs::rename(aside, items);
    EXPECT_EQ(restored(moved), std::nullopt) << "as soon as the folder is there again";
}

TEST_F(RestoreItem, refusesAnotherFolderOfTheSameName) {
    const TrashedItem moved = trashedFile(item);
    fs::rename(items, aside);
    fs::create_directory(items);
    EXPECT_EQ(restored(moved), refusal("another folder has taken the place of the one it was in"));
    EXPECT_TRUE(fs::is_empty(items));
    expectOnlyItemInTrash();
}

TEST_F(RestoreItem, refusesALinkInPlaceOfTheFolder) {
    const TrashedItem moved = trashedFile(item);
    fs::rename(items, aside);
    fs::create_directory_symlink(aside, items);
    EXPECT_EQ(restored(moved), refusal("the folder it was in is no longer there"));
    EXPECT_TRUE(fs::is_empty(aside));
    expectOnlyItemInTrash();
}

TEST_F(RestoreItem, refusesAnotherFolderBehindAFollowedLink) {
    fs::create_directory_symlink(items, temp / "link");
    writeFile(item, "content");
    const TrashResult result = itsTrash.trash(ItemPath::from(temp / "link/item.txt").value());
    fs::remove(temp / "link");
    fs::create_directory_symlink(home, temp / "link");
    EXPECT_EQ(restored(result.item.value()), refusal("another folder has taken the place of the one it was in"));
    EXPECT_THAT(namesIn(home), ElementsAre(".local"));
}

TEST_F(RestoreItem, refusesItemsNoLongerInTheTrash) {
    const TrashedItem moved = trashedFile(item);
    EXPECT_EQ(itsTrash.empty(), 1u);
    EXPECT_EQ(restored(moved), refusal("it is no longer in the Trash"));
    EXPECT_TRUE(fs::is_empty(items));
}

TEST_F(RestoreItem, refusesAnotherItemUnderItsNameInTheTrash) {
    const TrashedItem moved = trashedFile(item);
    fs::rename(trash + "/files/item.txt", aside);
    fs::remove(trash + "/info/item.txt.trashinfo");
    zoo::makeFolder(temp / "other");
    trashedFile(temp / "other/item.txt", "another");
    EXPECT_EQ(restored(moved), refusal("the Trash holds something else in its place"));
    EXPECT_TRUE(fs::is_empty(items));
    EXPECT_EQ(fileContent(restorable(trash).at(temp / "other/item.txt")), "another");
}

// A file system may reuse the inode number of a deleted file.
TEST_F(RestoreItem, refusesAnotherItemOfTheSameInode) {
    const TrashedItem moved = trashedFile(item);
    const std::string info = trash + "/info/item.txt.trashinfo";
    for (const std::string& text : {std::string("[Trash Info]\nPath=/other\nDeletionDate=2026-01-01T00:00:00\n"),
                                    moved.info + "x", moved.info.substr(1), std::string()}) {
        writeFile(info, text);
        EXPECT_EQ(restored(moved), refusal("the Trash holds something else in its place")) << text;
        EXPECT_EQ(fileContent(info), text);
        EXPECT_EQ(fileContent(trash + "/files/item.txt"), "content");
    }
    fs::remove(info);
    EXPECT_EQ(restored(moved), refusal("the Trash holds something else in its place"));
    fs::create_symlink(aside, info);
    writeFile(aside, moved.info);
    EXPECT_TRUE(restored(moved)) << "a link is no info file";
    EXPECT_TRUE(fs::is_empty(items));
}

TEST_F(RestoreItem, refusesAnUntrustedTrash) {
    const TrashedItem moved = trashedFile(item);
    fs::rename(trash, temp / "real");
    EXPECT_TRUE(restored(moved));
    EXPECT_FALSE(fs::exists(trash)) << "none is created";
    fs::create_directory_symlink(temp / "real", trash);
    EXPECT_EQ(restored(moved), refusal("“" + trash + "” is a link"));
    EXPECT_TRUE(fs::is_empty(items));
}

TEST_F(RestoreItem, refusesAReadOnlyParent) {
    writeFile(item, "content");
    fakes::giveToOrdinaryUser(items);
    EXPECT_TRUE(asOrdinaryUser([&] {
        const TrashedItem moved = trashed(item);
        ::chmod(items.c_str(), 0555);
        return restored(moved) == refusal("Permission denied");
    }));
    EXPECT_TRUE(fs::is_empty(items));
    expectOnlyItemInTrash();
}

TEST_F(RestoreItem, refusesAnUnsearchableParent) {
    writeFile(item, "content");
    fakes::giveToOrdinaryUser(items);
    EXPECT_TRUE(asOrdinaryUser([&] {
        const TrashedItem moved = trashed(item);
        ::chmod(items.c_str(), 0);
        return restored(moved) == refusal("Permission denied");
    }));
    expectOnlyItemInTrash();
}

TEST_F(RestoreItem, refusesAnotherVolume) {
    const TrashedItem moved = trashedFile(item);
    Failure failure;
    behindGate(
        SYS_renameat2, [](unsigned call) { return call == 1 ? EXDEV : 0; }, [&] { failure = restored(moved); });
    EXPECT_EQ(failure, refusal("it is on another volume than the folder it was in"));
    EXPECT_TRUE(fs::is_empty(items));
    expectOnlyItemInTrash();
}

}  // namespace
}  // namespace zelk

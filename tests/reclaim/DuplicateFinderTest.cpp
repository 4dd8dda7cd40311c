// SPDX-License-Identifier: MIT
#include "reclaim/DuplicateFinder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>

#include "DuplicatesFixture.h"

namespace zelk {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class FinderOfDuplicates : public DuplicatesFixture {};

}  // namespace

TEST_F(FinderOfDuplicates, smallFilesAreNoCandidates) {
    add("/home/me/a", 'x', minimum - 1);
    add("/home/me/b", 'x', minimum - 1);
    EXPECT_THAT(sets(), IsEmpty());
    EXPECT_THAT(machine.contents.read(), IsEmpty());
}

TEST_F(FinderOfDuplicates, filesOfTheMinimumSizeFormASet) {
    add("/home/me/a", 'x');
    add("/home/me/b", 'x');
    const std::vector<DuplicateGroup> groups = find();
    ASSERT_THAT(groups, SizeIs(1));
    EXPECT_THAT(groups[0].paths, ElementsAre("/home/me/a", "/home/me/b"));
    EXPECT_EQ(groups[0].size, minimum);
    EXPECT_EQ(groups[0].recoverable(), minimum);
    EXPECT_EQ(groups[0].hash, "be8889d3b8893c11d290b8dcf682164c326a90e6998f6bddb25d9a3a02daf666-2000000");
}

TEST_F(FinderOfDuplicates, thirdFileOfOtherContentStaysOut) {
    add("/home/me/a", 'x');
    add("/home/me/b", 'y');
    add("/home/me/c", 'x');
    EXPECT_EQ(sets(), (Sets{{"/home/me/a", "/home/me/c"}}));
}

TEST_F(FinderOfDuplicates, filesThatDifferInTheLastByteFormNoSet) {
    std::string content(minimum + 1, 'x');
    machine.files.addFile("/home/me/a", content);
    content.back() = 'y';
    machine.files.addFile("/home/me/b", content);
    EXPECT_THAT(sets(), IsEmpty());
}

TEST_F(FinderOfDuplicates, fileOfUniqueSizeIsNotRead) {
    add("/home/me/a", 'x', minimum + 1);
    add("/home/me/b", 'x');
    add("/home/me/c", 'x');
    EXPECT_EQ(sets(), (Sets{{"/home/me/b", "/home/me/c"}}));
    EXPECT_THAT(machine.contents.read(), ElementsAre("/home/me/b", "/home/me/c"));
}

TEST_F(FinderOfDuplicates, filesOfProgramsAreNoCandidates) {
    for (const char* folder : {"/home/me/Library/Caches", "/home/me/Library/Caches/deep", "/home/me/Some.app",
                               "/home/me/Some.app/Contents", "/home/me/Kit.framework", "/home/me/web/node_modules/x"})
        for (const char* name : {"/a", "/b"}) add(std::string(folder) + name, 'x');
    EXPECT_THAT(sets(), IsEmpty());
    EXPECT_THAT(sets({"/home/me/web/node_modules"}), IsEmpty()) << "even as a root";
    EXPECT_THAT(sets({"/home/me/Some.app", "/home/me/Library/Caches"}), IsEmpty());
}

TEST_F(FinderOfDuplicates, repositoryGivenAsRootIsLeftOut) {
    add("/home/me/.git/a", 'x');
    add("/home/me/.git/b", 'x');
    EXPECT_THAT(sets({"/home/me/.git"}), IsEmpty());
}

TEST_F(FinderOfDuplicates, namesThatMerelyContainAnEndingAreCandidates) {
    for (const char* name : {"/home/me/a.app", "/home/me/b.application/x", "/home/me/c.framework",
                             "/home/me/node_modules", "/home/me/Caches/x", "/home/me/d.app2/x"})
        add(name, 'x');
    EXPECT_THAT(sets(), ElementsAre(SizeIs(6)));
}

TEST_F(FinderOfDuplicates, packagesAreEntered) {
    add("/home/me/Holiday.photoslibrary/originals/a", 'x');
    add("/home/me/Song.logicx/b", 'x');
    EXPECT_THAT(sets(), ElementsAre(SizeIs(2)));
}

TEST_F(FinderOfDuplicates, hiddenFileIsNoCandidate) {
    add("/home/me/.a", 'x', 5 * minimum);
    add("/home/me/b", 'x', 5 * minimum);
    add("/home/me/.folder/c", 'x', 5 * minimum);
    EXPECT_THAT(sets(), IsEmpty());
    EXPECT_EQ(sets({"/home/me", "/home/me/.folder"}), (Sets{{"/home/me/b", "/home/me/.folder/c"}}))
        << "a hidden root is searched";
}

TEST_F(FinderOfDuplicates, linksAreNoCandidates) {
    add("/home/me/a", 'x');
    machine.files.addLink("/home/me/b", "/home/me/a");
    EXPECT_THAT(sets(), IsEmpty());
}

TEST_F(FinderOfDuplicates, snapsAreLeftOutOnLinuxOnly) {
    add("/home/me/snap/tool/1/data", 'x');
    add("/home/me/snap/tool/2/data", 'x');
    add("/home/me/snapshots/a", 'y');
    add("/home/me/other/snap/a", 'y');
    machine.system = SystemKind::macOS;
    EXPECT_THAT(sets(), SizeIs(2));
    machine.system = SystemKind::desktopLinux;
    EXPECT_EQ(sets(), (Sets{{"/home/me/other/snap/a", "/home/me/snapshots/a"}}));
}

TEST_F(FinderOfDuplicates, whatLiesInTheTrashIsNoCandidate) {
    machine.locations.thrownAway = TrashPlaces({"/home/me/data/Trash/files"}, {});
    add("/home/me/data/Trash/files/a", 'x');
    add("/home/me/data/Trash/files/sub/b", 'x');
    add("/home/me/data/z", 'x');
    EXPECT_THAT(sets(), IsEmpty());
    EXPECT_THAT(sets({"/home/me/data/Trash/files/sub", "/home/me"}), IsEmpty()) << "even as a root";
}

TEST_F(FinderOfDuplicates, rootThatCannotBeOpenedIsPassedOver) {
    add("/home/me/a", 'x');
    add("/data/b", 'x');
    EXPECT_EQ(sets({"/missing", "/data", "/home/me/a", "/home/me"}), (Sets{{"/data/b", "/home/me/a"}}));
}

TEST_F(FinderOfDuplicates, withoutRootsFindsNothing) {
    EXPECT_THAT(sets({}), IsEmpty());
}

TEST_F(FinderOfDuplicates, folderIsEnteredOnce) {
    add("/home/me/sub/a", 'x');
    for (const Strings& roots :
         {Strings{"/home/me", "/home/me"}, Strings{"/home/me", "/home/me/sub"}, Strings{"/home/me/sub", "/home/me"}})
        EXPECT_THAT(sets(roots), IsEmpty()) << roots.back();
}

TEST_F(FinderOfDuplicates, firstIsTheFirstInTheOrderOfRootsAndNames) {
    for (const char* path : {"/b/1", "/a/z", "/a/sub/y", "/a/a"}) add(path, 'x');
    EXPECT_EQ(sets({"/b", "/a"}), (Sets{{"/b/1", "/a/a", "/a/sub/y", "/a/z"}}));
    EXPECT_THAT(machine.contents.read(), ElementsAre("/b/1", "/a/a", "/a/sub/y", "/a/z"));
}

TEST_F(FinderOfDuplicates, mostWastefulSetComesFirst) {
    for (const char* name : {"/home/me/big1", "/home/me/big2"}) add(name, 'b', minimum + 500'000);
    for (const char* name : {"/home/me/1", "/home/me/2", "/home/me/3"}) add(name, 's');
    EXPECT_EQ(sets(), (Sets{{"/home/me/1", "/home/me/2", "/home/me/3"}, {"/home/me/big1", "/home/me/big2"}}));
}

TEST_F(FinderOfDuplicates, equallyWastefulSetsKeepTheOrderOfReading) {
    for (const char* name : {"/home/me/1", "/home/me/2", "/home/me/3"}) add(name, 's');
    for (const char* name : {"/home/me/d1", "/home/me/d2"}) add(name, 'd', 2 * minimum);
    for (const char* name : {"/home/me/c1", "/home/me/c2"}) add(name, 'c', 2 * minimum);
    EXPECT_EQ(sets(), (Sets{{"/home/me/c1", "/home/me/c2"},
                            {"/home/me/d1", "/home/me/d2"},
                            {"/home/me/1", "/home/me/2", "/home/me/3"}}));
}

TEST_F(FinderOfDuplicates, fileThatVanishesBeforeItIsReadIsDropped) {
    add("/home/me/a", 'x');
    add("/home/me/b", 'x');
    add("/home/me/c", 'x');
    DuplicateFinder removing = finder();
    removing.listed = [this] { machine.files.erase("/home/me/a"); };
    std::vector<DuplicateGroup> groups = removing.find({"/home/me"}, minimum);
    ASSERT_THAT(groups, SizeIs(1));
    EXPECT_THAT(groups[0].paths, ElementsAre("/home/me/b", "/home/me/c"));
    removing.listed = [this] { machine.files.erase("/home/me/b"); };
    EXPECT_THAT(removing.find({"/home/me"}, minimum), IsEmpty()) << "one path is no set";
}

TEST_F(FinderOfDuplicates, fileThatCannotBeOpenedIsDropped) {
    add("/home/me/a", 'x');
    add("/home/me/b", 'x');
    machine.contents.locked = {"/home/me/a"};
    EXPECT_THAT(sets(), IsEmpty());
}

TEST_F(FinderOfDuplicates, filesThatCannotBeReadShareTheHashOfNothing) {
    add("/home/me/a", 'x');
    add("/home/me/b", 'y');
    machine.contents.broken = {{"/home/me/a", 0}, {"/home/me/b", 0}};
    const std::vector<DuplicateGroup> groups = find();
    ASSERT_THAT(groups, SizeIs(1));
    EXPECT_EQ(groups[0].hash, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855-2000000");
    for (const HashedFile& file : groups[0].files) EXPECT_FALSE(file.whole);
}

TEST_F(FinderOfDuplicates, failedReadEndsTheHash) {
    // Equal up to the failure, and different after it.
    std::string content(minimum, 'x');
    machine.files.addFile("/home/me/a", content);
    content.back() = 'y';
    machine.files.addFile("/home/me/b", content);
    machine.contents.broken = {{"/home/me/a", 1'500'000}, {"/home/me/b", 1'500'000}};
    EXPECT_EQ(sets(), (Sets{{"/home/me/a", "/home/me/b"}}));
    machine.contents.broken["/home/me/b"] = 1'500'001;
    EXPECT_THAT(sets(), IsEmpty());
}

TEST_F(FinderOfDuplicates, fileThatChangesWhileItIsReadIsNotWhole) {
    for (const char* name : {"/home/me/a", "/home/me/b", "/home/me/c"}) add(name, 'x');
    machine.contents.reading = [this](const std::string& path, std::size_t offset) {
        if (path == "/home/me/b" && offset > 0) machine.contents.touch(path, {5'000, 0}, {5'000, 0});
    };
    const std::vector<DuplicateGroup> groups = find();
    ASSERT_THAT(groups, SizeIs(1));
    EXPECT_TRUE(groups[0].files[0].whole);
    EXPECT_FALSE(groups[0].files[1].whole);
    EXPECT_TRUE(groups[0].files[2].whole);
}

TEST_F(FinderOfDuplicates, fileThatChangedJustBeforeIsNotSettled) {
    for (const char* name : {"/home/me/a", "/home/me/b", "/home/me/c", "/home/me/d"}) add(name, 'x');
    const auto searched = static_cast<std::int64_t>(machine.clock.now());
    machine.contents.touch("/home/me/a", {searched - 2, 0}, {searched - 2, 0});
    machine.contents.touch("/home/me/b", {searched - 2, 1'000'000}, {0, 0});
    machine.contents.touch("/home/me/c", {0, 0}, {searched - 1, 0});
    machine.contents.touch("/home/me/d", {searched + 1'000, 0}, {0, 0});
    const std::vector<DuplicateGroup> groups = find();
    ASSERT_THAT(groups, SizeIs(1));
    std::vector<bool> settled;
    for (const HashedFile& file : groups[0].files) settled.push_back(file.settled);
    EXPECT_THAT(settled, ElementsAre(true, false, false, false));
}

TEST_F(FinderOfDuplicates, groupTellsWhatWasHashed) {
    add("/home/me/a", 'x');
    add("/home/me/b", 'x');
    const std::vector<DuplicateGroup> groups = find();
    ASSERT_THAT(groups, SizeIs(1));
    ASSERT_THAT(groups[0].files, SizeIs(2));
    for (std::size_t at = 0; at < 2; ++at) {
        const HashedFile& file = groups[0].files[at];
        EXPECT_EQ(file.item.text(), groups[0].paths[at]);
        EXPECT_EQ(file.item.root(), "/home/me");
        EXPECT_EQ(file.stamp, machine.contents.stamp(file.item));
    }
}

TEST_F(FinderOfDuplicates, progressCountsBytesToTheEnd) {
    add("/home/me/a", 'x', 3'000'000);
    add("/home/me/b", 'x', 3'000'000);
    add("/home/me/unique", 'x', 4'000'000);
    DuplicateFinder telling = finder();
    std::vector<HashProgress> told;
    telling.progress = [&](const HashProgress& progress) { told.push_back(progress); };
    telling.find({"/home/me"}, minimum);
    ASSERT_THAT(told, SizeIs(7));
    EXPECT_EQ(told.front(), (HashProgress{1'048'576, 6'000'000}));
    EXPECT_EQ(told[2], (HashProgress{3'000'000, 6'000'000}));
    EXPECT_EQ(told[3], (HashProgress{4'048'576, 6'000'000}));
    EXPECT_EQ(told.back(), (HashProgress{6'000'000, 6'000'000}));
}

TEST_F(FinderOfDuplicates, progressNeverExceedsWhatWasListed) {
    add("/home/me/a", 'x');
    add("/home/me/b", 'x');
    DuplicateFinder telling = finder();
    telling.listed = [this] { add("/home/me/a", 'x', 5 * minimum); };
    std::vector<std::int64_t> told;
    telling.progress = [&](const HashProgress& progress) { told.push_back(progress.hashed); };
    EXPECT_THAT(telling.find({"/home/me"}, minimum), IsEmpty());
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(told.back(), 2 * minimum);
}

TEST_F(FinderOfDuplicates, abandonedSearchEndsAtTheNextChunk) {
    add("/home/me/a", 'x', 50'000'000);
    add("/home/me/b", 'x', 50'000'000);
    add("/home/me/folder/c", 'x');
    DuplicateFinder stopping = finder();
    const auto flag = std::make_shared<CancelFlag>();
    stopping.abandoned = flag;
    std::size_t last = 0;
    machine.contents.reading = [&](const std::string&, std::size_t offset) {
        last = offset;
        if (offset > 0) flag->set();
    };
    EXPECT_THAT(stopping.find({"/home/me"}, minimum), IsEmpty());
    EXPECT_EQ(last, 1'048'576U);
    EXPECT_THAT(machine.contents.read(), ElementsAre("/home/me/a"));
    machine.files.forgetCalls();
    EXPECT_THAT(stopping.find({"/home/me"}, minimum), IsEmpty());
    EXPECT_THAT(machine.files.pathsOf("list"), Each("/home/me")) << "it lists the root and no more";
}

}  // namespace zelk

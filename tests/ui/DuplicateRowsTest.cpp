// SPDX-License-Identifier: MIT
#include "ui/screens/duplicates/DuplicateRows.h"

#include <gmock/gmock.h>

#include <QColor>

#include "RowMirror.h"
#include "TextsOf.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

/// Files with these inodes.
DuplicateGroup duplicateSet(const std::string& hash, std::int64_t size, const Strings& paths,
                            const std::vector<std::uint64_t>& inodes = {}) {
    DuplicateGroup group{hash, size, paths, {}};
    for (std::size_t at = 0; at < paths.size(); ++at) {
        HashedFile file{*ItemPath::from(paths[at]), {}};
        file.stamp.identity.inode = inodes.empty() ? at + 1 : inodes[at];
        group.files.push_back(std::move(file));
    }
    return group;
}

std::vector<DuplicateGroup> twoSets() {
    return {duplicateSet("one", 3'000'000, {"/m/a.mov", "/m/b.mov", "/m/c\xFF.mov"}),
            duplicateSet("two", 2'000'000, {"/p/x", "/p/y"}, {7, 7})};
}

class RowsOfDuplicates : public testing::Test {
protected:
    std::string text(int row, int role) { return rows.index(row).data(role).toString().toStdString(); }
    Strings texts(int role) {
        Strings all;
        for (int row = 0; row < rows.rowCount(); ++row) all.push_back(text(row, role));
        return all;
    }
    std::vector<bool> flags(int role) {
        std::vector<bool> all;
        for (int row = 0; row < rows.rowCount(); ++row) all.push_back(rows.index(row).data(role).toBool());
        return all;
    }
    /// The rows removed and inserted by showing these sets.
    std::pair<int, int> edits(const std::vector<DuplicateGroup>& groups) {
        RowMirror mirror(rows, {DuplicateRows::textRole, DuplicateRows::headRole});
        rows.show(groups);
        mirror.expectFresh();
        return {mirror.removed(), mirror.inserted()};
    }

    DuplicateRows rows;
};

}  // namespace

TEST_F(RowsOfDuplicates, haveAHeadAndARowForEachPath) {
    EXPECT_EQ(rows.rowCount(), 0);
    rows.show(twoSets());
    EXPECT_THAT(texts(DuplicateRows::textRole),
                ElementsAre("3 copies · 3 MB each", "/m/a.mov", "/m/b.mov", "/m/c\xEF\xBF\xBD.mov",
                            "2 copies · 2 MB each", "/p/x", "/p/y"));
    EXPECT_THAT(texts(DuplicateRows::gainRole), ElementsAre("save 6 MB", "", "", "", "save 2 MB", "", ""));
    EXPECT_THAT(texts(DuplicateRows::tagRole), ElementsAre("", "keep", "dup", "dup", "", "keep", "dup"));
    EXPECT_THAT(texts(DuplicateRows::noteRole), ElementsAre("", "", "", "", "", "", "hard link"));
    EXPECT_THAT(flags(DuplicateRows::headRole), ElementsAre(true, false, false, false, true, false, false));
    EXPECT_THAT(flags(DuplicateRows::lastRole), ElementsAre(false, false, false, true, false, false, true));
}

TEST_F(RowsOfDuplicates, keptOneIsGreen) {
    rows.show(twoSets());
    EXPECT_EQ(rows.index(1).data(DuplicateRows::tintRole).value<QColor>(), QColor(50, 199, 123));
    EXPECT_FALSE(rows.index(2).data(DuplicateRows::tintRole).value<QColor>().isValid());
}

TEST_F(RowsOfDuplicates, areReadOut) {
    const TextsOf texts(desktopLinux);
    rows.show(twoSets());
    EXPECT_EQ(text(0, DuplicateRows::spokenRole), "3 copies · 3 MB each, save 6 MB");
    EXPECT_EQ(text(1, DuplicateRows::spokenRole), "keep, /m/a.mov");
    EXPECT_EQ(text(6, DuplicateRows::spokenRole), "dup, /p/y, hard link");
    EXPECT_EQ(text(0, DuplicateRows::actionRole), "Keep first, trash rest: a.mov");
    EXPECT_EQ(text(6, DuplicateRows::actionRole), "Reveal in Files: y");
}

TEST_F(RowsOfDuplicates, tellTheBytesOfPaths) {
    rows.show(twoSets());
    EXPECT_EQ(rows.pathAt(0), "/m/a.mov") << "the one that a head keeps";
    EXPECT_EQ(rows.pathAt(3), "/m/c\xFF.mov");
    EXPECT_EQ(rows.hashAt(3), "one");
    EXPECT_EQ(rows.hashAt(4), "two");
    EXPECT_TRUE(rows.isHead(4));
    for (const int row : {-1, 7}) {
        EXPECT_EQ(rows.pathAt(row), "");
        EXPECT_EQ(rows.hashAt(row), "");
        EXPECT_FALSE(rows.isHead(row));
    }
}

TEST_F(RowsOfDuplicates, onlyTheRowsOfAChangedSetAreEdited) {
    std::vector<DuplicateGroup> groups;
    for (int set = 0; set < 5; ++set) {
        const std::string name = std::to_string(set);
        groups.push_back(duplicateSet(name, 2'000'000, {"/" + name + "/a", "/" + name + "/b"}));
    }
    EXPECT_EQ(edits(groups), (std::pair{0, 15}));
    EXPECT_EQ(edits(groups), (std::pair{0, 0}));
    for (const int gone : {2, 0, 2}) {
        groups.erase(groups.begin() + gone);
        EXPECT_EQ(edits(groups), (std::pair{3, 0})) << gone;
    }
    groups.insert(groups.begin() + 1, duplicateSet("new", 2'000'000, {"/n/a", "/n/b", "/n/c"}));
    EXPECT_EQ(edits(groups), (std::pair{0, 4}));
    groups[1].paths.pop_back();
    groups[1].files.pop_back();
    EXPECT_EQ(edits(groups), (std::pair{4, 3}));
    EXPECT_EQ(edits({}), (std::pair{9, 0}));
    EXPECT_THAT(texts(DuplicateRows::textRole), IsEmpty());
}

}  // namespace zelk

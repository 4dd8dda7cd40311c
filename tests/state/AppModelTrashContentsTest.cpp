// SPDX-License-Identifier: MIT
// The contents of the Trash folders that the platform names: counted, but not offered.
#include "AppModelFixture.h"

namespace zelk {
namespace {

class AppModelTrashContentsTest : public AppModelFixture {
protected:
    AppModelTrashContentsTest() {
        fillHome();
        machine.directories.file(home + "/.Trash/app/node_modules/a.js", 8'000'000, 6'000);
    }

    std::vector<std::string> offered() {
        std::vector<std::string> paths;
        for (const Reclaimable& item : model().reclaimables()) paths.push_back(item.path);
        return paths;
    }
    bool listsTheOldArchive() {
        const std::vector<LargeFile>& files = model().insights().topFiles;
        return std::any_of(files.begin(), files.end(),
                           [&](const LargeFile& file) { return file.path == home + "/.Trash/old.zip"; });
    }
    void expectItCounted() {
        EXPECT_EQ(model().trashBytes(), 15'000'000);
        EXPECT_EQ(folderAt(model().root(), home + "/.Trash")->size, 15'000'000);
        EXPECT_EQ(model().insights().typeTotals[FileType::archive].bytes, 7'000'000);
    }

    const std::vector<std::string> elsewhere{home + "/Library/Caches/Yarn", home + "/projects/app/node_modules"};
};

TEST_F(AppModelTrashContentsTest, trashContentsAreNotOffered) {
    machine.locations.thrownAway = TrashPlaces({home + "/.Trash"}, {});
    survey();
    EXPECT_EQ(offered(), elsewhere);
    EXPECT_FALSE(listsTheOldArchive());
    EXPECT_EQ(model().insights().topFiles.size(), 4U);
    EXPECT_EQ(model().reclaimableBytes(), 60'000'000);
    expectItCounted();
}

TEST_F(AppModelTrashContentsTest, withoutKnownTrashEverythingIsOffered) {
    survey();
    EXPECT_EQ(offered().size(), 3U);
    EXPECT_TRUE(listsTheOldArchive());
    expectItCounted();
}

TEST_F(AppModelTrashContentsTest, dataHomeAddsLinuxPlaces) {
    machine.directories.file(home + "/.cache/yarn/v6", 1'000, 1'000);
    machine.directories.file(home + "/data/pnpm/store/v3", 1'000, 1'000);
    survey();
    EXPECT_EQ(offered().size(), 3U);
    machine.locations.xdg = XdgHomes{home + "/data", {}, {}, {}};
    survey();
    EXPECT_EQ(offered().size(), 5U);
}

}  // namespace
}  // namespace zelk

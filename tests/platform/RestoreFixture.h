// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {

inline FileIdentity identityOnDisk(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return {status.st_dev, status.st_ino};
}

/// A home with a Trash, and a folder of items beside it.
class RestoreItem : public testing::Test {
protected:
    void SetUp() override {
        zoo::makeFolder(items);
        zoo::makeFolder(home);
        std::filesystem::permissions(temp.path(), std::filesystem::perms::all);  // for whoever a test runs as
        std::filesystem::permissions(home, std::filesystem::perms::all);
    }

    /// Trashes it by the path that a survey of the temporary folder would have found.
    TrashedItem trashed(const std::string& path) {
        TrashResult result = itsTrash.trash(ItemPath::below(temp.path(), path).value());
        EXPECT_EQ(result.failure, std::nullopt);
        return result.item.value();
    }
    TrashedItem trashedFile(const std::string& path, const std::string& content = "content") {
        fakes::writeFile(path, content);
        return trashed(path);
    }
    Failure restored(const TrashedItem& one) { return itsTrash.restore(one); }

    void expectTrashEmpty() const {
        for (const char* folder : {"/files", "/info"}) EXPECT_TRUE(fakes::namesIn(trash + folder).empty()) << folder;
    }
    void expectOnlyItemInTrash(const std::string& content = "content") const {
        EXPECT_THAT(fakes::restorable(trash), testing::ElementsAre(testing::Pair(item, trash + "/files/item.txt")));
        EXPECT_EQ(fakes::fileContent(trash + "/files/item.txt"), content);
        EXPECT_THAT(fakes::namesIn(trash + "/info"), testing::ElementsAre("item.txt.trashinfo"));
    }
    static Failure refusal(const std::string& reason) { return "“item.txt” couldn’t be put back: " + reason; }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string home = temp / "home";
    const std::string trash = home + "/.local/share/Trash";
    const std::string items = temp / "items";
    const std::string item = items + "/item.txt";
    const std::string aside = temp / "aside";
    LinuxTrash itsTrash{home};
};

}  // namespace zelk

// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "fakes/TestFiles.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {

/// A home in memory whose Trash has its two folders, both empty.
class HomeTrash : public testing::Test {
protected:
    HomeTrash() {
        zoo::makeFolder(files);
        zoo::makeFolder(info);
    }

    std::string contentOf(const std::string& name) const { return files + "/" + name; }
    std::string infoOf(const std::string& name) const { return info + "/" + name + ".trashinfo"; }

    /// Writes the info of an item that was at "/was/NAME", as another program does now.
    void addYoungInfo(const std::string& name) const {
        fakes::writeFile(infoOf(name), "[Trash Info]\nPath=/was/" + name + "\nDeletionDate=2026-01-01T00:00:00\n");
    }

    /// The same, written a while ago.
    void addInfo(const std::string& name) const {
        addYoungInfo(name);
        const timespec old[2] = {{1000000000, 0}, {1000000000, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, infoOf(name).c_str(), old, 0), 0);
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
    const std::string home = temp / "home";
    const std::string trash = home + "/.local/share/Trash";
    const std::string files = trash + "/files";
    const std::string info = trash + "/info";
    LinuxTrash itsTrash{home};
};

}  // namespace zelk

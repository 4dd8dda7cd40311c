// SPDX-License-Identifier: MIT
#include "platform/posix/FolderMounts.h"

#include <utility>

#include "platform/FolderPath.h"
#include "platform/posix/FileStatus.h"

namespace zelk {

bool FolderMounts::areIn(const std::string& name, std::uint64_t mount) {
    if (!std::exchange(read_, true)) {
        path_ = pathOfDirectory(folder_);
        if (path_) table_ = mountTable();
    }
    return path_ && isMountedAnywhereIn(table_, mount, pathIn(*path_, name));
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "platform/posix/FolderMounts.h"

#include "platform/FolderPath.h"
#include "platform/posix/FileStatus.h"

namespace zelk {

bool FolderMounts::areIn(const std::string& name, std::uint64_t mount) {
    const auto now = std::chrono::steady_clock::now();
    if (!read_ || now - *read_ > std::chrono::seconds(1)) {
        read_ = now;
        path_ = pathOfDirectory(folder_);
        if (path_) table_ = mountTable();
    }
    return path_ && isMountedAnywhereIn(table_, mount, pathIn(*path_, name));
}

}  // namespace zelk

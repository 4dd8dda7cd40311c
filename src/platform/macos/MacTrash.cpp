// SPDX-License-Identifier: MIT
#include "platform/macos/MacTrash.h"

#include "platform/posix/DirectoryNames.h"
#include "platform/posix/OpenDirectory.h"

namespace zelk {

std::optional<std::vector<std::string>> MacTrash::list() {
    std::optional<std::vector<std::string>> entries = directoryNames(Descriptor(openRootDirectory(location_)));
    if (entries) {
        for (std::string& entry : *entries) entry.insert(0, location_ + "/");
    }
    return entries;
}

}  // namespace zelk

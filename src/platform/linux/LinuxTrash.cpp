// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxTrash.h"

#include <cerrno>

#include "platform/linux/LinuxLocations.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/OpenDirectory.h"

namespace zelk {

LinuxTrash::LinuxTrash(const std::string& home)
    : location_(LinuxLocations(home).applicationSupport().value() + "/Trash/files") {}

std::optional<std::vector<std::string>> LinuxTrash::list() {
    Descriptor folder(openRootDirectory(location_));
    // The folder is made by whoever trashes something first.
    if (!folder && errno == ENOENT) return std::vector<std::string>();
    std::optional<std::vector<std::string>> entries = directoryNames(std::move(folder));
    if (entries) {
        for (std::string& entry : *entries) entry.insert(0, location_ + "/");
    }
    return entries;
}

Failure LinuxTrash::trash(const ItemPath& item) {
    return item.text() + " cannot be moved to the Trash yet";
}

std::size_t LinuxTrash::empty() {
    return 0;
}

}  // namespace zelk

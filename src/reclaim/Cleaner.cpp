// SPDX-License-Identifier: MIT
#include "reclaim/Cleaner.h"

namespace zelk {

std::uint64_t Cleaner::allocatedSize(FileManager& files, const std::string& path) {
    const std::optional<FileProperties> properties = files.properties(path);
    if (!properties) return 0;
    return properties->isDirectory ? files.allocatedSizeBelow(path) : properties->allocatedSize;
}

std::optional<std::uint64_t> Cleaner::measureTrash(FileManager& files, Trash& trash) {
    const std::optional<std::vector<std::string>> entries = trash.list();
    if (!entries) return std::nullopt;
    std::uint64_t bytes = 0;
    for (const std::string& entry : *entries) bytes += allocatedSize(files, entry);
    return bytes;
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "platform/FolderPath.h"

#include <algorithm>

namespace zelk {

std::string normalFolder(std::string_view path) {
    const bool absolute = path.starts_with('/');
    std::string folder;
    folder.reserve(path.size());
    for (std::size_t at = 0; at < path.size();) {
        const std::size_t end = std::min(path.find('/', at), path.size());
        const std::string_view part = path.substr(at, end - at);
        at = end + 1;
        if (part.empty() || part == ".") continue;
        if (absolute || !folder.empty()) folder += '/';
        folder += part;
    }
    if (folder.empty() && !path.empty()) return absolute ? "/" : ".";
    return folder;
}

bool isInFolder(std::string_view path, std::string_view folder) {
    if (!path.starts_with(folder)) return false;
    return path.size() == folder.size() || folder == "/" || path[folder.size()] == '/';
}

std::string pathIn(std::string_view folder, std::string_view name) {
    while (folder.ends_with('/')) folder.remove_suffix(1);
    return std::string(folder).append("/").append(name);
}

}  // namespace zelk

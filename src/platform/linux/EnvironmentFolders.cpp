// SPDX-License-Identifier: MIT
#include "platform/linux/EnvironmentFolders.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/FolderPath.h"
#include "platform/Text.h"

namespace zelk {

std::vector<std::string> foldersIn(std::string_view list) {
    std::vector<std::string> folders;
    while (!list.empty()) {
        std::string folder = normalFolder(takeUntil(list, ':'));
        if (folder.starts_with('/') && std::find(folders.begin(), folders.end(), folder) == folders.end())
            folders.push_back(std::move(folder));
    }
    return folders;
}

std::vector<std::string> foldersFromEnvironment(const char* variable, std::string_view otherwise) {
    const char* value = std::getenv(variable);
    return foldersIn(value == nullptr || *value == '\0' ? otherwise : value);
}

}  // namespace zelk

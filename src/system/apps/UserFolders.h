// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FileManager.h"
#include "platform/Locations.h"

namespace zelk {

/// The folders that a desktop gives its user for documents, downloads and so on, in their language.
struct UserFolders {
    std::string downloads;         ///< the usual one if none is configured
    std::vector<std::string> all;  ///< those that are configured, and the usual ones
};

/// Reads which they are. Blocking.
UserFolders userFolders(FileManager& files, const std::string& home, const XdgHomes& xdg);

/// The same from the text of "user-dirs.dirs", which a shell could read. Ignores what is no path or below no home.
UserFolders parseUserFolders(std::string_view text, const std::string& home);

}  // namespace zelk

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelk {

/// What $XDG_DATA_DIRS means where it is not set.
inline constexpr std::string_view usualDataFolders = "/usr/local/share:/usr/share";
/// What $PATH means where it is not set.
inline constexpr std::string_view usualProgramFolders = "/usr/local/bin:/usr/bin:/bin";

/// The absolute folders of a list separated by colons: normalized, in order, each once.
std::vector<std::string> foldersIn(std::string_view list);

/// Those of an environment variable; of `otherwise` if it is unset or empty.
std::vector<std::string> foldersFromEnvironment(const char* variable, std::string_view otherwise);

}  // namespace zelk

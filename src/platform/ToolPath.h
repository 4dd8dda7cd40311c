// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zelk {

class FileManager;

/// The PATH for tools that macOS is to start: `inherited`, then what it lacks of the folders that the system names to
/// every shell ("/etc/paths", "/etc/paths.d"), that of Homebrew and those of package managers in `home`. An application
/// that the Finder started inherits the folders of the system alone, in which there is no npm. Reads some small files.
std::string toolPath(std::string_view inherited, FileManager& files, const std::string& home);

}  // namespace zelk

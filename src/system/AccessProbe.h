// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk {

class FileManager;

/// Whether this process may read what the system protects. The system offers no query, so this tries to open files that
/// require the permission. Where none of them exists, as on Linux, nothing is protected and the answer is true. Makes a
/// few blocking file system calls. `home` has no trailing slash, except for "/", the home of a user without one.
bool hasFullDiskAccess(FileManager& files, const std::string& home);

}  // namespace zelk

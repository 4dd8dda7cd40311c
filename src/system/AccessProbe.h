// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk {

class FileManager;

/// Whether this process may read what the system protects. There is nobody to ask, so it tries what only a process with
/// the grant may open. Where nothing of it exists, as on Linux, there is nothing to be granted: true. A few calls of
/// the file system, which block. `home` without a slash at its end, but "/" for a user without one.
bool hasFullDiskAccess(FileManager& files, const std::string& home);

}  // namespace zelk

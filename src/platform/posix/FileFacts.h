// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace zelk {

/// The text of the symbolic link at `path`; absent if that is no link.
std::optional<std::string> textOfLink(const std::string& path);

/// Whether another process holds a lock by fcntl() on any part of the regular file at `path`. Locks by flock() are
/// others. Takes no lock, follows links and never blocks; false for what cannot be opened for reading.
bool isLockedByAnother(const std::string& path);

}  // namespace zelk

// SPDX-License-Identifier: MIT
// Parses /proc/self/mountinfo. Pure functions over any text, which skip what they do not understand.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelk {

struct Mount {
    std::uint64_t id = 0;
    std::uint64_t parent = 0;  ///< the mount that contains its mount point
    std::string device;        ///< equal for all mounts of one device
    std::string root;          ///< the folder of the device that is mounted
    std::string point;         ///< absolute mount point without a trailing slash, or "/"

    bool operator==(const Mount&) const = default;
};

/// Parses one mount per line and skips malformed lines.
std::vector<Mount> parseMountTable(std::string_view mountinfo);

/// The mount point of the mount `id`; absent if it is not in the table.
std::optional<std::string> mountPointOf(const std::vector<Mount>& table, std::uint64_t id);

/// Whether the mount `id` shows its device from the top; false for a part of it, and if it is not in the table.
bool isWholeVolume(const std::vector<Mount>& table, std::uint64_t id);

/// Whether anything is mounted below the folder `path` (absolute, without links), not counting `path` itself.
bool isMountedBelow(const std::vector<Mount>& table, std::string_view path);

/// Like isMountedBelow(), but also considers other paths to the same folder and mounts over its files: a folder that
/// holds a mount cannot be removed by any path. `mount` is the folder's mount. The folder itself counts where it is
/// mounted on under another path.
bool isMountedAnywhereIn(const std::vector<Mount>& table, std::uint64_t mount, std::string_view path);

}  // namespace zelk

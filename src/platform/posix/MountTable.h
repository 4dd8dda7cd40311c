// SPDX-License-Identifier: MIT
// What /proc/self/mountinfo says. Pure functions: any text in, what can be understood of it out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelk {

struct Mount {
    std::uint64_t id = 0;
    std::uint64_t parent = 0;  ///< the mount that its point lies on
    std::string device;        ///< the same text for all mounts of one device
    std::string root;          ///< the folder of the device that is to be seen at the point
    std::string point;         ///< absolute, without a slash at its end but for "/"

    bool operator==(const Mount&) const = default;
};

/// One mount a line; lines of another form are passed over.
std::vector<Mount> parseMountTable(std::string_view mountinfo);

/// Where the mount `id` is mounted; absent if the table does not have it.
std::optional<std::string> mountPointOf(const std::vector<Mount>& table, std::uint64_t id);

/// Whether something is mounted below the folder `path` (absolute, no links in it). `path` itself does not count.
bool isMountedBelow(const std::vector<Mount>& table, std::string_view path);

/// The same for the folder's files and whatever other paths lead to it, by which something may be mounted in it too:
/// what holds a mount can be removed by none of them. `mount` is that of the folder, whose own self counts where the
/// mount is at another path.
bool isMountedAnywhereIn(const std::vector<Mount>& table, std::uint64_t mount, std::string_view path);

}  // namespace zelk

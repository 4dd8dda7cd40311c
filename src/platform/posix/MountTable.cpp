// SPDX-License-Identifier: MIT
#include "platform/posix/MountTable.h"

#include <algorithm>

#include "platform/Text.h"

namespace zelk {
namespace {

/// The kernel writes blanks, tabs, line feeds and backslashes as a backslash and three octal digits.
constexpr EscapeForm mountEscape{"\\", "01234567", 3};

const Mount* findMount(const std::vector<Mount>& table, std::uint64_t id) {
    const auto found = std::find_if(table.begin(), table.end(), [id](const Mount& mount) { return mount.id == id; });
    return found == table.end() ? nullptr : &*found;
}

/// The rest of `path` behind `folder`, with a leading slash; empty if they are equal, absent if `path` is not in
/// `folder`.
std::optional<std::string_view> pathBehind(std::string_view folder, std::string_view path) {
    while (folder.ends_with('/')) folder.remove_suffix(1);
    while (path.ends_with('/')) path.remove_suffix(1);
    if (!path.starts_with(folder)) return std::nullopt;
    path.remove_prefix(folder.size());
    if (!path.empty() && path.front() != '/') return std::nullopt;
    return path;
}

/// The path on the mount's device that `path` refers to; absent if it is not on that mount.
std::optional<std::string> pathOnDevice(const Mount& mount, std::string_view path) {
    const std::optional<std::string_view> behind = pathBehind(mount.point, path);
    if (!behind) return std::nullopt;
    std::string_view root = mount.root;
    while (root.ends_with('/')) root.remove_suffix(1);
    return std::string(root).append(*behind);
}

}  // namespace

std::vector<Mount> parseMountTable(std::string_view mountinfo) {
    std::vector<Mount> table;
    while (!mountinfo.empty()) {
        std::string_view line = takeLine(mountinfo);
        // 36 35 98:0 /root/of/the/mount /mount/point options...
        Mount mount;
        const auto id = parseNumber<std::uint64_t>(takeUntil(line, ' '));
        const auto parent = parseNumber<std::uint64_t>(takeUntil(line, ' '));
        mount.device = takeUntil(line, ' ');
        mount.root = unescaped(takeUntil(line, ' '), mountEscape);
        mount.point = unescaped(takeUntil(line, ' '), mountEscape);
        if (!id || !parent || !mount.point.starts_with('/')) continue;
        mount.id = *id;
        mount.parent = *parent;
        if ((mount.root + mount.point).find('\0') != std::string::npos) continue;
        while (mount.point.size() > 1 && mount.point.ends_with('/')) mount.point.pop_back();
        table.push_back(std::move(mount));
    }
    return table;
}

std::optional<std::string> mountPointOf(const std::vector<Mount>& table, std::uint64_t id) {
    const Mount* const found = findMount(table, id);
    if (found == nullptr) return std::nullopt;
    return found->point;
}

bool isWholeVolume(const std::vector<Mount>& table, std::uint64_t id) {
    const Mount* const found = findMount(table, id);
    return found != nullptr && found->root == "/";
}

bool isMountedBelow(const std::vector<Mount>& table, std::string_view path) {
    return std::any_of(table.begin(), table.end(),
                       [path](const Mount& mount) { return !pathBehind(path, mount.point).value_or("").empty(); });
}

bool isMountedAnywhereIn(const std::vector<Mount>& table, std::uint64_t mount, std::string_view path) {
    if (isMountedBelow(table, path)) return true;
    const Mount* const own = findMount(table, mount);
    const std::optional<std::string> place = own != nullptr ? pathOnDevice(*own, path) : std::nullopt;
    if (!place) return false;
    return std::any_of(table.begin(), table.end(), [&](const Mount& other) {
        const Mount* const parent = findMount(table, other.parent);
        if (parent == nullptr || parent->device != own->device) return false;
        const std::optional<std::string> covered = pathOnDevice(*parent, other.point);
        return covered && pathBehind(*place, *covered);
    });
}

}  // namespace zelk

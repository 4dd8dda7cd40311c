// SPDX-License-Identifier: MIT
#include "platform/posix/MountTable.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace zelk {
namespace {

/// Takes what stands before the next `end` off `text`, and the `end`.
std::string_view take(std::string_view& text, char end) {
    const std::size_t length = std::min(text.find(end), text.size());
    const std::string_view part = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return part;
}

bool isOctal(char c) {
    return c >= '0' && c <= '7';
}

/// The kernel writes blanks, tabs, line ends and backslashes as a backslash and three octal digits.
std::string unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool escape = text[at] == '\\' && at + 3 < text.size() && text[at + 1] >= '0' && text[at + 1] <= '3' &&
                            isOctal(text[at + 2]) && isOctal(text[at + 3]);
        if (escape) {
            plain += static_cast<char>((text[at + 1] - '0') << 6 | (text[at + 2] - '0') << 3 | (text[at + 3] - '0'));
            at += 3;
        } else {
            plain += text[at];
        }
    }
    return plain;
}

bool takeNumber(std::string_view& text, std::uint64_t& number) {
    const std::string_view digits = take(text, ' ');
    const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return !digits.empty() && error == std::errc{} && stop == digits.data() + digits.size();
}

const Mount* findMount(const std::vector<Mount>& table, std::uint64_t id) {
    const auto found = std::find_if(table.begin(), table.end(), [id](const Mount& mount) { return mount.id == id; });
    return found == table.end() ? nullptr : &*found;
}

/// Where `path`, which is `folder` or below it, goes on behind it; absent if it is neither. With its slash at the
/// front.
std::optional<std::string_view> pathBehind(std::string_view folder, std::string_view path) {
    while (folder.ends_with('/')) folder.remove_suffix(1);
    while (path.ends_with('/')) path.remove_suffix(1);
    if (!path.starts_with(folder)) return std::nullopt;
    path.remove_prefix(folder.size());
    if (!path.empty() && path.front() != '/') return std::nullopt;
    return path;
}

/// Where on the device of `mount` that is which has the path `path` there; absent if it is not on that mount.
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
        std::string_view line = take(mountinfo, '\n');
        // 36 35 98:0 /root/of/the/mount /mount/point options...
        Mount mount;
        bool good = takeNumber(line, mount.id);
        good = takeNumber(line, mount.parent) && good;
        mount.device = take(line, ' ');
        mount.root = unescaped(take(line, ' '));
        mount.point = unescaped(take(line, ' '));
        if (!good || !mount.point.starts_with('/')) continue;
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

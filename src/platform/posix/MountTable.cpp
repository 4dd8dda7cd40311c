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

}  // namespace

std::vector<Mount> parseMountTable(std::string_view mountinfo) {
    std::vector<Mount> table;
    while (!mountinfo.empty()) {
        std::string_view line = take(mountinfo, '\n');
        // 36 35 98:0 /root/of/the/mount /mount/point options...
        const std::string_view id = take(line, ' ');
        for (int passed = 0; passed < 3; ++passed) take(line, ' ');
        Mount mount{0, unescaped(take(line, ' '))};
        const auto [stop, error] = std::from_chars(id.data(), id.data() + id.size(), mount.id);
        if (id.empty() || error != std::errc{} || stop != id.data() + id.size()) continue;
        if (!mount.point.starts_with('/') || mount.point.find('\0') != std::string::npos) continue;
        while (mount.point.size() > 1 && mount.point.ends_with('/')) mount.point.pop_back();
        table.push_back(std::move(mount));
    }
    return table;
}

std::optional<std::string> mountPointOf(const std::vector<Mount>& table, std::uint64_t id) {
    const auto found = std::find_if(table.begin(), table.end(), [id](const Mount& mount) { return mount.id == id; });
    if (found == table.end()) return std::nullopt;
    return found->point;
}

bool isMountedBelow(const std::vector<Mount>& table, std::string_view path) {
    while (path.ends_with('/')) path.remove_suffix(1);
    return std::any_of(table.begin(), table.end(), [path](const Mount& mount) {
        const std::string_view point = mount.point;
        return point.size() > path.size() + 1 && point.starts_with(path) && point[path.size()] == '/';
    });
}

std::string pathIn(std::string_view folder, std::string_view name) {
    while (folder.ends_with('/')) folder.remove_suffix(1);
    return std::string(folder).append("/").append(name);
}

}  // namespace zelk

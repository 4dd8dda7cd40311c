// SPDX-License-Identifier: MIT
// Parses arbitrary text as a mount table: all mount points are absolute paths, and every path that the kernel can write
// is read back unchanged.
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/MountTable.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

/// Escapes a path as the kernel does.
std::string escaped(const std::string& path) {
    std::string text;
    for (const char c : path) {
        std::array<char, 8> bytes{c, '\0'};
        if (std::string_view(" \t\n\\#").find(c) != std::string_view::npos)
            std::snprintf(bytes.data(), bytes.size(), "\\%03o", static_cast<unsigned char>(c));
        text += bytes.data();
    }
    return text;
}

std::string lineOf(const zelk::Mount& mount) {
    return std::to_string(mount.id) + " " + std::to_string(mount.parent) + " " + mount.device + " " +
           escaped(mount.root) + " " + escaped(mount.point) + " rw,relatime shared:1 - ext4 /dev/sda1 rw\n";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const std::vector<zelk::Mount> table = zelk::parseMountTable(text);
    std::string written;
    for (const zelk::Mount& mount : table) {
        require(mount.point.starts_with('/') && mount.point.find('\0') == std::string::npos);
        require(mount.point == "/" || !mount.point.ends_with('/'));
        require(zelk::mountPointOf(table, mount.id).has_value());
        require(!zelk::isMountedBelow({mount}, mount.point));
        require(mount.point == "/" || zelk::isMountedBelow(table, "/"));
        require(zelk::isMountedBelow(table, mount.point) ==
                zelk::isMountedBelow(table, mount.point == "/" ? "" : mount.point + "/"));
        require(zelk::isMountedAnywhereIn(table, mount.id, mount.point) || !zelk::isMountedBelow(table, mount.point));
        written += lineOf(mount);
    }
    require(zelk::parseMountTable(written) == table);
    return 0;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "fakes/TestFiles.h"

namespace zelk::fakes {

/// The path in an info file, parsed as strictly as any program may: absent if a line is missing, misplaced or not
/// encoded.
inline std::optional<std::string> pathInTrashInfo(const std::string& text) {
    const std::string head = "[Trash Info]\nPath=";
    const std::size_t end = text.find('\n', head.size());
    if (!text.starts_with(head) || end == std::string::npos) return std::nullopt;
    const std::string date = text.substr(end + 1);
    const std::string form = "DeletionDate=####-##-##T##:##:##\n";
    if (date.size() != form.size()) return std::nullopt;
    for (std::size_t i = 0; i < form.size(); ++i) {
        const bool digit = date[i] >= '0' && date[i] <= '9';
        if (form[i] == '#' ? !digit : date[i] != form[i]) return std::nullopt;
    }
    std::string path;
    for (std::size_t at = head.size(); at < end; ++at) {
        if (text[at] <= ' ' || text[at] == 0x7F) return std::nullopt;
        if (text[at] != '%') {
            path += text[at];
            continue;
        }
        const std::string digits = text.substr(at + 1, 2);
        if (digits.find_first_not_of("0123456789ABCDEFabcdef") != std::string::npos || at + 2 >= end)
            return std::nullopt;
        path += static_cast<char>(std::stoi(digits, nullptr, 16));
        at += 2;
    }
    return path;
}

/// The restorable entries of the trash folder `trash`: each entry of "files" with info, by its original path. Omits
/// entries that are in only one of the two folders.
inline std::map<std::string, std::string> restorable(const std::string& trash) {
    std::map<std::string, std::string> found;
    if (!std::filesystem::is_directory(trash + "/files")) return found;
    for (const std::string& name : namesIn(trash + "/files")) {
        const auto path = pathInTrashInfo(fileContent(trash + "/info/" + name + ".trashinfo"));
        if (path) found[*path] = trash + "/files/" + name;
    }
    return found;
}

}  // namespace zelk::fakes

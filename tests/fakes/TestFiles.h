// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zelk::fakes {

inline void writeFile(const std::string& path, std::string_view content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << content;
    if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

/// Returns "<none>" for an unreadable file, which no test writes.
inline std::string fileContent(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return "<none>";
    return std::string(std::istreambuf_iterator<char>(file), {});
}

inline std::set<std::string> namesIn(const std::string& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.insert(entry.path().filename().string());
    return names;
}

}  // namespace zelk::fakes

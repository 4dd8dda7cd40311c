// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "HouseRules.h"

namespace fs = std::filesystem;

namespace zelk::house {
namespace {

constexpr std::array<std::string_view, 10> kExtensions = {".h",   ".cpp", ".mm",    ".qml", ".js",
                                                          ".mjs", ".sh",  ".cmake", ".py",  ".yml"};

/// Folders that hold no source of ours: what is built, what npm installs, the fuzzers' bytes, and hidden folders but
/// CI.
bool isSkipped(const fs::path& folder) {
    const std::string name = folder.filename().string();
    if (name == ".ci" || name == ".github") return false;
    return name.starts_with(".") || name.starts_with("build") || name == "node_modules" || name == "corpus";
}

std::string readWhole(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// Scripts that are commands have no extension; they are known by their first line.
bool isSource(const fs::path& path, const std::string& text) {
    const std::string extension = path.extension().string();
    if (path.filename() == "CMakeLists.txt") return true;
    if (extension.empty()) return text.starts_with("#!");
    return std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
}

}  // namespace

std::vector<SourceFile> readSources(const std::string& root) {
    std::vector<SourceFile> sources;
    for (auto entry = fs::recursive_directory_iterator(root); entry != fs::recursive_directory_iterator(); ++entry) {
        if (entry->is_directory() && !entry->is_symlink()) {
            if (isSkipped(entry->path())) entry.disable_recursion_pending();
        } else if (entry->is_regular_file() && !entry->is_symlink()) {
            const std::string path = entry->path().lexically_relative(root).string();
            if (!path.starts_with(".ci/") && path.starts_with(".") && !path.starts_with(".github/")) continue;
            std::string text = readWhole(entry->path());
            if (isSource(entry->path(), text)) sources.push_back({path, std::move(text)});
        }
    }
    std::sort(sources.begin(), sources.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
    return sources;
}

}  // namespace zelk::house

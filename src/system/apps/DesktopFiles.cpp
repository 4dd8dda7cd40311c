// SPDX-License-Identifier: MIT
#include "system/apps/DesktopFiles.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "platform/CommandProgram.h"
#include "platform/FolderPath.h"

namespace zelk {

namespace {

constexpr std::string_view desktopEnding = ".desktop";
constexpr std::size_t largestDesktopFile = std::size_t{1} << 20;
constexpr int deepestLevel = 4;

struct EntryFolder {
    std::string path;
    std::string prefix;  ///< what it adds to the ids of its entries
    int level;
};

std::optional<DesktopFile> readDesktopFile(FileManager& files, std::string path, std::string id,
                                           const std::vector<std::string>& locales) {
    const std::optional<std::string> text = files.readSmall(path, largestDesktopFile);
    std::optional<DesktopEntry> entry = text ? parseDesktopEntry(*text, locales) : std::nullopt;
    if (!entry || !entry->isApplication || entry->hidden) return std::nullopt;
    return DesktopFile{std::move(path), std::move(id), std::move(*entry)};
}

}  // namespace

std::string DesktopFile::program() const {
    const std::vector<std::string> words = withoutEnv(entry.command);
    return words.empty() ? std::string() : words.front();
}

std::string DesktopFile::programName() const {
    const std::string word = program();
    return isSharedLauncher(word) ? std::string() : std::string(fileNameOf(word));
}

std::vector<DesktopFile> readDesktopFiles(FileManager& files, const std::string& folder,
                                          const std::vector<std::string>& locales) {
    std::vector<DesktopFile> found;
    std::vector<EntryFolder> pending{{folder, "", 0}};
    while (!pending.empty()) {
        const EntryFolder at = std::move(pending.back());
        pending.pop_back();
        const std::optional<std::vector<std::string>> names = files.list(at.path);
        if (!names) continue;
        for (const std::string& name : *names) {
            std::string path = pathIn(at.path, name);
            if (name.size() > desktopEnding.size() && name.ends_with(desktopEnding)) {
                std::string id = at.prefix + name.substr(0, name.size() - desktopEnding.size());
                if (auto file = readDesktopFile(files, std::move(path), std::move(id), locales))
                    found.push_back(std::move(*file));
            } else if (at.level < deepestLevel) {
                const std::optional<FileProperties> properties = files.properties(path);
                if (properties && properties->isDirectory)
                    pending.push_back({std::move(path), at.prefix + name + "-", at.level + 1});
            }
        }
    }
    std::sort(found.begin(), found.end(), [](const DesktopFile& a, const DesktopFile& b) { return a.path < b.path; });
    return found;
}

const DesktopFile* mainEntry(const std::vector<const DesktopFile*>& entries, std::string_view id) {
    const DesktopFile* best = nullptr;
    bool isItsProgram = false;  // of the best
    for (const DesktopFile* one : entries) {
        if (!one->isShown()) continue;
        if (one->id == id) return one;
        const bool is = one->programName() == id;
        if (best != nullptr && (isItsProgram || !is)) continue;
        best = one;
        isItsProgram = is;
    }
    return best;
}

std::vector<std::string> otherNames(const std::vector<const DesktopFile*>& entries, const DesktopFile& main) {
    std::vector<std::string> names;
    for (const DesktopFile* one : entries) {
        const std::string& name = one->entry.name;
        if (!one->isShown() || name == main.entry.name) continue;
        if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    }
    return names;
}

void NameClaims::claim(const std::string& name, const std::string& owner) {
    if (!name.empty()) owners_[name].insert(owner);
}

bool NameClaims::isShared(const std::string& name) const {
    const auto found = owners_.find(name);
    return found != owners_.end() && found->second.size() > 1;
}

}  // namespace zelk

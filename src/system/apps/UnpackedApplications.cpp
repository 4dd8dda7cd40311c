// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/CommandProgram.h"
#include "system/apps/OwnApplications.h"
#include "system/apps/UserFolders.h"

namespace zelk {

namespace {

/// Folders in which people collect several things. A program that lies in one directly may be one of many.
constexpr std::array collections{"appimages", "applications", "apps",    "bin",      "code",     "dev",   "games",
                                 "local",     "opt",          "program", "programs", "projects", "repos", "scripts",
                                 "snap",      "software",     "src",     "tools",    "work"};

bool isCollection(std::string_view name) {
    std::string lower(name);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
    return std::find(collections.begin(), collections.end(), lower) != collections.end();
}

std::string parentOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

/// What the entry starts, as it names it: its program, or the script behind an interpreter. Empty unless that is a
/// path.
std::string startedFile(const DesktopFile& file) {
    const std::vector<std::string> words = withoutEnv(file.entry.command);
    if (words.empty()) return {};
    auto named = words.begin();
    if (isSharedLauncher(*named))
        named = std::find_if(words.begin() + 1, words.end(), [](const std::string& word) { return word[0] != '-'; });
    return named != words.end() && named->starts_with('/') ? *named : std::string();
}

/// What starts something in a folder.
struct Starters {
    std::vector<const DesktopFile*> entries;
    std::set<std::string> programs;
};

class UnpackedFinder {
public:
    UnpackedFinder(const AppSearch& search, AppFindings& findings)
        : search_(search),
          files_(search.platform.files),
          findings_(findings),
          realHome_(files_.realPath(search.home).value_or(search.home)) {
        std::vector<std::string> folders = userFolders(files_, search.home, search.xdg).all;
        folders.insert(folders.end(), {search.xdg.data, search.xdg.config, search.xdg.cache, search.xdg.state});
        for (const std::string& folder : folders) reserved_.push_back(files_.realPath(folder).value_or(folder));
    }

    void find() {
        std::map<std::string, Starters> byFolder;
        for (const DesktopFile& one : search_.own) {
            const std::string named = startedFile(one);
            const std::optional<std::string> program = named.empty() ? std::nullopt : files_.realPath(named);
            if (!program || !isInFolder(*program, realHome_) || isFound(*program)) continue;
            Starters& starters = byFolder[folderOf(*program)];
            starters.entries.push_back(&one);
            starters.programs.insert(*program);
        }
        for (const auto& [folder, starters] : byFolder) {
            const bool isShared = std::any_of(byFolder.begin(), byFolder.end(), [&folder = folder](const auto& other) {
                return other.first != folder && isInFolder(other.first, folder);
            });
            if (!isShared && starters.programs.size() == 1 && mayGo(folder))
                add(folder, starters.entries, *starters.programs.begin());
        }
    }

private:
    bool isFound(const std::string& url) const {
        return std::any_of(findings_.apps.begin(), findings_.apps.end(),
                           [&](const AppEntry& app) { return app.url == url; });
    }

    /// The folder of the application, which may keep its program in one of its own.
    static std::string folderOf(const std::string& program) {
        std::string folder = parentOf(program);
        if (fileNameOf(folder) == "bin") folder = parentOf(folder);
        return folder;
    }

    bool mayGo(const std::string& folder) const {
        if (!isInFolder(folder, realHome_)) return false;
        if (folder.find("/.", realHome_.size()) != std::string::npos || isCollection(fileNameOf(folder))) return false;
        // The home itself holds them all.
        for (const std::string& reserved : reserved_)
            if (isInFolder(reserved, folder)) return false;
        for (const AppEntry& app : findings_.apps)
            if (isInFolder(app.url, folder)) return false;
        for (const char* sign : {".git", ".hg", ".svn"})
            if (files_.exists(pathIn(folder, sign))) return false;
        const std::optional<FileProperties> properties = files_.properties(folder);
        return properties && properties->isDirectory;
    }

    void add(const std::string& folder, const std::vector<const DesktopFile*>& entries, const std::string& program) {
        const DesktopFile* const entry = mainEntry(entries, fileNameOf(program));
        findings_.claim(entries, folder);
        if (entry == nullptr) return;
        AppEntry app;
        app.url = folder;
        app.name = entry->entry.name;
        app.size = files_.fullSizeBelow(folder);
        app.bundleID = entry->id;
        app.kind = AppKind::unpacked;
        app.program = entry->programName();
        app.icon = entry->entry.icon;
        for (const DesktopFile* one : entries) app.entries.push_back(one->path);
        if (!files_.properties(folder)->isOwn) app.obstacle = {AppObstacle::Reason::notOwn};
        findings_.apps.push_back(std::move(app));
    }

    const AppSearch& search_;
    FileManager& files_;
    AppFindings& findings_;
    std::string realHome_;
    std::vector<std::string> reserved_;
};

}  // namespace

void findUnpacked(const AppSearch& search, AppFindings& findings) {
    UnpackedFinder(search, findings).find();
}

}  // namespace zelk

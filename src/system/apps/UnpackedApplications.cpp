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

/// Folders directly in the home that are kept the same elsewhere, so that a removal would reach further than the Trash,
/// or that hold copies and machines. Other words may follow, as in "Dropbox (Work)".
constexpr std::array keptElsewhere{"backup",   "backups",  "dropbox", "google drive", "mega",           "nextcloud",
                                   "onedrive", "owncloud", "sync",    "syncthing",    "virtualbox vms", "vms"};

constexpr std::array signsOfVersionControl{".git", ".hg", ".svn"};

std::string inLowerCase(std::string_view name) {
    std::string lower(name);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
    return lower;
}

bool isCollection(std::string_view name) {
    return std::find(collections.begin(), collections.end(), inLowerCase(name)) != collections.end();
}

bool isKeptElsewhere(std::string_view name) {
    const std::string lower = inLowerCase(name);
    return std::any_of(keptElsewhere.begin(), keptElsewhere.end(), [&](std::string_view one) {
        return lower.starts_with(one) && (lower.size() == one.size() || lower[one.size()] == ' ');
    });
}

std::string parentOf(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}

/// What the entry starts, as it names it: its program, or the script behind an interpreter. Empty unless that is a
/// path.
std::string startedFile(const DesktopFile& file) {
    const std::vector<std::string> words = withoutEnv(file.entry.command);
    if (words.empty()) return {};
    const std::string named = isSharedLauncher(words.front()) ? interpretedFile(words) : words.front();
    return named.starts_with('/') ? named : std::string();
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
        for (const auto& [folder, starters] : offered()) add(folder, starters);
    }

    /// What is found at this place, if it still is an application; not measured.
    std::optional<AppEntry> findAt(const std::string& url) const {
        const std::map<std::string, Starters> all = offered();
        const auto found = all.find(url);
        return found != all.end() ? entryOf(url, found->second) : std::nullopt;
    }

private:
    /// The folders that may go, with what starts their programs.
    std::map<std::string, Starters> offered() const {
        std::map<std::string, Starters> byFolder;
        std::vector<std::string> others;  // that entries name without saying that they start them
        for (const DesktopFile& one : search_.own) {
            const std::string named = startedFile(one);
            if (named.empty()) {
                for (const std::string& word : one.entry.command)
                    if (auto other = word.starts_with('/') ? files_.realPath(word) : std::nullopt)
                        others.push_back(std::move(*other));
                continue;
            }
            const std::optional<std::string> program = files_.realPath(named);
            if (!program || !isInFolder(*program, realHome_) || isFound(*program)) continue;
            const std::optional<FileProperties> properties = files_.properties(*program);
            if (!properties || properties->isDirectory) continue;
            Starters& starters = byFolder[folderOf(*program)];
            starters.entries.push_back(&one);
            starters.programs.insert(*program);
        }
        const auto isNested = [&](const std::string& folder) {
            return std::any_of(byFolder.begin(), byFolder.end(), [&](const auto& other) {
                if (other.first == folder) return false;
                return isInFolder(other.first, folder) || (isInFolder(folder, other.first) && !isForMany(other.first));
            });
        };
        std::map<std::string, Starters> offered;
        for (const auto& [folder, starters] : byFolder) {
            const bool isNamed = std::any_of(others.begin(), others.end(),
                                             [&own = folder](const auto& other) { return isInFolder(other, own); });
            if (!isNamed && !isNested(folder) && starters.programs.size() == 1 && mayGo(folder))
                offered.emplace(folder, starters);
        }
        return offered;
    }

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

    /// Whether people keep several things in the folder, so that what lies there need not belong together.
    bool isForMany(const std::string& folder) const {
        if (folder.size() <= realHome_.size() + 1 || !isInFolder(folder, realHome_)) return true;
        if (isCollection(fileNameOf(folder))) return true;
        return std::any_of(reserved_.begin(), reserved_.end(),
                           [&](const std::string& reserved) { return isInFolder(reserved, folder); });
    }

    /// The home itself may be under version control for the sake of its settings.
    bool isUnderVersionControl(std::string folder) const {
        for (; folder.size() > realHome_.size(); folder = parentOf(folder))
            for (const char* sign : signsOfVersionControl)
                if (files_.exists(pathIn(folder, sign))) return true;
        return false;
    }

    bool mayGo(const std::string& folder) const {
        if (isForMany(folder) || folder.find("/.", realHome_.size()) != std::string::npos) return false;
        const std::string_view below = std::string_view(folder).substr(realHome_.size() + 1);
        if (isKeptElsewhere(below.substr(0, below.find('/')))) return false;
        for (const AppEntry& app : findings_.apps)
            if (isInFolder(app.url, folder)) return false;
        if (isUnderVersionControl(folder)) return false;
        const std::optional<FileProperties> properties = files_.properties(folder);
        return properties && properties->isDirectory;
    }

    /// Without its size; absent if no menu shows it.
    std::optional<AppEntry> entryOf(const std::string& folder, const Starters& starters) const {
        const DesktopFile* const entry = mainEntry(starters.entries, fileNameOf(*starters.programs.begin()));
        if (entry == nullptr) return std::nullopt;
        AppEntry app;
        app.url = folder;
        app.name = entry->entry.name;
        app.bundleID = entry->id;
        app.kind = AppKind::unpacked;
        app.program = entry->programName();
        app.icon = entry->entry.icon;
        for (const DesktopFile* one : starters.entries) app.entries.push_back(one->path);
        const std::optional<FileProperties> properties = files_.properties(folder);
        if (!properties || !properties->isOwn) app.obstacle = {AppObstacle::Reason::notOwn};
        return app;
    }

    void add(const std::string& folder, const Starters& starters) {
        findings_.claim(starters.entries, folder);
        std::optional<AppEntry> app = entryOf(folder, starters);
        if (!app) return;
        app->size = files_.fullSizeBelow(folder);
        findings_.apps.push_back(std::move(*app));
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

AppObstacle obstacleOfOwn(const Platform& platform, const AppEntry& app) {
    const AppSearch search(platform);
    AppFindings findings;
    findAppImages(search, findings);
    if (app.kind == AppKind::unpacked) {
        const std::optional<AppEntry> now = UnpackedFinder(search, findings).findAt(app.url);
        return now ? now->obstacle : AppObstacle{AppObstacle::Reason::changed};
    }
    const auto now = std::find_if(findings.apps.begin(), findings.apps.end(),
                                  [&](const AppEntry& one) { return one.url == app.url; });
    return now != findings.apps.end() ? now->obstacle : AppObstacle{AppObstacle::Reason::changed};
}

}  // namespace zelk

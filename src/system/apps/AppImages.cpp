// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/CommandProgram.h"
#include "system/apps/OwnApplications.h"
#include "system/apps/UserFolders.h"

namespace zelk {

namespace {

constexpr std::size_t bytesOfMagic = 11;
constexpr std::string_view appImageEnding = ".appimage";

/// The name of the file, without its ending in any case.
std::string titleOf(std::string_view path) {
    const std::string_view name = fileNameOf(path);
    if (name.size() <= appImageEnding.size()) return std::string(name);
    const std::string_view ending = name.substr(name.size() - appImageEnding.size());
    const bool matches = std::equal(ending.begin(), ending.end(), appImageEnding.begin(),
                                    [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; });
    return std::string(matches ? name.substr(0, name.size() - appImageEnding.size()) : name);
}

class AppImageFinder {
public:
    AppImageFinder(const AppSearch& search, AppFindings& findings)
        : search_(search), files_(search.platform.files), findings_(findings) {}

    void lookIn(const std::string& folder) {
        for (const std::string& name : files_.list(folder).value_or(std::vector<std::string>())) {
            const std::string path = pathIn(folder, name);
            const std::optional<FileProperties> properties = files_.properties(path);
            // What a link leads to is found where it lies, if it is the user's.
            if (properties && !properties->isDirectory && !properties->isLink) look(path);
        }
    }

    void look(const std::string& path) {
        const std::optional<std::string> real = files_.realPath(path);
        const std::optional<FileProperties> properties = real ? files_.properties(*real) : std::nullopt;
        if (!properties || properties->isDirectory || isKnown(*real)) return;
        if (!isAppImage(files_.readStart(*real, bytesOfMagic).value_or(""))) return;
        AppEntry app;
        app.url = *real;
        app.size = properties->allocatedSize;
        app.kind = AppKind::appImage;
        app.program = fileNameOf(*real);
        if (!properties->isOwn) app.obstacle = {AppObstacle::Reason::notOwn};
        addEntries(app);
        findings_.apps.push_back(std::move(app));
    }

private:
    bool isKnown(const std::string& url) const {
        return std::any_of(findings_.apps.begin(), findings_.apps.end(),
                           [&](const AppEntry& app) { return app.url == url; });
    }

    void addEntries(AppEntry& app) {
        std::vector<const DesktopFile*> entries;
        for (const DesktopFile& one : search_.own)
            if (one.program().starts_with('/') && files_.realPath(one.program()) == app.url) entries.push_back(&one);
        for (const DesktopFile* one : entries) app.entries.push_back(one->path);
        findings_.claim(entries, app.url);
        findings_.claims.claim(app.program, app.url);
        const DesktopFile* const entry = mainEntry(entries, "");
        app.name = entry != nullptr ? entry->entry.name : titleOf(app.url);
        if (entry == nullptr) return;
        app.icon = entry->entry.icon;
        if (entry->entry.appImage.empty()) return;
        app.bundleID = entry->entry.appImage;
        findings_.claims.claim(*app.bundleID, app.url);
    }

    const AppSearch& search_;
    FileManager& files_;
    AppFindings& findings_;
};

}  // namespace

bool isAppImage(std::string_view start) {
    return start.size() >= bytesOfMagic && start.starts_with("\177ELF") && start[8] == 'A' && start[9] == 'I' &&
           (start[10] == '\1' || start[10] == '\2');
}

void findAppImages(const AppSearch& search, AppFindings& findings) {
    AppImageFinder finder(search, findings);
    const UserFolders folders = userFolders(search.platform.files, search.home, search.xdg);
    for (const std::string& folder :
         {pathIn(search.home, "Applications"), pathIn(search.home, ".local/bin"), folders.downloads})
        finder.lookIn(folder);
    const std::string realHome = search.platform.files.realPath(search.home).value_or(search.home);
    for (const DesktopFile& one : search.own) {
        if (!one.program().starts_with('/')) continue;
        const std::optional<std::string> real = search.platform.files.realPath(one.program());
        if (real && isInFolder(*real, realHome)) finder.look(*real);
    }
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "system/apps/SnapApplications.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/CommandProgram.h"
#include "platform/Text.h"

namespace zelk {

namespace {

constexpr const char* snapEntries = "/var/lib/snapd/desktop/applications";
constexpr const char* snapFiles = "/var/lib/snapd/snaps";
/// Distributions mount snaps in either.
constexpr const char* snapMounts[] = {"/snap", "/var/lib/snapd/snap"};

std::string snapFile(const std::string& name, std::string_view revision) {
    return pathIn(snapFiles, name + "_" + std::string(revision) + ".snap");
}

/// The file of the revision in use.
std::optional<std::string> currentFile(FileManager& files, const std::string& name) {
    for (const char* mounts : snapMounts) {
        const std::optional<std::string> current = files.realPath(pathIn(mounts, name + "/current"));
        if (!current) continue;
        std::string file = snapFile(name, fileNameOf(*current));
        if (files.exists(file)) return file;
    }
    return std::nullopt;
}

/// The file of the newest revision by number. One that was installed from a file has a letter before it.
std::optional<std::string> newestFile(FileManager& files, const std::string& name) {
    std::optional<std::string> newest;
    std::uint64_t highest = 0;
    for (const std::string& file : files.list(snapFiles).value_or(std::vector<std::string>())) {
        if (!file.starts_with(name + "_") || !file.ends_with(".snap")) continue;
        const std::string revision = file.substr(name.size() + 1, file.size() - name.size() - 1 - 5);
        const auto number = parseNumber<std::uint64_t>(revision.starts_with('x') ? revision.substr(1) : revision);
        if (!number || (newest && *number < highest)) continue;
        highest = *number;
        newest = pathIn(snapFiles, file);
    }
    return newest;
}

}  // namespace

bool isSnapName(std::string_view word) {
    const auto isPart = [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-'; };
    return !word.empty() && word.front() != '-' && std::all_of(word.begin(), word.end(), isPart);
}

bool isSnapThere(FileManager& files, const std::string& name) {
    return newestFile(files, name).has_value();
}

void findSnaps(const AppSearch& search, AppFindings& findings) {
    FileManager& files = search.platform.files;
    const std::vector<DesktopFile> entries = readDesktopFiles(files, snapEntries, search.locales);
    std::map<std::string, std::vector<const DesktopFile*>> byName;
    for (const DesktopFile& one : entries) {
        const std::string name = one.id.substr(0, one.id.find('_'));
        if (name.size() < one.id.size() && isSnapName(name)) byName[name].push_back(&one);
    }
    for (const auto& [name, itsEntries] : byName) {
        findings.claim(itsEntries, pathIn(snapFiles, name));
        findings.claims.claim(name, pathIn(snapFiles, name));
        const DesktopFile* const entry = mainEntry(itsEntries, name + "_" + name);
        std::optional<std::string> file = currentFile(files, name);
        if (!file) file = newestFile(files, name);
        if (entry == nullptr || !file) continue;
        AppEntry app;
        app.url = *file;
        app.name = entry->entry.name;
        if (const auto properties = files.properties(*file)) app.size = properties->allocatedSize;
        app.bundleID = name;
        app.kind = AppKind::snap;
        app.package = name;
        app.alongside = otherNames(itsEntries, *entry);
        app.icon = entry->entry.icon;
        if (!files.exists(snapTool)) app.obstacle = {AppObstacle::Reason::noTool, {"snap"}};
        findings.apps.push_back(std::move(app));
    }
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "system/apps/FlatpakApplications.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/Text.h"

namespace zelk {

namespace {

constexpr const char* systemFlatpaks = "/var/lib/flatpak";

bool isFolder(FileManager& files, const std::string& path) {
    const std::optional<FileProperties> properties = files.properties(path);
    return properties && properties->isDirectory;
}

/// How often the application is installed: it may be for several architectures, and in several branches of each.
std::size_t deploymentsOf(FileManager& files, const std::string& folder) {
    std::size_t count = 0;
    for (const std::string& architecture : files.list(folder).value_or(std::vector<std::string>())) {
        const std::string path = pathIn(folder, architecture);
        if (!isFolder(files, path)) continue;  // "current" is a link
        for (const std::string& branch : files.list(path).value_or(std::vector<std::string>()))
            count += isFolder(files, pathIn(path, branch)) ? 1 : 0;
    }
    return count;
}

class FlatpakReader {
public:
    FlatpakReader(const AppSearch& search, std::string folder, bool isUsers)
        : platform_(search.platform),
          folder_(std::move(folder)),
          isUsers_(isUsers),
          hasTool_(!platform_.locations.isSandboxed() && platform_.files.exists(flatpakTool)) {}

    std::optional<AppEntry> read(const std::string& id, const DesktopFile& entry) const {
        const std::string place = pathIn(folder_, "app/" + id);
        std::optional<std::string> deployed = platform_.files.realPath(pathIn(place, "current/active"));
        if (!deployed) return std::nullopt;
        AppEntry app;
        app.name = entry.entry.name;
        app.size = sizeOf(id, *deployed);
        app.url = std::move(*deployed);
        app.bundleID = id;
        app.kind = isUsers_ ? AppKind::userFlatpak : AppKind::systemFlatpak;
        app.package = id;
        app.icon = entry.entry.icon;
        if (platform_.locations.isSandboxed())
            app.obstacle = {AppObstacle::Reason::outOfReach, {"flatpak"}};
        else if (!hasTool_)
            app.obstacle = {AppObstacle::Reason::noTool, {"flatpak"}};
        else if (deploymentsOf(platform_.files, place) != 1)
            app.obstacle = {AppObstacle::Reason::severalVersions};
        return app;
    }

private:
    std::uint64_t sizeOf(const std::string& id, const std::string& deployed) const {
        std::optional<std::uint64_t> size;
        if (hasTool_) {
            const ChildOutcome told = platform_.processes.run(
                flatpakTool, {"info", isUsers_ ? "--user" : "--system", "--show-size", id}, askedStreams);
            if (!told.launchFailure && told.exitStatus == 0) size = parseFlatpakSize(told.output);
        }
        return size ? *size : platform_.files.fullSizeBelow(deployed);
    }

    Platform platform_;
    std::string folder_;
    bool isUsers_;
    bool hasTool_;
};

void findFlatpaksIn(const AppSearch& search, const std::string& folder, bool isUsers, AppFindings& findings) {
    const std::vector<DesktopFile> entries =
        readDesktopFiles(search.platform.files, pathIn(folder, "exports/share/applications"), search.locales);
    std::map<std::string, std::vector<const DesktopFile*>> byID;
    for (const DesktopFile& one : entries)
        if (isFlatpakID(one.entry.flatpak)) byID[one.entry.flatpak].push_back(&one);
    const FlatpakReader reader(search, folder, isUsers);
    for (const auto& [id, itsEntries] : byID) {
        const std::string owner = pathIn(folder, "app/" + id);
        findings.claim(itsEntries, owner);
        findings.claims.claim(id, owner);
        const DesktopFile* const entry = mainEntry(itsEntries, id);
        std::optional<AppEntry> app = entry != nullptr ? reader.read(id, *entry) : std::nullopt;
        if (!app) continue;
        app->alongside = otherNames(itsEntries, *entry);
        findings.apps.push_back(std::move(*app));
    }
}

}  // namespace

bool isFlatpakID(std::string_view word) {
    const auto isPart = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-' ||
               c == '.';
    };
    return word.size() <= 255 && word.find('.') != std::string_view::npos && word.front() != '-' &&
           word.front() != '.' && std::all_of(word.begin(), word.end(), isPart);
}

std::optional<std::string> flatpakRef(const AppEntry& app) {
    const auto isOf = [](std::string_view word, std::string_view more) {
        return !word.empty() && word.front() != '-' && word.front() != '.' &&
               std::all_of(word.begin(), word.end(), [&](char c) {
                   return std::isalnum(static_cast<unsigned char>(c)) != 0 || more.find(c) != std::string_view::npos;
               });
    };
    const std::string start = "/app/" + app.package + "/";
    const std::size_t at = app.url.rfind(start);
    if (at == std::string::npos || !isFlatpakID(app.package)) return std::nullopt;
    std::string_view left = std::string_view(app.url).substr(at + start.size());
    const std::string_view architecture = takeUntil(left, '/');
    const std::string_view branch = takeUntil(left, '/');
    const bool isDeployment = !left.empty() && left.find('/') == std::string_view::npos;
    if (!isDeployment || !isOf(architecture, "_") || !isOf(branch, "_-.")) return std::nullopt;
    return "app/" + app.package + "/" + std::string(architecture) + "/" + std::string(branch);
}

bool isFlatpakThere(FileManager& files, const AppEntry& app) {
    const std::string place = "/app/" + app.package;
    const std::size_t at = app.url.rfind(place + "/");
    return at != std::string::npos && deploymentsOf(files, app.url.substr(0, at + place.size())) > 0;
}

std::optional<std::uint64_t> parseFlatpakSize(std::string_view output) {
    return parseNumber<std::uint64_t>(trimmed(output));
}

void findFlatpaks(const AppSearch& search, AppFindings& findings) {
    findFlatpaksIn(search, pathIn(search.xdg.data, "flatpak"), true, findings);
    if (!search.platform.locations.isSandboxed()) findFlatpaksIn(search, systemFlatpaks, false, findings);
}

}  // namespace zelk

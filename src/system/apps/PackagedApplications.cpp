// SPDX-License-Identifier: MIT
#include "system/apps/PackagedApplications.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "system/apps/DpkgStatus.h"

namespace zelk {

namespace {

constexpr const char* systemEntries = "/usr/share/applications";
constexpr const char* dpkgQuery = "/usr/bin/dpkg-query";
constexpr const char* aptGet = "/usr/bin/apt-get";

std::optional<std::string> answerOf(ChildProcess& processes, const char* tool, const std::vector<std::string>& words) {
    ChildOutcome outcome = processes.run(tool, words, askedStreams);
    if (outcome.launchFailure) return std::nullopt;
    return std::move(outcome.output);
}

AppEntry entryOf(const DesktopFile& file) {
    AppEntry app;
    app.url = file.path;
    app.name = file.entry.name;
    app.bundleID = file.id;
    app.kind = AppKind::package;
    app.program = file.programName();
    app.icon = file.entry.icon;
    return app;
}

AppObstacle obstacleOf(const DpkgPackage& package, const std::map<std::string, DpkgPackage>& packages) {
    if (package.isForSystem) return {AppObstacle::Reason::partOfSystem};
    if (package.instances > 1) return {AppObstacle::Reason::severalVersions};
    std::vector<std::string> needing = packagesThatNeed(packages, package.name);
    if (!needing.empty()) return {AppObstacle::Reason::needed, std::move(needing)};
    return {};
}

}  // namespace

void findPackages(const AppSearch& search, AppFindings& findings) {
    const std::vector<DesktopFile> files = readDesktopFiles(search.platform.files, systemEntries, search.locales);
    if (files.empty()) return;
    ChildProcess& processes = search.platform.processes;
    const auto owners =
        parseDpkgOwners(answerOf(processes, dpkgQuery, {"-S", std::string(systemEntries) + "/*.desktop"}).value_or(""));
    const auto packages =
        parseDpkgPackages(answerOf(processes, dpkgQuery, {"-W", std::string("-f=") + dpkgFormat}).value_or(""));

    std::map<std::string, std::vector<const DesktopFile*>> byPackage;
    for (const DesktopFile& file : files) {
        const auto owner = owners.find(file.path);
        if (owner != owners.end() && owner->second.size() == 1 && packages.contains(*owner->second.begin())) {
            byPackage[*owner->second.begin()].push_back(&file);
            continue;
        }
        findings.claim({&file}, file.path);
        if (!file.isShown()) continue;
        AppEntry app = entryOf(file);
        app.obstacle = {AppObstacle::Reason::unknown};
        findings.apps.push_back(std::move(app));
    }
    for (const auto& [name, itsFiles] : byPackage) {
        findings.claim(itsFiles, name);
        const DesktopFile* const main = mainEntry(itsFiles, name);
        if (main == nullptr) continue;
        const DpkgPackage& package = packages.at(name);
        AppEntry app = entryOf(*main);
        app.package = name;
        app.size = package.bytes;
        app.obstacle = obstacleOf(package, packages);
        findings.apps.push_back(std::move(app));
    }
}

std::optional<std::string> removePackageLine(const std::string& package) {
    if (!isPackageName(package)) return std::nullopt;
    return "DEBIAN_FRONTEND=noninteractive /usr/bin/dpkg --remove " + package;
}

AppObstacle obstacleOfRemoving(ChildProcess& processes, const std::string& package) {
    const ChildOutcome outcome = processes.run(aptGet, {"-s", "remove", "--", package}, askedStreams);
    if (outcome.launchFailure || outcome.exitStatus != 0) return {AppObstacle::Reason::unknown};
    std::vector<std::string> removed = parseAptRemovals(outcome.output);
    const auto own = std::find(removed.begin(), removed.end(), package);
    if (own == removed.end()) return {AppObstacle::Reason::unknown};
    removed.erase(own);
    if (!removed.empty()) return {AppObstacle::Reason::needed, std::move(removed)};
    return {};
}

}  // namespace zelk

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

/// Where the program of an entry is; empty if it is a launcher of many, or nowhere.
std::string programOf(const AppSearch& search, const DesktopFile& file) {
    if (file.programName().empty()) return {};
    const std::string program = file.program();
    if (program.starts_with('/')) return program;
    for (const std::string& folder : search.programFolders)
        if (std::string path = pathIn(folder, program); search.platform.files.exists(path)) return path;
    return {};
}

/// Where the folders of programs were joined with those below "/usr", dpkg knows a file by either path.
std::string otherSpelling(const std::string& path) {
    for (const std::string_view folder : {"/bin/", "/sbin/", "/lib/", "/lib64/"}) {
        if (path.starts_with(folder)) return "/usr" + path;
        if (path.starts_with("/usr") && std::string_view(path).substr(4).starts_with(folder)) return path.substr(4);
    }
    return {};
}

/// The owners of all these programs.
std::map<std::string, std::set<std::string>> ownersOf(ChildProcess& processes, const std::set<std::string>& programs) {
    std::vector<std::string> words{"-S"};
    for (const std::string& program : programs) {
        // dpkg-query would take it for a pattern.
        if (program.find_first_of("*?[\\") != std::string::npos) continue;
        words.push_back(program);
        if (std::string other = otherSpelling(program); !other.empty()) words.push_back(std::move(other));
    }
    if (words.size() == 1) return {};
    return parseDpkgOwners(answerOf(processes, dpkgQuery, words).value_or(""));
}

/// Without its program, whose name identifies it only if its own package brought that along: an entry may also start
/// a browser or a terminal.
AppEntry entryOf(const DesktopFile& file) {
    AppEntry app;
    app.url = file.path;
    app.name = file.entry.name;
    app.bundleID = file.id;
    app.kind = AppKind::package;
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
    std::map<std::string, const DesktopFile*> mains;
    std::set<std::string> programs;
    for (const auto& [name, itsFiles] : byPackage) {
        findings.claim(itsFiles, name);
        const DesktopFile* const main = mainEntry(itsFiles, name);
        if (main == nullptr) continue;
        mains.emplace(name, main);
        if (std::string program = programOf(search, *main); !program.empty()) programs.insert(std::move(program));
    }
    const auto programOwners = ownersOf(processes, programs);
    const auto owns = [&](const std::string& name, const std::string& path) {
        const auto found = programOwners.find(path);
        return found != programOwners.end() && found->second == std::set<std::string>{name};
    };
    for (const auto& [name, main] : mains) {
        const DpkgPackage& package = packages.at(name);
        AppEntry app = entryOf(*main);
        app.package = name;
        app.alongside = otherNames(byPackage.at(name), *main);
        const std::string program = programOf(search, *main);
        if (owns(name, program) || owns(name, otherSpelling(program))) app.program = main->programName();
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
    // Whatever the configuration says of other packages, dpkg will remove this one and leave its settings.
    const ChildOutcome outcome = processes.run(
        aptGet, {"-s", "--no-auto-remove", "-o", "APT::Get::Purge=false", "remove", "--", package}, askedStreams);
    if (outcome.launchFailure || outcome.exitStatus != 0) return {AppObstacle::Reason::unknown};
    AptChanges changes = parseAptChanges(outcome.output);
    // Something would have to take its place.
    if (!changes.installed.empty()) return {AppObstacle::Reason::unknown};
    std::vector<std::string>& removed = changes.removed;
    const auto own = std::find(removed.begin(), removed.end(), package);
    if (own == removed.end()) return {AppObstacle::Reason::unknown};
    removed.erase(own);
    if (!removed.empty()) return {AppObstacle::Reason::needed, std::move(removed)};
    return {};
}

}  // namespace zelk

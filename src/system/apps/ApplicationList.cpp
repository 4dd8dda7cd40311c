// SPDX-License-Identifier: MIT
#include "system/apps/ApplicationList.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "platform/PropertyList.h"
#include "system/apps/AppSearch.h"
#include "system/apps/FlatpakApplications.h"
#include "system/apps/OwnApplications.h"
#include "system/apps/PackagedApplications.h"
#include "system/apps/SnapApplications.h"

namespace zelk {

namespace {

constexpr std::string_view bundleEnding = ".app";
constexpr std::size_t largestDescription = std::size_t{1} << 20;

void sortLargestFirst(std::vector<AppEntry>& apps) {
    std::stable_sort(apps.begin(), apps.end(), [](const AppEntry& a, const AppEntry& b) { return a.size > b.size; });
}

/// An entry that starts none of those found starts something else, or one of them under another name.
void claimOthers(const std::vector<DesktopFile>& entries, AppFindings& findings) {
    for (const DesktopFile& one : entries)
        if (!findings.attributed.contains(one.path)) findings.claim({&one}, one.path);
}

}  // namespace

std::vector<AppEntry> bundlesIn(const FSNode& top, FileManager& files) {
    std::vector<AppEntry> apps;
    if (top.children().empty()) return apps;
    for (const FSNode& node : top.children().front().children()) {
        const std::string_view name = node.name();
        if (!name.ends_with(bundleEnding)) continue;
        AppEntry app;
        app.url = node.fullPath();
        app.name = name.substr(0, name.size() - bundleEnding.size());
        app.size = static_cast<std::uint64_t>(std::max<std::int64_t>(0, node.size));
        app.bundleID = bundleIdentifier(files, app.url);
        app.icon = app.url;
        apps.push_back(std::move(app));
    }
    sortLargestFirst(apps);
    return apps;
}

std::optional<std::string> bundleIdentifier(FileManager& files, const std::string& bundle) {
    const std::optional<std::string> text = files.readSmall(bundle + "/Contents/Info.plist", largestDescription);
    const std::optional<PropertyList> description = text ? PropertyList::parse(*text) : std::nullopt;
    return description ? description->text("CFBundleIdentifier") : std::nullopt;
}

std::vector<AppEntry> listApplications(const Platform& platform) {
    const AppSearch search(platform);
    AppFindings findings;
    // What a sandbox has in the places of snaps and packages is its runtime's.
    const bool isSandboxed = platform.locations.isSandboxed();
    findFlatpaks(search, findings);
    if (!isSandboxed) findSnaps(search, findings);
    findAppImages(search, findings);
    findUnpacked(search, findings);
    if (!isSandboxed) findPackages(search, findings);

    claimOthers(search.own, findings);
    for (const std::string& folder : platform.locations.sharedDataFolders())
        claimOthers(readDesktopFiles(platform.files, pathIn(folder, "applications"), search.locales), findings);

    for (AppEntry& app : findings.apps) {
        // Those that a sandbox does not show may be called the same, and their data must not go with another's.
        app.sharesID = app.bundleID && (isSandboxed || findings.claims.isShared(*app.bundleID));
        app.sharesProgram = isSandboxed || findings.claims.isShared(app.program);
    }
    sortLargestFirst(findings.apps);
    return std::move(findings.apps);
}

}  // namespace zelk

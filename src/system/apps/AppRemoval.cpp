// SPDX-License-Identifier: MIT
#include "system/apps/AppRemoval.h"

#include <string_view>
#include <utility>
#include <vector>

#include "platform/Text.h"
#include "reclaim/Leftovers.h"
#include "system/PrivilegedCommands.h"
#include "system/apps/FlatpakApplications.h"
#include "system/apps/OwnApplications.h"
#include "system/apps/PackagedApplications.h"
#include "system/apps/SnapApplications.h"

namespace zelk {

namespace {

using Outcome = AppRemoval::Outcome;

/// Nobody types into it, and what it says is read while it works.
constexpr ChildStreams toolStreams{.inheritsInput = false, .errorsWithOutput = true, .readsWhileRunning = true};

/// What a tool says last is why it failed.
std::string lastLine(std::string_view output) {
    std::string last;
    while (!output.empty()) {
        const std::string_view line = trimmed(takeLine(output));
        if (!line.empty()) last = line;
    }
    return last;
}

AppRemoval endOf(const ChildOutcome& outcome) {
    if (outcome.launchFailure) return {Outcome::notStarted, *outcome.launchFailure};
    if (outcome.exitStatus != 0) return {Outcome::failed, lastLine(outcome.output)};
    return {};
}

AppRemoval byTool(const Platform& platform, const char* tool, const std::vector<std::string>& words) {
    return endOf(platform.processes.run(tool, words, toolStreams));
}

/// By its full name: one part of it alone is a pattern, which may fit a runtime or another branch too.
AppRemoval byFlatpak(const Platform& platform, const AppEntry& app) {
    const std::optional<std::string> ref = flatpakRef(app);
    if (!ref) return {Outcome::failed};
    return byTool(platform, flatpakTool,
                  {"uninstall", app.kind == AppKind::userFlatpak ? "--user" : "--system", "-y", "--noninteractive",
                   "--app", *ref});
}

AppRemoval byAdministrator(const Platform& platform, const std::string& package) {
    const std::optional<std::string> line = removePackageLine(package);
    if (!line) return {Outcome::failed};
    const ChildOutcome outcome = PrivilegedCommands(platform).outcomeOf(*line);
    return wasNotAllowed(outcome) ? AppRemoval{Outcome::notAllowed} : endOf(outcome);
}

AppRemoval toTrash(const Platform& platform, const std::string& root, const std::string& path) {
    const std::optional<ItemPath> item = ItemPath::below(root, path);
    if (!item) return {Outcome::failed};
    TrashResult result = platform.trash.trash(*item);
    if (result.failure) return {Outcome::failed, std::move(*result.failure)};
    return {Outcome::gone, {}, std::move(result.item)};
}

AppRemoval byKind(const Platform& platform, const AppEntry& app) {
    switch (app.kind) {
        case AppKind::bundle:
            return toTrash(platform, {}, app.url);
        case AppKind::appImage:
        case AppKind::unpacked:
            return toTrash(platform, platform.locations.home(), app.url);
        case AppKind::userFlatpak:
        case AppKind::systemFlatpak:
            return byFlatpak(platform, app);
        case AppKind::snap:
            if (!isSnapName(app.package)) return {Outcome::failed};
            return byTool(platform, snapTool, {"remove", app.package});
        case AppKind::package:
            return byAdministrator(platform, app.package);
    }
    return {Outcome::failed};
}

/// Whether it is a file or folder of the user's own on Linux.
bool isOwn(AppKind kind) {
    return kind == AppKind::appImage || kind == AppKind::unpacked;
}

}  // namespace

AppRemoval removeApplication(const Platform& platform, const AppEntry& app) {
    if (app.obstacle.reason != AppObstacle::Reason::none) return {Outcome::failed};
    // A package was asked about when its sheet opened, and dpkg itself refuses to break another one.
    if (isOwn(app.kind) && obstacleOfOwn(platform, app).reason != AppObstacle::Reason::none) return {Outcome::failed};
    AppRemoval removal = byKind(platform, app);
    if (removal.outcome == Outcome::gone && app.kind != AppKind::bundle && isInstalled(platform, app))
        return {Outcome::stillThere};
    return removal;
}

bool isInstalled(const Platform& platform, const AppEntry& app) {
    switch (app.kind) {
        case AppKind::userFlatpak:
        case AppKind::systemFlatpak:
            return isFlatpakThere(platform.files, app);
        case AppKind::snap:
            return isSnapThere(platform.files, app.package);
        case AppKind::bundle:
        case AppKind::appImage:
        case AppKind::unpacked:
        case AppKind::package:
            break;
    }
    return platform.files.exists(app.url);
}

TrashResult trashLeftover(const Platform& platform, const std::string& path) {
    const Leftovers leftovers(platform);
    const std::optional<ItemPath> item = ItemPath::below(leftovers.rootOf(path), path);
    // The list may be hours old.
    if (!item || !leftovers.counts(path)) return {Failure(path)};
    return platform.trash.trash(*item);
}

AppObstacle obstacleNow(const Platform& platform, const AppEntry& app) {
    if (app.obstacle.reason != AppObstacle::Reason::none) return app.obstacle;
    if (isOwn(app.kind)) return obstacleOfOwn(platform, app);
    return app.kind == AppKind::package ? obstacleOfRemoving(platform.processes, app.package) : AppObstacle();
}

std::uint64_t sizeNow(const Platform& platform, const AppEntry& app) {
    const std::optional<FileProperties> properties =
        isOwn(app.kind) ? platform.files.properties(app.url) : std::nullopt;
    if (!properties) return app.size;
    return properties->isDirectory ? platform.files.fullSizeBelow(app.url) : properties->allocatedSize;
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "system/SnapshotSource.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/Text.h"
#include "platform/Utf8.h"
#include "system/SnapperList.h"

namespace zelk {

namespace {

constexpr const char* diskutilTool = "/usr/sbin/diskutil";
constexpr const char* snapperTool = "/usr/bin/snapper";
constexpr const char* zfsTool = "/usr/sbin/zfs";

/// Of the year 9999. A later time is none that a snapshot was made at.
constexpr std::int64_t lastSecond = 253'402'300'799;

/// Only the text on standard output counts. A list may be longer than a pipe holds.
constexpr ChildStreams listingStreams{.inheritsInput = false, .errorsWithOutput = false, .readsWhileRunning = true};

ChildOutcome runListing(ChildProcess& processes, const char* tool, const std::vector<std::string>& arguments) {
    return processes.run(tool, arguments, listingStreams);
}

bool succeeded(const ChildOutcome& outcome) {
    return !outcome.launchFailure && outcome.exitStatus == 0;
}

/// The exit status is not looked at.
SnapshotListing listOnMacOS(ChildProcess& processes, const std::string& mountPoint) {
    SnapshotListing listing{.keeper = SnapshotKeeper::diskutil, .snapshots = {}, .config = {}, .refused = false};
    const std::string text = runListing(processes, diskutilTool, {"apfs", "listSnapshots", mountPoint}).output;
    if (isUtf8(text)) listing.snapshots = parseSnapshotListing(text);
    return listing;
}

/// Absent if snapper is not installed, or has no configuration for this volume.
std::optional<SnapshotListing> listBySnapper(ChildProcess& processes, const std::string& mountPoint) {
    const ChildOutcome configs = runListing(processes, snapperTool, {"--utc", "--jsonout", "list-configs"});
    if (!succeeded(configs)) return std::nullopt;
    std::optional<std::string> config = snapperConfig(configs.output, mountPoint);
    if (!config) return std::nullopt;
    const ChildOutcome list = runListing(processes, snapperTool, {"--utc", "--jsonout", "-c", *config, "list"});
    std::optional<std::vector<LocalSnapshot>> snapshots;
    if (succeeded(list)) snapshots = parseSnapperList(list.output, *config);
    SnapshotListing listing;
    listing.keeper = SnapshotKeeper::snapper;
    listing.refused = !snapshots.has_value();
    listing.snapshots = std::move(snapshots).value_or(std::vector<LocalSnapshot>());
    listing.config = *std::move(config);
    return listing;
}

/// Absent if this volume is not one of ZFS, or has no snapshots. Those of other volumes would free nothing here.
std::optional<SnapshotListing> listByZfs(ChildProcess& processes, const std::string& mountPoint) {
    // Fails if another file system is mounted there.
    const ChildOutcome mounted = runListing(processes, zfsTool, {"list", "-H", "-o", "name", mountPoint});
    std::string_view name = mounted.output;
    const std::string_view dataset = takeLine(name);
    if (!succeeded(mounted) || dataset.empty()) return std::nullopt;
    const ChildOutcome list =
        runListing(processes, zfsTool, {"list", "-Hp", "-t", "snapshot", "-o", "name,creation,used,guid"});
    if (!succeeded(list) || list.output.empty()) return std::nullopt;
    SnapshotListing listing;
    listing.keeper = SnapshotKeeper::zfs;
    listing.snapshots = parseZfsList(list.output, dataset);
    return listing;
}

}  // namespace

SnapshotListing listSnapshots(const Platform& platform, const std::string& mountPoint) {
    if (platform.system == SystemKind::macOS) return listOnMacOS(platform.processes, mountPoint);
    if (platform.locations.isSandboxed())
        return {.keeper = SnapshotKeeper::none, .snapshots = {}, .config = {}, .refused = true};
    if (std::optional<SnapshotListing> listing = listBySnapper(platform.processes, mountPoint)) return *listing;
    if (std::optional<SnapshotListing> listing = listByZfs(platform.processes, mountPoint)) return *listing;
    return {};
}

std::vector<LocalSnapshot> parseZfsList(std::string_view text, std::string_view dataset) {
    std::vector<LocalSnapshot> snapshots;
    while (!text.empty()) {
        std::string_view line = takeLine(text);
        // Names may contain blanks, so only tabs separate.
        const std::string_view name = takeUntil(line, '\t');
        const std::optional<std::int64_t> creation = parseNumber<std::int64_t>(takeUntil(line, '\t'));
        const std::optional<std::uint64_t> used = parseNumber<std::uint64_t>(takeUntil(line, '\t'));
        const std::optional<std::uint64_t> guid = parseNumber<std::uint64_t>(line);
        const std::size_t at = name.find('@');
        const bool named = at != std::string_view::npos && at > 0 && at + 1 < name.size();
        if (!named || !creation || !used || !guid) continue;
        if (!dataset.empty() && name.substr(0, at) != dataset) continue;
        LocalSnapshot snapshot;
        snapshot.name = name;
        if (*creation >= 0 && *creation <= lastSecond) snapshot.date = static_cast<TimePoint>(*creation);
        snapshot.uuid = std::to_string(*guid);
        snapshots.push_back(std::move(snapshot));
    }
    return snapshots;
}

}  // namespace zelk

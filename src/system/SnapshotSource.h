// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/Platform.h"
#include "system/LocalSnapshot.h"

namespace zelk {

/// What keeps the snapshots of a volume, and decides how they are listed and removed.
enum class SnapshotKeeper {
    none,      ///< a Linux system on which nothing keeps any, or nobody knows
    diskutil,  ///< of macOS; tmutil removes them
    snapper,   ///< a tool that answers those users whom its configuration names
    zfs        ///< shown only: removing them is left to its own tools, which take clones and holds into account
};

/// The snapshots of a volume at some moment.
struct SnapshotListing {
    SnapshotKeeper keeper = SnapshotKeeper::none;
    std::vector<LocalSnapshot> snapshots;  ///< in the order of the tool
    std::string config;                    ///< of snapper, for this volume
    /// Snapper did not list them for this user, or none of the tools can be asked from a sandbox; there may be some.
    bool refused = false;

    bool operator==(const SnapshotListing&) const = default;
};

/// Lists the snapshots of the volume at `mountPoint` with the tools of `platform.system`: diskutil on macOS, else
/// snapper if it is set up for that volume, else ZFS if that volume is one of its own. A tool that is missing or fails
/// lists nothing; a sandbox has none of them. Blocks as long as the tools run; safe from any thread.
SnapshotListing listSnapshots(const Platform& platform, const std::string& mountPoint = "/");

/// The snapshots that `zfs list -Hp -t snapshot -o name,creation,used,guid` prints; only those of `dataset`, or all if
/// it is empty. They are pinned, since nothing frees them by itself. A line with anything unexpected is skipped; a time
/// outside of the years 1970 to 9999 counts as unknown.
std::vector<LocalSnapshot> parseZfsList(std::string_view text, std::string_view dataset);

}  // namespace zelk

// SPDX-License-Identifier: MIT
// The lines that remove snapshots, for PrivilegedCommands::runAdmin(). Root's shell runs them, and parts of them come
// from other programs: each part is checked, and without a line nothing may run.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/ChildProcess.h"
#include "system/SnapshotSource.h"

namespace zelk {

/// The bytes that thinning is to make free.
inline constexpr std::int64_t thinnedBytes = 5'000'000'000;

/// Deletes one snapshot of `keeper`. On macOS this takes the date stamp alone, or the whole name of a snapshot without
/// a stamp. Absent if a part could be anything but the name of a snapshot, and where Zelk deletes none.
std::optional<std::string> deleteLine(SnapshotKeeper keeper, const LocalSnapshot& snapshot);

/// Has the system free `thinnedBytes` of the snapshots of the volume at "/", choosing by itself. `listing` is of that
/// volume. Absent where the system cannot.
std::optional<std::string> thinLine(const SnapshotListing& listing);

/// Runs a line of snapper as the user, who may be permitted to, and words the answer by textOfAdminRun(). Absent if
/// snapper says that the user has no permission: nothing was done then. Blocking; safe from any thread.
std::optional<std::string> runAsUser(ChildProcess& processes, const std::string& line);

}  // namespace zelk

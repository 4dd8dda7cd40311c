// SPDX-License-Identifier: MIT
// Reads what snapper prints with --jsonout. Pure functions over bytes; nothing in them can make a snapshot appear that
// is not there, or one deletable that is pinned.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "system/LocalSnapshot.h"

namespace zelk {

/// The configuration for the subvolume at `mountPoint`, of those that `snapper --jsonout list-configs` prints. Absent
/// if there is none, or if the text is something else.
std::optional<std::string> snapperConfig(std::string_view json, std::string_view mountPoint);

/// The snapshots that `snapper --utc --jsonout -c CONFIG list` prints, in its order, without number 0, which is the
/// current state. Absent if the text is something else. An entry with an unusable number or type is skipped; one that
/// does not say clearly that it may go is pinned.
std::optional<std::vector<LocalSnapshot>> parseSnapperList(std::string_view json, const std::string& config);

}  // namespace zelk

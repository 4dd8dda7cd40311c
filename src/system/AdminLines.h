// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelk {

/// The arguments with which zelk-admin does what this shell line says, verb first; absent if the line has none of these
/// forms, to the letter:
///
/// - `sync; echo 3 > /proc/sys/vm/drop_caches`, which is freeMemoryLine(): `free-memory`
/// - `/usr/bin/snapper -c CONFIG delete --sync NUMBER`: `delete-snapshot CONFIG NUMBER`
/// - `/usr/bin/snapper -c CONFIG cleanup --free-space 5000000000 number; ` and the same with `timeline`, for the same
///   CONFIG: `thin-snapshots CONFIG`
/// - `DEBIAN_FRONTEND=noninteractive /usr/bin/dpkg --remove NAME`: `remove-package NAME`
///
/// CONFIG, NUMBER and NAME consist of letters, digits and "_+.-", so that a shell reads them as they are. Whether they
/// make sense is for zelk-admin to say.
std::optional<std::vector<std::string>> adminArguments(std::string_view line);

}  // namespace zelk

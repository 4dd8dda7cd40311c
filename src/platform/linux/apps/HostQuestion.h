// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/ChildProcess.h"
#include "platform/linux/apps/LinuxApplications.h"

namespace zelk {

/// What runs commands of the host in a sandbox of Flatpak that may do so; part of every runtime.
inline constexpr const char* hostSpawner = "/usr/bin/flatpak-spawn";

/// How long the host may take to say what runs, and how much it may say of it.
inline constexpr ChildLimit hostLimit{.seconds = 3, .bytes = std::size_t{64} << 20};

/// Asks the host of the sandbox which applications run. Absent if it does not say, for whatever reason. Blocks for
/// `hostLimit` at most; safe from any thread if `processes` is. `locales` as for desktop entries.
std::optional<RunningApplications> askHost(ChildProcess& processes, const std::vector<std::string>& locales);

}  // namespace zelk

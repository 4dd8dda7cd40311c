// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/AppEntry.h"
#include "scan/FSNode.h"

namespace zelk {

/// The folder whose bundles are listed on macOS.
inline constexpr const char* bundlesFolder = "/Applications";

/// The bundles that lie directly in the folder that was scanned as the only root below `top`, largest first. Blocking:
/// reads the description of each.
std::vector<AppEntry> bundlesIn(const FSNode& top, FileManager& files);

/// What a bundle calls itself; absent if it does not say.
std::optional<std::string> bundleIdentifier(FileManager& files, const std::string& bundle);

/// Every application of Linux that flatpak, snap, the distribution or the user has installed, largest first. Blocking:
/// asks the tools, and never as an administrator. From a sandbox only those of the user can be seen, each as if another
/// had its name too.
std::vector<AppEntry> listApplications(const Platform& platform);

}  // namespace zelk

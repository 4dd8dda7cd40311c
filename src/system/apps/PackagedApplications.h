// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "system/apps/AppSearch.h"

namespace zelk {

/// Adds the packages of the distribution that have an entry in the menus, one for each package. Where nothing says
/// which package an entry belongs to, the entry itself is listed and cannot go. Blocking: asks dpkg-query, twice.
void findPackages(const AppSearch& search, AppFindings& findings);

/// The line that removes exactly this package, or nothing, for PrivilegedCommands::runAdmin(). Absent if a shell or
/// dpkg could take the name for something else.
std::optional<std::string> removePackageLine(const std::string& package);

/// Asks apt-get what would go if this package went. The obstacle is absent if that is the package and nothing else.
/// Blocking: may take a second.
AppObstacle obstacleOfRemoving(ChildProcess& processes, const std::string& package);

}  // namespace zelk

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "system/apps/AppSearch.h"

namespace zelk {

inline constexpr const char* snapTool = "/usr/bin/snap";

/// Adds the applications of snap, by the desktop entries that snapd writes: "NAME_APPLICATION.desktop". Their size is
/// that of the revision in use. Blocking.
void findSnaps(const AppSearch& search, AppFindings& findings);

/// Whether any revision of the snap is installed: an update replaces the file that was listed. Blocking.
bool isSnapThere(FileManager& files, const std::string& name);

/// Whether snap takes the word for the name of a snap and for nothing else.
bool isSnapName(std::string_view word);

}  // namespace zelk

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "system/apps/AppSearch.h"

namespace zelk {

inline constexpr const char* flatpakTool = "/usr/bin/flatpak";

/// Adds the applications of flatpak, of the user and of all users, by the desktop entries that flatpak exports.
/// Blocking: asks flatpak for the size of each.
void findFlatpaks(const AppSearch& search, AppFindings& findings);

/// Whether flatpak takes the word for the name of an application and for nothing else.
bool isFlatpakID(std::string_view word);

/// What flatpak calls this installation of it and no other, "app/ID/ARCHITECTURE/BRANCH", by where it lies; absent if a
/// part of that is no plain word.
std::optional<std::string> flatpakRef(const AppEntry& app);

/// Whether it is still installed, be it in another revision: an update replaces the folder where it lies. Blocking.
bool isFlatpakThere(FileManager& files, const AppEntry& app);

/// The bytes that `flatpak info --show-size` prints; absent for anything else.
std::optional<std::uint64_t> parseFlatpakSize(std::string_view output);

}  // namespace zelk

// SPDX-License-Identifier: MIT
// The file formats of the freedesktop.org Trash. Pure functions.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <ctime>
#include <string>
#include <string_view>

namespace zelk {

inline constexpr std::string_view trashInfoSuffix = ".trashinfo";

/// Marks the info files written by Zelk: the sticky bit, which has no meaning on a file. A marked orphan can be removed
/// at once; another program may still be about to move the content of its own.
inline constexpr mode_t ownInfoMark = 01000;

/// The content of an info file: the item's original path (bytes; absolute, or relative to the top of its volume) and
/// the local time of its deletion.
std::string trashInfoText(std::string_view path, const std::tm& deleted);

/// The name of an item in the Trash: `name` itself for number 1, else with the number before the extension. Shortened
/// to `limit` bytes, keeping the extension and whole characters.
std::string trashName(std::string_view name, std::size_t number, std::size_t limit);

}  // namespace zelk

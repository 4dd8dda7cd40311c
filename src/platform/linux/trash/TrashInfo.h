// SPDX-License-Identifier: MIT
// The texts of the freedesktop.org Trash. Pure functions.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <ctime>
#include <string>
#include <string_view>

namespace zelk {

inline constexpr std::string_view trashInfoSuffix = ".trashinfo";

/// Set in the mode of the info files that this application writes: the sticky bit, which means nothing on a file. One
/// that lost its content is known by it as our own, and need not be left for a while lest somebody else's is on its
/// way.
inline constexpr mode_t ownInfoMark = 01000;

/// The content of an info file: where an item was (bytes: absolute, or relative to the top of its volume) and when, in
/// local time, it was trashed.
std::string trashInfoText(std::string_view path, const std::tm& deleted);

/// The name in the Trash of what is called `name`: the same for number 1, with the number before the extension from 2
/// on. Shortened to `limit` bytes, the extension kept and no character cut in two.
std::string trashName(std::string_view name, std::size_t number, std::size_t limit);

}  // namespace zelk

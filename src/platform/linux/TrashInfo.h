// SPDX-License-Identifier: MIT
// The texts of the freedesktop.org Trash. Pure functions.
#pragma once

#include <cstddef>
#include <ctime>
#include <string>
#include <string_view>

namespace zelk {

inline constexpr std::string_view trashInfoSuffix = ".trashinfo";

/// The content of an info file: where an item was (bytes: absolute, or relative to the top of its volume) and when, in
/// local time, it was trashed.
std::string trashInfoText(std::string_view path, const std::tm& deleted);

/// The name in the Trash of what is called `name`: the same for number 1, with the number before the extension from 2
/// on. Shortened to `limit` bytes, the extension kept and no character cut in two.
std::string trashName(std::string_view name, std::size_t number, std::size_t limit);

}  // namespace zelk

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zelk {

/// Normalizes a folder path: single slashes, no trailing slash, no "." components. Names keep their bytes. ".." stays
/// too, since only the disk knows where it leads behind a link. Paths equivalent to "." become ".", those equivalent to
/// "/" become "/"; an empty path stays empty.
std::string normalFolder(std::string_view path);

/// Whether `path` is the normalized folder `folder` or lies below it. Compares texts only.
bool isInFolder(std::string_view path, std::string_view folder);

/// The path of `name` in `folder`, which may be "/".
std::string pathIn(std::string_view folder, std::string_view name);

}  // namespace zelk

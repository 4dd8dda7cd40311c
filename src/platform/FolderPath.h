// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zelk {

/// One spelling for a folder that may be spelt in several: single slashes, none at the end, no "." on the way. The
/// bytes of the names stay as they are. ".." stays too, since only the disk knows where it leads behind a link. Of "."
/// and its like "." is left, of "/" and its like "/", of an empty path nothing.
std::string normalFolder(std::string_view path);

/// Whether `path` is the normal folder `folder` or lies below it, by the texts alone.
bool isInFolder(std::string_view path, std::string_view folder);

/// `name` in the folder `folder`, which may be "/".
std::string pathIn(std::string_view folder, std::string_view name);

}  // namespace zelk

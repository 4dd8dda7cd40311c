// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelk {

/// The folders that hold trashed items, such as the "files" of a Trash. Their contents still use space but are not
/// offered for removal again. Folders from which nothing may go count as such too. Paths are bytes. A value type, safe
/// from any thread.
class TrashPlaces {
public:
    /// Matches nothing.
    TrashPlaces() = default;
    /// `folders` are full paths without a trailing slash. `endings` start with a slash and match the end of a path on
    /// any volume, since volumes may be mounted anywhere.
    TrashPlaces(std::vector<std::string> folders, std::vector<std::string> endings);

    /// Whether `path`, without a trailing slash, is one of the folders. Does not allocate: a walk asks this for every
    /// folder that it enters.
    bool areAt(std::string_view path) const;
    /// Whether `path` is one of the folders or lies below one, at any depth. Ignores a trailing slash.
    bool hold(std::string_view path) const;

private:
    std::vector<std::string> folders_;
    std::vector<std::string> endings_;
};

}  // namespace zelk

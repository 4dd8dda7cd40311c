// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelk {

/// The folders whose content was thrown away, as the "files" of a Trash. What lies in them uses space as before, but is
/// not to be offered for removal once more. Paths are bytes; a value, safe from any thread.
class TrashPlaces {
public:
    /// None: nothing is known as thrown away.
    TrashPlaces() = default;
    /// `folders` are whole paths without a slash at their end. `endings` begin with a slash and are how the path of
    /// such a folder ends on any volume: those come and go, and where they are mounted is not for us to say.
    TrashPlaces(std::vector<std::string> folders, std::vector<std::string> endings);

    /// Whether `path`, without a slash at its end, is one of the folders. Allocates nothing: a walk asks it of every
    /// folder that it enters.
    bool areAt(std::string_view path) const;
    /// Whether `path` is one of them or lies below one, however deep. A slash at its end makes no difference.
    bool hold(std::string_view path) const;

private:
    std::vector<std::string> folders_;
    std::vector<std::string> endings_;
};

}  // namespace zelk

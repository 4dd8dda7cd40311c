// SPDX-License-Identifier: MIT
#include "platform/TrashPlaces.h"

#include <algorithm>
#include <utility>

namespace zelk {

TrashPlaces::TrashPlaces(std::vector<std::string> folders, std::vector<std::string> endings)
    : folders_(std::move(folders)), endings_(std::move(endings)) {}

bool TrashPlaces::areAt(std::string_view path) const {
    return std::any_of(endings_.begin(), endings_.end(),
                       [path](const std::string& ending) { return path.ends_with(ending); }) ||
           std::any_of(folders_.begin(), folders_.end(), [path](const std::string& folder) { return path == folder; });
}

bool TrashPlaces::hold(std::string_view path) const {
    for (std::size_t slash = path.find('/'); slash != std::string_view::npos; slash = path.find('/', slash + 1))
        if (areAt(path.substr(0, slash))) return true;
    return areAt(path);
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
// Reads Firefox's list of profiles, "profiles.ini".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FileManager.h"

namespace zelk {

struct FirefoxProfile {
    /// Of its folder, normalized and without "..": relative to the folder of the list, or absolute.
    std::string path;

    bool operator==(const FirefoxProfile&) const = default;
};

/// The profiles of every section "[ProfileN]", in their order; which of them is the default one says nothing about
/// which are used. Omits those without a path, and those whose path could not be a profile's: the folder of the list
/// itself, "/", one with "..", or one that is not what its "IsRelative" says. A pure function over any bytes.
std::vector<FirefoxProfile> parseFirefoxProfiles(std::string_view list);

/// The folders of the profiles that the list in `folder` names, each once; they need not exist. Blocking.
std::vector<std::string> firefoxProfilesIn(FileManager& files, const std::string& folder);

}  // namespace zelk

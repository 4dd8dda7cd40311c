// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/TrashPlaces.h"

namespace zelk {

/// Where things are for the user that runs Zelk. Fixed while it runs; safe from any thread.
class Locations {
public:
    virtual ~Locations() = default;
    /// The home folder, a normal folder; "/" for a user without one.
    virtual std::string home() = 0;
    /// The user's application support folder ("~/Library/Application Support"; the XDG data home on Linux). It may not
    /// exist yet. Absent if the system names none.
    virtual std::optional<std::string> applicationSupport() = 0;
    /// The folder for the data of applications where the home is laid out by the rules of freedesktop.org, as on Linux;
    /// absent on macOS. Such a home keeps caches in places of its own.
    virtual std::optional<std::string> xdgDataHome() = 0;
    /// Where what was thrown away lies and is not offered again. None on macOS, where it is found like all else.
    virtual TrashPlaces trashPlaces() = 0;
};

}  // namespace zelk

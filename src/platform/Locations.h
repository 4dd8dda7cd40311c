// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/TrashPlaces.h"

namespace zelk {

/// The folders of the user who runs Zelk. Constant while it runs; safe from any thread.
class Locations {
public:
    virtual ~Locations() = default;
    /// The home folder, normalized; "/" for a user without one.
    virtual std::string home() = 0;
    /// The user's application support folder ("~/Library/Application Support"; on Linux the XDG data home), which may
    /// not exist yet. Absent if the system defines none.
    virtual std::optional<std::string> applicationSupport() = 0;
    /// The XDG data home on systems that follow the freedesktop.org layout, as Linux does, with its own places for
    /// caches; absent on macOS.
    virtual std::optional<std::string> xdgDataHome() = 0;
    /// The Trash folders whose content is not offered for removal again. Empty on macOS, where the Trash is surveyed
    /// like any folder.
    virtual TrashPlaces trashPlaces() = 0;
};

}  // namespace zelk

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace zelk {

/// Where things are for the user that runs Zelk. Fixed while it runs; safe from any thread.
class Locations {
public:
    virtual ~Locations() = default;
    /// The home folder, without a slash at its end, but "/" for a user without one.
    virtual std::string home() = 0;
    /// The user's application support folder ("~/Library/Application Support"; the XDG data home on Linux). It may not
    /// exist yet. Absent if the system names none.
    virtual std::optional<std::string> applicationSupport() = 0;
};

}  // namespace zelk

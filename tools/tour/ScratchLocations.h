// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/Locations.h"

namespace zelk::tour {

/// The user's real home, and a folder of our own to write to: a program that only looks leaves no survey in the user's
/// history.
class ScratchLocations : public Locations {
public:
    ScratchLocations(Locations& real, std::string support) : real_(real), support_(std::move(support)) {}

    std::string home() override { return real_.home(); }
    std::optional<std::string> applicationSupport() override { return support_; }

private:
    Locations& real_;
    std::string support_;
};

}  // namespace zelk::tour

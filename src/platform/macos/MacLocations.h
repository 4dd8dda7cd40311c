// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Locations.h"

namespace zelk {

class MacLocations : public Locations {
public:
    /// `home` replaces the user's home and all folders below it; empty selects the real one.
    explicit MacLocations(const std::string& home);

    std::string home() override { return home_; }
    std::optional<std::string> applicationSupport() override { return applicationSupport_; }
    std::optional<XdgHomes> xdgHomes() override { return std::nullopt; }
    TrashPlaces trashPlaces() override { return {}; }
    std::vector<BackgroundItemFolder> backgroundItemFolders() override;
    std::vector<std::string> programFolders() override { return {}; }
    std::vector<std::string> sharedDataFolders() override { return {}; }
    std::vector<std::string> entryLocales() override { return {}; }

private:
    std::string home_;
    std::optional<std::string> applicationSupport_;
};

}  // namespace zelk

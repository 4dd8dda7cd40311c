// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Locations.h"

namespace zelk {

/// The home is $HOME, else that of the user database; application support is the XDG data home. Each XDG home is
/// the one of its variable ($XDG_DATA_HOME and so on), else the usual one below the home. What starts in the background
/// is described in the XDG configuration folders and in those of systemd. Ignores relative paths. Reads the environment
/// and resolves links once, when constructed.
class LinuxLocations : public Locations {
public:
    /// With `home`, all folders of the user lie below it, and the environment tells only the language and where
    /// programs are; empty selects the user's own.
    explicit LinuxLocations(const std::string& home = {});

    std::string home() override { return home_; }
    std::optional<std::string> applicationSupport() override { return xdg_.data; }
    std::optional<XdgHomes> xdgHomes() override { return xdg_; }
    /// The "files" of the home trash and of this user's trash on any volume.
    TrashPlaces trashPlaces() override { return trashPlaces_; }
    std::vector<BackgroundItemFolder> backgroundItemFolders() override { return backgroundItemFolders_; }
    std::vector<std::string> programFolders() override { return programFolders_; }
    std::vector<std::string> sharedDataFolders() override { return sharedDataFolders_; }
    std::vector<std::string> entryLocales() override { return entryLocales_; }

private:
    std::string home_;
    XdgHomes xdg_;
    TrashPlaces trashPlaces_;
    std::vector<BackgroundItemFolder> backgroundItemFolders_;
    std::vector<std::string> programFolders_;
    std::vector<std::string> sharedDataFolders_;
    std::vector<std::string> entryLocales_;
};

}  // namespace zelk

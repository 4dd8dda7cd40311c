// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Locations.h"
#include "platform/linux/Sandbox.h"

namespace zelk {

/// The home is $HOME, else that of the user database; application support is the XDG data home. Each XDG home is
/// the one of its variable ($XDG_DATA_HOME and so on), else the usual one below the home. What starts in the background
/// is described in the XDG configuration folders and in those of systemd. Ignores relative paths. Reads the environment
/// and resolves links once, when constructed.
///
/// In a sandbox of Flatpak the XDG homes are the host's, as are the folders of the system as far as "/run/host" has
/// them; what is in the session's runtime folder there is not known.
class LinuxLocations : public Locations {
public:
    /// With `home`, all folders of the user lie below it, and the environment tells only the language and where
    /// programs are; empty selects the user's own.
    explicit LinuxLocations(const std::string& home = {}, Sandbox sandbox = Sandbox());

    std::string home() override { return home_; }
    std::optional<std::string> applicationSupport() override { return applicationSupport_; }
    std::optional<XdgHomes> xdgHomes() override { return xdg_; }
    /// The "files" of the home trash and of this user's trash on any volume, and what is the sandbox's own.
    TrashPlaces trashPlaces() override { return trashPlaces_; }
    std::vector<BackgroundItemFolder> backgroundItemFolders() override { return backgroundItemFolders_; }
    std::vector<std::string> programFolders() override { return programFolders_; }
    std::vector<std::string> sharedDataFolders() override { return sharedDataFolders_; }
    std::vector<std::string> entryLocales() override { return entryLocales_; }
    bool isSandboxed() override { return sandbox_.isInside(); }
    std::string pathInSandbox(const std::string& path) override;

private:
    Sandbox sandbox_;
    std::string home_;
    std::string applicationSupport_;
    XdgHomes xdg_;
    TrashPlaces trashPlaces_;
    std::vector<BackgroundItemFolder> backgroundItemFolders_;
    std::vector<std::string> programFolders_;
    std::vector<std::string> sharedDataFolders_;
    std::vector<std::string> entryLocales_;
};

}  // namespace zelk

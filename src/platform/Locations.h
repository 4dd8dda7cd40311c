// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/BackgroundItemFolder.h"
#include "platform/TrashPlaces.h"

namespace zelk {

/// The four folders in which programs keep what is the user's, the XDG base directories. Normalized;
/// they need not exist.
struct XdgHomes {
    std::string data;
    std::string config;
    std::string cache;
    std::string state;

    bool operator==(const XdgHomes&) const = default;
};

/// The folders of the user who runs Zelk. Constant while it runs; safe from any thread.
class Locations {
public:
    virtual ~Locations() = default;
    /// The home folder, normalized; "/" for a user without one.
    virtual std::string home() = 0;
    /// The user's application support folder ("~/Library/Application Support"; on Linux the XDG data home, in a sandbox
    /// the sandbox's own), in which Zelk keeps what it writes. It may not exist yet. Absent if the system defines none.
    virtual std::optional<std::string> applicationSupport() = 0;
    /// The user's folders on systems that follow the freedesktop.org layout, as Linux does: those of the host, where
    /// there is a sandbox. Absent on macOS.
    virtual std::optional<XdgHomes> xdgHomes() = 0;
    /// The Trash folders whose content is not offered for removal again, and what belongs to the sandbox, which is not
    /// offered at all. Empty on macOS, where the Trash is surveyed like any folder.
    virtual TrashPlaces trashPlaces() = 0;
    /// The folders of what starts in the background, in the order in which they are read: of two folders of a kind, the
    /// files of the first hide those of the same name in the second, but for property lists.
    virtual std::vector<BackgroundItemFolder> backgroundItemFolders() = 0;
    /// Where a program that is named without a path is looked for, in this order. Empty on macOS, where background
    /// items name whole paths.
    virtual std::vector<std::string> programFolders() = 0;
    /// The folders of data that all users share, in the order in which programs look there: the XDG data directories.
    /// Normalized; they need not exist. Empty on macOS.
    virtual std::vector<std::string> sharedDataFolders() = 0;
    /// The locales in which the names in desktop entries are read, best first; empty on macOS.
    virtual std::vector<std::string> entryLocales() = 0;
    /// Whether Zelk runs in a sandbox that shows the user's files, but a runtime in place of the system: /usr, /etc and
    /// /var are not the host's, and none of its tools can be run.
    virtual bool isSandboxed() { return false; }
    /// Where the file is that somebody outside of the sandbox calls `path`, an absolute one; it need not exist.
    virtual std::string pathInSandbox(const std::string& path) { return path; }
};

}  // namespace zelk

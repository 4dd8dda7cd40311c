// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zelk {

/// The settings page on which users grant access to protected folders.
inline constexpr const char* accessSettingsURL =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles";

/// An image of `side` x `side` pixels, row by row from the top left, each 0xAARRGGBB with premultiplied alpha.
struct IconPixels {
    int side = 0;
    std::vector<std::uint32_t> argb;

    bool operator==(const IconPixels&) const = default;
};

/// The desktop environment. Main thread.
class Workspace {
public:
    virtual ~Workspace() = default;
    /// The display names (UTF-8) of the user's running applications, in the system's order; empty for an application
    /// without a name. On Linux these are the names of desktop entries whose program is running, never bare process
    /// names.
    virtual std::vector<std::string> runningApplications() = 0;
    /// The ids of the desktop entries of the user's running applications ("org.kde.kate" for "org.kde.kate.desktop"),
    /// in the same order; empty where the system has none, as by default.
    virtual std::vector<std::string> runningApplicationIds() { return {}; }
    /// False if nobody told what runs, as may be in a sandbox: both lists are empty then, and any application may be
    /// running. True by default.
    virtual bool knowsRunningApplications() { return true; }
    /// Shows the paths selected in the system's file manager. Returns at once and ignores failures.
    virtual void reveal(const std::vector<std::string>& paths) = 0;
    /// Opens `url` with the desktop. Returns at once and ignores failures. On Linux `accessSettingsURL`, which no
    /// desktop supports, shows the home trash in the file manager, since its permissions are what makes it unreadable.
    virtual void openURL(const std::string& url) = 0;
    /// The desktop's icon for the file or folder `path`, `side` (at least 1) pixels square; absent if there is none, as
    /// by default. On Linux it is chosen by name only, without accessing the disk.
    virtual std::optional<IconPixels> icon(const std::string& /*path*/, bool /*isDirectory*/, int /*side*/) {
        return std::nullopt;
    }
    /// An application's icon, `side` (at least 1) pixels square: of a bundle by its path; on Linux the one that a
    /// desktop entry names, by its name in the theme or by the path of a picture. Absent if there is none.
    virtual std::optional<IconPixels> entryIcon(const std::string& /*nameOrPath*/, int /*side*/) {
        return std::nullopt;
    }
};

}  // namespace zelk

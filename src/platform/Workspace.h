// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zelk {

/// Where a person grants access to protected folders.
inline constexpr const char* accessSettingsURL =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles";

/// A picture of `side` x `side` pixels, row by row from the top left, each 0xAARRGGBB with its colours multiplied by
/// its opacity.
struct IconPixels {
    int side = 0;
    std::vector<std::uint32_t> argb;

    bool operator==(const IconPixels&) const = default;
};

/// The desktop around the application. Main thread.
class Workspace {
public:
    virtual ~Workspace() = default;
    /// The names of the applications that run under this user, as a person knows them (UTF-8), in the system's order;
    /// an application without a name is an empty text. On Linux these are the names of the desktop entries whose
    /// program runs, never the bare names of processes.
    virtual std::vector<std::string> runningApplications() = 0;
    /// Shows the paths in the system's file manager, selected in their folders. Comes back at once; failures are
    /// silent.
    virtual void reveal(const std::vector<std::string>& paths) = 0;
    /// Hands `url` to the desktop. Comes back at once; failures are silent. On Linux `accessSettingsURL`, which no
    /// desktop there knows, shows the home trash in the file manager: its permissions are what keeps it unread.
    virtual void openURL(const std::string& url) = 0;
    /// The picture by which the desktop shows the file or folder `path`, `side` pixels wide and high (at least 1);
    /// absent where it has none. On Linux it goes by the name alone and the disk is not asked about it.
    /// A desktop is not bound to have any.
    virtual std::optional<IconPixels> icon(const std::string& /*path*/, bool /*isDirectory*/, int /*side*/) {
        return std::nullopt;
    }
};

}  // namespace zelk

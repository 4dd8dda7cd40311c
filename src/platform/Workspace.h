// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace zelk {

/// Where a person grants access to protected folders.
inline constexpr const char* accessSettingsURL =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles";

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
};

}  // namespace zelk

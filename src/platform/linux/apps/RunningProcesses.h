// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelk {

struct RunningProcess {
    std::string executable;              ///< path of its program, links resolved; empty if unknown
    std::vector<std::string> arguments;  ///< starting with its name
    /// The ids of the desktop entry that its control group was created for; empty if none. Several where the unit's
    /// name is ambiguous.
    std::vector<std::string> applications;
};

/// The processes of this user, sorted by process id. `processes` is the proc file system.
std::vector<RunningProcess> runningProcesses(const std::string& processes = "/proc");

/// The path that the link "exe" of a process tells, without the mark that the program was replaced by an update.
std::string programOfLink(std::string_view target);

/// The ids of the desktop entry whose application runs in the control group `text` (/proc/PID/cgroup), in the naming of
/// desktops and packages: "app-gnome-org.gnome.Maps-4711.scope", "app-org.kde.kate@1f3c.service",
/// "app-flatpak-org.gimp.GIMP-12.scope", "snap.firefox.firefox-UUID.scope".
std::vector<std::string> applicationsOfControlGroup(std::string_view text);

}  // namespace zelk

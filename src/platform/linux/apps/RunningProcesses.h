// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelk {

struct RunningProcess {
    std::string executable;              ///< the path of its program, links resolved; empty if it cannot be told
    std::vector<std::string> arguments;  ///< its own name first
    /// The ids of the desktop entry that its control group was made for; empty if it was made for none. Where it cannot
    /// be told which part of a name is the id, more than one.
    std::vector<std::string> applications;
};

/// The processes of this user, the lowest number first. `processes` is the system's folder of them.
std::vector<RunningProcess> runningProcesses(const std::string& processes = "/proc");

/// The ids of the desktop entry whose application lives in the control group that `text` (/proc/PID/cgroup) names, as
/// desktops and application packages name them: "app-gnome-org.gnome.Maps-4711.scope",
/// "app-org.kde.kate@1f3c.service", "app-flatpak-org.gimp.GIMP-12.scope", "snap.firefox.firefox-UUID.scope".
std::vector<std::string> applicationsOfControlGroup(std::string_view text);

}  // namespace zelk

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/linux/apps/RunningProcesses.h"

namespace zelk {

/// An application that a desktop shows in its menus.
struct InstalledApplication {
    std::string id;    ///< of its desktop entry, "org.kde.kate" for "org.kde.kate.desktop"
    std::string name;  ///< UTF-8, in the user's language
    /// Its own program: as the entry names it, and with links resolved. Both empty if it has none of its own, such as a
    /// page in a browser or what a package runner starts.
    std::string programAsNamed;
    std::string program;
    /// What runs the program, links resolved; empty if the program runs itself.
    std::string interpreter;
};

/// Where to look, in the order of precedence.
struct ApplicationPlaces {
    std::vector<std::string> entries;   ///< the folders of desktop entries
    std::vector<std::string> programs;  ///< the folders of programs that are named without one
    std::vector<std::string> locales;   ///< the user's languages, the best first

    /// What the environment says; `dataHome` is the user's own data folder.
    static ApplicationPlaces ofEnvironment(const std::string& dataHome);
};

/// Each id once: an entry of the user's own stands for the system's. What is hidden, in no menu, without a name or not
/// really there is left out.
std::vector<InstalledApplication> installedApplications(const ApplicationPlaces& places);

/// The names of the applications that run, in the order of the processes, each once. A process belongs to an
/// application if the desktop made its control group for it, or if it runs the application's own program; a bare name
/// counts for nothing.
std::vector<std::string> runningApplicationNames(const std::vector<InstalledApplication>& applications,
                                                 const std::vector<RunningProcess>& processes);

}  // namespace zelk

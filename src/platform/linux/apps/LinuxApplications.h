// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/linux/apps/RunningProcesses.h"

namespace zelk {

/// An application shown in desktop menus.
struct InstalledApplication {
    std::string id;    ///< id of its desktop entry: "org.kde.kate" for "org.kde.kate.desktop"
    std::string name;  ///< UTF-8, in the user's language
    /// Its program, as the entry names it and with links resolved. Both empty if it has no program of its own, such as
    /// a web page in a browser or a package behind a runner.
    std::string programAsNamed;
    std::string program;
    /// The program's interpreter, links resolved; empty if it needs none.
    std::string interpreter;
};

/// Search folders in order of precedence.
struct ApplicationPlaces {
    std::vector<std::string> entries;   ///< folders of desktop entries
    std::vector<std::string> programs;  ///< folders of programs that are named without a path
    std::vector<std::string> locales;   ///< the user's locales, best first

    /// Reads the environment; `dataHome` is the user's data folder.
    static ApplicationPlaces ofEnvironment(const std::string& dataHome);
};

/// Lists each id once; the user's entries override the system's. Omits entries that are hidden, in no menu, unnamed or
/// not installed.
std::vector<InstalledApplication> installedApplications(const ApplicationPlaces& places);

/// What runs, in process order, each name and each id once.
struct RunningApplications {
    std::vector<std::string> names;
    std::vector<std::string> ids;
};

/// The running applications. A process belongs to an application if the
/// desktop created its control group for it or if it runs the application's own program; a process name alone proves
/// nothing.
RunningApplications runningApplicationsOf(const std::vector<InstalledApplication>& applications,
                                          const std::vector<RunningProcess>& processes);

}  // namespace zelk

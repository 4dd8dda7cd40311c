// SPDX-License-Identifier: MIT
// What the host of a sandbox says about its processes and applications. Pure functions over any bytes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/apps/LinuxApplications.h"

namespace zelk {

/// A desktop entry of the host.
struct HostEntry {
    std::string id;    ///< "org.kde.kate" for "org.kde.kate.desktop", "kde-kate" for "kde/kate.desktop"
    std::string text;  ///< its lines, but for those that tell neither its name nor its program

    bool operator==(const HostEntry&) const = default;
};

struct HostAnswer {
    std::vector<RunningProcess> processes;  ///< of this user, in the order of the answer
    std::vector<HostEntry> entries;         ///< in order of precedence; the first of an id counts
};

/// Prints the answer, for a shell of the host whose first argument is the number of this user. Everything in it ends
/// with a NUL, as nothing in it can have one, and the lines of entries with a line feed:
///
/// - the number of the shell itself
/// - "/proc/NUMBER/exe" and nothing, for every process of the user; then again with the program, for those that show
/// it:
///   the files of a process that lets nobody look into it, such as a keeper of passwords, are root's
/// - nothing and nothing
/// - "/proc/NUMBER/cmdline" and an argument, for every one of every process; "/proc/NUMBER/cgroup" and its text
/// - nothing and nothing
/// - the path of a desktop entry and a line, for every one that counts
/// - nothing and the line "end"
///
/// It needs the find and grep of GNU; others do not say all of this, so that their answer is none.
extern const char* const hostScript;

/// Absent unless the answer is whole and the shell that gave it is in it, with its program, arguments and control
/// group: then nothing is known of what runs there. Absent without any entry too: this application has one.
std::optional<HostAnswer> parseHostAnswer(std::string_view text);

/// The running applications. Goes by the names of programs, since what their files are cannot be looked up from here:
/// may take one for running that is not, if its program is called as another's. `locales` as for desktop entries.
RunningApplications runningApplicationsOf(const HostAnswer& answer, const std::vector<std::string>& locales);

}  // namespace zelk

// SPDX-License-Identifier: MIT
// What the desktop files of applications say. Pure functions: any bytes in.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelk {

struct DesktopEntry {
    std::string name;                  ///< UTF-8, in the wanted language; empty if it has none
    std::vector<std::string> command;  ///< the words of Exec, unquoted, field codes ("%U") as they stand
    std::string tryExec;               ///< a program without which the application is not there; often empty
    bool isApplication = false;
    bool hidden = false;     ///< counts as deleted
    bool noDisplay = false;  ///< is in no menu
};

/// Absent if `text` does not begin with the group "Desktop Entry". `locales` are the languages that the name may be in,
/// the best first; without any of them it is the one for everybody. Of a key that stands twice the last counts; a name
/// that is not UTF-8 does not count.
std::optional<DesktopEntry> parseDesktopEntry(std::string_view text, const std::vector<std::string>& locales);

/// The languages in which a user of `locale` ("de_AT.UTF-8@euro") is addressed, the best first: "de_AT@euro", "de_AT",
/// "de@euro", "de". None for "C" and "POSIX".
std::vector<std::string> localesOf(std::string_view locale);

}  // namespace zelk

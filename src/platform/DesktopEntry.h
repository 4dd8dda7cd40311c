// SPDX-License-Identifier: MIT
// Parses the desktop entries of applications and of what starts with a session. Pure functions over any bytes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelk {

struct DesktopEntry {
    std::string name;                  ///< UTF-8, in the best available language; may be empty
    std::vector<std::string> command;  ///< the words of Exec, unquoted, field codes ("%U") as they stand
    std::string tryExec;  ///< a program that must exist for the application to count as installed; often empty
    bool isApplication = false;
    bool hidden = false;     ///< treated as deleted
    bool noDisplay = false;  ///< shown in no menu
    bool staysOff = false;   ///< "X-GNOME-Autostart-enabled=false": does not start with the session
    std::string icon;        ///< a name in the theme, or a path; often empty
    std::string flatpak;     ///< the application that flatpak starts; empty for any other
    std::string appImage;    ///< what the maker of an AppImage calls it; empty for any other
};

/// Absent if `text` does not start with the group "Desktop Entry". `locales` are the preferred languages of the name,
/// best first; the unlocalized name is the fallback. The last of duplicate keys wins; names that are not UTF-8 are
/// ignored.
std::optional<DesktopEntry> parseDesktopEntry(std::string_view text, const std::vector<std::string>& locales);

/// The locales to look up for a user of `locale` ("de_AT.UTF-8@euro"), most specific first: "de_AT@euro", "de_AT",
/// "de@euro", "de". Empty for "C" and "POSIX".
std::vector<std::string> localesOf(std::string_view locale);

}  // namespace zelk

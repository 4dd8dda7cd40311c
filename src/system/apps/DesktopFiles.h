// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DesktopEntry.h"
#include "platform/FileManager.h"

namespace zelk {

/// A desktop entry of an application, as a file.
struct DesktopFile {
    std::string path;
    std::string id;  ///< "org.kde.kate" for "org.kde.kate.desktop", "kde-kate" for "kde/kate.desktop"
    DesktopEntry entry;

    /// Whether a desktop shows it in its menus.
    bool isShown() const { return !entry.noDisplay && !entry.name.empty(); }
    /// The name of the program that it starts; empty if that is an interpreter or launcher of many.
    std::string programName() const;
    /// That program as the command names it; empty without one.
    std::string program() const;
};

/// The entries of applications in a folder and a few levels below it, hidden ones left out, by path. `locales` are
/// those of their names. Skips what is larger than a desktop entry ever is. Blocking.
std::vector<DesktopFile> readDesktopFiles(FileManager& files, const std::string& folder,
                                          const std::vector<std::string>& locales);

/// The entry that stands for an application which has several: one that is shown and is called `id`, else the first
/// that is shown and starts a program of that name, else the first that is shown; nullptr if none is.
const DesktopFile* mainEntry(const std::vector<const DesktopFile*>& entries, std::string_view id);

/// Which applications go by a name. What two of them go by tells neither of them.
class NameClaims {
public:
    /// `owner` is unique to the application. Ignores empty names.
    void claim(const std::string& name, const std::string& owner);
    bool isShared(const std::string& name) const;

private:
    std::map<std::string, std::set<std::string>> owners_;
};

}  // namespace zelk

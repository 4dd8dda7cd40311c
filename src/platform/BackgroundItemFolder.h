// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace zelk {

/// What the items of a folder are, and so how they are read.
enum class BackgroundItemKind {
    launchdPropertyLists,  ///< agents and daemons of macOS: "*.plist"
    autostartEntries,      ///< what starts with a desktop session: "*.desktop"
    userUnits,             ///< units of the user's service manager: "*.service", "*.timer", "*.socket" and "*.path"
    systemUnits  ///< units of the system's, of which links are not items: they only switch on or rename others
};

/// A folder whose files are started in the background. It may not exist.
struct BackgroundItemFolder {
    std::string path;
    BackgroundItemKind kind;
    bool removable;  ///< it is the user's own
    /// Folders of the system whose files the system ignores as long as this folder has one of the same name.
    std::vector<std::string> hides = {};
    /// There are more of those, which cannot be seen from here: whether a file hides something is not known.
    bool hidesUnseen = false;

    bool operator==(const BackgroundItemFolder&) const = default;
};

}  // namespace zelk

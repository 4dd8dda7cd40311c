// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zelk {

/// How an application came here, and so what removes it.
enum class AppKind {
    bundle,         ///< of macOS; to the Trash
    userFlatpak,    ///< of this user; by flatpak
    systemFlatpak,  ///< of all users; by flatpak
    snap,           ///< by snap
    appImage,       ///< a file of the user's; to the Trash
    unpacked,       ///< a folder of the user's; to the Trash
    package         ///< of the distribution; by an administrator
};

/// Whether all of it goes to the Trash, from where it can come back.
inline bool goesToTrash(AppKind kind) {
    return kind == AppKind::bundle || kind == AppKind::appImage || kind == AppKind::unpacked;
}

/// Why an application is not offered for removal.
struct AppObstacle {
    enum class Reason {
        none,
        partOfSystem,     ///< the system counts on it
        needed,           ///< removing it would remove others
        noTool,           ///< the tool that put it here is missing
        outOfReach,       ///< the tool that put it here cannot be run from the sandbox that Zelk is in
        severalVersions,  ///< the tool would have to be told which one
        notOwn,           ///< it belongs to another user
        changed,          ///< it is no longer what was listed
        unknown           ///< nothing here says how it came, or what removes it
    };

    Reason reason = Reason::none;
    std::vector<std::string> who = {};  ///< the packages that need it, or the missing tool

    bool operator==(const AppObstacle&) const = default;
};

/// An application. Identified by `url`.
struct AppEntry {
    std::string url;  ///< the path, in bytes, of its bundle, folder or file; of a package the path of its desktop entry
    std::string name;                     ///< for display; of a bundle the bytes of its folder's name
    std::uint64_t size = 0;               ///< bytes
    std::optional<std::string> bundleID;  ///< on Linux what its entry is called
    std::uint64_t dataTotal = 0;          ///< bytes of what it keeps elsewhere; 0 until that is known

    AppKind kind = AppKind::bundle;
    std::string package;                      ///< what its tool calls it; empty if no tool removes it
    std::vector<std::string> alongside = {};  ///< the names of the other applications that its tool removes with it
    std::string program = {};                 ///< the name of its program; empty if that identifies no application
    std::string icon = {};                    ///< for Workspace::entryIcon()
    std::vector<std::string> entries = {};    ///< the user's desktop entries that start it, which go with it
    bool sharesID = false;                    ///< another application has its `bundleID` too
    bool sharesProgram = false;               ///< another application has its `program` too
    AppObstacle obstacle = {};

    bool operator==(const AppEntry&) const = default;
};

}  // namespace zelk

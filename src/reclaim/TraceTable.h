// SPDX-License-Identifier: MIT
// What browsers leave behind, and where: a fixed table for each system. Nothing but what it names is ever offered. Pure
// functions over texts; nothing here reads the disk.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Locations.h"
#include "platform/SystemKind.h"
#include "platform/Translation.h"

namespace zelk {

struct Trace {
    std::string app;                 ///< the short name of the application that left it, not translated
    std::string kind;                ///< what it is, not translated
    std::vector<std::string> paths;  ///< in the table all that there may be; in a scan's result those that exist
    std::uint64_t size = 0;          ///< allocated bytes; 0 in the table
    /// Each path of the table is a database, which is worth nothing without its companions, nor they without it.
    bool databases = false;
    /// A folder of it that holds bookmarks, passwords or the like after all is left alone.
    bool guarded = false;
    /// The allocated bytes of each path; empty in the table.
    std::map<std::string, std::uint64_t> sizes = {};

    /// Unique in the table.
    std::string identity() const { return app + kind; }
    /// Adds a path and its size, unless it is there. If `order` names the path, so do those that come after it there.
    void add(const std::string& path, std::uint64_t bytes, const std::vector<std::string>& order = {});

    bool operator==(const Trace&) const = default;
};

/// The kind that is worth least, which is ticked at first.
inline constexpr std::string_view cacheKind = ZELK_TEXT("Reclaim", "Caches");

/// Who left what no browser did.
inline constexpr std::string_view systemTraces = ZELK_TEXT("Reclaim", "System");

/// What the names of the files end in that a database has beside it.
inline constexpr std::array<std::string_view, 3> companionEndings{"-wal", "-shm", "-journal"};

/// What the paths of the table are made of.
struct TracePlaces {
    SystemKind system = SystemKind::macOS;
    std::string home;
    XdgHomes xdg;                              ///< on Linux
    std::vector<std::string> firefoxProfiles;  ///< on Linux: the folders of all profiles
    bool sandboxed = false;                    ///< on Linux: the processes of browsers are not among those in /proc
};

/// All rows, in the order in which they are looked for.
std::vector<Trace> traceTable(const TracePlaces& homes);

/// The folders in which Firefox keeps its list of profiles; none on macOS, where the table names no profile.
std::vector<std::string> firefoxFolders(const TracePlaces& homes);

/// A file that tells whether a browser is running.
struct BrowserLock {
    std::string app;  ///< as in the table
    std::string path;
    bool isLink = false;  ///< a link to "HOST-PID"; else a file that the browser locks
    /// Whether that process can be looked for. If not, the link counts as long as it names this machine.
    bool isProcessSeen = true;

    bool operator==(const BrowserLock&) const = default;
};

/// None on macOS, where the names of running applications tell enough.
std::vector<BrowserLock> browserLocks(const TracePlaces& homes);

/// The id of the application's desktop entry, for one whose display name says nothing; often empty.
std::string_view desktopIdOf(std::string_view app);

/// Whether a file or folder of this name holds bookmarks, passwords, keys or forms. Neither is offered, nor a folder
/// that holds one.
bool isKept(std::string_view name);

}  // namespace zelk

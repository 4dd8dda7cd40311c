// SPDX-License-Identifier: MIT
#include "reclaim/TraceScanner.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

#include "platform/FolderPath.h"
#include "platform/ItemPath.h"
#include "platform/Text.h"
#include "reclaim/Cleaner.h"
#include "reclaim/FirefoxProfiles.h"

namespace zelk {

namespace {

constexpr const char* hostNameFile = "/proc/sys/kernel/hostname";
constexpr std::size_t longestHostName = 256;

/// How many levels of a folder of caches are looked through for what must stay. A profile is told by what lies on its
/// first two, and a browser may keep its folder in one of its maker's.
constexpr int levelsWithProfiles = 3;

bool holdsKept(FileManager& files, const std::string& folder, int levels) {
    // What a link leads to does not go with it.
    const std::optional<FileProperties> properties = files.properties(folder);
    if (!properties || !properties->isDirectory) return false;
    const std::optional<std::vector<std::string>> entries = files.list(folder);
    if (!entries) return true;  // nobody knows
    if (std::any_of(entries->begin(), entries->end(), isKept)) return true;
    return levels > 1 && std::any_of(entries->begin(), entries->end(), [&](const std::string& name) {
               return holdsKept(files, pathIn(folder, name), levels - 1);
           });
}

/// Whether a path of the table is what the table takes it for.
bool mayGo(FileManager& files, const Trace& trace, const std::string& path) {
    return !trace.guarded || !holdsKept(files, path, levelsWithProfiles);
}

TracePlaces placesFor(FileManager& files, Locations& locations, SystemKind system) {
    TracePlaces homes{system, locations.home(), {}, {}};
    if (system == SystemKind::macOS) return homes;
    homes.sandboxed = locations.isSandboxed();
    homes.xdg =
        locations.xdgHomes().value_or(XdgHomes{pathIn(homes.home, ".local/share"), pathIn(homes.home, ".config"),
                                               pathIn(homes.home, ".cache"), pathIn(homes.home, ".local/state")});
    for (const std::string& folder : firefoxFolders(homes))
        for (std::string& profile : firefoxProfilesIn(files, folder))
            if (std::find(homes.firefoxProfiles.begin(), homes.firefoxProfiles.end(), profile) ==
                homes.firefoxProfiles.end())
                homes.firefoxProfiles.push_back(std::move(profile));
    return homes;
}

/// Whether `text` is "HOST-PID" of a process of this machine that is there, or may be there unseen. The name of a host
/// may have a hyphen.
bool namesProcess(FileManager& files, std::string_view text, bool isProcessSeen) {
    const std::size_t hyphen = text.rfind('-');
    if (hyphen == std::string_view::npos) return false;
    const std::string_view process = text.substr(hyphen + 1);
    if (!parseNumber<std::uint32_t>(process)) return false;
    const std::string file = files.readSmall(hostNameFile, longestHostName).value_or("");
    const std::string_view host = trimmed(file);
    if (host.empty() || text.substr(0, hyphen) != host) return false;
    return !isProcessSeen || files.exists("/proc/" + std::string(process));
}

bool isHeld(FileManager& files, const BrowserLock& lock) {
    if (!lock.isLink) return files.isLocked(lock.path);
    return namesProcess(files, files.linkTarget(lock.path).value_or(""), lock.isProcessSeen);
}

/// The paths of a database's companions, whether or not they exist.
std::vector<std::string> companionsOf(const std::string& database) {
    std::vector<std::string> paths;
    paths.reserve(companionEndings.size());
    for (const std::string_view ending : companionEndings) paths.push_back(database + std::string(ending));
    return paths;
}

}  // namespace

TraceFindings findTraces(FileManager& files, Locations& locations, SystemKind system) {
    const TracePlaces homes = placesFor(files, locations, system);
    TraceFindings found;
    for (const Trace& row : traceTable(homes)) {
        Trace trace = row;
        trace.paths.clear();
        const auto add = [&](const std::string& path) { trace.add(path, Cleaner::allocatedSize(files, path)); };
        for (const std::string& path : row.paths) {
            if (!files.exists(path) || !mayGo(files, row, path)) continue;
            add(path);
            if (!row.databases) continue;
            for (const std::string& companion : companionsOf(path))
                if (files.exists(companion)) add(companion);
        }
        if (!trace.paths.empty()) found.traces.push_back(std::move(trace));
    }
    std::stable_sort(found.traces.begin(), found.traces.end(),
                     [](const Trace& a, const Trace& b) { return a.size > b.size; });
    found.locks = browserLocks(homes);
    found.running = runningByLocks(files, found.locks);
    found.firefoxHistoryStays =
        std::any_of(homes.firefoxProfiles.begin(), homes.firefoxProfiles.end(),
                    [&](const std::string& profile) { return files.exists(pathIn(profile, "places.sqlite")); });
    return found;
}

std::set<std::string> runningByLocks(FileManager& files, const std::vector<BrowserLock>& locks) {
    std::set<std::string> apps;
    for (const BrowserLock& lock : locks)
        if (!apps.contains(lock.app) && isHeld(files, lock)) apps.insert(lock.app);
    return apps;
}

std::vector<std::string> leadingPaths(const Trace& trace) {
    std::set<std::string> companions;
    if (trace.databases)
        for (const std::string& path : trace.paths)
            for (std::string& companion : companionsOf(path)) companions.insert(std::move(companion));
    std::vector<std::string> leading;
    std::copy_if(trace.paths.begin(), trace.paths.end(), std::back_inserter(leading),
                 [&](const std::string& path) { return !companions.contains(path); });
    return leading;
}

std::vector<std::string> companionsIn(const Trace& trace, const std::string& leading) {
    std::vector<std::string> paths;
    if (trace.databases)
        for (std::string& companion : companionsOf(leading))
            if (trace.sizes.contains(companion)) paths.push_back(std::move(companion));
    return paths;
}

std::vector<MovedPath> moveToTrash(FileManager& files, Trash& trash, const Trace& trace, const std::string& leading) {
    std::vector<MovedPath> moved;
    const auto move = [&](const std::string& path, std::uint64_t size) {
        const std::optional<ItemPath> item = ItemPath::from(path);
        if (!item) return false;
        TrashResult result = trash.trash(*item);
        if (result.failure) return false;
        moved.push_back({path, size, std::move(result.item)});
        return true;
    };
    // The list may be days old, and other folders may have been linked into place since.
    const auto size = trace.sizes.find(leading);
    if (size == trace.sizes.end() || !mayGo(files, trace, leading) || !move(leading, size->second)) return moved;
    if (trace.databases)
        for (const std::string& companion : companionsOf(leading))
            if (const std::optional<FileProperties> properties = files.properties(companion))
                move(companion, properties->allocatedSize);
    return moved;
}

}  // namespace zelk

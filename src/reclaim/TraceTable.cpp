// SPDX-License-Identifier: MIT
#include "reclaim/TraceTable.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/FolderPath.h"
#include "platform/Translation.h"

namespace zelk {

namespace {

/// What a path of the table begins with.
enum class TraceBase { home, data, config, cache };

struct TracePath {
    TraceBase base = TraceBase::home;
    std::string_view below = {};  ///< empty: no path
};

struct TraceRow {
    std::string_view app;
    std::string_view kind;
    std::array<TracePath, 3> paths;
    bool databases = false;
};

constexpr TracePath inHome(std::string_view below) {
    return {TraceBase::home, below};
}
constexpr TracePath inData(std::string_view below) {
    return {TraceBase::data, below};
}
constexpr TracePath inConfig(std::string_view below) {
    return {TraceBase::config, below};
}
constexpr TracePath inCache(std::string_view below) {
    return {TraceBase::cache, below};
}

// Shown in the language of the user.
constexpr std::string_view safari = ZELK_TEXT("Reclaim", "Safari");
constexpr std::string_view chrome = ZELK_TEXT("Reclaim", "Chrome");
constexpr std::string_view brave = ZELK_TEXT("Reclaim", "Brave");
constexpr std::string_view edge = ZELK_TEXT("Reclaim", "Edge");
constexpr std::string_view arc = ZELK_TEXT("Reclaim", "Arc");
constexpr std::string_view firefox = ZELK_TEXT("Reclaim", "Firefox");
constexpr std::string_view gnomeWeb = ZELK_TEXT("Reclaim", "GNOME Web");
constexpr std::string_view chromium = ZELK_TEXT("Reclaim", "Chromium");
constexpr std::string_view historyKind = ZELK_TEXT("Reclaim", "History");
constexpr std::string_view cookieKind = ZELK_TEXT("Reclaim", "Cookies");
constexpr std::string_view recentKind = ZELK_TEXT("Reclaim", "Recent items");
constexpr std::string_view thumbnailKind = ZELK_TEXT("Reclaim", "Thumbnails");

constexpr TraceRow macTable[] = {
    {safari,
     cacheKind,
     {{inHome("Library/Caches/com.apple.Safari"), inHome("Library/Caches/com.apple.WebKit.WebContent")}}},
    {safari, historyKind, {{inHome("Library/Safari/History.db"), inHome("Library/Safari/History.db-wal")}}},
    {chrome,
     cacheKind,
     {{inHome("Library/Caches/Google/Chrome"), inHome("Library/Application Support/Google/Chrome/Default/Cache")}}},
    {chrome, historyKind, {{inHome("Library/Application Support/Google/Chrome/Default/History")}}},
    {chrome, cookieKind, {{inHome("Library/Application Support/Google/Chrome/Default/Cookies")}}},
    {brave,
     cacheKind,
     {{inHome("Library/Caches/BraveSoftware"),
       inHome("Library/Application Support/BraveSoftware/Brave-Browser/Default/Cache")}}},
    {edge,
     cacheKind,
     {{inHome("Library/Caches/Microsoft Edge"), inHome("Library/Application Support/Microsoft Edge/Default/Cache")}}},
    {arc, cacheKind, {{inHome("Library/Caches/company.thebrowser.Browser")}}},
    {firefox, cacheKind, {{inHome("Library/Caches/Firefox")}}},
    {systemTraces, recentKind, {{inHome("Library/Application Support/com.apple.sharedfilelist")}}},
};

// Firefox's history is not in it: one file holds it and the bookmarks.
constexpr TraceRow linuxTable[] = {
    {gnomeWeb, cacheKind, {{inCache("epiphany"), inHome(".var/app/org.gnome.Epiphany/cache/epiphany")}}},
    {gnomeWeb, historyKind, {{inData("epiphany/ephy-history.db")}}, true},
    {chrome, cacheKind, {{inCache("google-chrome"), inHome(".var/app/com.google.Chrome/cache/google-chrome")}}},
    {chrome, historyKind, {{inConfig("google-chrome/Default/History")}}, true},
    {chrome, cookieKind, {{inConfig("google-chrome/Default/Cookies")}}, true},
    {chromium,
     cacheKind,
     {{inCache("chromium"), inHome("snap/chromium/common/.cache/chromium"),
       inHome(".var/app/org.chromium.Chromium/cache/chromium")}}},
    {chromium,
     historyKind,
     {{inConfig("chromium/Default/History"), inHome("snap/chromium/common/chromium/Default/History")}},
     true},
    {chromium,
     cookieKind,
     {{inConfig("chromium/Default/Cookies"), inHome("snap/chromium/common/chromium/Default/Cookies")}},
     true},
    {brave, cacheKind, {{inCache("BraveSoftware"), inHome(".var/app/com.brave.Browser/cache/BraveSoftware")}}},
    {edge, cacheKind, {{inCache("microsoft-edge")}}},
    {firefox,
     cacheKind,
     {{inCache("mozilla/firefox"), inHome("snap/firefox/common/.cache/mozilla/firefox"),
       inHome(".var/app/org.mozilla.firefox/cache/mozilla/firefox")}}},
    {firefox, cookieKind, {}, true},  // in every profile
    {systemTraces, recentKind, {{inData("recently-used.xbel"), inData("RecentDocuments")}}},
    {systemTraces, thumbnailKind, {{inCache("thumbnails")}}},
};

/// New profiles are made in the first; an older folder stays in use.
constexpr TracePath firefoxLists[] = {
    inConfig("mozilla/firefox"),
    inHome(".mozilla/firefox"),
    inHome("snap/firefox/common/.mozilla/firefox"),
    inHome(".var/app/org.mozilla.firefox/.mozilla/firefox"),
    inHome(".var/app/org.mozilla.firefox/config/mozilla/firefox"),
};

/// The links that browsers of the Chromium family make. Those in a Flatpak are left out: they tell the number that the
/// process has inside it.
constexpr std::pair<std::string_view, TracePath> processLinks[] = {
    {chrome, inConfig("google-chrome/SingletonLock")},
    {chromium, inConfig("chromium/SingletonLock")},
    {chromium, inHome("snap/chromium/common/chromium/SingletonLock")},
    {brave, inConfig("BraveSoftware/Brave-Browser/SingletonLock")},
    {edge, inConfig("microsoft-edge/SingletonLock")},
};

std::string pathOf(const TracePath& path, const TracePlaces& homes) {
    switch (path.base) {
        case TraceBase::home:
            break;
        case TraceBase::data:
            return pathIn(homes.xdg.data, path.below);
        case TraceBase::config:
            return pathIn(homes.xdg.config, path.below);
        case TraceBase::cache:
            return pathIn(homes.xdg.cache, path.below);
    }
    return pathIn(homes.home, path.below);
}

/// Whether a folder that a variable names is the home or above it. Then it is no place for the data of programs alone,
/// and a folder in it that is called as a browser may be anything.
bool isTooWide(const TracePath& path, const TracePlaces& homes) {
    return path.base != TraceBase::home && isInFolder(homes.home, normalFolder(pathOf({path.base, {}}, homes)));
}

Trace traceOf(const TraceRow& row, const TracePlaces& homes) {
    Trace trace{.app = std::string(row.app),
                .kind = std::string(row.kind),
                .paths = {},
                .databases = row.databases,
                .guarded = homes.system != SystemKind::macOS && row.kind == cacheKind};
    for (const TracePath& path : row.paths)
        if (!path.below.empty() && !isTooWide(path, homes)) trace.paths.push_back(pathOf(path, homes));
    if (row.app == firefox && row.kind == cookieKind)
        for (const std::string& profile : homes.firefoxProfiles)
            trace.paths.push_back(pathIn(profile, "cookies.sqlite"));
    return trace;
}

template <std::size_t count>
std::vector<Trace> tracesOf(const TraceRow (&rows)[count], const TracePlaces& homes) {
    std::vector<Trace> traces;
    traces.reserve(count);
    for (const TraceRow& row : rows) traces.push_back(traceOf(row, homes));
    return traces;
}

}  // namespace

void Trace::add(const std::string& path, std::uint64_t bytes, const std::vector<std::string>& order) {
    if (!sizes.emplace(path, bytes).second) return;
    size += bytes;
    const auto placeOf = [&](const std::string& one) { return std::find(order.begin(), order.end(), one); };
    const auto later = [&](const std::string& other) { return placeOf(other) > placeOf(path); };
    paths.insert(std::find_if(paths.begin(), paths.end(), later), path);
}

std::vector<Trace> traceTable(const TracePlaces& homes) {
    return homes.system == SystemKind::macOS ? tracesOf(macTable, homes) : tracesOf(linuxTable, homes);
}

std::vector<std::string> firefoxFolders(const TracePlaces& homes) {
    std::vector<std::string> folders;
    if (homes.system != SystemKind::macOS)
        for (const TracePath& path : firefoxLists) folders.push_back(pathOf(path, homes));
    return folders;
}

std::vector<BrowserLock> browserLocks(const TracePlaces& homes) {
    std::vector<BrowserLock> locks;
    if (homes.system == SystemKind::macOS) return locks;
    for (const auto& [app, path] : processLinks)
        locks.push_back({std::string(app), pathOf(path, homes), true, !homes.sandboxed});
    for (const std::string& profile : homes.firefoxProfiles)
        locks.push_back({std::string(firefox), pathIn(profile, ".parentlock"), false});
    return locks;
}

std::string_view desktopIdOf(std::string_view app) {
    return app == gnomeWeb ? "org.gnome.Epiphany" : std::string_view();
}

bool isKept(std::string_view name) {
    constexpr std::string_view keptNames[] = {
        "places.sqlite",      "logins.json",    "logins.db",     "key3.db",     "key4.db",
        "cert9.db",           "profiles.ini",   "Bookmarks",     "Local State", "Preferences",
        "formhistory.sqlite", "bookmarks.gvdb", "browsedata.db", "keyrings",    "kwalletd"};
    constexpr std::string_view keptStarts[] = {"Login Data", "Web Data", "Account Web Data", "AccountBookmarks",
                                               "EncryptedBookmarks"};
    return std::find(std::begin(keptNames), std::end(keptNames), name) != std::end(keptNames) ||
           std::any_of(std::begin(keptStarts), std::end(keptStarts),
                       [&](std::string_view start) { return name.starts_with(start); });
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "reclaim/TraceTable.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/FolderPath.h"

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

using enum TraceBase;

constexpr TraceRow macTable[] = {
    {"Safari",
     cacheKind,
     {{{home, "Library/Caches/com.apple.Safari"}, {home, "Library/Caches/com.apple.WebKit.WebContent"}}}},
    {"Safari", "History", {{{home, "Library/Safari/History.db"}, {home, "Library/Safari/History.db-wal"}}}},
    {"Chrome",
     cacheKind,
     {{{home, "Library/Caches/Google/Chrome"}, {home, "Library/Application Support/Google/Chrome/Default/Cache"}}}},
    {"Chrome", "History", {{{home, "Library/Application Support/Google/Chrome/Default/History"}}}},
    {"Chrome", "Cookies", {{{home, "Library/Application Support/Google/Chrome/Default/Cookies"}}}},
    {"Brave",
     cacheKind,
     {{{home, "Library/Caches/BraveSoftware"},
       {home, "Library/Application Support/BraveSoftware/Brave-Browser/Default/Cache"}}}},
    {"Edge",
     cacheKind,
     {{{home, "Library/Caches/Microsoft Edge"}, {home, "Library/Application Support/Microsoft Edge/Default/Cache"}}}},
    {"Arc", cacheKind, {{{home, "Library/Caches/company.thebrowser.Browser"}}}},
    {"Firefox", cacheKind, {{{home, "Library/Caches/Firefox"}}}},
    {"System", "Recent items", {{{home, "Library/Application Support/com.apple.sharedfilelist"}}}},
};

constexpr std::string_view firefox = "Firefox";
constexpr std::string_view firefoxCookies = "Cookies";

// Firefox's history is not in it: one file holds it and the bookmarks.
constexpr TraceRow linuxTable[] = {
    {"GNOME Web", cacheKind, {{{cache, "epiphany"}, {home, ".var/app/org.gnome.Epiphany/cache/epiphany"}}}},
    {"GNOME Web", "History", {{{data, "epiphany/ephy-history.db"}}}, true},
    {"Chrome", cacheKind, {{{cache, "google-chrome"}, {home, ".var/app/com.google.Chrome/cache/google-chrome"}}}},
    {"Chrome", "History", {{{config, "google-chrome/Default/History"}}}, true},
    {"Chrome", "Cookies", {{{config, "google-chrome/Default/Cookies"}}}, true},
    {"Chromium",
     cacheKind,
     {{{cache, "chromium"},
       {home, "snap/chromium/common/.cache/chromium"},
       {home, ".var/app/org.chromium.Chromium/cache/chromium"}}}},
    {"Chromium",
     "History",
     {{{config, "chromium/Default/History"}, {home, "snap/chromium/common/chromium/Default/History"}}},
     true},
    {"Chromium",
     "Cookies",
     {{{config, "chromium/Default/Cookies"}, {home, "snap/chromium/common/chromium/Default/Cookies"}}},
     true},
    {"Brave", cacheKind, {{{cache, "BraveSoftware"}, {home, ".var/app/com.brave.Browser/cache/BraveSoftware"}}}},
    {"Edge", cacheKind, {{{cache, "microsoft-edge"}}}},
    {firefox,
     cacheKind,
     {{{cache, "mozilla/firefox"},
       {home, "snap/firefox/common/.cache/mozilla/firefox"},
       {home, ".var/app/org.mozilla.firefox/cache/mozilla/firefox"}}}},
    {firefox, firefoxCookies, {}, true},  // in every profile
    {"System", "Recent items", {{{data, "recently-used.xbel"}, {data, "RecentDocuments"}}}},
    {"System", "Thumbnails", {{{cache, "thumbnails"}}}},
};

/// New profiles are made in the first; an older folder stays in use.
constexpr TracePath firefoxLists[] = {
    {config, "mozilla/firefox"},
    {home, ".mozilla/firefox"},
    {home, "snap/firefox/common/.mozilla/firefox"},
    {home, ".var/app/org.mozilla.firefox/.mozilla/firefox"},
    {home, ".var/app/org.mozilla.firefox/config/mozilla/firefox"},
};

/// The links that browsers of the Chromium family make. Those in a Flatpak are left out: they tell the number that the
/// process has inside it.
constexpr std::pair<std::string_view, TracePath> processLinks[] = {
    {"Chrome", {config, "google-chrome/SingletonLock"}},
    {"Chromium", {config, "chromium/SingletonLock"}},
    {"Chromium", {home, "snap/chromium/common/chromium/SingletonLock"}},
    {"Brave", {config, "BraveSoftware/Brave-Browser/SingletonLock"}},
    {"Edge", {config, "microsoft-edge/SingletonLock"}},
};

std::string pathOf(const TracePath& path, const TracePlaces& places) {
    switch (path.base) {
        case TraceBase::home:
            break;
        case TraceBase::data:
            return pathIn(places.xdg.data, path.below);
        case TraceBase::config:
            return pathIn(places.xdg.config, path.below);
        case TraceBase::cache:
            return pathIn(places.xdg.cache, path.below);
    }
    return pathIn(places.home, path.below);
}

Trace traceOf(const TraceRow& row, const TracePlaces& places) {
    Trace trace{.app = std::string(row.app),
                .kind = std::string(row.kind),
                .paths = {},
                .databases = row.databases,
                .guarded = places.system != SystemKind::macOS && row.kind == cacheKind};
    for (const TracePath& path : row.paths)
        if (!path.below.empty()) trace.paths.push_back(pathOf(path, places));
    if (row.app == firefox && row.kind == firefoxCookies)
        for (const std::string& profile : places.firefoxProfiles)
            trace.paths.push_back(pathIn(profile, "cookies.sqlite"));
    return trace;
}

template <std::size_t count>
std::vector<Trace> tracesOf(const TraceRow (&rows)[count], const TracePlaces& places) {
    std::vector<Trace> traces;
    traces.reserve(count);
    for (const TraceRow& row : rows) traces.push_back(traceOf(row, places));
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

std::vector<Trace> traceTable(const TracePlaces& places) {
    return places.system == SystemKind::macOS ? tracesOf(macTable, places) : tracesOf(linuxTable, places);
}

std::vector<std::string> firefoxFolders(const TracePlaces& places) {
    std::vector<std::string> folders;
    if (places.system != SystemKind::macOS)
        for (const TracePath& path : firefoxLists) folders.push_back(pathOf(path, places));
    return folders;
}

std::vector<BrowserLock> browserLocks(const TracePlaces& places) {
    std::vector<BrowserLock> locks;
    if (places.system == SystemKind::macOS) return locks;
    for (const auto& [app, path] : processLinks) locks.push_back({std::string(app), pathOf(path, places), true});
    for (const std::string& profile : places.firefoxProfiles)
        locks.push_back({std::string(firefox), pathIn(profile, ".parentlock"), false});
    return locks;
}

std::string_view desktopIdOf(std::string_view app) {
    return app == "GNOME Web" ? "org.gnome.Epiphany" : std::string_view();
}

bool isKept(std::string_view name) {
    constexpr std::string_view names[] = {
        "places.sqlite",      "logins.json",    "logins.db",     "key3.db",     "key4.db",
        "cert9.db",           "profiles.ini",   "Bookmarks",     "Local State", "Preferences",
        "formhistory.sqlite", "bookmarks.gvdb", "browsedata.db", "keyrings",    "kwalletd"};
    constexpr std::string_view starts[] = {"Login Data", "Web Data"};
    return std::find(std::begin(names), std::end(names), name) != std::end(names) ||
           std::any_of(std::begin(starts), std::end(starts),
                       [&](std::string_view start) { return name.starts_with(start); });
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "reclaim/TraceTable.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

const TracePlaces onMac{SystemKind::macOS, "/Users/me", {}, {}};

TracePlaces onLinux() {
    return {SystemKind::desktopLinux,
            "/home/me",
            {"/home/me/.local/share", "/home/me/.config", "/home/me/.cache", "/home/me/.local/state"},
            {"/home/me/.mozilla/firefox/a", "/data/b"}};
}

struct Expected {
    std::string app;
    std::string kind;
    Strings below;
};

void expectTable(const std::vector<Trace>& table, const std::vector<Expected>& rows, const std::string& above) {
    ASSERT_EQ(table.size(), rows.size());
    for (std::size_t row = 0; row < rows.size(); ++row) {
        EXPECT_EQ(table[row].app, rows[row].app);
        EXPECT_EQ(table[row].kind, rows[row].kind);
        Strings paths;
        for (const std::string& below : rows[row].below) paths.push_back(above + below);
        EXPECT_EQ(table[row].paths, paths) << rows[row].app << rows[row].kind;
        EXPECT_EQ(table[row].size, 0U);
        EXPECT_THAT(table[row].sizes, IsEmpty());
    }
}

TEST(TraceTable, hasTenRowsOnMacOS) {
    expectTable(
        traceTable(onMac),
        {
            {"Safari", "Caches", {"/Library/Caches/com.apple.Safari", "/Library/Caches/com.apple.WebKit.WebContent"}},
            {"Safari", "History", {"/Library/Safari/History.db", "/Library/Safari/History.db-wal"}},
            {"Chrome",
             "Caches",
             {"/Library/Caches/Google/Chrome", "/Library/Application Support/Google/Chrome/Default/Cache"}},
            {"Chrome", "History", {"/Library/Application Support/Google/Chrome/Default/History"}},
            {"Chrome", "Cookies", {"/Library/Application Support/Google/Chrome/Default/Cookies"}},
            {"Brave",
             "Caches",
             {"/Library/Caches/BraveSoftware",
              "/Library/Application Support/BraveSoftware/Brave-Browser/Default/Cache"}},
            {"Edge",
             "Caches",
             {"/Library/Caches/Microsoft Edge", "/Library/Application Support/Microsoft Edge/Default/Cache"}},
            {"Arc", "Caches", {"/Library/Caches/company.thebrowser.Browser"}},
            {"Firefox", "Caches", {"/Library/Caches/Firefox"}},
            {"System", "Recent items", {"/Library/Application Support/com.apple.sharedfilelist"}},
        },
        "/Users/me");
    for (const Trace& trace : traceTable(onMac)) {
        EXPECT_FALSE(trace.databases) << trace.identity() << ": the table names each file";
        EXPECT_FALSE(trace.guarded) << trace.identity();
    }
    EXPECT_THAT(browserLocks(onMac), IsEmpty());
    EXPECT_THAT(firefoxFolders(onMac), IsEmpty());
}

TEST(TraceTable, hasTheFoldersOfLinux) {
    expectTable(
        traceTable(onLinux()),
        {
            {"GNOME Web",
             "Caches",
             {"/home/me/.cache/epiphany", "/home/me/.var/app/org.gnome.Epiphany/cache/epiphany"}},
            {"GNOME Web", "History", {"/home/me/.local/share/epiphany/ephy-history.db"}},
            {"Chrome",
             "Caches",
             {"/home/me/.cache/google-chrome", "/home/me/.var/app/com.google.Chrome/cache/google-chrome"}},
            {"Chrome", "History", {"/home/me/.config/google-chrome/Default/History"}},
            {"Chrome", "Cookies", {"/home/me/.config/google-chrome/Default/Cookies"}},
            {"Chromium",
             "Caches",
             {"/home/me/.cache/chromium", "/home/me/snap/chromium/common/.cache/chromium",
              "/home/me/.var/app/org.chromium.Chromium/cache/chromium"}},
            {"Chromium",
             "History",
             {"/home/me/.config/chromium/Default/History", "/home/me/snap/chromium/common/chromium/Default/History"}},
            {"Chromium",
             "Cookies",
             {"/home/me/.config/chromium/Default/Cookies", "/home/me/snap/chromium/common/chromium/Default/Cookies"}},
            {"Brave",
             "Caches",
             {"/home/me/.cache/BraveSoftware", "/home/me/.var/app/com.brave.Browser/cache/BraveSoftware"}},
            {"Edge", "Caches", {"/home/me/.cache/microsoft-edge"}},
            {"Firefox",
             "Caches",
             {"/home/me/.cache/mozilla/firefox", "/home/me/snap/firefox/common/.cache/mozilla/firefox",
              "/home/me/.var/app/org.mozilla.firefox/cache/mozilla/firefox"}},
            {"Firefox", "Cookies", {"/home/me/.mozilla/firefox/a/cookies.sqlite", "/data/b/cookies.sqlite"}},
            {"System",
             "Recent items",
             {"/home/me/.local/share/recently-used.xbel", "/home/me/.local/share/RecentDocuments"}},
            {"System", "Thumbnails", {"/home/me/.cache/thumbnails"}},
        },
        "");
    Strings databases;
    Strings guarded;
    for (const Trace& trace : traceTable(onLinux())) {
        if (trace.databases) databases.push_back(trace.identity());
        if (trace.guarded) guarded.push_back(trace.identity());
    }
    EXPECT_THAT(databases, ElementsAre("GNOME WebHistory", "ChromeHistory", "ChromeCookies", "ChromiumHistory",
                                       "ChromiumCookies", "FirefoxCookies"));
    EXPECT_THAT(guarded, ElementsAre("GNOME WebCaches", "ChromeCaches", "ChromiumCaches", "BraveCaches", "EdgeCaches",
                                     "FirefoxCaches"));
}

TEST(TraceTable, honoursTheXdgFolders) {
    TracePlaces places = onLinux();
    places.xdg = {"/d", "/c", "/k", "/s"};
    const std::vector<Trace> table = traceTable(places);
    EXPECT_EQ(table[1].paths.front(), "/d/epiphany/ephy-history.db");
    EXPECT_EQ(table[3].paths.front(), "/c/google-chrome/Default/History");
    EXPECT_EQ(table[10].paths.front(), "/k/mozilla/firefox");
    EXPECT_EQ(table[12].paths.front(), "/d/recently-used.xbel");
    EXPECT_EQ(firefoxFolders(places).front(), "/c/mozilla/firefox");
    EXPECT_EQ(browserLocks(places).front().path, "/c/google-chrome/SingletonLock");
}

// A folder in the home that is called "chromium" may be anything.
TEST(TraceTable, hasNothingInAnXdgFolderThatHoldsTheHome) {
    for (const char* wide : {"/home/me", "/home", "/"}) {
        TracePlaces places = onLinux();
        places.xdg.cache = wide;
        for (const Trace& trace : traceTable(places))
            for (const std::string& path : trace.paths)
                EXPECT_TRUE(path.starts_with("/home/me/.") || path.starts_with("/home/me/snap/") ||
                            path.starts_with("/data/b/"))
                    << path;
    }
}

TEST(TraceTable, identitiesAreUniqueAndJoinedWithNothingBetween) {
    for (const TracePlaces& places : {onMac, onLinux()}) {
        std::set<std::string> identities;
        for (const Trace& trace : traceTable(places)) EXPECT_TRUE(identities.insert(trace.identity()).second);
    }
    EXPECT_EQ(traceTable(onMac).front().identity(), "SafariCaches");
}

TEST(TraceTable, looksForFirefoxWhereverPackagesKeepIt) {
    EXPECT_THAT(firefoxFolders(onLinux()), ElementsAre("/home/me/.config/mozilla/firefox", "/home/me/.mozilla/firefox",
                                                       "/home/me/snap/firefox/common/.mozilla/firefox",
                                                       "/home/me/.var/app/org.mozilla.firefox/.mozilla/firefox",
                                                       "/home/me/.var/app/org.mozilla.firefox/config/mozilla/firefox"));
}

TEST(TraceTable, knowsTheLocksOfBrowsers) {
    EXPECT_EQ(browserLocks(onLinux()),
              (std::vector<BrowserLock>{{"Chrome", "/home/me/.config/google-chrome/SingletonLock", true},
                                        {"Chromium", "/home/me/.config/chromium/SingletonLock", true},
                                        {"Chromium", "/home/me/snap/chromium/common/chromium/SingletonLock", true},
                                        {"Brave", "/home/me/.config/BraveSoftware/Brave-Browser/SingletonLock", true},
                                        {"Edge", "/home/me/.config/microsoft-edge/SingletonLock", true},
                                        {"Firefox", "/home/me/.mozilla/firefox/a/.parentlock", false},
                                        {"Firefox", "/data/b/.parentlock", false}}));
}

TEST(TraceTable, onlyGnomeWebIsToldByItsEntry) {
    EXPECT_EQ(desktopIdOf("GNOME Web"), "org.gnome.Epiphany");
    for (const char* app : {"Firefox", "Web", "Chromium", "System", ""}) EXPECT_EQ(desktopIdOf(app), "") << app;
}

/// The files and folders that no path may be, hold, or lie in.
const Strings mustStay = {
    "/home/me/.mozilla/firefox/a/places.sqlite",
    "/home/me/.mozilla/firefox/a/places.sqlite-wal",
    "/home/me/.mozilla/firefox/a/logins.json",
    "/home/me/.mozilla/firefox/a/logins.db",
    "/home/me/.mozilla/firefox/a/key4.db",
    "/home/me/.mozilla/firefox/a/cert9.db",
    "/home/me/.mozilla/firefox/a/formhistory.sqlite",
    "/home/me/.mozilla/firefox/profiles.ini",
    "/data/b/places.sqlite",
    "/home/me/.config/chromium/Local State",
    "/home/me/.config/chromium/Default/Login Data",
    "/home/me/.config/chromium/Default/Login Data For Account",
    "/home/me/.config/chromium/Default/Web Data",
    "/home/me/.config/chromium/Default/Bookmarks",
    "/home/me/.config/chromium/Default/Preferences",
    "/home/me/.config/google-chrome/Local State",
    "/home/me/.config/google-chrome/Default/Login Data",
    "/home/me/.config/google-chrome/Default/Web Data",
    "/home/me/.config/google-chrome/Default/Bookmarks",
    "/home/me/.config/BraveSoftware/Brave-Browser/Default/Login Data",
    "/home/me/.config/microsoft-edge/Default/Login Data",
    "/home/me/snap/chromium/common/chromium/Default/Login Data",
    "/home/me/snap/firefox/common/.mozilla/firefox/a/places.sqlite",
    "/home/me/.var/app/org.mozilla.firefox/.mozilla/firefox/a/places.sqlite",
    "/home/me/.var/app/org.mozilla.firefox/config/mozilla/firefox/a/places.sqlite",
    "/home/me/.var/app/org.chromium.Chromium/config/chromium/Default/Login Data",
    "/home/me/.var/app/com.google.Chrome/config/google-chrome/Default/Login Data",
    "/home/me/.var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser/Default/Login Data",
    "/home/me/.local/share/epiphany/bookmarks.gvdb",
    "/home/me/.config/falkon/profiles/default/browsedata.db",
    "/home/me/.local/share/keyrings",
    "/home/me/.local/share/kwalletd",
};

TEST(TraceTable, namesNothingThatMustStay) {
    for (const Trace& trace : traceTable(onLinux()))
        for (const std::string& path : trace.paths) {
            for (const std::string& kept : mustStay) {
                EXPECT_NE(path, kept);
                EXPECT_FALSE(kept.starts_with(path + "/")) << path << " holds " << kept;
                EXPECT_FALSE(path.starts_with(kept + "/")) << path << " lies in " << kept;
                for (const std::string_view ending : companionEndings)
                    EXPECT_NE(path + std::string(ending), kept) << "a companion";
            }
            EXPECT_FALSE(isKept(path.substr(path.rfind('/') + 1))) << path;
        }
}

TEST(TraceTable, knowsWhatMustStayByName) {
    for (const char* name : {"places.sqlite",
                             "logins.json",
                             "logins.db",
                             "key4.db",
                             "key3.db",
                             "cert9.db",
                             "Login Data",
                             "Login Data-journal",
                             "Login Data For Account",
                             "Web Data",
                             "Account Web Data",
                             "AccountBookmarks",
                             "EncryptedBookmarks2",
                             "Web Data-journal",
                             "Bookmarks",
                             "Local State",
                             "Preferences",
                             "bookmarks.gvdb",
                             "browsedata.db",
                             "keyrings",
                             "kwalletd",
                             "formhistory.sqlite",
                             "profiles.ini"})
        EXPECT_TRUE(isKept(name)) << name;
    for (const char* name : {"", "History", "Cookies", "cookies.sqlite", "Cache", "cache2", "My Login Data",
                             "Bookmarks.desktop", "preferences", "Default"})
        EXPECT_FALSE(isKept(name)) << name;
}

TEST(Trace, addsPathsOnceAndInTheirOrder) {
    Trace trace{.app = "a", .kind = "k", .paths = {}};
    const Strings order{"/1", "/2", "/3"};
    trace.add("/3", 30, order);
    trace.add("/other", 5, order);
    trace.add("/1", 10, order);
    trace.add("/2", 20, order);
    trace.add("/2", 99, order);
    EXPECT_THAT(trace.paths, ElementsAre("/1", "/2", "/3", "/other"));
    EXPECT_EQ(trace.size, 65U);
    EXPECT_EQ(trace.sizes.at("/2"), 20U);
}

}  // namespace
}  // namespace zelk

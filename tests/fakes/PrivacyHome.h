// SPDX-License-Identifier: MIT
// What browsers left behind on a machine in memory.
#pragma once

#include <string>

#include "fakes/FakePlatform.h"

namespace zelk::fakes {

/// "Safari — Caches" of 6 MB in two folders, "Chrome — Caches" of 4 MB, "Safari — History" of 3 MB in two files,
/// "Chrome — Cookies" of 2 MB, "System — Recent items" of 1 MB.
inline void fillWithTraces(FakePlatform& machine) {
    const std::string library = "/home/me/Library/";
    machine.files.addFile(library + "Caches/com.apple.Safari/data", {}, 5'000'000);
    machine.files.addFile(library + "Caches/com.apple.WebKit.WebContent/data", {}, 1'000'000);
    machine.files.addFile(library + "Caches/Google/Chrome/data", {}, 4'000'000);
    machine.files.addFile(library + "Safari/History.db", {}, 2'000'000);
    machine.files.addFile(library + "Safari/History.db-wal", {}, 1'000'000);
    machine.files.addFile(library + "Safari/History.db-shm", {}, 32'768);
    machine.files.addFile(library + "Application Support/Google/Chrome/Default/Cookies", {}, 2'000'000);
    machine.files.addFile(library + "Application Support/com.apple.sharedfilelist/list", {}, 1'000'000);
}

inline const std::string firefoxOfLinux = "/home/me/.config/mozilla/firefox";
inline const std::string chromiumOfLinux = "/home/me/.config/chromium";

/// Makes the machine a Linux one: "Chromium — Caches" of 8 MB, "Firefox — Cookies" of 6 MB in two profiles, "Firefox —
/// Caches" of 5 MB, "GNOME Web — History" of 3 MB, "System — Thumbnails" of 2 MB; and everything that must stay.
inline void fillWithLinuxTraces(FakePlatform& machine) {
    machine.system = SystemKind::desktopLinux;
    const std::string home = "/home/me/";
    machine.locations.xdg = XdgHomes{home + ".local/share", home + ".config", home + ".cache", home + ".local/state"};
    machine.files.addFile("/proc/sys/kernel/hostname", "my-host\n");
    machine.files.addFile(home + ".cache/chromium/Default/Cache/data_0", {}, 8'000'000);
    for (const char* name : {"Local State", "Default/Bookmarks", "Default/Login Data", "Default/Preferences"})
        machine.files.addFile(chromiumOfLinux + "/" + name);
    machine.files.addFile(firefoxOfLinux + "/profiles.ini",
                          "[Install4F96D1932A9F858E]\nDefault=b.used\n\n[Profile1]\nName=default\nIsRelative=1\n"
                          "Path=a.idle\nDefault=1\n\n[Profile0]\nName=default-esr\nIsRelative=1\nPath=b.used\n");
    machine.files.addFile(firefoxOfLinux + "/a.idle/cookies.sqlite", {}, 1'000'000);
    machine.files.addFile(firefoxOfLinux + "/b.used/cookies.sqlite", {}, 3'000'000);
    machine.files.addFile(firefoxOfLinux + "/b.used/cookies.sqlite-wal", {}, 2'000'000);
    for (const char* name : {"places.sqlite", "places.sqlite-wal", "logins.json", "key4.db", "cert9.db", ".parentlock"})
        machine.files.addFile(firefoxOfLinux + "/b.used/" + name);
    machine.files.addFile(home + ".cache/mozilla/firefox/b.used/cache2/entries/0", {}, 5'000'000);
    machine.files.addFile(home + ".local/share/epiphany/ephy-history.db", {}, 2'000'000);
    machine.files.addFile(home + ".local/share/epiphany/ephy-history.db-shm", {}, 1'000'000);
    machine.files.addFile(home + ".local/share/epiphany/bookmarks.gvdb");
    machine.files.addFile(home + ".cache/thumbnails/normal/0.png", {}, 2'000'000);
}

}  // namespace zelk::fakes

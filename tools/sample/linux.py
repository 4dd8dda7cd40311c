# SPDX-License-Identifier: MIT
"""The sample home of a Linux desktop."""
import os
import time
from urllib.parse import quote

from . import common, linux_apps

SHARE = 0.75  # scales the megabytes below, which sum to 8 GB, to about 6 GB

BROWSERS = (
    (".cache/mozilla/firefox/k3x9.default-release/cache2/entries", ".mozilla/firefox/k3x9.default-release",
     ("places.sqlite", "places.sqlite-wal", "cookies.sqlite", "cookies.sqlite-wal"), 120),
    (".cache/google-chrome/Default/Cache/Cache_Data", ".config/google-chrome/Default",
     ("History", "History-journal", "Cookies", "Cookies-journal"), 95),
    (".cache/chromium/Default/Cache/Cache_Data", ".config/chromium/Default", ("History", "Cookies"), 38),
    (".cache/BraveSoftware/Brave-Browser/Default/Cache/Cache_Data", ".config/BraveSoftware/Brave-Browser/Default",
     ("History", "Cookies"), 44),
    (".cache/microsoft-edge/Default/Cache/Cache_Data", ".config/microsoft-edge/Default", ("History", "Cookies"), 26),
)

# The name in the desktop entry, the folder's name, and megabytes of settings, data and cache.
APPLICATIONS = (("Inkwell", "inkwell", 2, 46, 30), ("Sonata", "sonata", 1, 24, 64), ("Tidepool", "tidepool", 1, 90, 12),
                ("Papercrane", "papercrane", 3, 8, 5))


def browsers(plan):
    for cache, profile, databases, megabytes in BROWSERS:
        plan.many(cache, 16, megabytes, lambda n: f"{n * 7919:016X}", (0, 40))
        if cache.endswith("/Cache/Cache_Data"):
            plan.cleanable(os.path.dirname(cache))
        for name in databases:
            plan.file(f"{profile}/{name}", 6, 1)
        # What clearing the databases beside them must leave alone.
        for name in ("logins.json", "key4.db") if "mozilla" in profile else ("Bookmarks", "Login Data", "Web Data"):
            plan.file(f"{profile}/{name}", 0.1, 40)
    # Firefox marks the profile as its default that it does not use.
    plan.text(".mozilla/firefox/profiles.ini",
              "[Install4F96D1932A9F858E]\nDefault=k3x9.default-release\nLocked=1\n\n"
              "[Profile1]\nName=default\nIsRelative=1\nPath=w7qd.default\nDefault=1\n\n"
              "[Profile0]\nName=default-release\nIsRelative=1\nPath=k3x9.default-release\n", 400)
    plan.file(".mozilla/firefox/w7qd.default/cookies.sqlite", 0.5, 400)
    plan.many(".cache/epiphany/WebKitCache/Version 16/Records", 8, 12, lambda n: f"{n * 7919:040X}", (0, 40))
    for ending, megabytes in (("", 4), ("-wal", 1), ("-shm", 0.1)):
        plan.file(f".local/share/epiphany/ephy-history.db{ending}", megabytes, 2)
    plan.file(".local/share/epiphany/bookmarks.gvdb", 0.1, 90)
    plan.text(".local/share/RecentDocuments/Budget.xlsx.desktop",
              "[Desktop Entry]\nType=Link\nName=Budget.xlsx\nURL[$e]=$HOME/Documents/Budget.xlsx\n", 1)
    plan.text(".local/share/recently-used.xbel", '<?xml version="1.0" encoding="UTF-8"?>\n<xbel version="1.0"/>\n', 1)


def applications(plan):
    for name, folder, settings, data, cache in APPLICATIONS:
        plan.text(f".local/share/applications/org.sample.{name}.desktop",
                  f"[Desktop Entry]\nType=Application\nName={name}\nExec=/opt/{folder}/bin/{folder} %U\n"
                  f"Icon={folder}\nCategories=Office;\n", 300)
        plan.file(f".config/{folder}/settings.db", settings, 9)
        plan.many(f".local/share/{folder}", 6, data, lambda n: f"library-{n}.db", (3, 200))
        plan.many(f".cache/{folder}", 8, cache, lambda n: f"{n:04x}.cache", (1, 60))
    # Left over from a removed application.
    plan.many(".config/gone-editor", 5, 14, lambda n: f"state{n}.db", (900, 1000))
    plan.many(".config/Code/CachedData", 5, 48, lambda n: f"{n}.code", (3, 30))
    plan.many(".config/Code/User/workspaceStorage", 5, 9, lambda n: f"{n:08x}/state.vscdb", (3, 300))
    plan.cleanable(".config/Code/User/workspaceStorage")
    for folder, megabytes in (("Cache", 26), ("Code Cache", 14), ("GPUCache", 2), ("Service Worker/CacheStorage", 18)):
        plan.many(f".config/Code/{folder}", 6, megabytes, lambda n: f"data_{n}", (0, 30))
        plan.cleanable(f".config/Code/{folder}")
    plan.text(".config/autostart/org.sample.Sonata.desktop",
              "[Desktop Entry]\nType=Application\nName=Sonata\nExec=/opt/sonata/bin/sonata --hidden\n", 300)
    plan.text(".config/systemd/user/tidepool-sync.service",
              "[Unit]\nDescription=Tidepool sync\n\n[Service]\nExecStart=/opt/tidepool/bin/sync\n\n"
              "[Install]\nWantedBy=default.target\n", 500)


def trash(plan):
    thrown = [("Screenshot.png", 3, 2), ("old-export.mp4", 96, 12), ("notes 2022.txt", 0.1, 40),
              ("Rechnung März.pdf", 2, 5), ("100% done.zip", 54, 21)]
    for name, megabytes, days in thrown:
        plan.file(f".local/share/Trash/files/{name}", megabytes, days + 30)
        information(plan, name, f"Desktop/{name}", days)
    plan.many(".local/share/Trash/files/old-project", 12, 26, lambda n: f"src/file{n}.c", (300, 500))
    information(plan, "old-project", "Projects/old-project", 8)


def information(plan, name, place, days):
    moment = time.strftime("%Y-%m-%dT%H:%M:%S", time.gmtime(plan.now - days * 86400))
    plan.text(f".local/share/Trash/info/{name}.trashinfo",
              f"[Trash Info]\nPath={quote(plan.root + '/' + place)}\nDeletionDate={moment}\n", days)


def fill(plan):
    common.documents(plan, "Documents")
    common.downloads(plan, "Downloads", (("linux-desktop-amd64.iso", 410, 150), ("rescue.img", 96, 700),
                                         ("inkwell_4.2_amd64.deb", 58, 33), ("sonata-2.1.AppImage", 84, 12)))
    common.copies(plan, "Recordings")
    common.films(plan, "Videos")
    common.music(plan, "Music")
    common.pictures(plan, "Pictures")
    common.projects(plan, "Projects")
    common.virtual_machines(plan, "VirtualBox VMs")
    plan.many("Desktop", 6, 12, lambda n: f"Screenshot {n + 1}.png", (1, 90))
    plan.text(".bashrc", "alias ll='ls -l'\n", 900)
    plan.text(".config/user-dirs.dirs", 'XDG_DOWNLOAD_DIR="$HOME/Downloads"\nXDG_VIDEOS_DIR="$HOME/Videos"\n', 900)
    plan.many(".local/share/pnpm/store/v3/files", 30, 90, lambda n: f"{n:02x}/{n * 101:08x}", (2, 200))
    plan.cleanable(".local/share/pnpm/store")
    # A package manager's store has hard links to the projects that use it.
    stored = [path for path in plan.entries if path.startswith(".local/share/pnpm/store/")][:10]
    for number, path in enumerate(stored):
        plan.hard_link(f"Projects/field-notes-app/node_modules/.pnpm/shared-{number}/index.js", path)
    plan.cleanable("Projects/field-notes-app/node_modules")
    plan.many(".cache/thumbnails/large", 40, 16, lambda n: f"{n * 6151:032x}.png", (1, 300))
    plan.many(".cache/yarn/v6", 12, 70, lambda n: f"npm-{n * 311:08x}/package.tgz", (5, 300))
    plan.cleanable(".cache/yarn")
    plan.many("Android/Sdk/system-images/android-34/default/x86_64", 4, 160, lambda n: f"part{n}.img", (90, 200))
    plan.cleanable("Android/Sdk/system-images")
    plan.many(".cache/pip/http-v2", 12, 60, lambda n: f"{n:02x}/{n * 53:08x}.body", (10, 300))
    browsers(plan)
    applications(plan)
    linux_apps.fill(plan)
    trash(plan)

# SPDX-License-Identifier: MIT
"""The sample home of a Mac."""
import plistlib

from . import common

SHARE = 0.6  # scales the megabytes below, which sum to 10 GB, to about 6 GB

LIBRARY_ITEMS = (  # each one reclaimable item: folder, files, megabytes, name, days
    ("Developer/Xcode/DerivedData", 30, 320, "Tides-{:04x}/Build/Products/part{}.o", (1, 40)),
    ("Developer/Xcode/iOS DeviceSupport", 8, 210, "iPhone15,2 17.{} ({:x})/Symbols/cache", (200, 500)),
    ("Developer/CoreSimulator/Devices", 10, 180, "{:08X}-0000/data/image{}.bin", (100, 400)),
    ("Developer/Xcode/Archives", 4, 130, "2024-0{}-12/Tides {}.xcarchive/dSYMs/Tides", (300, 700)),
    ("Android/sdk/system-images", 3, 160, "android-3{}/arm64/system{}.bin", (200, 400)),
    ("pnpm/store/v3/files", 30, 80, "{:02x}/{:08x}", (2, 200)),
    ("Caches/Yarn/v6", 20, 60, "npm-package-{}/{:x}.tgz", (20, 300)),
    ("Caches/CocoaPods/Pods", 10, 45, "Release/Pod{}/{:x}.bin", (90, 300)),
    ("Application Support/MobileSync/Backup", 24, 360, "00008110-0012/{:02x}/{:040x}", (500, 900)),
    ("Containers/com.apple.mail/Data/Library/Mail Downloads", 9, 40, "{:X}/Attachment {}.pdf", (10, 800)),
    ("Caches/com.apple.Music", 12, 55, "fsCachedData/{:08X}-{}", (1, 60)),
    ("Caches/com.apple.podcasts", 6, 70, "episode-{:x}-{}.mp3", (5, 90)),
    ("Caches/com.apple.Photos", 8, 36, "thumb-{}-{:x}", (1, 30)),
)
CLEANED_AS = {"pnpm/store/v3/files": "pnpm", "Caches/Yarn/v6": "Caches/Yarn", "Caches/CocoaPods/Pods": "Caches/CocoaPods"}

BROWSER_CACHES = (("Caches/com.apple.Safari", 70), ("Caches/com.apple.WebKit.WebContent", 24),
                  ("Caches/Google/Chrome", 88), ("Application Support/Google/Chrome/Default/Cache", 42),
                  ("Caches/BraveSoftware", 20), ("Application Support/BraveSoftware/Brave-Browser/Default/Cache", 14),
                  ("Caches/Microsoft Edge", 12), ("Application Support/Microsoft Edge/Default/Cache", 9),
                  ("Caches/company.thebrowser.Browser", 31), ("Caches/Firefox", 47))
BROWSER_FILES = (("Safari/History.db", 18), ("Safari/History.db-wal", 3), ("Safari/Bookmarks.plist", 1),
                 ("Application Support/Google/Chrome/Default/History", 22),
                 ("Application Support/Google/Chrome/Default/Cookies", 4),
                 ("Application Support/com.apple.sharedfilelist/recent.sfl2", 0.2))

# Megabytes of the bundle, and of its files elsewhere.
APPLICATIONS = (("Inkwell", 140, 60), ("Sonata", 96, 110), ("Tidepool", 210, 24), ("Papercrane", 44, 6))


def library(plan):
    for folder, count, megabytes, name, days in LIBRARY_ITEMS:
        plan.many(f"Library/{folder}", count, megabytes, lambda n: name.format(n, n * 4093), days)
        plan.cleanable(f"Library/{CLEANED_AS.get(folder, folder)}")
    editor = "Library/Application Support/Code"
    for folder, megabytes in (("Cache", 38), ("Code Cache", 26), ("GPUCache", 7), ("Service Worker/CacheStorage", 33),
                              ("User/workspaceStorage", 12)):
        plan.many(f"{editor}/{folder}", 8, megabytes, lambda n: f"{n * 8191:016x}", (1, 60))
        plan.cleanable(f"{editor}/{folder}")
    for label, program in (("org.sample.sonata.helper", "/Applications/Sonata.app/Contents/MacOS/helper"),
                           ("org.sample.gone.updater", "/Applications/Gone.app/Contents/MacOS/updater")):
        plan.text(f"Library/LaunchAgents/{label}.plist",
                  plistlib.dumps({"Label": label, "ProgramArguments": [program, "--background"], "RunAtLoad": True}), 500)


def browsers(plan):
    for folder, megabytes in BROWSER_CACHES:
        plan.many(f"Library/{folder}", 10, megabytes, lambda n: f"{n * 7919:016x}", (0, 40))
        if folder.endswith("/Cache"):
            plan.cleanable(f"Library/{folder}")
    for path, megabytes in BROWSER_FILES:
        plan.file(f"Library/{path}", megabytes, 1)


def applications(plan):
    """Application bundles in the home's Applications folder, with their files where an uninstaller looks for them."""
    for name, bundle, kept in APPLICATIONS:
        identifier = f"org.sample.{name.lower()}"
        inside = f"Applications/{name}.app/Contents"
        plan.text(f"{inside}/Info.plist", plistlib.dumps({
            "CFBundleIdentifier": identifier, "CFBundleName": name, "CFBundleExecutable": name,
            "CFBundlePackageType": "APPL", "CFBundleShortVersionString": "4.2", "CFBundleVersion": "4200"}), 200)
        plan.file(f"{inside}/MacOS/{name}", bundle * 0.4, 200)
        plan.many(f"{inside}/Resources", 8, bundle * 0.6, lambda n: f"asset{n}.car", (200, 300))
        plan.many(f"Library/Application Support/{identifier}", 5, kept * 0.5, lambda n: f"store{n}.db", (3, 200))
        plan.many(f"Library/Caches/{identifier}", 5, kept * 0.3, lambda n: f"{n}.cache", (1, 60))
        plan.text(f"Library/Preferences/{identifier}.plist", plistlib.dumps({"launches": 12}), 3)
        plan.file(f"Library/Logs/{identifier}/{name}.log", 0.6, 2)
        plan.file(f"Library/Saved Application State/{identifier}.savedState/windows.plist", 0.1, 2)
        plan.many(f"Library/Containers/{identifier}/Data", 3, kept * 0.1, lambda n: f"{n}.bin", (3, 90))
        plan.file(f"Library/HTTPStorages/{identifier}/httpstorages.sqlite", 0.3, 2)
        plan.file(f"Library/WebKit/{identifier}/WebsiteData/data.db", 0.5, 2)
        plan.file(f"Library/Application Support/{name}/Plug-ins/extra.bundle", kept * 0.1, 90)


def photo_library(plan):
    folder = "Pictures/Photos Library.photoslibrary"
    plan.file(f"{folder}/database/Photos.sqlite", 24, 1)
    plan.many(f"{folder}/originals", 40, 170, lambda n: f"{n % 16:X}/{n * 65537:08X}.heic", (2, 900))


def fill(plan):
    common.documents(plan, "Documents")
    common.downloads(plan, "Downloads", (("Inkwell 4.2.dmg", 128, 33), ("Sonata.pkg", 64, 12),
                                         ("Developer Tools.xip", 190, 400), ("Old system.iso", 220, 1100)))
    common.copies(plan, "Recordings")
    common.films(plan, "Movies")
    common.music(plan, "Music")
    common.pictures(plan, "Pictures")
    photo_library(plan)
    common.projects(plan, "Projects")
    common.virtual_machines(plan, "Virtual Machines")
    plan.file("Library/Containers/com.docker.docker/Data/vms/0/data/Docker.raw", 280, 1)
    plan.file("Backups/Old laptop.sparseimage", 90, 1000)
    plan.many("Desktop", 6, 12, lambda n: f"Screenshot {n + 1}.png", (1, 90))
    plan.text("Desktop/.DS_Store", b"\0\0\0\1Bud1", 1)
    plan.text(".zshrc", "alias ll='ls -l'\n", 900)
    plan.folder("Public", 1400)
    library(plan)
    browsers(plan)
    applications(plan)
    for name, megabytes, days in (("Screenshot.png", 3, 2), ("old export.mp4", 96, 12), ("notes 2022.txt", 0.1, 40),
                                  ("Rechnung März.pdf", 2, 5), ("100% done.zip", 54, 21)):
        plan.file(f".Trash/{name}", megabytes, days + 30)
    plan.many(".Trash/old-project", 12, 26, lambda n: f"src/file{n}.c", (300, 500))
    plan.text(".Trash/.DS_Store", b"\0\0\0\1Bud1", 1)

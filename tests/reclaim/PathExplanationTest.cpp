// SPDX-License-Identifier: MIT
#include "reclaim/PathExplanation.h"

#include <gtest/gtest.h>

#include <vector>

namespace zelk {

namespace {

const std::string explainedHome = "/Users/x";

PathExplanation of(std::string_view path) {
    return explain(path, explainedHome);
}

struct Told {
    std::string path;
    std::string title;
    std::string detail;
    ReclaimSafety safety;
    bool regenerates;
};

constexpr auto safe = ReclaimSafety::safe;
constexpr auto rebuilt = ReclaimSafety::regenerates;
constexpr auto review = ReclaimSafety::review;

}  // namespace

TEST(PathExplanation, explainsKnownPathsVerbatim) {
    const std::string web =
        "Build cache for a Next.js / Turbo / Vercel project. Regenerated on your next dev or build run.";
    const std::string mobile =
        "Build cache for a Gradle / Expo project. Re-downloaded or rebuilt automatically next time.";
    const std::string python =
        "An isolated set of Python packages for a project. Recreate with python -m venv if you delete it.";
    const std::string cloud =
        "Files synced with iCloud Drive. Removing local copies frees space; they stay in the cloud and re-download "
        "on demand.";
    const std::string image =
        "A disk image or virtual-machine disk. Often very large; safe to delete if you no longer need its contents.";
    const std::string archive =
        "A compressed archive or installer. Usually safe to delete once you've extracted or installed what you "
        "needed.";
    const std::vector<Told> table{
        {"/a/node_modules", "node_modules",
         "Installed JavaScript packages for a project. Safe to delete — reinstall with npm/pnpm/yarn install when you "
         "next work on it.",
         rebuilt, true},
        {"/a/DerivedData", "Xcode DerivedData",
         "Xcode's build intermediates and indexes. Safe to delete; Xcode rebuilds them on the next build (the first "
         "build will be slower).",
         safe, true},
        {"/a/.next", ".next", web, rebuilt, true},
        {"/a/.turbo", ".turbo", web, rebuilt, true},
        {"/a/.vercel", ".vercel", web, rebuilt, true},
        {"/a/.gradle", ".gradle", mobile, rebuilt, true},
        {"/a/.expo", ".expo", mobile, rebuilt, true},
        {"/a/.expo-shared", ".expo-shared", mobile, rebuilt, true},
        {"/a/__pycache__", "Python __pycache__",
         "Compiled Python bytecode. Regenerated automatically when you run the code.", safe, true},
        {"/a/.venv", "Python virtual environment", python, review, true},
        {"/a/venv", "Python virtual environment", python, review, true},
        {"/a/target", "Rust target",
         "Compiled Rust build output. Rebuilds with cargo build; the first rebuild will be slower.", rebuilt, true},
        {"/a/.git", "Git repository",
         "The full history of a Git project. Deleting it loses your version history — keep unless you know you don't "
         "need it.",
         review, false},
        {"/u/Library/Caches/app", "App cache",
         "Temporary files an app keeps to load faster. Safe to clear — the app rebuilds what it needs.", safe, true},
        {"/u/Library/Application Support/MobileSync/Backup/1", "iOS device backup",
         "A local backup of an iPhone or iPad. Only delete if you have another backup (iCloud or elsewhere).", review,
         false},
        {"/u/Library/Developer/CoreSimulator", "iOS Simulators",
         "Simulator runtimes and device data for Xcode. Unavailable ones are safe to remove via xcrun simctl delete "
         "unavailable.",
         safe, true},
        {"/u/Library/Containers/app", "Sandboxed app data",
         "A sandboxed app's private data (often including its caches and saved state). Some is regenerated; some is "
         "real user data — review before deleting.",
         review, false},
        {"/u/Library/Application Support/app", "App support files",
         "Data an app stores to work — settings, databases, downloaded assets. May include real user data; review "
         "before deleting.",
         review, false},
        {"/u/Library/Mobile Documents", "iCloud Drive", cloud, review, true},
        {"/u/CloudDocs/x", "iCloud Drive", cloud, review, true},
        {"/u/Library/Logs", "Logs", "Diagnostic logs. Safe to clear.", safe, true},
        {"/a/x.DMG", "Disk image / VM", image, review, false},
        {"/a/x.iso", "Disk image / VM", image, review, false},
        {"/a/x.sparseimage", "Disk image / VM", image, review, false},
        {"/a/x.sparsebundle", "Disk image / VM", image, review, false},
        {"/a/x.img", "Disk image / VM", image, review, false},
        {"/a/x.qcow2", "Disk image / VM", image, review, false},
        {"/a/x.vmdk", "Disk image / VM", image, review, false},
        {"/a/x.vdi", "Disk image / VM", image, review, false},
        {"/a/x.raw", "Disk image / VM", image, review, false},
        {"/a/x.zip", "Archive", archive, review, false},
        {"/a/x.tar", "Archive", archive, review, false},
        {"/a/x.tar.gz", "Archive", archive, review, false},
        {"/a/x.tgz", "Archive", archive, review, false},
        {"/a/x.7z", "Archive", archive, review, false},
        {"/a/x.rar", "Archive", archive, review, false},
        {"/a/x.pkg", "Archive", archive, review, false},
        {"/a/x.xip", "Archive", archive, review, false},
        {explainedHome + "/Downloads", "Downloads",
         "Files you've downloaded. Often safe to clean out, but check for anything you want to keep.", review, false},
        {explainedHome + "/Desktop", "Desktop", "Files on your Desktop — including screenshots, which pile up.", review,
         false},
        {explainedHome + "/Movies", "Movies", "Your videos. Large files live here; review before deleting.", review,
         false},
        {explainedHome + "/Music", "Music", "Your music and audio.", review, false},
        {explainedHome + "/Pictures", "Pictures", "Your photos and the Photos library.", review, false},
        {explainedHome + "/Documents", "Documents", "Your documents.", review, false},
        {"/a/whatever", "whatever",
         "Zelk doesn't have a specific note for this location. Check what's inside before deleting, and prefer moving "
         "to Trash.",
         review, false},
    };
    for (const Told& row : table) {
        const PathExplanation told = of(row.path);
        EXPECT_EQ(told.title, row.title) << row.path;
        EXPECT_EQ(told.detail, row.detail) << row.path;
        EXPECT_EQ(told.safety, row.safety) << row.path;
        EXPECT_EQ(told.regenerates, row.regenerates) << row.path;
    }
}

TEST(PathExplanation, targetIsRustOutputAnywhere) {
    EXPECT_EQ(of("/Users/x/Documents/archery/target").title, "Rust target");
}

TEST(PathExplanation, nameTakesPrecedenceOverLocation) {
    EXPECT_EQ(of("/Users/x/Library/Caches/foo/node_modules").title, "node_modules");
}

TEST(PathExplanation, locationTakesPrecedenceOverExtension) {
    EXPECT_EQ(of("/Users/x/Library/Logs/old.zip").title, "Logs");
}

TEST(PathExplanation, namesAreCaseSensitiveLocationsAreNot) {
    EXPECT_EQ(of("/Users/x/NODE_MODULES").detail, of("/a/whatever").detail);
    EXPECT_EQ(of("/LIBRARY/CACHES/X").title, "App cache");
}

TEST(PathExplanation, leadingDotIsNoExtension) {
    EXPECT_EQ(of("/a/.zip").detail, of("/a/whatever").detail);
    EXPECT_EQ(of("/a/.hidden.zip").title, "Archive");
}

TEST(PathExplanation, trailingSlashDoesNotMatchHomeFolder) {
    const PathExplanation told = of("/Users/x/Downloads/");
    EXPECT_EQ(told.title, "Downloads");
    EXPECT_EQ(told.detail, of("/a/whatever").detail);
}

TEST(PathExplanation, ignoresFoldersOfOtherHomes) {
    EXPECT_EQ(of("/Users/y/Downloads").detail, of("/a/whatever").detail);
    EXPECT_EQ(of("/Users/x/sub/Downloads").detail, of("/a/whatever").detail);
}

TEST(PathExplanation, emptyPathIsThisItem) {
    EXPECT_EQ(of("").title, "This item");
}

TEST(PathExplanation, explainsRoot) {
    EXPECT_EQ(of("/").title, "/");
}

TEST(PathExplanation, keepsNonUtf8Bytes) {
    EXPECT_EQ(of("/a/\xff\xfe").title, "\xff\xfe");
}

TEST(DiskImageAdvice, firstMatchWinsVerbatim) {
    const std::vector<std::pair<std::string, std::string>> table{
        {"/u/Library/Containers/com.docker.docker/Data/vms/0/data/Docker.raw",
         "Docker's disk. Reclaim in Docker Desktop → Settings → Resources, or run: docker system prune"},
        {"/a/DOCKER.RAW",
         "Docker's disk. Reclaim in Docker Desktop → Settings → Resources, or run: docker system prune"},
        {"/u/.android/avd/a.qcow2", "Android emulator disk. Remove unused AVDs in Android Studio's Device Manager."},
        {"/u/AVD/a.img", "Android emulator disk. Remove unused AVDs in Android Studio's Device Manager."},
        {"/a/w.QCOW2", "VM disk. Shut the VM down and compact it from your VM tool (UTM/QEMU)."},
        {"/a/w.vmdk", "VM disk. Power off the VM, then compact from VMware/VirtualBox."},
        {"/a/w.vdi", "VM disk. Power off the VM, then compact from VMware/VirtualBox."},
        {"/a/w.sparseimage", "Sparse disk image. Compact with: hdiutil compact <path>"},
        {"/a/w.dmg", "Installer / disk image. Delete if you no longer need its contents."},
        {"/a/w.iso", "Installer / disk image. Delete if you no longer need its contents."},
        {"/a/w.img", "Large disk image. Delete if unneeded, or compact it from the tool that created it."},
        {"", "Large disk image. Delete if unneeded, or compact it from the tool that created it."},
    };
    for (const auto& [path, advice] : table) EXPECT_EQ(diskImageAdvice(path), advice) << path;
}

}  // namespace zelk

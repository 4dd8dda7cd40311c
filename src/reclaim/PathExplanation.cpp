// SPDX-License-Identifier: MIT
#include "reclaim/PathExplanation.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

#include "platform/Translation.h"

namespace zelk {

namespace {

/// A row of a table. An empty title stands for the last component of the path.
struct Note {
    std::string_view key;
    std::string_view title;
    std::string_view detail;
    ReclaimSafety safety;
    bool regenerates;
};

using enum ReclaimSafety;

constexpr std::string_view webCache = ZELK_TEXT(
    "Reclaim", "Build cache for a Next.js / Turbo / Vercel project. Regenerated on your next dev or build run.");
constexpr std::string_view mobileCache =
    ZELK_TEXT("Reclaim", "Build cache for a Gradle / Expo project. Re-downloaded or rebuilt automatically next time.");
constexpr std::string_view pythonEnvironment = ZELK_TEXT(
    "Reclaim", "An isolated set of Python packages for a project. Recreate with python -m venv if you delete it.");
constexpr std::string_view cloud = ZELK_TEXT("Reclaim",
                                             "Files synced with iCloud Drive. Removing local copies frees space; they "
                                             "stay in the cloud and re-download on demand.");

// Matched against the name.
constexpr std::array names{
    Note{"node_modules", "",
         ZELK_TEXT("Reclaim",
                   "Installed JavaScript packages for a project. Safe to delete — reinstall with npm/pnpm/yarn install "
                   "when you next work on it."),
         regenerates, true},
    Note{"DerivedData", ZELK_TEXT("Reclaim", "Xcode DerivedData"),
         ZELK_TEXT("Reclaim",
                   "Xcode's build intermediates and indexes. Safe to delete; Xcode rebuilds them on the next build "
                   "(the first build will be slower)."),
         safe, true},
    Note{".next", "", webCache, regenerates, true},
    Note{".turbo", "", webCache, regenerates, true},
    Note{".vercel", "", webCache, regenerates, true},
    Note{".gradle", "", mobileCache, regenerates, true},
    Note{".expo", "", mobileCache, regenerates, true},
    Note{".expo-shared", "", mobileCache, regenerates, true},
    Note{"__pycache__", ZELK_TEXT("Reclaim", "Python __pycache__"),
         ZELK_TEXT("Reclaim", "Compiled Python bytecode. Regenerated automatically when you run the code."), safe,
         true},
    Note{".venv", ZELK_TEXT("Reclaim", "Python virtual environment"), pythonEnvironment, review, true},
    Note{"venv", ZELK_TEXT("Reclaim", "Python virtual environment"), pythonEnvironment, review, true},
    Note{"target", ZELK_TEXT("Reclaim", "Rust target"),
         ZELK_TEXT("Reclaim",
                   "Compiled Rust build output. Rebuilds with cargo build; the first rebuild will be slower."),
         regenerates, true},
    Note{".git", ZELK_TEXT("Reclaim", "Git repository"),
         ZELK_TEXT("Reclaim",
                   "The full history of a Git project. Deleting it loses your version history — keep unless you know "
                   "you don't need it."),
         review, false},
};

// Matched as a part of the lower-cased path.
constexpr std::array places{
    Note{"/library/caches/", ZELK_TEXT("Reclaim", "App cache"),
         ZELK_TEXT("Reclaim",
                   "Temporary files an app keeps to load faster. Safe to clear — the app rebuilds what it needs."),
         safe, true},
    Note{
        "/mobilesync/backup", ZELK_TEXT("Reclaim", "iOS device backup"),
        ZELK_TEXT("Reclaim",
                  "A local backup of an iPhone or iPad. Only delete if you have another backup (iCloud or elsewhere)."),
        review, false},
    Note{"/library/developer/coresimulator", ZELK_TEXT("Reclaim", "iOS Simulators"),
         ZELK_TEXT("Reclaim",
                   "Simulator runtimes and device data for Xcode. Unavailable ones are safe to remove via xcrun simctl "
                   "delete unavailable."),
         safe, true},
    Note{"/library/containers/", ZELK_TEXT("Reclaim", "Sandboxed app data"),
         ZELK_TEXT("Reclaim",
                   "A sandboxed app's private data (often including its caches and saved state). Some is regenerated; "
                   "some is real user data — review before deleting."),
         review, false},
    Note{"/library/application support/", ZELK_TEXT("Reclaim", "App support files"),
         ZELK_TEXT("Reclaim",
                   "Data an app stores to work — settings, databases, downloaded assets. May include real user data; "
                   "review before deleting."),
         review, false},
    Note{"/library/mobile documents", ZELK_TEXT("Reclaim", "iCloud Drive"), cloud, review, true},
    Note{"clouddocs", ZELK_TEXT("Reclaim", "iCloud Drive"), cloud, review, true},
    Note{"/library/logs", ZELK_TEXT("Reclaim", "Logs"), ZELK_TEXT("Reclaim", "Diagnostic logs. Safe to clear."), safe,
         true},
};

constexpr Note diskImage{
    "", ZELK_TEXT("Reclaim", "Disk image / VM"),
    ZELK_TEXT(
        "Reclaim",
        "A disk image or virtual-machine disk. Often very large; safe to delete if you no longer need its contents."),
    review, false};
constexpr Note archive{"", ZELK_TEXT("Reclaim", "Archive"),
                       ZELK_TEXT("Reclaim",
                                 "A compressed archive or installer. Usually safe to delete once you've extracted or "
                                 "installed what you needed."),
                       review, false};
constexpr std::array<std::string_view, 9> diskImageExtensions{"dmg",   "iso",  "sparseimage", "sparsebundle", "img",
                                                              "qcow2", "vmdk", "vdi",         "raw"};
constexpr std::array<std::string_view, 8> archiveExtensions{"zip", "tar", "gz", "tgz", "7z", "rar", "pkg", "xip"};

// Matched against the path below the home folder.
constexpr std::array homeFolders{
    Note{"/Downloads", "",
         ZELK_TEXT("Reclaim",
                   "Files you've downloaded. Often safe to clean out, but check for anything you want to keep."),
         review, false},
    Note{"/Desktop", "", ZELK_TEXT("Reclaim", "Files on your Desktop — including screenshots, which pile up."), review,
         false},
    Note{"/Movies", "", ZELK_TEXT("Reclaim", "Your videos. Large files live here; review before deleting."), review,
         false},
    Note{"/Music", "", ZELK_TEXT("Reclaim", "Your music and audio."), review, false},
    Note{"/Pictures", "", ZELK_TEXT("Reclaim", "Your photos and the Photos library."), review, false},
    Note{"/Documents", "", ZELK_TEXT("Reclaim", "Your documents."), review, false},
};

constexpr Note unknown{"", "",
                       ZELK_TEXT("Reclaim",
                                 "Zelk doesn't have a specific note for this location. Check what's inside before "
                                 "deleting, and prefer moving to Trash."),
                       review, false};

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string lowerCased(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), lowered);
    return lower;
}

/// Drops trailing slashes, which are not part of the last component.
std::string_view lastComponent(std::string_view path) {
    const std::size_t end = path.find_last_not_of('/');
    if (end == std::string_view::npos) return path.empty() ? path : path.substr(0, 1);
    path = path.substr(0, end + 1);
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

/// Lower-cased and without its dot. A leading dot does not begin an extension.
std::string extensionOf(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0) return {};
    return lowerCased(name.substr(dot + 1));
}

template <class Matches>
const Note* firstOf(std::span<const Note> notes, Matches matches) {
    const auto found = std::find_if(notes.begin(), notes.end(), matches);
    return found == notes.end() ? nullptr : &*found;
}

bool isOneOf(std::span<const std::string_view> all, std::string_view one) {
    return std::find(all.begin(), all.end(), one) != all.end();
}

const Note& noteOn(std::string_view path, std::string_view name, std::string_view home) {
    const auto named = [&](const Note& note) { return name == note.key; };
    if (const Note* note = firstOf(names, named)) return *note;
    const std::string lower = lowerCased(path);
    const auto within = [&](const Note& note) { return lower.find(note.key) != std::string::npos; };
    if (const Note* note = firstOf(places, within)) return *note;
    const std::string extension = extensionOf(name);
    if (isOneOf(diskImageExtensions, extension)) return diskImage;
    if (isOneOf(archiveExtensions, extension)) return archive;
    const auto ofHome = [&](const Note& note) {
        return path.starts_with(home) && path.substr(home.size()) == note.key;
    };
    if (const Note* note = firstOf(homeFolders, ofHome)) return *note;
    return unknown;
}

}  // namespace

PathExplanation explain(std::string_view path, std::string_view home) {
    const std::string_view name = lastComponent(path);
    const Note& note = noteOn(path, name, home);
    std::string title = note.title.empty() ? std::string(name) : translated("Reclaim", note.title);
    if (title.empty()) title = translated("Reclaim", "This item");
    return {std::move(title), note.detail, note.safety, note.regenerates};
}

std::string_view diskImageAdvice(std::string_view path) {
    const std::string lower = lowerCased(path);
    const auto contains = [&](std::string_view part) { return lower.find(part) != std::string::npos; };
    const std::string_view name = lastComponent(lower);
    const std::string extension = extensionOf(name);
    if (contains("com.docker") || name == "docker.raw")
        return ZELK_TEXT(
            "Reclaim", "Docker's disk. Reclaim in Docker Desktop → Settings → Resources, or run: docker system prune");
    if (contains("/avd/") || contains(".android"))
        return ZELK_TEXT("Reclaim", "Android emulator disk. Remove unused AVDs in Android Studio's Device Manager.");
    if (extension == "qcow2")
        return ZELK_TEXT("Reclaim", "VM disk. Shut the VM down and compact it from your VM tool (UTM/QEMU).");
    if (extension == "vmdk" || extension == "vdi")
        return ZELK_TEXT("Reclaim", "VM disk. Power off the VM, then compact from VMware/VirtualBox.");
    if (extension == "sparseimage")
        return ZELK_TEXT("Reclaim", "Sparse disk image. Compact with: hdiutil compact <path>");
    if (extension == "dmg" || extension == "iso")
        return ZELK_TEXT("Reclaim", "Installer / disk image. Delete if you no longer need its contents.");
    return ZELK_TEXT("Reclaim", "Large disk image. Delete if unneeded, or compact it from the tool that created it.");
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/theme/SystemTexts.h"

#include <QCoreApplication>
#include <array>
#include <cstddef>

namespace zelk {

namespace {

using Texts = SystemTexts;

struct Wordings {
    Texts::Key key;
    const char* macOS;
    const char* desktopLinux;
    const char* flatpak = nullptr;  ///< in its sandbox, where that differs
};

constexpr std::array<Wordings, SystemTexts::keyCount> table{{
    {Texts::WholeComputer, QT_TRANSLATE_NOOP("SystemTexts", "your whole Mac"),
     QT_TRANSLATE_NOOP("SystemTexts", "your whole computer")},
    {Texts::ScanWholeComputer,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Scan your whole Mac and see space by type, the biggest files, and how it changes over time."),
     QT_TRANSLATE_NOOP(
         "SystemTexts",
         "Scan your whole computer and see space by type, the biggest files, and how it changes over time.")},
    {Texts::WelcomeLead, QT_TRANSLATE_NOOP("SystemTexts", "A fast, private way to understand and clean your Mac."),
     QT_TRANSLATE_NOOP("SystemTexts", "A fast, private way to understand and clean your computer.")},
    {Texts::WelcomePrivacy,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Zelk runs entirely on your Mac. Nothing is ever uploaded, and destructive actions always ask "
                       "first."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Zelk runs entirely on your computer. Nothing is ever uploaded, and destructive actions always "
                       "ask first.")},
    {Texts::HealthTitle, QT_TRANSLATE_NOOP("SystemTexts", "Mac health"),
     QT_TRANSLATE_NOOP("SystemTexts", "Computer health")},
    {Texts::HealthCaption, QT_TRANSLATE_NOOP("SystemTexts", "Mac Health"),
     QT_TRANSLATE_NOOP("SystemTexts", "Computer Health")},
    {Texts::HealthScoreTitle, QT_TRANSLATE_NOOP("SystemTexts", "Mac Health Score"),
     QT_TRANSLATE_NOOP("SystemTexts", "Computer Health Score")},
    {Texts::HealthScoreMeaning,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Zelk estimates your Mac's health from free disk space, memory pressure, CPU load, and battery "
                       "— and watches how it trends over time."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Zelk estimates your computer's health from free disk space, memory pressure, CPU load, and "
                       "battery — and watches how it trends over time.")},
    {Texts::HealthGood, QT_TRANSLATE_NOOP("SystemTexts", "Your Mac is in good shape."),
     QT_TRANSLATE_NOOP("SystemTexts", "Your computer is in good shape.")},
    {Texts::ThisComputer, QT_TRANSLATE_NOOP("SystemTexts", "This Mac"),
     QT_TRANSLATE_NOOP("SystemTexts", "This computer")},
    {Texts::SystemName, QT_TRANSLATE_NOOP("SystemTexts", "macOS"), QT_TRANSLATE_NOOP("SystemTexts", "System")},
    {Texts::RevealFile, QT_TRANSLATE_NOOP("SystemTexts", "Reveal in Finder"),
     QT_TRANSLATE_NOOP("SystemTexts", "Reveal in Files")},
    {Texts::TrashLocked, QT_TRANSLATE_NOOP("SystemTexts", "Full Disk Access needed to read the Trash"),
     QT_TRANSLATE_NOOP("SystemTexts", "not yours to read: see who owns its folder")},
    {Texts::UnlockTrash, QT_TRANSLATE_NOOP("SystemTexts", "Grant Access"),
     QT_TRANSLATE_NOOP("SystemTexts", "Show Folder")},
    {Texts::AccessTitle, QT_TRANSLATE_NOOP("SystemTexts", "Zelk needs Full Disk Access"),
     QT_TRANSLATE_NOOP("SystemTexts", "Zelk may not read your whole drive")},
    {Texts::AccessPurpose, QT_TRANSLATE_NOOP("SystemTexts", "to survey your whole drive."),
     QT_TRANSLATE_NOOP("SystemTexts", "Some folders belong to another user.")},
    {Texts::AccessSteps, QT_TRANSLATE_NOOP("SystemTexts", "Open Settings → drag Zelk in → come back."),
     QT_TRANSLATE_NOOP("SystemTexts", "Ask their owner to share them, or go on without them.")},
    {Texts::AccessSettings, QT_TRANSLATE_NOOP("SystemTexts", "Open Settings"), ""},
    {Texts::CheckComputer, QT_TRANSLATE_NOOP("SystemTexts", "Check this Mac"),
     QT_TRANSLATE_NOOP("SystemTexts", "Check this computer")},
    {Texts::FreeMemoryNote, "",
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Drops the caches of files. They count as free already, so the figure “used” will hardly "
                       "move, and files are read from the disk again for a while."),
     QT_TRANSLATE_NOOP("SystemTexts", "Only an administrator can, and nothing in Flatpak’s sandbox can ask for one.")},
    {Texts::SimulatorNote, QT_TRANSLATE_NOOP("SystemTexts", "Removes simulator runtimes macOS no longer lists."),
     QT_TRANSLATE_NOOP("SystemTexts", "Removes simulator runtimes that nothing lists any more.")},
    {Texts::HelpMeasuring,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Open Survey and press Run Survey. Zelk walks your home folder, measuring real allocated size "
                       "and deduping hardlinks so the numbers match Finder."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Open Survey and press Run Survey. Zelk walks your home folder, measuring real allocated size "
                       "and deduping hardlinks so the numbers match du.")},
    {Texts::HelpMenuKeys,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Every module has its own scan button — nothing runs until you ask. Use the Go menu (⌘1–⌘9) or "
                       "the sidebar to move between modules."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Every module has its own scan button — nothing runs until you ask. Use the Go menu "
                       "(Ctrl+1–Ctrl+9) or the sidebar to move between modules.")},
    {Texts::HelpAccess,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Grant Full Disk Access when prompted so Zelk can see your whole drive; without it, some "
                       "protected folders are skipped (that's normal)."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Zelk reads what your user may read; folders that belong to another user or to the system are "
                       "skipped (that's normal).")},
    {Texts::HelpClutter,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Filter by type — video, audio, photos, archives, disk images — and sort by size or age. Reveal "
                       "anything in Finder, or move it to the Trash."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Filter by type — video, audio, photos, archives, disk images — and sort by size or age. Reveal "
                       "anything in Files, or move it to the Trash.")},
    {Texts::HelpTune,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "See memory pressure, free up RAM, flush the DNS cache, and remove startup launch agents. "
                       "Memory and DNS actions ask for administrator permission — Zelk never runs them silently."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "See memory pressure, free up RAM, flush the DNS cache, and remove autostart entries. Freeing "
                       "memory asks for administrator permission — Zelk never runs it silently."),
     QT_TRANSLATE_NOOP(
         "SystemTexts",
         "See memory pressure and remove autostart entries. Freeing memory and flushing the DNS cache take "
         "tools that Flatpak's sandbox does not have.")},
    {Texts::HelpHealth, QT_TRANSLATE_NOOP("SystemTexts", "Live vitals for your Mac."),
     QT_TRANSLATE_NOOP("SystemTexts", "Live vitals for your computer.")},
    {Texts::HelpSnapshots,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Surfaces purgeable space and local APFS snapshots. macOS doesn't report a size per snapshot, "
                       "only whether each is freeable — so Zelk shows the purgeable total and each snapshot's state."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Surfaces purgeable space and local snapshots, where your file system keeps any. A snapshot's "
                       "own size is not always known — so Zelk shows the purgeable total and each snapshot's state."),
     QT_TRANSLATE_NOOP(
         "SystemTexts",
         "Surfaces purgeable space. Snapshots cannot be seen from Flatpak's sandbox, which has none of the "
         "tools that list them.")},
    {Texts::HelpThinning,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Thinning lets macOS choose what to free; deletion is offered only for freeable snapshots, "
                       "behind an administrator prompt."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Thinning lets the system choose what to free; deletion is offered only for freeable snapshots, "
                       "and always asks first."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Thinning and deleting snapshots take those tools too: do it outside, or in a Zelk that is "
                       "installed as a package.")},
    {Texts::HelpPrivacy, QT_TRANSLATE_NOOP("SystemTexts", "Zelk works entirely on your Mac."),
     QT_TRANSLATE_NOOP("SystemTexts", "Zelk works entirely on your computer.")},
    {Texts::HelpPrompts,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default "
                       "to the Trash, and admin actions always go through the standard macOS authorization prompt."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default "
                       "to the Trash, and admin actions always go through your desktop's authorization prompt."),
     QT_TRANSLATE_NOOP(
         "SystemTexts",
         "Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default "
         "to the Trash, and nothing is ever done as an administrator: no prompt reaches Flatpak's sandbox.")},
    {Texts::HelpSandbox,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Zelk is non-sandboxed so it can survey the whole drive; that's why it's distributed directly "
                       "(Developer ID + notarization), not via the App Store."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Zelk is non-sandboxed so it can survey the whole drive; that's why it's distributed as a "
                       "package, not as a sandboxed bundle."),
     QT_TRANSLATE_NOOP(
         "SystemTexts",
         "This Zelk runs in Flatpak's sandbox, with your files opened to it so it can survey them. Tools and "
         "packages of the system stay outside: for those, install Zelk as a package.")},
    {Texts::ImageOfMachine,
     QT_TRANSLATE_NOOP("SystemTexts", "VM disk. Shut the VM down and compact it from your VM tool (UTM/QEMU)."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "VM disk. Shut the VM down, then copy it without its empty space: qemu-img convert -O qcow2 "
                       "<path> <copy>")},
    {Texts::ImageThatGrows, QT_TRANSLATE_NOOP("SystemTexts", "Sparse disk image. Compact with: hdiutil compact <path>"),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Sparse disk image of another system. Compact it there, or delete it if you no longer need its "
                       "contents.")},
    {Texts::SystemLead,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Reconcile the mystery gap — purgeable space, local snapshots, and SIP-protected areas."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Reconcile the mystery gap — purgeable space, local snapshots, and protected areas.")},
    {Texts::PurgeableSpace,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Purgeable space — including freeable snapshots — is reclaimed automatically by macOS under "
                       "pressure. It's not junk."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Purgeable space is what the system would free by itself under pressure. It's not junk. "
                       "Snapshots are no part of it here: each keeps its space until it is removed.")},
    {Texts::SnapshotKind, QT_TRANSLATE_NOOP("SystemTexts", "Time Machine"),
     QT_TRANSLATE_NOOP("SystemTexts", "Snapshot")},
    {Texts::SnapshotSizes,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "macOS doesn't report a size per snapshot — only whether each can be freed. The purgeable total "
                       "above is the number that matters."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "The size of a snapshot is seldom known — only whether each can be freed. What it alone still "
                       "holds is part of the used space above.")},
    {Texts::SnapshotsOfZfs, "",
     QT_TRANSLATE_NOOP("SystemTexts",
                       "These are snapshots of ZFS. Zelk only shows them: remove them with its own tools, which "
                       "know what depends on them.")},
    {Texts::SnapshotsRefused, "",
     QT_TRANSLATE_NOOP(
         "SystemTexts",
         "Snapper keeps snapshots here, but did not show them. It answers those users whom its configuration allows."),
     QT_TRANSLATE_NOOP(
         "SystemTexts",
         "Whether there are snapshots is not known: Flatpak’s sandbox has none of the tools that list them.")},
    {Texts::PreferThinning, QT_TRANSLATE_NOOP("SystemTexts", "Prefer thinning — let macOS choose what to free."),
     QT_TRANSLATE_NOOP("SystemTexts", "Prefer thinning — let snapper choose what to free.")},
    {Texts::ProtectedFolders,
     QT_TRANSLATE_NOOP("SystemTexts",
                       "SIP-protected system folders stay invisible to any userspace app — Zelk can't enumerate them, "
                       "and never claims to. The gap between your survey and the volume total lives there."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "Folders of the system and of other users stay invisible to your user — Zelk can't enumerate "
                       "them, and never claims to. The gap between your survey and the volume total lives there.")},
    {Texts::ReadingApplications, QT_TRANSLATE_NOOP("SystemTexts", "Reading /Applications…"),
     QT_TRANSLATE_NOOP("SystemTexts", "Reading applications…")},
    {Texts::WhereAppsAre, QT_TRANSLATE_NOOP("SystemTexts", "There is no application in the folder Applications."),
     QT_TRANSLATE_NOOP("SystemTexts",
                       "There is no application of flatpak, snap or the distribution, and no AppImage or unpacked "
                       "application in your home folder."),
     QT_TRANSLATE_NOOP(
         "SystemTexts",
         "There is no AppImage or unpacked application in your home folder. Those of flatpak, snap and the "
         "distribution can’t be seen from Flatpak’s sandbox.")},
}};

// One row per key, in the same order.
static_assert([] {
    for (std::size_t row = 0; row < table.size(); ++row)
        if (table[row].key != static_cast<Texts::Key>(row)) return false;
    return true;
}());

#ifdef Q_OS_MACOS
SystemTexts::System shownSystem = SystemTexts::System::macOS;
#else
SystemTexts::System shownSystem = SystemTexts::System::desktopLinux;
#endif

}  // namespace

QString SystemTexts::of(Key key) {
    const char* text = wording(key, shownSystem);
    return *text == '\0' ? QString() : QCoreApplication::translate("SystemTexts", text);
}

QString SystemTexts::worded(std::string_view text) {
    for (int key = 0; key < keyCount; ++key)
        if (text == wording(static_cast<Key>(key), System::macOS)) return of(static_cast<Key>(key));
    return QCoreApplication::translate("Reclaim", std::string(text).c_str());
}

const char* SystemTexts::wording(Key key, System system) {
    const Wordings& row = table[static_cast<std::size_t>(key)];
    if (system == System::macOS) return row.macOS;
    return system == System::flatpak && row.flatpak != nullptr ? row.flatpak : row.desktopLinux;
}

SystemTexts::System SystemTexts::shown() {
    return shownSystem;
}

void SystemTexts::show(System system) {
    shownSystem = system;
}

}  // namespace zelk

#include "moc_SystemTexts.cpp"

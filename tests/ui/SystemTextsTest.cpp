// SPDX-License-Identifier: MIT
#include "ui/theme/SystemTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "TextsOf.h"

namespace zelk {

namespace {

struct Wording {
    SystemTexts::Key key;
    const char* macOS;
    const char* desktopLinux;
};

constexpr Wording wordings[] = {
    {SystemTexts::WholeComputer, "your whole Mac", "your whole computer"},
    {SystemTexts::ScanWholeComputer,
     "Scan your whole Mac and see space by type, the biggest files, and how it changes over time.",
     "Scan your whole computer and see space by type, the biggest files, and how it changes over time."},
    {SystemTexts::WelcomeLead, "A fast, private way to understand and clean your Mac.",
     "A fast, private way to understand and clean your computer."},
    {SystemTexts::WelcomePrivacy,
     "Zelk runs entirely on your Mac. Nothing is ever uploaded, and destructive actions always ask first.",
     "Zelk runs entirely on your computer. Nothing is ever uploaded, and destructive actions always ask first."},
    {SystemTexts::HealthTitle, "Mac health", "Computer health"},
    {SystemTexts::HealthCaption, "Mac Health", "Computer Health"},
    {SystemTexts::HealthScoreTitle, "Mac Health Score", "Computer Health Score"},
    {SystemTexts::HealthScoreMeaning,
     "Zelk estimates your Mac's health from free disk space, memory pressure, CPU load, and battery — and watches how "
     "it trends over time.",
     "Zelk estimates your computer's health from free disk space, memory pressure, CPU load, and battery — and watches "
     "how it trends over time."},
    {SystemTexts::HealthGood, "Your Mac is in good shape.", "Your computer is in good shape."},
    {SystemTexts::ThisComputer, "This Mac", "This computer"},
    {SystemTexts::SystemName, "macOS", "System"},
    {SystemTexts::RevealFile, "Reveal in Finder", "Reveal in Files"},
    {SystemTexts::TrashLocked, "Full Disk Access needed to read the Trash",
     "not yours to read: see who owns its folder"},
    {SystemTexts::UnlockTrash, "Grant Access", "Show Folder"},
    {SystemTexts::AccessTitle, "Zelk needs Full Disk Access", "Zelk may not read your whole drive"},
    {SystemTexts::AccessPurpose, "to survey your whole drive.", "Some folders belong to another user."},
    {SystemTexts::AccessSteps, "Open Settings → drag Zelk in → come back.",
     "Ask their owner to share them, or go on without them."},
    {SystemTexts::AccessSettings, "Open Settings", ""},
    {SystemTexts::CheckComputer, "Check this Mac", "Check this computer"},
    {SystemTexts::FreeMemoryNote, "",
     "Drops the caches of files. They count as free already, so the figure “used” will hardly move, and files are read "
     "from the disk again for a while."},
    {SystemTexts::SimulatorNote, "Removes simulator runtimes macOS no longer lists.",
     "Removes simulator runtimes that nothing lists any more."},
    {SystemTexts::HelpMeasuring,
     "Open Survey and press Run Survey. Zelk walks your home folder, measuring real allocated size and deduping "
     "hardlinks so the numbers match Finder.",
     "Open Survey and press Run Survey. Zelk walks your home folder, measuring real allocated size and deduping "
     "hardlinks so the numbers match du."},
    {SystemTexts::HelpMenuKeys,
     "Every module has its own scan button — nothing runs until you ask. Use the Go menu (⌘1–⌘9) or the sidebar to "
     "move between modules.",
     "Every module has its own scan button — nothing runs until you ask. Use the Go menu (Ctrl+1–Ctrl+9) or the "
     "sidebar to move between modules."},
    {SystemTexts::HelpAccess,
     "Grant Full Disk Access when prompted so Zelk can see your whole drive; without it, some protected folders are "
     "skipped (that's normal).",
     "Zelk reads what your user may read; folders that belong to another user or to the system are skipped (that's "
     "normal)."},
    {SystemTexts::HelpClutter,
     "Filter by type — video, audio, photos, archives, disk images — and sort by size or age. Reveal anything in "
     "Finder, or move it to the Trash.",
     "Filter by type — video, audio, photos, archives, disk images — and sort by size or age. Reveal anything in "
     "Files, or move it to the Trash."},
    {SystemTexts::HelpTune,
     "See memory pressure, free up RAM, flush the DNS cache, and remove startup launch agents. Memory and DNS actions "
     "ask for administrator permission — Zelk never runs them silently.",
     "See memory pressure, free up RAM, flush the DNS cache, and remove autostart entries. Freeing memory asks for "
     "administrator permission — Zelk never runs it silently."},
    {SystemTexts::HelpHealth, "Live vitals for your Mac.", "Live vitals for your computer."},
    {SystemTexts::HelpSnapshots,
     "Surfaces purgeable space and local APFS snapshots. macOS doesn't report a size per snapshot, only whether each "
     "is freeable — so Zelk shows the purgeable total and each snapshot's state.",
     "Surfaces purgeable space and local snapshots, where your file system keeps any. A snapshot's own size is not "
     "always known — so Zelk shows the purgeable total and each snapshot's state."},
    {SystemTexts::HelpThinning,
     "Thinning lets macOS choose what to free; deletion is offered only for freeable snapshots, behind an "
     "administrator prompt.",
     "Thinning lets the system choose what to free; deletion is offered only for freeable snapshots, and always "
     "asks first."},
    {SystemTexts::HelpPrivacy, "Zelk works entirely on your Mac.", "Zelk works entirely on your computer."},
    {SystemTexts::HelpPrompts,
     "Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default to the Trash, and "
     "admin actions always go through the standard macOS authorization prompt.",
     "Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default to the Trash, and "
     "admin actions always go through your desktop's authorization prompt."},
    {SystemTexts::HelpSandbox,
     "Zelk is non-sandboxed so it can survey the whole drive; that's why it's distributed directly (Developer ID + "
     "notarization), not via the App Store.",
     "Zelk is non-sandboxed so it can survey the whole drive; that's why it's distributed as a package, not as a "
     "sandboxed bundle."},
    {SystemTexts::ImageOfMachine, "VM disk. Shut the VM down and compact it from your VM tool (UTM/QEMU).",
     "VM disk. Shut the VM down, then copy it without its empty space: qemu-img convert -O qcow2 <path> <copy>"},
    {SystemTexts::ImageThatGrows, "Sparse disk image. Compact with: hdiutil compact <path>",
     "Sparse disk image of another system. Compact it there, or delete it if you no longer need its contents."},
    {SystemTexts::SystemLead, "Reconcile the mystery gap — purgeable space, local snapshots, and SIP-protected areas.",
     "Reconcile the mystery gap — purgeable space, local snapshots, and protected areas."},
    {SystemTexts::PurgeableSpace,
     "Purgeable space — including freeable snapshots — is reclaimed automatically by macOS under pressure. It's not "
     "junk.",
     "Purgeable space is what the system would free by itself under pressure. It's not junk. Snapshots are no part of "
     "it here: each keeps its space until it is removed."},
    {SystemTexts::SnapshotKind, "Time Machine", "Snapshot"},
    {SystemTexts::SnapshotSizes,
     "macOS doesn't report a size per snapshot — only whether each can be freed. The purgeable total above is the "
     "number that matters.",
     "The size of a snapshot is seldom known — only whether each can be freed. What it alone still holds is part of "
     "the used space above."},
    {SystemTexts::SnapshotsOfZfs, "",
     "These are snapshots of ZFS. Zelk only shows them: remove them with its own tools, which know what depends on "
     "them."},
    {SystemTexts::SnapshotsRefused, "",
     "Snapper keeps snapshots here, but did not show them. It answers those users whom its configuration allows."},
    {SystemTexts::PreferThinning, "Prefer thinning — let macOS choose what to free.",
     "Prefer thinning — let snapper choose what to free."},
    {SystemTexts::ProtectedFolders,
     "SIP-protected system folders stay invisible to any userspace app — Zelk can't enumerate them, and never claims "
     "to. The gap between your survey and the volume total lives there.",
     "Folders of the system and of other users stay invisible to your user — Zelk can't enumerate them, and never "
     "claims to. The gap between your survey and the volume total lives there."},
    {SystemTexts::ReadingApplications, "Reading /Applications…", "Reading applications…"},
    {SystemTexts::WhereAppsAre, "There is no application in the folder Applications.",
     "There is no application of flatpak, snap or the distribution, and no AppImage or unpacked application in your "
     "home folder."},
};

constexpr SystemTexts::System inSandbox = SystemTexts::System::flatpak;

struct SandboxWording {
    SystemTexts::Key key;
    const char* text;
};

constexpr SandboxWording sandboxWordings[] = {
    {SystemTexts::FreeMemoryNote, "Only an administrator can, and nothing in Flatpak’s sandbox can ask for one."},
    {SystemTexts::HelpTune,
     "See memory pressure and remove autostart entries. Freeing memory and flushing the DNS cache take tools that "
     "Flatpak's sandbox does not have."},
    {SystemTexts::HelpSnapshots,
     "Surfaces purgeable space. Snapshots cannot be seen from Flatpak's sandbox, which has none of the tools that list "
     "them."},
    {SystemTexts::HelpThinning,
     "Thinning and deleting snapshots take those tools too: do it outside, or in a Zelk that is installed as a "
     "package."},
    {SystemTexts::HelpPrompts,
     "Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default to the Trash, and "
     "nothing is ever done as an administrator: no prompt reaches Flatpak's sandbox."},
    {SystemTexts::HelpSandbox,
     "This Zelk runs in Flatpak's sandbox, with your files opened to it so it can survey them. Tools and packages of "
     "the system stay outside: for those, install Zelk as a package."},
    {SystemTexts::SnapshotsRefused,
     "Whether there are snapshots is not known: Flatpak’s sandbox has none of the tools that list them."},
    {SystemTexts::WhereAppsAre,
     "There is no AppImage or unpacked application in your home folder. Those of flatpak, snap and the distribution "
     "can’t be seen from Flatpak’s sandbox."},
};

}  // namespace

TEST(SystemTexts, haveWordingForEachSystem) {
    ASSERT_EQ(std::size(wordings), static_cast<std::size_t>(SystemTexts::keyCount));
    for (const Wording& row : wordings) {
        EXPECT_STREQ(SystemTexts::wording(row.key, macOS), row.macOS);
        EXPECT_STREQ(SystemTexts::wording(row.key, desktopLinux), row.desktopLinux);
    }
}

TEST(SystemTexts, sayWhatASandboxCannotAndElseWhatLinuxSays) {
    for (int key = 0; key < SystemTexts::keyCount; ++key) {
        const auto own = std::find_if(std::begin(sandboxWordings), std::end(sandboxWordings),
                                      [key](const SandboxWording& row) { return row.key == key; });
        EXPECT_STREQ(SystemTexts::wording(static_cast<SystemTexts::Key>(key), inSandbox),
                     own != std::end(sandboxWordings)
                         ? own->text
                         : SystemTexts::wording(static_cast<SystemTexts::Key>(key), desktopLinux));
    }
    const TextsOf sandbox(inSandbox);
    EXPECT_EQ(SystemTexts::of(SystemTexts::HealthTitle).toStdString(), "Computer health");
    EXPECT_EQ(SystemTexts::worded("Removes simulator runtimes macOS no longer lists.").toStdString(),
              "Removes simulator runtimes that nothing lists any more.");
}

TEST(SystemTexts, doNotMentionMacOnLinux) {
    for (int key = 0; key < SystemTexts::keyCount; ++key) {
        const std::string text = SystemTexts::wording(static_cast<SystemTexts::Key>(key), desktopLinux);
        for (const char* word : {"Mac", "macOS", "Finder", "Full Disk", "⌘", "APFS", "App Store", "Developer ID",
                                 "Time Machine", "SIP", "hdiutil", "UTM"})
            EXPECT_EQ(text.find(word), std::string::npos) << text;
    }
}

TEST(SystemTexts, followShownSystem) {
    {
        const TextsOf mac(macOS);
        EXPECT_EQ(SystemTexts::of(SystemTexts::HealthTitle).toStdString(), "Mac health");
    }
    const TextsOf here(desktopLinux);
    EXPECT_EQ(SystemTexts::of(SystemTexts::HealthTitle).toStdString(), "Computer health");
    EXPECT_EQ(SystemTexts::of(SystemTexts::AccessSettings), QString());
}

TEST(SystemTexts, defaultToRunningSystem) {
#ifdef Q_OS_MACOS
    EXPECT_EQ(SystemTexts::shown(), macOS);
#else
    EXPECT_EQ(SystemTexts::shown(), desktopLinux);
#endif
}

TEST(SystemTexts, rewordTextsOfLowerLayers) {
    const TextsOf here(desktopLinux);
    EXPECT_EQ(SystemTexts::worded("Removes simulator runtimes macOS no longer lists.").toStdString(),
              "Removes simulator runtimes that nothing lists any more.");
    EXPECT_EQ(SystemTexts::worded("Rebuilt by Photos.").toStdString(), "Rebuilt by Photos.");
    const TextsOf mac(macOS);
    EXPECT_EQ(SystemTexts::worded("Removes simulator runtimes macOS no longer lists.").toStdString(),
              "Removes simulator runtimes macOS no longer lists.");
}

}  // namespace zelk

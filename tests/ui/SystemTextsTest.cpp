// SPDX-License-Identifier: MIT
#include "ui/theme/SystemTexts.h"

#include <gtest/gtest.h>

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
    {SystemTexts::RevealFile, "Reveal in Finder", "Reveal in Files"},
    {SystemTexts::TrashLocked, "Full Disk Access needed to read the Trash",
     "not yours to read: see who owns its folder"},
    {SystemTexts::UnlockTrash, "Grant Access", "Show Folder"},
    {SystemTexts::AccessTitle, "Zelk needs Full Disk Access", "Zelk may not read your whole drive"},
    {SystemTexts::AccessPurpose, "to survey your whole drive.", "Some folders belong to another user."},
    {SystemTexts::AccessSteps, "Open Settings → drag Zelk in → come back.",
     "Ask their owner to share them, or go on without them."},
    {SystemTexts::AccessSettings, "Open Settings", ""},
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
     "See memory pressure, free up RAM, flush the DNS cache, and remove autostart entries. Memory and DNS actions ask "
     "for administrator permission — Zelk never runs them silently."},
    {SystemTexts::HelpHealth, "Live vitals for your Mac.", "Live vitals for your computer."},
    {SystemTexts::HelpSnapshots,
     "Surfaces purgeable space and local APFS snapshots. macOS doesn't report a size per snapshot, only whether each "
     "is freeable — so Zelk shows the purgeable total and each snapshot's state.",
     "Surfaces purgeable space and local snapshots, where your file system keeps any. A snapshot's own size is not "
     "always known — so Zelk shows the purgeable total and each snapshot's state."},
    {SystemTexts::HelpThinning,
     "Thinning lets macOS choose what to free; deletion is offered only for freeable snapshots, behind an "
     "administrator prompt.",
     "Thinning lets the system choose what to free; deletion is offered only for freeable snapshots, behind an "
     "administrator prompt."},
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
};

}  // namespace

TEST(SystemTexts, haveWordingForEachSystem) {
    ASSERT_EQ(std::size(wordings), static_cast<std::size_t>(SystemTexts::keyCount));
    for (const Wording& row : wordings) {
        EXPECT_STREQ(SystemTexts::wording(row.key, macOS), row.macOS);
        EXPECT_STREQ(SystemTexts::wording(row.key, desktopLinux), row.desktopLinux);
    }
}

TEST(SystemTexts, doNotMentionMacOnLinux) {
    for (int key = 0; key < SystemTexts::keyCount; ++key) {
        const std::string text = SystemTexts::wording(static_cast<SystemTexts::Key>(key), desktopLinux);
        for (const char* word : {"Mac", "macOS", "Finder", "Full Disk", "⌘", "APFS", "App Store", "Developer ID"})
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

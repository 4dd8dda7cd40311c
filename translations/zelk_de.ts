<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>About Zelk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chip</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AgentRow</name>
    <message>
        <source>system</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnswerPaper</name>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppRow</name>
    <message>
        <source>Uninstall</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppTexts</name>
    <message>
        <source>flatpak</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>flatpak, all users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>snap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AppImage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unpacked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>removed by flatpak</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>removed by snap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>removed by an administrator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>app %1 · data %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the names of packages</comment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Stays: it is part of the system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stays: needed by %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stays: only %1 can remove it, which is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stays: it is installed more than once. Its own tool can remove one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stays: it belongs to another user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stays: it has changed since it was listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stays: nothing here says what removes it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Moves the app and %1 leftover item(s) to Trash — %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Removes the app through flatpak for all users, for good — %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Removes the app through flatpak for all users, for good, and moves %1 leftover item(s) to Trash — %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Removes the app through flatpak, for good — %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Removes the app through flatpak, for good, and moves %1 leftover item(s) to Trash — %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Removes the app through snap for all users, for good — %1. Snap removes the folder of the app too, and may keep a copy of its data for a while.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes the package for all users, for good, once an administrator agrees — %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Removes the package for all users, for good, once an administrator agrees, and moves %1 leftover item(s) to Trash — %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not removed: an administrator has to agree to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not removed: what removes it could not be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not removed: it is still there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Moved to the Trash: %1 leftover item(s).</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Where they were: %1 leftover item(s).</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AppsPane</name>
    <message>
        <source>Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total footprint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applications</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppsView</name>
    <message>
        <source>No apps found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CapacityCard</name>
    <message>
        <source>Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>purgeable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume capacity unavailable.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryPane</name>
    <message>
        <source>Select:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Safe only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map of the categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Review &amp; Clean</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChangesSheet</name>
    <message>
        <source>What changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>since your previous survey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No notable folder changes since the last survey.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>“%1” is not the path of anything that can be removed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClutterFiles</name>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>opens a menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClutterHead</name>
    <message>
        <source>Clutter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the heaviest files in your survey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oldest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type of files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClutterView</name>
    <message>
        <source>Nothing heavy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No large files turned up in this survey.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>cancelled or failed: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No DNS cache runs here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DevCleanupView</name>
    <message>
        <source>Clean drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to reclaim right now.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceFace</name>
    <message numerus="yes">
        <source>%1 cores</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceHeader</name>
    <message>
        <source>%1 free</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DiskImagesCard</name>
    <message>
        <source>Disk images &amp; VMs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Big disk-image and virtual-machine files. These often hold far more space than they really use — compacting reclaims it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DryRunReview</name>
    <message>
        <source>Review cleanup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What will go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete permanently instead of moving to Trash — irreversible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DryRunSheet</name>
    <message>
        <source>Space reclaimed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved to the Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide what was skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what was skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Trash was emptied. Your free space is now updated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items were moved to the Trash, so they&apos;re recoverable — but your free space won&apos;t change until the Trash is emptied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep in Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emptying…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty Trash &amp; free space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DuplicateRow</name>
    <message>
        <source>Keep first, trash rest</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DuplicateSets</name>
    <message>
        <source>Duplicate sets</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DuplicatesView</name>
    <message>
        <source>No duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No byte-identical files over 2 MB turned up.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExplanationSheet</name>
    <message>
        <source>regenerates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Failure</name>
    <message>
        <source>“%1” couldn’t be moved to the Trash: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” couldn’t be put back: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another volume is mounted there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another volume is mounted in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” couldn’t be opened: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is part of the Trash itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is in the Trash already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” couldn’t be created: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” belongs to another user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” may be changed by others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is a link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is another volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its volume has no place for a Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no longer the Trash of its volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not on the same volume as its Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the Trash is in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The operation couldn’t be completed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder that it was found in is no longer there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” in “%2” couldn’t be removed: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder it was in is no longer there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another folder has taken the place of the one it was in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>something else is there now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no longer in the Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the Trash holds something else in its place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is on another volume than the folder it was in</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Figures</name>
    <message>
        <source>1 byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <comment>a share</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileTypeLook</name>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Archives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FindingsBlock</name>
    <message>
        <source>You can reclaim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Review  →</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Findings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanned storage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reclaim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clutter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FirstRunSheets</name>
    <message>
        <source>waiting for access…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue without it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderPicker</name>
    <message>
        <source>Choose a folder to survey</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GaugeFace</name>
    <message>
        <source>CPU</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 cores</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on battery</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GradeHead</name>
    <message>
        <source>safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pure caches and logs. Zero risk — the app simply rebuilds them as needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>regenerates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build output like node_modules and build caches. Safe to delete; recreated automatically on your next build or install (the first one is slower).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>review</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>May include things you chose to keep — device backups, virtual environments, saved state. Review before removing; left unchecked by default.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What&apos;s safe to remove?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything moves to the Trash, so any removal is reversible until you empty it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only inactive &gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HealthFactsCard</name>
    <message>
        <source>Chip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cores</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uptime</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HealthGradeFace</name>
    <message>
        <source>Excellent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything looks great — plenty of headroom.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A cleanup would help free things up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requires Attention</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worth reclaiming space and easing load.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low on resources — clean up soon.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HealthImproveCard</name>
    <message>
        <source>Improve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>working…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free up RAM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flush DNS cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HealthScoreInfo</name>
    <message>
        <source>Learn more</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HealthScreenModel</name>
    <message>
        <source>%1d %2h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1m</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpTopic</name>
    <message>
        <source>Getting started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk surveys your drive, shows what&apos;s using space, and helps you reclaim it safely.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Survey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The home dashboard — your drive at a glance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The storage ribbon breaks your scanned space down by file type. The finding cards summarise what&apos;s recoverable and route you to the right module.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trends appears once you&apos;ve run two or more surveys, charting how your drive changes over time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reclaim &amp; safety</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear caches, logs, and developer junk — safely.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items are graded: safe (pure cache, zero risk), regenerates (rebuilds on next build/install), and review (may lose non-code state — left unchecked by default).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal mode offers one-click cleaning of safe items and a bubble map of categories; tap a bubble to clean just that category. Developer mode adds per-item control and an age filter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything moves to the Trash by default, so it&apos;s reversible. A dry-run sheet always previews exactly what will be removed before anything happens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clutter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find your largest and oldest files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find byte-identical files and keep just one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only files of the same size are candidates, and only those are hashed (SHA-256), so the scan stays fast. Each set lets you keep the first copy and Trash the rest.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See where your space went.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bubbles sizes each folder as a circle; Browse is a drill-down list with size bars; Map is a treemap. In every mode you can open, reveal, or Trash a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uninstall applications cleanly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists installed apps by size. Uninstalling removes the app and its leftovers — caches, preferences, support files, and saved state — not just the bundle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear browsing traces.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finds caches, histories, and cookies across your browsers, plus recent-item state. Quit a browser before clearing its data so its session isn&apos;t disrupted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk has no malware scanner — that requires a signature database, and a fake one would be worse than none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick performance levers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk, memory, CPU, and battery gauges update every couple of seconds. The Improve section offers one-tap tune-ups and quick links to the relevant modules.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System &amp; snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a treemap can&apos;t show.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Privacy &amp; trust</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Zelk Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Topics</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemPane</name>
    <message>
        <source>Nothing that old</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything found was in use more recently. Move the slider to the left to see it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LargestCard</name>
    <message>
        <source>Largest files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See all</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LensHead</name>
    <message>
        <source>Select:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LensList</name>
    <message>
        <source>What is this? (I)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LensPanes</name>
    <message>
        <source>Nothing to map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folders that take up space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files that lie directly in this folder are counted with it and not listed one by one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Review and Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MemoryCard</name>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free up RAM</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuButton</name>
    <message>
        <source>opens a menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuStrip</name>
    <message>
        <source>Menu bar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrivacyView</name>
    <message>
        <source>browsing traces</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuitSheet</name>
    <message>
        <source>Something is still being removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing more begins. Zelk quits as soon as what has begun is finished.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finish first, and Zelk quits by itself when everything is removed. Stop now, and what has begun is finished while the rest stays where it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finish first</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Reclaim</name>
    <message>
        <source>Build cache for a Next.js / Turbo / Vercel project. Regenerated on your next dev or build run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build cache for a Gradle / Expo project. Re-downloaded or rebuilt automatically next time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An isolated set of Python packages for a project. Recreate with python -m venv if you delete it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files synced with iCloud Drive. Removing local copies frees space; they stay in the cloud and re-download on demand.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed JavaScript packages for a project. Safe to delete — reinstall with npm/pnpm/yarn install when you next work on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xcode DerivedData</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xcode&apos;s build intermediates and indexes. Safe to delete; Xcode rebuilds them on the next build (the first build will be slower).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Python __pycache__</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compiled Python bytecode. Regenerated automatically when you run the code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Python virtual environment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rust target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compiled Rust build output. Rebuilds with cargo build; the first rebuild will be slower.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Git repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The full history of a Git project. Deleting it loses your version history — keep unless you know you don&apos;t need it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temporary files an app keeps to load faster. Safe to clear — the app rebuilds what it needs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iOS device backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A local backup of an iPhone or iPad. Only delete if you have another backup (iCloud or elsewhere).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iOS Simulators</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulator runtimes and device data for Xcode. Unavailable ones are safe to remove via xcrun simctl delete unavailable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sandboxed app data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sandboxed app&apos;s private data (often including its caches and saved state). Some is regenerated; some is real user data — review before deleting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App support files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data an app stores to work — settings, databases, downloaded assets. May include real user data; review before deleting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iCloud Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diagnostic logs. Safe to clear.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk image / VM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A disk image or virtual-machine disk. Often very large; safe to delete if you no longer need its contents.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Archive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A compressed archive or installer. Usually safe to delete once you&apos;ve extracted or installed what you needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files you&apos;ve downloaded. Often safe to clean out, but check for anything you want to keep.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files on your Desktop — including screenshots, which pile up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your videos. Large files live here; review before deleting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your music and audio.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your photos and the Photos library.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your documents.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk doesn&apos;t have a specific note for this location. Check what&apos;s inside before deleting, and prefer moving to Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Docker&apos;s disk. Reclaim in Docker Desktop → Settings → Resources, or run: docker system prune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Android emulator disk. Remove unused AVDs in Android Studio&apos;s Device Manager.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VM disk. Shut the VM down and compact it from your VM tool (UTM/QEMU).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VM disk. Power off the VM, then compact from VMware/VirtualBox.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sparse disk image. Compact with: hdiutil compact &lt;path&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installer / disk image. Delete if you no longer need its contents.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large disk image. Delete if unneeded, or compact it from the tool that created it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>node_modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rebuilds via npm/pnpm install.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xcode rebuilds these on next build.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iOS DeviceSupport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re-created when you attach that iOS version again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unavailable simulators</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes simulator runtimes macOS no longer lists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expo caches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regenerated by the next expo run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradle caches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re-downloaded on next Gradle build.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Android system images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re-downloadable; keep images for active AVDs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pnpm store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pruned with pnpm store prune (preserves hardlinks).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>npm cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleared with npm cache clean --force.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yarn cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re-populated on next install.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CocoaPods cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re-populated on next pod install.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App caches (Electron)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit the app first; covers Cursor, VS Code, Claude, Chrome.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Editor workspace storage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loses per-workspace UI state, not your code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next / Turbo / Vercel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rebuilds on next dev/build.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rebuilds via cargo build.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regenerated automatically.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Python .venv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recreate with python -m venv / your tool.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iOS device backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local iPhone/iPad backups — only remove if you have another backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xcode archives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build archives and dSYMs from past releases.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail downloads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved Mail attachments.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Music &amp; Podcasts cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re-downloaded as needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photos cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rebuilt by Photos.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Safari</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chrome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firefox</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GNOME Web</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chromium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cookies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caches</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RootList</name>
    <message>
        <source>No folders yet. Add one, and a survey walks it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SafetyLook</name>
    <message>
        <source>safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>regenerates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>review</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScanButton</name>
    <message>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>scanning…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>recoverable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>re-run</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenLook</name>
    <message>
        <source>Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>everything at a glance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reclaim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>caches, logs, junk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>browsing traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>startup &amp; memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>uninstall cleanly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clutter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>large &amp; old files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>identical files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>visual map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vitals &amp; tune-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>snapshots &amp; space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what&apos;s included</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Scan roots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete permanently by default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off keeps cleanup reversible (moves to Trash).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re-scan now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expand sidebar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collapse sidebar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Developer view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show developer-focused junk and per-item controls in Reclaim</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnapshotRow</name>
    <message>
        <source>delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnapshotSheet</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnapshotsCard</name>
    <message>
        <source>Local snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removing snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waiting for the system…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload the local snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the snapshots…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No local snapshots. Nothing to thin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thin 5 GB</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SurveyHero</name>
    <message>
        <source>Scan every corner of your drive in seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tap to scan again · details below</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SystemPage</name>
    <message>
        <source>System &amp; snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protected areas</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SystemTexts</name>
    <message>
        <source>This computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>your whole Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>your whole computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan your whole Mac and see space by type, the biggest files, and how it changes over time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan your whole computer and see space by type, the biggest files, and how it changes over time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fast, private way to understand and clean your Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fast, private way to understand and clean your computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk runs entirely on your Mac. Nothing is ever uploaded, and destructive actions always ask first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk runs entirely on your computer. Nothing is ever uploaded, and destructive actions always ask first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mac health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mac Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mac Health Score</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer Health Score</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk estimates your Mac&apos;s health from free disk space, memory pressure, CPU load, and battery — and watches how it trends over time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk estimates your computer&apos;s health from free disk space, memory pressure, CPU load, and battery — and watches how it trends over time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your Mac is in good shape.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your computer is in good shape.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal in Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Disk Access needed to read the Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not yours to read: see who owns its folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk needs Full Disk Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk may not read your whole drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to survey your whole drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some folders belong to another user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings → drag Zelk in → come back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask their owner to share them, or go on without them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check this Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drops the caches of files. They count as free already, so the figure “used” will hardly move, and files are read from the disk again for a while.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes simulator runtimes macOS no longer lists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes simulator runtimes that nothing lists any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Survey and press Run Survey. Zelk walks your home folder, measuring real allocated size and deduping hardlinks so the numbers match Finder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Survey and press Run Survey. Zelk walks your home folder, measuring real allocated size and deduping hardlinks so the numbers match du.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every module has its own scan button — nothing runs until you ask. Use the Go menu (⌘1–⌘9) or the sidebar to move between modules.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every module has its own scan button — nothing runs until you ask. Use the Go menu (Ctrl+1–Ctrl+9) or the sidebar to move between modules.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grant Full Disk Access when prompted so Zelk can see your whole drive; without it, some protected folders are skipped (that&apos;s normal).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk reads what your user may read; folders that belong to another user or to the system are skipped (that&apos;s normal).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by type — video, audio, photos, archives, disk images — and sort by size or age. Reveal anything in Finder, or move it to the Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by type — video, audio, photos, archives, disk images — and sort by size or age. Reveal anything in Files, or move it to the Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See memory pressure, free up RAM, flush the DNS cache, and remove startup launch agents. Memory and DNS actions ask for administrator permission — Zelk never runs them silently.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See memory pressure, free up RAM, flush the DNS cache, and remove autostart entries. Freeing memory asks for administrator permission — Zelk never runs it silently.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live vitals for your Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live vitals for your computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surfaces purgeable space and local APFS snapshots. macOS doesn&apos;t report a size per snapshot, only whether each is freeable — so Zelk shows the purgeable total and each snapshot&apos;s state.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surfaces purgeable space and local snapshots, where your file system keeps any. A snapshot&apos;s own size is not always known — so Zelk shows the purgeable total and each snapshot&apos;s state.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thinning lets macOS choose what to free; deletion is offered only for freeable snapshots, behind an administrator prompt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thinning lets the system choose what to free; deletion is offered only for freeable snapshots, and always asks first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk works entirely on your Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk works entirely on your computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default to the Trash, and admin actions always go through the standard macOS authorization prompt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default to the Trash, and admin actions always go through your desktop&apos;s authorization prompt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk is non-sandboxed so it can survey the whole drive; that&apos;s why it&apos;s distributed directly (Developer ID + notarization), not via the App Store.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk is non-sandboxed so it can survey the whole drive; that&apos;s why it&apos;s distributed as a package, not as a sandboxed bundle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VM disk. Shut the VM down and compact it from your VM tool (UTM/QEMU).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VM disk. Shut the VM down, then copy it without its empty space: qemu-img convert -O qcow2 &lt;path&gt; &lt;copy&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sparse disk image. Compact with: hdiutil compact &lt;path&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sparse disk image of another system. Compact it there, or delete it if you no longer need its contents.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reconcile the mystery gap — purgeable space, local snapshots, and SIP-protected areas.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reconcile the mystery gap — purgeable space, local snapshots, and protected areas.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purgeable space — including freeable snapshots — is reclaimed automatically by macOS under pressure. It&apos;s not junk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purgeable space is what the system would free by itself under pressure. It&apos;s not junk. Snapshots are no part of it here: each keeps its space until it is removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time Machine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>macOS doesn&apos;t report a size per snapshot — only whether each can be freed. The purgeable total above is the number that matters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size of a snapshot is seldom known — only whether each can be freed. What it alone still holds is part of the used space above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These are snapshots of ZFS. Zelk only shows them: remove them with its own tools, which know what depends on them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapper keeps snapshots here, but did not show them. It answers those users whom its configuration allows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prefer thinning — let macOS choose what to free.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prefer thinning — let snapper choose what to free.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SIP-protected system folders stay invisible to any userspace app — Zelk can&apos;t enumerate them, and never claims to. The gap between your survey and the volume total lives there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders of the system and of other users stay invisible to your user — Zelk can&apos;t enumerate them, and never claims to. The gap between your survey and the volume total lives there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading /Applications…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading applications…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no application in the folder Applications.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is none of flatpak, snap or the distribution, and no AppImage or unpacked application in your home folder.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SystemView</name>
    <message>
        <source>System &amp; snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what the treemap can&apos;t show</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolsView</name>
    <message>
        <source>everything Zelk can do</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TracePane</name>
    <message>
        <source>No traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No browser caches or histories to clear.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firefox’s history is not listed: it shares a file with your bookmarks. Clear it in Firefox.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear traces</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrashBanner</name>
    <message>
        <source>Trash</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrendsCard</name>
    <message>
        <source>Trends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What changed since last scan</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TuneHead</name>
    <message>
        <source>Maintenance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waiting for the system…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flush DNS cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processes and apps that run in the background. You may not need all of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TuneLevers</name>
    <message>
        <source>Background items</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TuneView</name>
    <message>
        <source>startup &amp; memory</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UndoBar</name>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UninstallSheet</name>
    <message>
        <source>What will go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WelcomeView</name>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::AgentRows</name>
    <message>
        <source>in place of the system&apos;s own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not removable: without it the system&apos;s own item would start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not removable: it belongs to the system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>system</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::AppCommands</name>
    <message>
        <source>About Zelk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Zelk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run Survey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelk Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::AppModel</name>
    <message numerus="yes">
        <source>%1 items · %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::AppRows</name>
    <message>
        <source>being removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::AppsScreenModel</name>
    <message>
        <source>Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List installed apps by size and uninstall them cleanly — the app plus its leftover caches, preferences, and support files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan applications</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 apps · footprint includes caches, support &amp; containers</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::BubbleNodes</name>
    <message>
        <source>less than 1% of the map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1% of the map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reclaimable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::BubblePicture</name>
    <message>
        <source>%1 · reclaimable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::CategoryList</name>
    <message numerus="yes">
        <source>%1 items</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No categories selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::ChangesModel</name>
    <message>
        <source>Grew (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appeared (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vanished (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::ClutterScreenModel</name>
    <message>
        <source>Clutter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find your largest and oldest files — videos, downloads, disk images, forgotten archives.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find large files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hunting for heavy files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::DiskImageRows</name>
    <message>
        <source>What is %1?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::DryRunModel</name>
    <message>
        <source>%1 to Trash · %2 via command · %3 to recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1 permanently</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2 item</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 · %2 items</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source> · %1 skipped</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::DryRunRows</name>
    <message>
        <source>Trash</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::DuplicateRows</name>
    <message numerus="yes">
        <source>%1 copies · %2 each</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>save %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hard link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep first, trash rest: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::DuplicatesScreenModel</name>
    <message>
        <source>Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find byte-identical files — duplicate downloads, copied media, repeated exports — and keep just one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hashing candidates… this can take a moment</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 sets · %2 recoverable</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::FindingsModel</name>
    <message>
        <source>1 folder could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 folders could not be read.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items of junk</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 large files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>review what landed here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>purgeable &amp; snapshots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to reclaim right now — you scanned %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>across %1 items.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>across %1 items · most space: %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::HealthScreenModel</name>
    <message>
        <source>Reclaim %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find junk to clean</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::ItemList</name>
    <message numerus="yes">
        <source>%1 items selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expanded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quit %1 to clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1d</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::LargeFileRows</name>
    <message>
        <source>today</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1d ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1mo ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1y ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Actions for %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::LensRows</name>
    <message>
        <source>folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ticked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is %1?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::LensScreenModel</name>
    <message>
        <source>Lens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Explore where your space went — a list and a live bubble map, side by side.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run survey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surveying your drive…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surveyed folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 · %2 folders</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in files directly in this folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map of the surveyed folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No items selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 selected · %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::PrivacyScreenModel</name>
    <message>
        <source>Privacy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear browsing traces across your browsers — caches, histories, cookies. No malware scanner (that needs a signature database).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan for traces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning browser traces…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::ReclaimScreenModel</name>
    <message>
        <source>Reclaim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear caches, logs, and developer junk — safely, to the Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan for junk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for reclaimable junk…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::ScanRootList</name>
    <message>
        <source>Remove %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::SettingsScreenModel</name>
    <message>
        <source>Age filter default: all</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Age filter default: %1 days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::SidebarModel</name>
    <message>
        <source>Clean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Explore</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::SnapshotRows</name>
    <message>
        <source>OS update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>freeable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pinned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a date and a time</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete snapshot %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::SnapshotsModel</name>
    <message>
        <source>1 more snapshot is not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 more snapshots are not shown.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Delete this snapshot?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thin the snapshots?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The freeable ones are removed, as many as it takes to have %1 free. They cannot be brought back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is removed for good. It cannot be brought back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” of %2 is removed for good. It cannot be brought back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thin 5 GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was removed is not known: the list could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The snapshot is still there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The snapshot is gone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No snapshot was removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 snapshot was removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n snapshots were removed.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::StatusMenu</name>
    <message>
        <source>Free space: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Zelk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surveying… %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run survey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean safe caches (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Zelk</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::SurveyScreenModel</name>
    <message>
        <source>Reclaim junk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visual map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>scanning…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 recoverable, re-run</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 items</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::SystemScreenModel</name>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run survey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surveying your drive…</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 folders skipped during the scan — normal.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::ToolsScreenModel</name>
    <message>
        <source>Find caches, logs, and developer junk, grouped by safety.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clear it to the Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Explore where space went as bubbles, a drill-down list, or a treemap.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>delete folders you don&apos;t need</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface your largest and oldest files, filterable by type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>move them to the Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find byte-identical files across your folders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keep one copy, trash the rest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live disk, memory, CPU, and battery gauges.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See apps by true footprint and uninstall them with all their leftovers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear browsing traces — caches, histories, cookies — across your browsers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free up memory, flush the DNS cache, and manage startup items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local snapshots, purgeable space, and disk-image / VM bloat.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::TraceRows</name>
    <message>
        <source>quit %1 to clear safely</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::TrashBannerModel</name>
    <message>
        <source>emptying the Trash…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>free it by emptying the Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::TrendsModel</name>
    <message numerus="yes">
        <source>≈ %1 days until full at this rate</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shrank</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>since your last scan · %1 tracked</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::TuneScreenModel</name>
    <message>
        <source>Tune</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check memory pressure, free up RAM, flush caches, and trim startup items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>elevated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>high</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pressure: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background items (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Remove %n selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::UndoBarModel</name>
    <message>
        <source>Restoring…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved to the Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 item was restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n items were restored.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 item stays in the Trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n items stay in the Trash.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>And 1 more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The system did not say where 1 of them is there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The system did not say where %n of them are there.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelk::UninstallModel</name>
    <message>
        <source>Uninstall %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for what it leaves behind…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::UninstallRows</name>
    <message>
        <source>%1 · %2</source>
        <comment>a path, and what becomes of it</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to the Trash</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zelk::WelcomeModel</name>
    <message>
        <source>Welcome to Zelk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See your storage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan your whole drive in seconds, broken down by type and biggest files — with a live bubble map you can drill into.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reclaim space safely</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear caches, junk, duplicates, and forgotten large files. Everything goes to the Trash, so it&apos;s always reversible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Private by design</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

// SPDX-License-Identifier: MIT
// Zelk: surveys a drive, shows what uses the space, and helps to take it back safely.
//
// The map of the house. A folder uses what stands above it, never what stands below.
//
//   platform/    what the rest needs of the operating system, one interface per service (Platform.h holds them all);
//                linux/, macos/ and posix/ are the services, NativePlatform makes those of this system
//   scan/        FSNode is the tree; ParallelWalker fills it; ScanEngine turns roots into a stream of ScanUpdates,
//                which an UpdateQueue carries to the main thread
//   reclaim/     ReclaimCatalogue is the closed table of what may go; ReclaimClassifier finds it in a tree; Cleaner
//                removes it; DuplicateFinder hashes files of equal sizes, and trashDuplicates() keeps one of a set;
//                Leftovers are what an application leaves behind; TraceTable that of browsers, TraceScanner finds and
//                moves that
//   system/      what the machine knows that a scan cannot see: AccessProbe, HealthScore, LocalSnapshot and its
//                sources, BackgroundItems; apps/, which applications are installed, a source per kind; and what needs
//                an administrator: PrivilegedCommands
//   state/       AppModel is the one state that every screen shows: SurveySession runs a survey into SurveyResults,
//                CleanupSession removes, TrashMirror shows the Trash; TuneModel, DuplicatesModel, AppsModel and
//                PrivacyModel hold what their screens found; SurveyHistory is the one file that Zelk writes;
//                MainThreadQueue brings results back from tasks
//   ui/theme/    ZelkTheme's two instances; Theme, Motion, TextScale and ReadingDirection hand to QML what holds on
//                every screen; DisplayText makes of bytes what a person reads; the symbols, one SVG each, and
//                SymbolItem, which tints them
//   ui/controls/ the base controls: role, keyboard and focus ring are solved here
//   ui/charts/   what is painted: CirclePacking and the bubble map over it, ScanButton, ribbon, ring, sparkline
//   ui/screens/  a folder per screen, a model and its view: overview is the home, module the three faces of every
//                screen that looks for something
//   ui/shell/    Shell: the main window and those beside it; DetailPages, the one table of screens; the menus
//                (AppCommands), the sidebar, the status item, the question before an end that comes too soon;
//                SingleInstance lets a second start raise the first
//   app/         this file: makes the platform, the model and the shell, and nothing else
//
// Beside ui/ stands cli/: zelk-survey, the survey for the terminal. Apart from them all stands admin/: zelk-admin, the
// small program that does what only root may on Linux.
//
// Beside src/: tests/ mirrors it and drives the real window in tests/e2e; bench/ measures; tools/ takes its pictures;
// packaging/ makes what is installed.

#include <QApplication>
#include <cstdlib>
#include <optional>

#include "platform/NativePlatform.h"
#include "platform/posix/PosixChildProcess.h"
#include "state/AppModel.h"
#include "state/SettingsPreferences.h"
#include "system/AccessProbe.h"
#include "ui/shell/Application.h"
#include "ui/shell/EndSignals.h"
#include "ui/shell/FolderPicker.h"
#include "ui/shell/NativeApplication.h"
#include "ui/shell/QuitQuestion.h"
#include "ui/shell/ShaderCaches.h"
#include "ui/shell/Shell.h"
#include "ui/shell/SingleInstance.h"
#include "ui/shell/Translations.h"
#include "ui/theme/SystemTexts.h"

namespace {

// How long a cancelled survey may take to let go of the disk before the process ends without it.
constexpr double drainSeconds = 1.5;

}  // namespace

int main(int argc, char** argv) {
    zelk::stopIgnoringChildren();
    zelk::switchOffShaderCachesWhereRoomIsShort();
    zelk::SingleInstance instance;
    if (const std::optional<int> status = instance.exitStatus()) return *status;
    QApplication application(argc, argv);
    const zelk::Translations translations;
    zelk::dressApplication();
    zelk::refuseWindowTabs();
    zelk::NativePlatform native;
    if (native.platform().locations.isSandboxed()) zelk::SystemTexts::show(zelk::SystemTexts::System::flatpak);
    zelk::SettingsPreferences preferences;

    int status = 0;
    {
        const zelk::Platform& platform = native.platform();
        zelk::AppModel model(platform);
        zelk::WindowServices services;
        services.preferences = &preferences;
        services.workspace = &platform.workspace;
        services.accessGranted = [&] { return zelk::hasFullDiskAccess(platform.files, model.home()); };
        services.pickFolder = [&] { return zelk::pickFolder(platform.files); };
        services.quit = &QCoreApplication::quit;
        services.bundle = zelk::applicationBundle();
        zelk::Shell shell(model, services);
        instance.serve(shell);
        const zelk::EndSignals endSignals([&] { shell.main().quitQuestion().quitUnasked(); });
        shell.start();
        status = QApplication::exec();
    }

    // A thread that hangs on a dead network volume still holds the services: leave them to it.
    if (!native.drain(drainSeconds)) std::_Exit(status);
    return status;
}

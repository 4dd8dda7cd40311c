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
//                removes it
//   system/      what the machine knows that a scan cannot see: AccessProbe
//   state/       AppModel is the one state that every screen shows; SurveyHistory is the one file that Zelk writes
//   ui/text/     bytes into what a person reads
//   ui/theme/    ZelkTheme's two instances; DesktopSettings, and Theme, Motion and TextScale, which hand it to QML
//   ui/symbols/  the symbols, one SVG each, and SymbolItem, which tints them
//   ui/components/  the base controls; ScanButton and the Canvas on which it is drawn
//   ui/navigation/  Sidebar and its model; ModuleScaffold, the three faces of every module that looks for something
//   ui/survey/   the home screen: SurveyScreenModel says everything, SurveyView places it
//   ui/bubbles/  CirclePacking, and the map of circles over it: BubbleModel, BubbleChart
//   ui/reclaim/  CategoryList and ItemList, the two ways to choose what goes; DryRunModel, the sheet before it goes
//   ui/lens/     the map of every folder, and what is marked in it
//   ui/clutter/  the heaviest files
//   ui/explanation/  what a path is, and whether it may go
//   ui/tools/, ui/settings/, ui/help/, ui/welcome/  the screens of fixed texts, and the first run
//   ui/shell/    Shell: the main window and those beside it, the menus (AppCommands), the status item (StatusMenu), the
//                question before an end that comes too soon (QuitQuestion)
//   app/         this file: makes the platform, the model and the shell, and nothing else
//
// Beside src/: tests/ mirrors it and drives the real window in tests/e2e; bench/ measures; tools/ takes its pictures.

#include <QApplication>
#include <cstdlib>

#include "platform/NativePlatform.h"
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

namespace {

// How long a cancelled survey may take to let go of the disk before the process ends without it.
constexpr double drainSeconds = 1.5;

}  // namespace

int main(int argc, char** argv) {
    zelk::switchOffShaderCachesWhereRoomIsShort();
    QApplication application(argc, argv);
    zelk::dressApplication();
    zelk::refuseWindowTabs();
    zelk::NativePlatform native;
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
        const zelk::EndSignals endSignals([&] { shell.main().quitQuestion().quitUnasked(); });
        shell.start();
        status = QApplication::exec();
    }

    // A thread that hangs on a dead network volume still holds the services: leave them to it.
    if (!native.drain(drainSeconds)) std::_Exit(status);
    return status;
}

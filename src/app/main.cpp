// SPDX-License-Identifier: MIT
// Zelk: surveys a drive, shows what uses the space, and helps to take it back safely.
//
// The map of the house. A folder uses what stands above it, never what stands below.
//
//   platform/    what the rest needs of the operating system, one interface per service (Platform.h holds them all);
//                linux/, macos/ and posix/ are the services, NativePlatform makes those of this system
//   scan/        FSNode is the tree; ParallelWalker fills it; ScanEngine turns roots into a stream of ScanUpdates,
//                which an UpdateQueue carries to the main thread
//   reclaim/     ReclaimCatalogue is the closed table of what may go; ReclaimClassifier finds it in a tree
//   system/      holds its place: what the machine knows that a scan cannot see will stand here
//   state/       AppModel is the one state that every screen shows; SurveyHistory is the one file that Zelk writes
//   ui/text/     bytes into what a person reads
//   ui/theme/    ZelkTheme's two instances; Theme and Motion hand them to QML
//   ui/symbols/  the symbols, one SVG each, and SymbolItem, which tints them
//   ui/components/  the base controls; ScanButton and the Canvas on which it is drawn
//   ui/survey/   the home screen: SurveyScreenModel says everything, SurveyView places it
//   ui/shell/    MainWindow: the engine, the window and its models
//   app/         this file: makes the platform, the model and the window, and nothing else
//
// Beside src/: tests/ mirrors it and drives the real window in tests/e2e; bench/ measures; tools/ takes its pictures.

#include <QGuiApplication>
#include <cstdlib>

#include "platform/NativePlatform.h"
#include "state/AppModel.h"
#include "ui/shell/Application.h"
#include "ui/shell/MainWindow.h"

namespace {

// How long a cancelled survey may take to let go of the disk before the process ends without it.
constexpr double drainSeconds = 1.5;

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    zelk::dressApplication();
    zelk::NativePlatform native;

    int status = 0;
    {
        zelk::AppModel model(native.platform());
        zelk::MainWindow window(model);
        window.show();
        status = QGuiApplication::exec();
    }

    // A thread that hangs on a dead network volume still holds the services: leave them to it.
    if (!native.drain(drainSeconds)) std::_Exit(status);
    return status;
}

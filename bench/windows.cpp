// SPDX-License-Identifier: MIT
// Measures the resident memory of the real window: at the start, with every screen and window open, and with the
// windows closed again.
//
//     windows [ROOT]
//
// With a ROOT, surveys it first, so that the screens have contents. Uses the real platform, rendered in software
// without a screen. Every step is measured after it has rested.

#include <QApplication>
#include <QElapsedTimer>
#include <QQuickWindow>
#include <cstdio>
#include <cstdlib>
#include <functional>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "ResidentMemory.h"
#include "platform/NativePlatform.h"
#include "state/AppModel.h"
#include "ui/shell/AppCommands.h"
#include "ui/shell/Application.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Shell.h"

namespace {

constexpr int restMilliseconds = 1500;
constexpr zelk::WindowId windows[] = {zelk::WindowId::about, zelk::WindowId::help, zelk::WindowId::settings};

void rest(int milliseconds = restMilliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

void waitFor(const std::function<bool()>& done) {
    while (!done()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

void print(const char* moment) {
    rest();
#ifdef __GLIBC__
    ::malloc_trim(0);  // what is free already is not in use
#endif
    std::printf("%-44s %6.1f MiB\n", moment, residentMebibytes());
}

}  // namespace

int main(int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::setenv("QT_QUICK_BACKEND", "software", 1);
    if (argc > 2) {
        std::fprintf(stderr, "usage: windows [ROOT]\n");
        return 2;
    }
    QApplication application(argc, argv);
    zelk::dressApplication();
    zelk::NativePlatform native;
    zelk::AppModel app(native.platform());
    zelk::WindowServices services;
    services.workspace = &native.platform().workspace;
    services.accessGranted = [] { return true; };
    {
        zelk::Shell shell(app, services);
        shell.start();
        zelk::MainWindow& main = shell.main();
        waitFor([&] { return main.isUp(); });
        print("start");
        if (argc == 2) {
            app.setScanRoots({argv[1]});
            app.startScan();
            waitFor([&] { return app.scanPhase() == zelk::AppModel::ScanPhase::finished; });
            print("after the survey");
        }
        for (const zelk::Screen screen : zelk::allScreens) {
            app.setSelection(screen);
            rest(300);
        }
        print("every screen opened");
        for (const zelk::WindowId id : windows) main.openWindow(id);
        print("and every window");
        for (const zelk::WindowId id : windows)
            if (QQuickWindow* window = main.findWindow(id)) window->close();
        app.setSelection(zelk::Screen::survey);
        print("windows closed");
        for (int round = 0; round < 10; ++round) {
            for (const zelk::WindowId id : windows) main.openWindow(id);
            rest(200);
            for (const zelk::WindowId id : windows)
                if (QQuickWindow* window = main.findWindow(id)) window->close();
            rest(200);
        }
        print("opened and closed ten times more");
    }
    native.drain(2);
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}

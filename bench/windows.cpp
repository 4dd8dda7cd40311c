// SPDX-License-Identifier: MIT
// Measures the resident memory of the real window: at the start, with every screen and window open, and with the
// windows closed again.
//
//     windows [ROOT]
//
// With a ROOT, surveys it first, so that the screens have contents. Uses the real platform, rendered in software
// without a screen unless the environment says otherwise. Every step is measured after it has rested.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QQuickWindow>
#include <cstdio>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "RealWindow.h"
#include "ResidentMemory.h"
#include "ui/shell/AppCommands.h"

namespace {

constexpr int restMilliseconds = 1500;
constexpr zelk::WindowId windows[] = {zelk::WindowId::about, zelk::WindowId::help, zelk::WindowId::settings};

void rest(int milliseconds = restMilliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
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
    if (argc > 2) {
        std::fprintf(stderr, "usage: windows [ROOT]\n");
        return 2;
    }
    const char* const root = argc == 2 ? argv[1] : nullptr;
    zelk::bench::measureRealWindow(argc, argv, [root](zelk::AppModel& app, zelk::MainWindow& main) {
        print("start");
        if (root != nullptr) {
            app.setScanRoots({root});
            app.startScan();
            zelk::bench::waitFor([&] { return app.scanPhase() == zelk::AppModel::ScanPhase::finished; });
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
    });
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "platform/NativePlatform.h"
#include "state/AppModel.h"
#include "ui/shell/Application.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Shell.h"

namespace zelk::bench {

/// Handles events until something holds.
inline void waitFor(const std::function<bool()>& done) {
    while (!done()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

/// Brings the real window up, on the real platform and rendered in software without a screen unless the environment
/// says otherwise, measures it, and ends the process.
[[noreturn]] inline void measureRealWindow(int argc, char** argv,
                                           const std::function<void(AppModel&, MainWindow&)>& measure) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    ::setenv("QT_QUICK_BACKEND", "software", 0);
    QApplication application(argc, argv);
    dressApplication();
    NativePlatform native;
    AppModel app(native.platform());
    WindowServices services;
    services.workspace = &native.platform().workspace;
    services.accessGranted = [] { return true; };
    {
        Shell shell(app, services);
        shell.start();
        waitFor([&] { return shell.main().isUp(); });
        measure(app, shell.main());
    }
    native.drain(2);
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}

}  // namespace zelk::bench

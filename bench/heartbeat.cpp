// SPDX-License-Identifier: MIT
// heartbeat ROOT: surveys ROOT in the real window, drawn by the processor alone, and measures how long the main thread
// keeps a timer waiting meanwhile. Prints one JSON object: milliseconds by which the beats came late.

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "ScratchLocations.h"
#include "platform/NativePlatform.h"
#include "state/AppModel.h"
#include "ui/shell/Application.h"
#include "ui/shell/MainWindow.h"

namespace {

constexpr int beat = 1;  // milliseconds

struct Stalls {
    std::vector<double> milliseconds;

    double at(double share) {
        if (milliseconds.empty()) return 0;
        std::sort(milliseconds.begin(), milliseconds.end());
        return milliseconds[static_cast<std::size_t>(share * static_cast<double>(milliseconds.size() - 1))];
    }
};

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: heartbeat ROOT\n");
        return 2;
    }
    zelk::dressApplication();

    const QTemporaryDir support;
    zelk::NativePlatform native;
    const zelk::Platform& real = native.platform();
    zelk::tour::ScratchLocations locations(real.locations, support.path().toStdString());
    const zelk::Platform platform{real.clock,  real.directories, real.files, real.trash,
                                  real.vitals, locations,        real.tasks};
    {
        zelk::AppModel app(platform);
        app.setScanRoots({std::filesystem::absolute(argv[1]).string()});
        zelk::MainWindow window(app);
        window.show();
        while (!window.window().isExposed()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        window.window().grabWindow();  // what a first frame costs is no part of a survey

        Stalls stalls;
        QElapsedTimer sinceBeat;
        QTimer timer;
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            stalls.milliseconds.push_back(std::max(0.0, static_cast<double>(sinceBeat.nsecsElapsed()) / 1e6 - beat));
            sinceBeat.restart();
        });
        QElapsedTimer whole;
        whole.start();
        sinceBeat.start();
        timer.start(beat);
        app.startScan();
        while (app.scanPhase() == zelk::AppModel::ScanPhase::scanning)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const double seconds = static_cast<double>(whole.nsecsElapsed()) / 1e9;
        const double toEnd = static_cast<double>(sinceBeat.nsecsElapsed()) / 1e6;
        stalls.milliseconds.push_back(std::max(0.0, toEnd - beat));

        std::printf(
            "{\"items\":%lld,\"seconds\":%.3f,\"beats\":%zu,\"medianStallMs\":%.3f,\"p99StallMs\":%.3f,"
            "\"worstStallMs\":%.3f}\n",
            static_cast<long long>(app.itemsScanned()), seconds, stalls.milliseconds.size(), stalls.at(0.5),
            stalls.at(0.99), stalls.at(1));
    }
    if (!native.drain(10)) std::_Exit(EXIT_SUCCESS);
    return EXIT_SUCCESS;
}

// SPDX-License-Identifier: MIT
// heartbeat ROOT: surveys ROOT in the real window, drawn by the processor alone, and measures how long the main thread
// keeps a timer waiting meanwhile. Prints one JSON object: milliseconds by which the beats came late, when the worst of
// them came, and the most processor time that the main thread took between two beats. The last is the window's own
// doing; a stall beyond it is that of a busy machine, or of a wait that should not be there.

#include <time.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <utility>
#include <vector>

#include "ScratchLocations.h"
#include "platform/NativePlatform.h"
#include "state/AppModel.h"
#include "ui/shell/Application.h"
#include "ui/shell/MainWindow.h"

namespace {

constexpr int beat = 1;  // milliseconds

double threadMilliseconds() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Notes every beat of the main thread.
class Heart {
public:
    void start() {
        whole_.start();
        sinceBeat_.start();
        processor_ = threadMilliseconds();
    }

    void beatNow() {
        const double late = std::max(0.0, static_cast<double>(sinceBeat_.nsecsElapsed()) / 1e6 - beat);
        if (late > worst) {
            worst = late;
            worstAt = seconds();
        }
        stalls_.push_back(late);
        const double processor = threadMilliseconds();
        worstBusy = std::max(worstBusy, processor - std::exchange(processor_, processor));
        sinceBeat_.restart();
    }

    double seconds() const { return static_cast<double>(whole_.nsecsElapsed()) / 1e9; }
    std::size_t beats() const { return stalls_.size(); }
    /// The stall that `share` of all do not exceed.
    double quantile(double share) {
        std::sort(stalls_.begin(), stalls_.end());
        return stalls_[static_cast<std::size_t>(share * static_cast<double>(stalls_.size() - 1))];
    }

    double worst = 0;
    double worstAt = 0;  ///< seconds
    double worstBusy = 0;

private:
    QElapsedTimer whole_;
    QElapsedTimer sinceBeat_;
    double processor_ = 0;
    std::vector<double> stalls_;
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
    const zelk::Platform platform{real.clock, real.directories, real.files,     real.trash,    real.vitals,
                                  locations,  real.tasks,       real.processes, real.workspace};
    {
        zelk::AppModel app(platform);
        app.setScanRoots({std::filesystem::absolute(argv[1]).string()});
        zelk::MainWindow window(app);
        window.show();
        while (!window.window().isExposed()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        window.window().grabWindow();  // what a first frame costs is no part of a survey

        Heart heart;
        QTimer timer;
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, &timer, [&heart] { heart.beatNow(); });
        heart.start();
        timer.start(beat);
        app.startScan();
        while (app.scanPhase() == zelk::AppModel::ScanPhase::scanning)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        heart.beatNow();

        std::printf(
            "{\"items\":%lld,\"seconds\":%.3f,\"beats\":%zu,\"medianStallMs\":%.3f,\"p99StallMs\":%.3f,"
            "\"worstStallMs\":%.3f,\"worstStallAtSeconds\":%.3f,\"worstBusyMs\":%.3f}\n",
            static_cast<long long>(app.itemsScanned()), heart.seconds(), heart.beats(), heart.quantile(0.5),
            heart.quantile(0.99), heart.worst, heart.worstAt, heart.worstBusy);
    }
    if (!native.drain(10)) std::_Exit(EXIT_SUCCESS);
    return EXIT_SUCCESS;
}

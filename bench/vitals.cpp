// SPDX-License-Identifier: MIT
// Measures what the Health screen costs while somebody looks at it and while nobody does: processor time as a share of
// one core, and the memory in use by the program's own objects, which must not grow.
//
//     vitals [SAMPLES]
//
// Uses the real platform, rendered in software without a screen. Each part lasts SAMPLES intervals of two seconds,
// after as many as it takes for the gauges to come to rest.

#include <QElapsedTimer>
#include <QEventLoop>
#include <QQuickWindow>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "ProcessorTime.h"
#include "RealWindow.h"

namespace {

constexpr int sampleMilliseconds = 2000;
constexpr int settlingSamples = 4;

/// Sleeps between events, as the application does.
void run(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// What is allocated and not freed; 0 where the C library does not say.
double kibibytesInUse() {
#ifdef __GLIBC__
    return static_cast<double>(::mallinfo2().uordblks) / 1024;
#else
    return 0;
#endif
}

void measure(const char* state, int samples) {
    run(settlingSamples * sampleMilliseconds);
    const double memory = kibibytesInUse();
    const double before = zelk::bench::processorMilliseconds();
    QElapsedTimer timer;
    timer.start();
    run(samples * sampleMilliseconds);
    const double used = zelk::bench::processorMilliseconds() - before;
    const double share = used / (static_cast<double>(timer.nsecsElapsed()) * 1e-6);
    std::printf("%-24s %6.3f%% of a core, %+.1f KiB over %d samples\n", state, share * 100, kibibytesInUse() - memory,
                samples);
}

}  // namespace

int main(int argc, char** argv) {
    const int samples = argc == 2 ? std::atoi(argv[1]) : 30;
    if (argc > 2 || samples < 1) {
        std::fprintf(stderr, "usage: vitals [SAMPLES]\n");
        return 2;
    }
    zelk::bench::measureRealWindow(argc, argv, [samples](zelk::AppModel& app, zelk::MainWindow& main) {
        measure("the overview", samples);
        app.setSelection(zelk::Screen::health);
        measure("Health, seen", samples);
        main.window().showMinimized();
        measure("Health, minimised", samples);
    });
}

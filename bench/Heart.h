// SPDX-License-Identifier: MIT
#pragma once

#include <time.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

namespace zelk::bench {

/// A timer on the main thread that records how late each beat is.
class Heart {
public:
    /// Called on every beat.
    std::function<void()> atBeat = [] {};

    /// Beats in the main thread's event loop until `ended` returns true.
    template <class Ended>
    void beatUntil(Ended ended) {
        QTimer timer;
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { beatNow(); });
        timer.start(beat);
        while (!ended()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        beatNow();
    }

    /// Call before the measured work.
    void start() {
        whole_.start();
        sinceBeat_.start();
        processor_ = threadMilliseconds();
    }

    /// The results as members of a JSON object.
    void print() {
        std::printf(
            "\"seconds\":%.3f,\"beats\":%zu,\"medianStallMs\":%.3f,\"p99StallMs\":%.3f,\"worstStallMs\":%.3f,"
            "\"worstStallAtSeconds\":%.3f,\"worstBusyMs\":%.3f",
            seconds(), stalls_.size(), quantile(0.5), quantile(0.99), worst_, worstAt_, worstBusy_);
    }

private:
    static constexpr int beat = 1;  // milliseconds

    static double threadMilliseconds() {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    void beatNow() {
        const double late = std::max(0.0, static_cast<double>(sinceBeat_.nsecsElapsed()) / 1e6 - beat);
        if (late > worst_) {
            worst_ = late;
            worstAt_ = seconds();
        }
        stalls_.push_back(late);
        const double processor = threadMilliseconds();
        worstBusy_ = std::max(worstBusy_, processor - std::exchange(processor_, processor));
        atBeat();
        sinceBeat_.restart();
    }

    double seconds() const { return static_cast<double>(whole_.nsecsElapsed()) / 1e9; }
    /// The stall that a share `share` of all beats does not exceed.
    double quantile(double share) {
        std::sort(stalls_.begin(), stalls_.end());
        return stalls_[static_cast<std::size_t>(share * static_cast<double>(stalls_.size() - 1))];
    }

    double worst_ = 0;
    double worstAt_ = 0;  // seconds
    double worstBusy_ = 0;
    QElapsedTimer whole_;
    QElapsedTimer sinceBeat_;
    double processor_ = 0;
    std::vector<double> stalls_;
};

}  // namespace zelk::bench

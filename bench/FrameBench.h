// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QQuickWindow>
#include <algorithm>
#include <cstdio>
#include <functional>

namespace zelk::bench {

/// Measures how long actions block the main thread of a window that is rendered in software, and prints milliseconds.
class FrameBench {
public:
    explicit FrameBench(QQuickWindow& window) : window_(window) {}

    /// Measures `action` repeatedly, each time with the resulting frame.
    void measure(const char* what, int rounds, const std::function<void(int)>& action) {
        double sum = 0;
        double worst = 0;
        for (int round = 0; round < rounds; ++round) {
            QElapsedTimer time;
            time.start();
            action(round);
            QCoreApplication::processEvents();
            window_.grabWindow();
            const double took = static_cast<double>(time.nsecsElapsed()) / 1e6;
            sum += took;
            worst = std::max(worst, took);
        }
        std::printf("%-28s %8.2f ms, at worst %8.2f ms\n", what, sum / rounds, worst);
    }

private:
    QQuickWindow& window_;
};

}  // namespace zelk::bench

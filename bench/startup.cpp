// SPDX-License-Identifier: MIT
// Compares the start of Zelk with the smallest window of Qt Quick Controls: the time from process start to the first
// painted frame and to the first complete one, and the memory once the window is idle. Uses the real window and
// platform without a survey and the first-run pages, rendered in software without a screen.
//
//     startup [--rounds N]
//
// Every figure is the median of N processes of each kind, started alternately so that load affects both. Memory is the
// resident set, counting each page fully: the proportional set would change with every other program that has Qt
// loaded.

#include <time.h>

#include <QApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Median.h"
#include "OwnProcess.h"
#include "ResidentMemory.h"
#include "platform/NativePlatform.h"
#include "state/AppModel.h"
#include "system/AccessProbe.h"
#include "ui/shell/Application.h"
#include "ui/shell/Shell.h"

namespace {

constexpr double mostTimes = 1.3;  // times the empty window's time
constexpr double mostAbove = 40;   // MiB above the empty window's memory
constexpr int restMilliseconds = 1000;

struct Cost {
    double milliseconds = 0;
    double millisecondsToAll = 0;
    double mebibytes = 0;
};

/// Nanoseconds of a clock that is shared by all processes.
long long now() {
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * 1'000'000'000LL + time.tv_nsec;
}

/// Runs the event loop until the window is painted and idle, and prints the results.
void reportOf(QQuickWindow& window, long long started, const std::function<bool()>& complete) {
    long long first = 0;
    long long all = 0;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&] {
        if (complete()) return;
        all = now();
        if (first != 0) return;
        first = all;
        QTimer::singleShot(restMilliseconds, qApp, &QCoreApplication::quit);
    });
    QGuiApplication::exec();
    const auto since = [&](long long moment) { return static_cast<double>(moment - started) / 1e6; };
    std::printf("%.3f %.3f %.3f\n", since(first), since(all), residentMebibytes());
    std::fflush(stdout);
}

void showZelk(int argc, char** argv, long long started) {
    QApplication application(argc, argv);
    zelk::dressApplication();
    zelk::NativePlatform native;
    const zelk::Platform& platform = native.platform();
    zelk::AppModel app(platform);
    zelk::WindowServices services;
    services.workspace = &platform.workspace;
    services.accessGranted = [&] { return zelk::hasFullDiskAccess(platform.files, app.home()); };
    zelk::Shell shell(app, services);
    shell.start();
    reportOf(shell.main().window(), started, [&] { return shell.main().isUp(); });
    std::_Exit(EXIT_SUCCESS);  // do not measure the exit
}

void showEmpty(int argc, char** argv, long long started) {
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick.Controls\nApplicationWindow { width: 1200; height: 780; visible: true }\n");
    if (engine.rootObjects().isEmpty()) std::_Exit(EXIT_FAILURE);
    bool shown = false;
    reportOf(*qobject_cast<QQuickWindow*>(engine.rootObjects().first()), started,
             [&] { return std::exchange(shown, true); });
    std::_Exit(EXIT_SUCCESS);
}

/// Runs this program again as the process that shows `what`.
std::optional<Cost> costOf(const char* what) {
    const std::optional<std::string> said = zelk::bench::outputOfOwn({"--child", what, std::to_string(now())});
    Cost cost;
    const bool complete = said && std::sscanf(said->c_str(), "%lf %lf %lf", &cost.milliseconds, &cost.millisecondsToAll,
                                              &cost.mebibytes) == 3;
    return complete ? std::optional(cost) : std::nullopt;
}

double median(const std::vector<Cost>& costs, double Cost::*figure) {
    std::vector<double> figures;
    for (const Cost& cost : costs) figures.push_back(cost.*figure);
    return zelk::bench::medianOf(figures);
}

int compare(int rounds) {
    std::vector<Cost> zelk;
    std::vector<Cost> empty;
    for (int round = -1; round < rounds; ++round) {
        const std::optional<Cost> ofEmpty = costOf("empty");
        const std::optional<Cost> ofZelk = costOf("zelk");
        if (!ofEmpty || !ofZelk) {
            std::fprintf(stderr, "startup: the %s window did not come up\n", ofEmpty ? "real" : "empty");
            return 1;
        }
        if (round < 0) continue;  // warms the kernel's cache
        empty.push_back(*ofEmpty);
        zelk.push_back(*ofZelk);
    }
    const double time = median(zelk, &Cost::milliseconds);
    const double leastTime = median(empty, &Cost::milliseconds);
    const double timeToAll = median(zelk, &Cost::millisecondsToAll);
    const double memory = median(zelk, &Cost::mebibytes);
    const double leastMemory = median(empty, &Cost::mebibytes);
    std::printf("first frame  %6.1f ms   empty window %6.1f ms   ratio %.2f, at most %.1f wanted\n", time, leastTime,
                time / leastTime, mostTimes);
    std::printf("all in it    %6.1f ms   empty window %6.1f ms   ratio %.2f\n", timeToAll, leastTime,
                timeToAll / leastTime);
    std::printf("idle memory  %6.1f MiB  empty window %6.1f MiB  above %.1f MiB, at most %.0f MiB wanted\n", memory,
                leastMemory, memory - leastMemory, mostAbove);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::setenv("QT_QUICK_BACKEND", "software", 1);
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() == 3 && words[0] == "--child") {
        const long long started = std::atoll(words[2].c_str());
        if (words[1] == "zelk") showZelk(argc, argv, started);
        if (words[1] == "empty") showEmpty(argc, argv, started);
        return 2;
    }
    const bool given = words.size() == 2 && words[0] == "--rounds";
    const int rounds = given ? std::atoi(words[1].c_str()) : 9;
    if (rounds < 1 || (!words.empty() && !given)) {
        std::fprintf(stderr, "usage: startup [--rounds N]\n");
        return 2;
    }
    return compare(rounds);
}

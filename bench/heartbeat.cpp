// SPDX-License-Identifier: MIT
// How long the main thread keeps a timer waiting while the application works, in the real window, drawn by the
// processor alone. Prints one JSON object: milliseconds by which the beats came late, when the worst of them came, and
// the most processor time that the main thread took between two beats. The last is the window's own doing; a stall
// beyond it is that of a busy machine, or of a wait that should not be there.
//
//     heartbeat ROOT           a survey of ROOT
//     heartbeat --clean COUNT  COUNT items made in a folder below $TMPDIR (or /tmp) go to a Trash there, all at once;
//                              before them 1,000, twice, and the second time is what the COUNT are compared with

#include <sys/resource.h>

#include <QGuiApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <variant>
#include <vector>

#include "Heart.h"
#include "ScratchLocations.h"
#include "platform/NativePlatform.h"
#include "reclaim/Cleaner.h"
#include "reclaim/MainThreadCalls.h"
#include "state/AppModel.h"
#include "ui/shell/Application.h"
#include "ui/shell/MainWindow.h"

namespace {

using namespace zelk;

void surveyInto(bench::Heart& heart, AppModel& app, const std::string& root) {
    app.setScanRoots({root});
    heart.start();
    app.startScan();
    heart.beatUntil([&] { return app.scanPhase() != AppModel::ScanPhase::scanning; });
    std::printf("{\"items\":%lld,", static_cast<long long>(app.itemsScanned()));
}

std::vector<Reclaimable> makeItems(const std::filesystem::path& folder, int count) {
    std::vector<Reclaimable> items;
    for (int number = 0; number < count; ++number) {
        const std::filesystem::path item = folder / std::to_string(number) / "__pycache__";
        std::filesystem::create_directories(item);
        for (const char* file : {"a.pyc", "b.pyc", "c.pyc"}) std::ofstream(item / file) << std::string(1000, 'x');
        Reclaimable& one = items.emplace_back();
        one.id = one.path = item.string();
        one.categoryID = "python_pycache";
    }
    return items;
}

/// What a cleaning took of the machine.
struct Cost {
    std::size_t items = 0;
    std::ptrdiff_t failed = 0;
    std::ptrdiff_t peakThreads = 0;  // of the whole process, the window's included
    double processorMs = 0;          // of all threads

    double perItem() const { return processorMs / static_cast<double>(items); }
    void print() const {
        std::printf("\"items\":%zu,\"failed\":%td,\"peakThreads\":%td,\"processorMsPerItem\":%.4f", items, failed,
                    peakThreads, perItem());
    }
};

double processorMilliseconds() {
    rusage used{};
    ::getrusage(RUSAGE_SELF, &used);
    const auto milliseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return milliseconds(used.ru_utime) + milliseconds(used.ru_stime);
}

/// 0 where the system has no such list.
std::ptrdiff_t threadCount() {
    std::error_code none;
    return std::distance(std::filesystem::directory_iterator("/proc/self/task", none), {});
}

Cost cleanInto(bench::Heart& heart, const Platform& platform, std::vector<Reclaimable> items) {
    MainThreadCalls calls;
    std::optional<std::vector<Cleaner::Result>> ended;
    Cost cost;
    int beats = 0;
    heart.atBeat = [&] {
        if (beats++ % 20 == 0) cost.peakThreads = std::max(cost.peakThreads, threadCount());
    };
    heart.start();
    const double before = processorMilliseconds();
    Cleaner::cleanAll(std::move(items), false, platform, [&, sender = calls.sender()](auto results) {
        sender.post([&ended, results = std::move(results)]() mutable { ended = std::move(results); });
    });
    heart.beatUntil([&] { return ended.has_value(); });
    cost.processorMs = processorMilliseconds() - before;
    cost.items = ended->size();
    cost.failed = std::count_if(ended->begin(), ended->end(), [](const Cleaner::Result& result) {
        return std::holds_alternative<Cleaner::Failed>(result.status);
    });
    cost.peakThreads = std::max(cost.peakThreads, threadCount());
    heart.atBeat = [] {};
    return cost;
}

/// Whether all went.
bool compareCleanings(bench::Heart& heart, const Platform& platform, const std::filesystem::path& folder, int count) {
    constexpr int few = 1000;
    bench::Heart unnoted;
    cleanInto(unnoted, platform, makeItems(folder / "first", few));  // the first makes threads and a Trash
    const Cost ofFew = cleanInto(unnoted, platform, makeItems(folder / "few", few));
    const Cost ofAll = cleanInto(heart, platform, makeItems(folder / "all", count));
    std::printf("{");
    ofAll.print();
    std::printf(",\"few\":{");
    ofFew.print();
    std::printf("},\"processorPerItemToFew\":%.3f,", ofAll.perItem() / ofFew.perItem());
    return ofAll.failed == 0 && ofFew.failed == 0;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    const bool cleans = argc == 3 && std::string(argv[1]) == "--clean";
    if (argc != 2 && !cleans) {
        std::fprintf(stderr, "usage: heartbeat ROOT\n       heartbeat --clean COUNT\n");
        return 2;
    }
    dressApplication();

    const QTemporaryDir scratch;
    const std::string folder = scratch.path().toStdString();
    NativePlatform native(cleans ? folder : std::string());
    const Platform& real = native.platform();
    tour::ScratchLocations locations(real.locations, false);
    const Platform platform{real.clock, real.directories, real.files,     real.trash,    real.vitals,
                            locations,  real.tasks,       real.processes, real.workspace};
    bool done = true;
    {
        AppModel app(platform);
        MainWindow window(app);
        window.show();
        while (!window.isUp()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        window.window().grabWindow();  // what a first frame costs is no part of it

        bench::Heart heart;
        if (cleans) {
            done = compareCleanings(heart, platform, std::filesystem::path(folder) / "work", std::atoi(argv[2]));
        } else {
            surveyInto(heart, app, std::filesystem::absolute(argv[1]).string());
        }
        heart.print();
        std::printf("}\n");
    }
    std::fflush(stdout);
    const int status = done ? EXIT_SUCCESS : EXIT_FAILURE;
    if (!native.drain(10)) std::_Exit(status);
    return status;
}

// SPDX-License-Identifier: MIT
// Measures how late the main thread's timer fires while the application works in the real window, rendered in software.
// Prints one JSON object: by how many milliseconds beats were late, when the worst one came, and the most processor
// time that the main thread used between two beats. That time is the window's own work; any further delay is due to a
// busy machine or to a wait that should not be there.
//
//     heartbeat ROOT           a survey of ROOT
//     heartbeat --clean COUNT  COUNT items, created in a folder below $TMPDIR (or /tmp), are trashed there at once;
//                              before them 1,000, twice: the second time is the baseline for COUNT

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
#include "ProcessorTime.h"
#include "ScratchLocations.h"
#include "platform/NativePlatform.h"
#include "reclaim/Cleaner.h"
#include "state/AppModel.h"
#include "state/MainThreadQueue.h"
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

/// The resources used by a clean-up.
struct Cost {
    std::size_t items = 0;
    std::ptrdiff_t failed = 0;
    std::ptrdiff_t peakThreads = 0;  // of the whole process, including the window's
    double processorMs = 0;          // of all threads

    double perItem() const { return processorMs / static_cast<double>(items); }
    void print() const {
        std::printf("\"items\":%zu,\"failed\":%td,\"peakThreads\":%td,\"processorMsPerItem\":%.4f", items, failed,
                    peakThreads, perItem());
    }
};

/// The number of threads; 0 if unknown.
std::ptrdiff_t threadCount() {
    std::error_code none;
    return std::distance(std::filesystem::directory_iterator("/proc/self/task", none), {});
}

Cost cleanInto(bench::Heart& heart, const Platform& platform, std::vector<Reclaimable> items) {
    MainThreadQueue queue;
    std::optional<std::vector<Cleaner::Result>> ended;
    Cost cost;
    int beats = 0;
    heart.atBeat = [&] {
        if (beats++ % 20 == 0) cost.peakThreads = std::max(cost.peakThreads, threadCount());
    };
    heart.start();
    const double before = bench::processorMilliseconds();
    Cleaner::cleanAll(std::move(items), false, platform, [&, sender = queue.sender()](auto results) {
        sender.post([&ended, results = std::move(results)]() mutable { ended = std::move(results); });
    });
    heart.beatUntil([&] { return ended.has_value(); });
    cost.processorMs = bench::processorMilliseconds() - before;
    cost.items = ended->size();
    cost.failed = std::count_if(ended->begin(), ended->end(), [](const Cleaner::Result& result) {
        return std::holds_alternative<Cleaner::Failed>(result.status);
    });
    cost.peakThreads = std::max(cost.peakThreads, threadCount());
    heart.atBeat = [] {};
    return cost;
}

/// Trashes the items; false if any failed.
bool compareCleanings(bench::Heart& heart, const Platform& platform, const std::filesystem::path& folder, int count) {
    constexpr int few = 1000;
    bench::Heart unnoted;
    cleanInto(unnoted, platform, makeItems(folder / "first", few));  // warm-up: creates threads and the Trash
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
    const Platform platform{real.clock, real.directories, real.files,     real.contents,  real.trash, real.vitals,
                            locations,  real.tasks,       real.processes, real.workspace, real.system};
    bool done = true;
    {
        AppModel app(platform);
        MainWindow window(app);
        window.show();
        while (!window.isUp()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        window.window().grabWindow();  // exclude the cost of the first frame

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

// SPDX-License-Identifier: MIT
// Measures how long the lists of Duplicates and Apps block the main thread, from the action to the frame that shows the
// result, in the real window rendered in software. Prints milliseconds, mean and worst.
//
//     modules [--sets N] [--apps N]
//
// The sets are pairs of sparse files of 2 MB below $TMPDIR (or /tmp), the applications AppImages with an entry each;
// those of this machine are listed too. What is moved to the Trash goes to one below that folder, which this program
// removes at its end.

#include <QApplication>
#include <QQuickItem>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "Camera.h"
#include "FrameBench.h"
#include "SampleFiles.h"
#include "platform/NativePlatform.h"
#include "state/AppModel.h"
#include "state/AppsModel.h"
#include "state/DuplicatesModel.h"
#include "state/RemovalsModel.h"
#include "ui/screens/apps/AppsScreenModel.h"
#include "ui/screens/duplicates/DuplicatesScreenModel.h"
#include "ui/shell/Application.h"
#include "ui/shell/MainWindow.h"
#include "ui/theme/Motion.h"

namespace {

using namespace zelk;

struct Counts {
    int sets = 5'000;
    int apps = 500;
};

void openModule(MainWindow& window, const char* sidebarRow) {
    tour::clickOn(window.window(), QString::fromLatin1(sidebarRow));
    tour::waitUntil([&] { return tour::findControl(window.window(), QStringLiteral("moduleScanButton")) != nullptr; });
    tour::clickOn(window.window(), QStringLiteral("moduleScanButton"));
}

QQuickItem* listOf(MainWindow& window, const char* name) {
    tour::waitUntil([&] { return tour::findControl(window.window(), QString::fromLatin1(name)) != nullptr; });
    return tour::findControl(window.window(), QString::fromLatin1(name));
}

void measureScrolling(bench::FrameBench& frames, QQuickItem* list) {
    const auto scrollTo = [&](double place) { list->setProperty("contentY", place); };
    frames.measure("a frame alone", 20, [](int) {});
    frames.measure("a page scrolled", 100,
                   [&](int) { scrollTo(list->property("contentY").toDouble() + list->height()); });
    frames.measure("to its end", 1,
                   [&](int) { scrollTo(list->property("contentHeight").toDouble() - list->height()); });
    frames.measure("to its start", 1, [&](int) { scrollTo(list->property("originY").toDouble()); });
}

void measureSets(AppModel& app, MainWindow& window) {
    DuplicatesModel& duplicates = app.duplicates();
    openModule(window, "sidebarDuplicates");
    tour::waitUntil([&] { return duplicates.hasScanned() && !duplicates.loading(); });
    QQuickItem* const list = listOf(window, "duplicateList");
    std::printf("%zu sets\n", duplicates.groups().size());

    bench::FrameBench frames(window.window());
    measureScrolling(frames, list);
    DuplicatesScreenModel& screen = *list->property("duplicates").value<DuplicatesScreenModel*>();
    frames.measure("keep first", 20, [&](int) { screen.keepFirst(0); });
    tour::waitUntil([&] { return !app.removals().underWay(); });
    frames.measure("another module and back", 5, [&](int) {
        tour::clickOn(window.window(), QStringLiteral("sidebarOverview"));
        tour::clickOn(window.window(), QStringLiteral("sidebarDuplicates"));
    });
}

void measureApps(AppModel& app, MainWindow& window) {
    AppsModel& apps = app.apps();
    openModule(window, "sidebarApps");
    tour::waitUntil([&] { return apps.hasScanned() && !apps.loading(); });
    QQuickItem* const list = listOf(window, "appList");
    std::printf("%zu applications\n", apps.apps().size());

    bench::FrameBench frames(window.window());
    measureScrolling(frames, list);
    AppsScreenModel& screen = *list->parentItem()->property("apps").value<AppsScreenModel*>();
    frames.measure("another order", 20, [&](int round) { screen.sort((round + 1) % 2); });
    frames.measure("another module and back", 5, [&](int) {
        tour::clickOn(window.window(), QStringLiteral("sidebarOverview"));
        tour::clickOn(window.window(), QStringLiteral("sidebarApps"));
    });
}

bool takeOptions(int argc, char** argv, Counts& counts) {
    for (int at = 1; at < argc; at += 2) {
        const std::string_view option = argv[at];
        int* const count = option == "--sets" ? &counts.sets : option == "--apps" ? &counts.apps : nullptr;
        if (count == nullptr || at + 1 == argc || (*count = std::atoi(argv[at + 1])) < 1) return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    Counts counts;
    if (!takeOptions(argc, argv, counts)) {
        std::fprintf(stderr, "usage: modules [--sets N] [--apps N]\n");
        return 2;
    }
    const QTemporaryDir home;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("HOME", home.path().toUtf8());
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) qunsetenv(name);
    QApplication application(argc, argv);
    dressApplication();

    bench::makeSets(home.path().toStdString(), counts.sets);
    bench::makeApps(home.path().toStdString(), counts.apps);
    NativePlatform native(home.path().toStdString());
    {
        AppModel app(native.platform());
        MainWindow window(app);
        window.motion().setReduced(true);
        window.show();
        tour::waitUntil([&] { return window.isUp(); });
        measureSets(app, window);
        measureApps(app, window);
    }
    std::fflush(stdout);
    if (!native.drain(10)) std::_Exit(EXIT_SUCCESS);
    return EXIT_SUCCESS;
}

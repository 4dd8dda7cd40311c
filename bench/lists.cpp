// SPDX-License-Identifier: MIT
// Measures how long the list of items and that of a folder's subfolders block the main thread, from the press to the
// frame that shows the result, in the real window rendered in software, with as many entries as a home may hold. Prints
// milliseconds, mean and worst.
//
//     lists [--items N]
//
// The items are caches in folders below $TMPDIR (or /tmp), found by a real survey. Nothing is removed except by this
// program at its end.

#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "Camera.h"
#include "FrameBench.h"
#include "SampleFiles.h"
#include "platform/NativePlatform.h"
#include "state/AppModel.h"
#include "ui/screens/lens/LensScreenModel.h"
#include "ui/screens/reclaim/DryRunModel.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"
#include "ui/shell/Application.h"
#include "ui/shell/MainWindow.h"
#include "ui/theme/Motion.h"

namespace {

using namespace zelk;

void runItems(AppModel& app, MainWindow& window) {
    app.startScan();
    tour::waitUntil([&] { return app.scanPhase() == AppModel::ScanPhase::finished; });
    app.setAudience(AppModel::Audience::developer);
    window.window().grabWindow();  // lay out the controls first
    tour::clickOn(window.window(), QStringLiteral("sidebarReclaim"));
    tour::waitUntil([&] { return tour::findControl(window.window(), QStringLiteral("itemList")) != nullptr; });
    ItemList& items = *window.reclaim().items();
    items.setAgeDays(0);
    window.window().grabWindow();
    std::printf("%zu items\n", app.reclaimables().size());

    bench::FrameBench frames(window.window());
    frames.measure("a frame alone", 20, [](int) {});
    frames.measure("the age, folded up", 20, [&](int round) { items.setAgeDays(round % 2); });
    items.setAgeDays(0);
    frames.measure("a category unfolded", 1, [&](int) { items.setOpen(0, true); });
    frames.measure("the age, unfolded", 20, [&](int round) { items.setAgeDays(round % 2); });
    items.setAgeDays(0);
    const int last = items.rowCount() - 1;
    frames.measure("an item's tick", 50, [&](int round) { items.toggle(1 + round * 37 % last); });
    frames.measure("a category's tick", 21, [&](int) { items.toggle(0); });
    frames.measure("a category folded", 1, [&](int) { items.setOpen(0, false); });
    frames.measure("the review of all", 1, [&](int) { items.clean(); });
    frames.measure("the review left", 1, [&](int) { window.reclaim().dryRun()->close(); });
}

/// Measures the list of the folders that each contain one item, all in one folder.
void runFolders(MainWindow& window) {
    tour::clickOn(window.window(), QStringLiteral("sidebarLens"));
    tour::waitUntil([&] { return tour::findControl(window.window(), QStringLiteral("lensList")) != nullptr; });
    QQuickItem* list = tour::findControl(window.window(), QStringLiteral("lensList"));
    LensScreenModel& lens = *list->property("lens").value<LensScreenModel*>();
    lens.back();
    window.window().grabWindow();

    bench::FrameBench frames(window.window());
    frames.measure("a folder entered", 1, [&](int) { lens.drill(0); });
    std::printf("%d folders\n", lens.rows()->rowCount());
    frames.measure("a page of it scrolled", 100,
                   [&](int) { list->setProperty("contentY", list->property("contentY").toDouble() + list->height()); });
    frames.measure("to its end", 1, [&](int) {
        list->setProperty("contentY", list->property("contentHeight").toDouble() - list->height());
    });
    frames.measure("a folder's tick", 50, [&](int round) { lens.toggle(round * 37 % lens.rows()->rowCount()); });
    frames.measure("all ticked", 1, [&](int) { lens.selectAll(); });
    frames.measure("none ticked", 1, [&](int) { lens.selectNone(); });
    frames.measure("the folder left", 1, [&](int) { lens.back(); });
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    const bool counted = argc == 3 && std::string_view(argv[1]) == "--items";
    const int count = counted ? std::atoi(argv[2]) : 20'000;
    if ((argc != 1 && !counted) || count < 1) {
        std::fprintf(stderr, "usage: lists [--items N]\n");
        return 2;
    }
    dressApplication();

    const QTemporaryDir home;
    bench::makeItems(home.path().toStdString(), count);
    NativePlatform native(home.path().toStdString());
    {
        AppModel app(native.platform());
        MainWindow window(app);
        window.motion().setReduced(true);
        window.show();
        tour::waitUntil([&] { return window.isUp(); });
        runItems(app, window);
        runFolders(window);
    }
    std::fflush(stdout);
    if (!native.drain(10)) std::_Exit(EXIT_SUCCESS);
    return EXIT_SUCCESS;
}

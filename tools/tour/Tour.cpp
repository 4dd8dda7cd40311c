// SPDX-License-Identifier: MIT
#include "Tour.h"

#include <QDir>
#include <cstdio>

#include "Camera.h"
#include "ui/survey/SurveyScreenModel.h"
#include "ui/theme/Motion.h"

namespace zelk::tour {

namespace {

// Behind the second report of a survey's progress, so that the picture has figures.
constexpr std::int64_t midScanEntries = 60'000;

const QString scanButton = QStringLiteral("scanButton");

/// Always false.
bool missed(const QString& theme, const char* phase) {
    std::fprintf(stderr, "tour: missed %s in the %s theme\n", phase, qPrintable(theme));
    return false;
}

}  // namespace

Tour::Tour(AppModel& app, PausingDirectories& directories, QString folder, QSize size)
    : app_(app), directories_(directories), folder_(std::move(folder)), window_(app) {
    // A picture shows where things come to rest, not a moment on their way.
    window_.motion().setReduced(true);
    window_.window().resize(size);
    window_.show();
    waitUntil([this] { return window_.window().isExposed() && window_.window().isActive(); });
}

bool Tour::run() {
    for (const bool dark : {true, false}) {
        const QString theme = dress(dark);
        if (!idle(theme) || !picture(theme + QStringLiteral("-idle"))) return false;
        if (!survey(theme, !dark)) return false;
    }
    return focus(dress(true)) && focus(dress(false));
}

QString Tour::dress(bool dark) {
    app_.setAppearance(dark ? AppModel::Appearance::dark : AppModel::Appearance::light);
    return dark ? QStringLiteral("dark") : QStringLiteral("light");
}

/// From the results of the last survey back to the start.
bool Tour::idle(const QString& theme) {
    app_.cancelScan();
    return app_.scanPhase() == AppModel::ScanPhase::idle || missed(theme, "the start");
}

/// Where the keyboard is: around the button, which is where a ring stands out least.
bool Tour::focus(const QString& theme) {
    if (!idle(theme)) return false;
    pressKey(window_.window(), Qt::Key_Tab);
    pressKey(window_.window(), Qt::Key_Backtab);
    const QQuickItem* focused = window_.window().activeFocusItem();
    if (focused == nullptr || focused->objectName() != scanButton) return missed(theme, "the button's focus");
    return picture(theme + QStringLiteral("-focus"));
}

bool Tour::survey(const QString& theme, bool withKeyboard) {
    const auto scanning = [this] { return app_.scanPhase() == AppModel::ScanPhase::scanning; };
    const auto stoppedOrOver = [&] { return directories_.paused() || !scanning(); };

    directories_.pauseAfter(0);
    if (withKeyboard)
        pressKey(window_.window(), Qt::Key_Return);
    else if (!clickOn(window_.window(), scanButton))
        return missed(theme, "the scan button");
    waitUntil(stoppedOrOver);
    if (!scanning()) return missed(theme, "the beginning of a survey");
    if (!picture(theme + QStringLiteral("-scanning"))) return false;

    // On a tree of some size there is a better moment.
    directories_.pauseAfter(midScanEntries);
    waitUntil([&] { return !scanning() || (directories_.paused() && app_.itemsScanned() > 0); });
    if (scanning()) {
        waitUntil([&] { return !scanning() || window_.survey().itemsLine() != QStringLiteral("0 items"); });
        if (!picture(theme + QStringLiteral("-scanning"))) return false;
    }
    directories_.resume();

    waitUntil([&] { return !scanning(); });
    if (app_.scanPhase() != AppModel::ScanPhase::finished) return missed(theme, "the end of a survey");
    return picture(theme + QStringLiteral("-finished"));
}

bool Tour::picture(const QString& name) {
    restPointer(window_.window());
    const QString file = QDir(folder_).filePath(QStringLiteral("survey-%1.png").arg(name));
    if (!photograph(window_.window(), file)) {
        std::fprintf(stderr, "tour: no picture at %s\n", qPrintable(file));
        return false;
    }
    std::printf("%s\n", qPrintable(file));
    std::fflush(stdout);
    return true;
}

}  // namespace zelk::tour

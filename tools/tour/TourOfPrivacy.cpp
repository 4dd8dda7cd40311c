// SPDX-License-Identifier: MIT
#include <QQuickItem>

#include "Camera.h"
#include "Tour.h"

namespace zelk::tour {

/// The traces: before, during and after a scan, while browsers run, with nothing chosen, and cleared in part and
/// wholly.
bool Tour::privacy() {
    QQuickWindow& window = window_.window();
    PrivacyModel& privacy = app_.privacy();
    if (!go(Screen::privacy) || !picture(QStringLiteral("privacy-idle"))) return missed("the start of the traces");
    pretence_.holdMeasuring(true);
    bool taken = clickOn(window, QStringLiteral("moduleScanButton"));
    // What has no folders to measure is done at once.
    taken = taken && (!privacy.loading() || picture(QStringLiteral("privacy-scanning")));
    pretence_.holdMeasuring(false);
    waitUntil([&] { return !privacy.loading(); });
    if (!taken) return missed("the scan for traces");
    if (privacy.traces().empty()) return go(Screen::survey) && missing("the traces");
    taken = picture(QStringLiteral("privacy-traces"));

    pretence_.setRunning({"Code", "Firefox ESR", "Chromium Web Browser"});
    privacy.refreshRunning();
    taken = taken && picture(QStringLiteral("privacy-running"));
    pretence_.setRunning({"Code"});
    privacy.refreshRunning();

    const std::set<std::string> caches = privacy.selected();
    for (const std::string& identity : caches) privacy.setSelected(identity, false);
    taken = taken && picture(QStringLiteral("privacy-none-chosen"));
    QQuickItem* list = findControl(window, QStringLiteral("traceList"));
    list->forceActiveFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Space}) pressKey(window, key);
    taken = taken && picture(QStringLiteral("privacy-ticked"));

    // Only pretends to move them.
    const auto clear = [&] {
        const std::size_t before = privacy.traces().size();
        if (!clickOn(window, QStringLiteral("reviewButton")) || privacy.traces().size() == before) return false;
        waitUntil([&] { return !app_.removals().underWay(); });
        waitUntil([&] { return findControl(window, QStringLiteral("undoRemoval")) != nullptr; });
        return true;
    };
    if (!clear()) return missed("the clearing of traces");
    taken = taken && picture(QStringLiteral("privacy-cleared"));
    for (const Trace& trace : privacy.traces()) privacy.setSelected(trace.identity(), true);
    if (!privacy.traces().empty() && !clear()) return missed("the clearing of all traces");
    taken = taken && picture(QStringLiteral("privacy-nothing"));
    // So that it has something again for the pictures with large texts.
    pretence_.setRunning({"Code", "Firefox ESR"});
    if (!clickOn(window, QStringLiteral("scanTracesAgain"))) return missed("the second scan for traces");
    waitUntil([&] { return !privacy.loading(); });
    taken = taken && picture(QStringLiteral("privacy-again"));
    const bool done = taken && go(Screen::survey);
    pretence_.setRunning({"Code"});
    return done;
}

}  // namespace zelk::tour

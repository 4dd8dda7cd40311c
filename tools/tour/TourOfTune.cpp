// SPDX-License-Identifier: MIT
#include <QQuickItem>

#include "Camera.h"
#include "Tour.h"

namespace zelk::tour {

namespace {

/// As `tmutil` and `resolvectl` never do, but a shell may.
std::string answerOfAShell() {
    std::string answer;
    for (int line = 1; line <= 40; ++line)
        answer += "line " + std::to_string(line) + ": " + std::string(static_cast<std::size_t>(line), '=') + "\r\n";
    return answer;
}

}  // namespace

/// The levers: with all background items, with a search that finds some and none, with ticks, while a command runs, and
/// with answers of it.
bool Tour::tune() {
    QQuickWindow& window = window_.window();
    TuneModel& tune = app_.tune();
    if (!go(Screen::tune)) return false;
    // In the second theme it has its results at once.
    if (!tune.hasScanned() &&
        (!picture(QStringLiteral("tune-idle")) || !clickOn(window, QStringLiteral("moduleScanButton"))))
        return missed("the check");
    if (!appears(window, "agentList")) return missed("the background items");
    if (!picture(QStringLiteral("tune-items"))) return false;

    pretence_.hold();
    bool taken = clickOn(window, QStringLiteral("freeMemory")) && tune.busy() && picture(QStringLiteral("tune-busy"));
    pretence_.release();
    waitUntil([&] { return !tune.busy(); });
    if (!taken) return missed("a command under way");
    taken = picture(QStringLiteral("tune-done"));
    pretence_.print(answerOfAShell());
    if (!clickOn(window, QStringLiteral("flushDNS"))) return missed("the flushing");
    waitUntil([&] { return !tune.busy(); });
    taken = taken && picture(QStringLiteral("tune-answer"));
    pretence_.print({});

    QQuickItem* list = findControl(window, QStringLiteral("agentList"));
    list->forceActiveFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Space, Qt::Key_Down, Qt::Key_Space, Qt::Key_Down})
        pressKey(window, key);
    taken = taken && picture(QStringLiteral("tune-ticked"));
    pressKey(window, Qt::Key_End);
    taken = taken && picture(QStringLiteral("tune-end"));
    tune.selectNone();
    tune.setSearch(QStringLiteral("SCHEDULER"));
    taken = taken && picture(QStringLiteral("tune-found"));
    tune.setSearch(QStringLiteral("nobody has this"));
    taken = taken && picture(QStringLiteral("tune-nothing"));
    tune.setSearch({});

    // Only pretends to move it.
    list->forceActiveFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Space}) pressKey(window, key);
    if (!clickOn(window, QStringLiteral("removeAgents"))) return missed("the removal");
    return taken && picture(QStringLiteral("tune-removed")) && go(Screen::survey);
}

}  // namespace zelk::tour

// SPDX-License-Identifier: MIT
#include <QQuickItem>
#include <QTest>

#include "Camera.h"
#include "Tour.h"

namespace zelk::tour {

namespace {

constexpr int reportInterval = 200;  // milliseconds; more than lie between two reports

}  // namespace

/// The search for duplicates: before it, while it hashes, with its sets, after one of them was dealt with, and without
/// any.
bool Tour::duplicates() {
    QQuickWindow& window = window_.window();
    DuplicatesModel& duplicates = app_.duplicates();
    if (!go(Screen::duplicates)) return false;
    if (!picture(QStringLiteral("duplicates-idle"))) return false;
    contents_.gate().pauseAfter(1);
    if (!clickOn(window, QStringLiteral("moduleScanButton"))) return missed("the search for duplicates");
    bool taken = hashing();
    contents_.gate().resume();
    waitUntil([&] { return !duplicates.loading(); });
    if (duplicates.groups().empty()) return taken && missing("duplicates") && go(Screen::survey);
    if (!appears(window, "duplicateList")) return missed("the sets");
    taken = taken && picture(QStringLiteral("duplicates-sets"));

    QQuickItem* list = findControl(window, QStringLiteral("duplicateList"));
    list->forceActiveFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down}) pressKey(window, key);
    taken = taken && picture(QStringLiteral("duplicates-focus"));
    pressKey(window, Qt::Key_End);
    taken = taken && picture(QStringLiteral("duplicates-end"));
    pressKey(window, Qt::Key_Home);

    // Only pretends to move them.
    if (!clickOn(window, QStringLiteral("keepFirst0"))) return missed("the button of a set");
    waitUntil([this] { return !app_.removals().underWay(); });
    taken = taken && picture(QStringLiteral("duplicates-kept"));
    const std::vector<std::string> before = app_.scanRoots();
    app_.setScanRoots({});
    if (!clickOn(window, QStringLiteral("findAgain"))) return missed("another search");
    waitUntil([&] { return !duplicates.loading(); });
    taken = taken && picture(QStringLiteral("duplicates-none"));
    app_.setScanRoots(before);
    if (!clickOn(window, QStringLiteral("findAgain"))) return missed("another search");
    waitUntil([&] { return !duplicates.loading(); });
    return taken && go(Screen::survey);
}

/// Pauses the search where there is something to see of it. Progress is reported some time after the last report only.
bool Tour::hashing() {
    DuplicatesModel& duplicates = app_.duplicates();
    PauseGate& gate = contents_.gate();
    const auto waitForPause = [&] { waitUntil([&] { return !duplicates.loading() || gate.paused(); }); };
    waitForPause();
    gate.pauseAfter(1);
    waitUntil([&] { return !duplicates.loading() || duplicates.progress().toHash > 0; });
    gate.pauseAfter(static_cast<std::int64_t>(0.4 * static_cast<double>(duplicates.progress().toHash)));
    waitForPause();
    const std::int64_t before = duplicates.progress().hashed;
    QTest::qWait(reportInterval);
    gate.pauseAfter(1);
    waitUntil([&] { return !duplicates.loading() || duplicates.progress().hashed > before; });
    return duplicates.loading() ? picture(QStringLiteral("duplicates-hashing")) : missing("a search under way");
}

}  // namespace zelk::tour

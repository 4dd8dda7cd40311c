// SPDX-License-Identifier: MIT
// The bubble map with hover and focus, and lists after removals.
#include <QQuickItem>
#include <QTest>

#include "Camera.h"
#include "Tour.h"

namespace zelk::tour {

/// The largest bubble is in the middle.
bool Tour::lensMap() {
    QQuickWindow& window = window_.window();
    if (!appears(window, "lensMap")) return missed("the map of the folders");
    QQuickItem* map = findControl(window, QStringLiteral("lensMap"));
    QTest::mouseMove(&window, map->mapToScene(map->boundingRect().center()).toPoint());
    if (!keep(window.grabWindow(), QStringLiteral("lens-hover"))) return false;
    map->forceActiveFocus(Qt::TabFocusReason);
    pressKey(window, Qt::Key_Right);
    return picture(QStringLiteral("lens-map-focus"));
}

/// Removes the last row of the folders, and all files of one type.
bool Tour::taking() {
    QQuickWindow& window = window_.window();
    if (!go(Screen::lens) || !appears(window, "lensList")) return missed("the folders");
    QQuickItem* folders = findControl(window, QStringLiteral("lensList"));
    if (folders->property("count").toInt() == 0) return missing("a folder to remove") && go(Screen::survey);
    const QQuickItem* remove = findControl(window, QStringLiteral("lensRemove"));
    folders->forceActiveFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_Space}) pressKey(window, key);
    if (!remove->isEnabled() || !clickOn(window, QStringLiteral("lensRemove"))) return missed("what is to be removed");
    waitUntil([&] { return !remove->isEnabled(); });
    if (!picture(QStringLiteral("lens-removed"))) return false;

    if (!go(Screen::clutter) || !appears(window, "clutterList")) return missed("the heaviest files");
    if (!clickOn(window, QStringLiteral("typePill1"))) return missed("a type of files");
    window.grabWindow();
    QQuickItem* list = findControl(window, QStringLiteral("clutterList"));
    list->forceActiveFocus(Qt::TabFocusReason);
    pressKey(window, Qt::Key_Home);  // no key removes a row that nobody went to
    while (list->isVisible() && list->property("count").toInt() > 0) {
        const int before = list->property("count").toInt();
        pressKey(window, Qt::Key_Delete);
        waitUntil([&] { return list->property("count").toInt() < before; });
    }
    return picture(QStringLiteral("clutter-emptied")) && go(Screen::survey);
}

}  // namespace zelk::tour

// SPDX-License-Identifier: MIT
// Helpers that operate and inspect the lists and maps of a real window.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QAccessible>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "Camera.h"
#include "fakes/EventLoop.h"
#include "ui/charts/BubblePicture.h"

namespace zelk {

/// A visible item that satisfies `wanted`, or nullptr.
template <class Wanted>
QQuickItem* findVisible(QQuickWindow& window, Wanted wanted) {
    window.grabWindow();  // applies pending layout
    std::vector<QQuickItem*> pending{window.contentItem()};
    while (!pending.empty()) {
        QQuickItem* item = pending.back();
        pending.pop_back();
        if (!item->isVisible()) continue;
        if (wanted(*item)) return item;
        for (QQuickItem* child : item->childItems()) pending.push_back(child);
    }
    return nullptr;
}

inline void clickMiddle(QQuickWindow& window, const QQuickItem* item) {
    ASSERT_NE(item, nullptr);
    tour::clickAt(window, item->mapToScene(item->boundingRect().center()));
}

/// Right-clicks the centre of an item.
inline void rightClickMiddle(QQuickWindow& window, const QQuickItem* item) {
    ASSERT_NE(item, nullptr);
    const QPoint point = item->mapToScene(item->boundingRect().center()).toPoint();
    QTest::mouseMove(&window, point);
    QTest::mouseClick(&window, Qt::RightButton, {}, point);
}

/// Applies pending layout, then clicks a control.
inline void clickControl(QQuickWindow& window, const char* name) {
    window.grabWindow();
    EXPECT_TRUE(tour::clickOn(window, QString::fromLatin1(name))) << name;
}

inline QQuickItem* control(QQuickWindow& window, const char* name) {
    window.grabWindow();
    return tour::findControl(window, QString::fromLatin1(name));
}

inline std::string textOf(QQuickWindow& window, const char* name) {
    const QQuickItem* item = control(window, name);
    return item == nullptr ? "<none>" : item->property("text").toString().toStdString();
}

/// The visible menu entry with this text, or nullptr.
inline QQuickItem* menuEntry(QQuickWindow& window, const char* text) {
    return findVisible(window, [text](const QQuickItem& item) {
        return item.inherits("QQuickMenuItem") && item.property("text").toString() == QString::fromUtf8(text);
    });
}

/// The values of a role in all rows of a list, including rows that are scrolled out of view.
inline std::vector<QVariant> column(QQuickWindow& window, const char* list, const char* role) {
    std::vector<QVariant> cells;
    const QQuickItem* item = control(window, list);
    const auto* rows =
        item == nullptr ? nullptr : qobject_cast<QAbstractItemModel*>(item->property("model").value<QObject*>());
    EXPECT_NE(rows, nullptr) << list;
    if (rows == nullptr) return cells;
    const int key = rows->roleNames().key(role, -1);
    EXPECT_NE(key, -1) << role;
    for (int row = 0; row < rows->rowCount(); ++row) cells.push_back(rows->index(row, 0).data(key));
    return cells;
}

inline std::vector<std::string> texts(QQuickWindow& window, const char* list, const char* role) {
    std::vector<std::string> texts;
    for (const QVariant& cell : column(window, list, role)) texts.push_back(cell.toString().toStdString());
    return texts;
}

/// The first row whose `role` is `text`, or -1.
inline int rowOf(QQuickWindow& window, const char* list, const char* role, const std::string& text) {
    const std::vector<std::string> all = texts(window, list, role);
    const auto found = std::find(all.begin(), all.end(), text);
    return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

inline BubblePicture* chart(QQuickWindow& window, const char* map) {
    return qobject_cast<BubblePicture*>(control(window, map));
}

/// Clicks the bubble of the slice with this id.
inline void clickBubble(QQuickWindow& window, const char* map, const std::string& id) {
    const BubblePicture* chart = zelk::chart(window, map);
    ASSERT_NE(chart, nullptr);
    for (const PackedCircle& circle : chart->packed())
        if (circle.id == id) return tour::clickAt(window, chart->mapToScene({circle.center.x, circle.center.y}));
    FAIL() << "no bubble " << id;
}

/// Moves to the bubble of this id with arrow keys that point towards it. The map must have the focus.
inline void arrowToBubble(QQuickWindow& window, const char* map, const std::string& id) {
    const BubblePicture* chart = zelk::chart(window, map);
    ASSERT_NE(chart, nullptr);
    const std::vector<PackedCircle>& circles = chart->packed();
    const auto wanted =
        std::find_if(circles.begin(), circles.end(), [&](const auto& circle) { return circle.id == id; });
    ASSERT_NE(wanted, circles.end()) << "no bubble " << id;
    for (std::size_t step = 0; step < circles.size(); ++step) {
        const PackedCircle& here = circles.at(chart->current().value());
        if (here.id == id) return;
        const double across = wanted->center.x - here.center.x;
        const double down = wanted->center.y - here.center.y;
        if (std::abs(across) > std::abs(down))
            QTest::keyClick(&window, across < 0 ? Qt::Key_Left : Qt::Key_Right);
        else
            QTest::keyClick(&window, down < 0 ? Qt::Key_Up : Qt::Key_Down);
    }
    EXPECT_EQ(circles.at(chart->current().value()).id, id) << "the arrow keys do not reach it";
}

/// Whether the focus is on this control or inside it.
inline bool hasKeyboard(QQuickWindow& window, const char* name) {
    for (const QQuickItem* at = window.activeFocusItem(); at != nullptr; at = at->parentItem())
        if (at->objectName() == QLatin1String(name)) return true;
    return false;
}

/// The visible check box labelled `text`, or nullptr.
inline QQuickItem* boxOf(QQuickWindow& window, const char* text) {
    return findVisible(window, [text](const QQuickItem& item) {
        return QString::fromLatin1(item.metaObject()->className()).startsWith(QLatin1String("CheckBox")) &&
               item.property("text").toString() == QString::fromUtf8(text);
    });
}

/// The accessible names of the visible rows that report the focus.
inline std::vector<std::string> spokenFocus(QQuickWindow& window, const char* list) {
    std::vector<std::string> said;
    QAccessibleInterface* rows = QAccessible::queryAccessibleInterface(control(window, list));
    EXPECT_NE(rows, nullptr);
    for (int row = 0; rows != nullptr && row < rows->childCount(); ++row) {
        const QAccessibleInterface* child = rows->child(row);
        if (child->state().focused) said.push_back(child->text(QAccessible::Name).toStdString());
    }
    return said;
}

/// Presses Tab until this control has the focus.
inline void tabTo(QQuickWindow& window, const char* name) {
    window.grabWindow();
    for (int stop = 0; stop < 100; ++stop) {
        if (hasKeyboard(window, name)) return;
        QTest::keyClick(&window, Qt::Key_Tab);
    }
    FAIL() << "the Tab key does not reach " << name;
}

/// Moves to `row` with the arrow keys. The list must have the focus.
inline void arrowTo(QQuickWindow& window, int row) {
    ASSERT_GE(row, 0);
    QTest::keyClick(&window, Qt::Key_Home);
    for (int at = 0; at < row; ++at) QTest::keyClick(&window, Qt::Key_Down);
}

}  // namespace zelk

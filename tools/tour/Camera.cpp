// SPDX-License-Identifier: MIT
#include "Camera.h"

#include <QCoreApplication>
#include <QTest>
#include <QTimer>

#include "ui/theme/ReadingDirection.h"

namespace zelk::tour {

namespace {

QQuickItem* findBelow(QQuickItem& item, const QString& name) {
    if (!item.isVisible()) return nullptr;
    if (item.objectName() == name) return &item;
    for (QQuickItem* child : item.childItems())
        if (QQuickItem* found = findBelow(*child, name)) return found;
    return nullptr;
}

bool isBlank(const QImage& picture) {
    if (picture.isNull()) return true;
    const QRgb first = picture.pixel(0, 0);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) != first) return false;
    return true;
}

}  // namespace

void waitUntil(const std::function<bool()>& done) {
    // `done` may change without an event. (With a time limit, processEvents() would not wait at all.)
    QTimer wake;
    wake.start(20);
    while (!done()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

QQuickItem* findControl(QQuickWindow& window, const QString& name) {
    return findBelow(*window.contentItem(), name);
}

bool appears(QQuickWindow& window, const char* name) {
    window.grabWindow();
    return findControl(window, QString::fromLatin1(name)) != nullptr;
}

void clickAt(QQuickWindow& window, QPointF point) {
    QTest::mouseMove(&window, point.toPoint());
    QTest::mouseClick(&window, Qt::LeftButton, {}, point.toPoint());
}

bool clickOn(QQuickWindow& window, const QString& name) {
    QQuickItem* item = findControl(window, name);
    if (item == nullptr) return false;
    clickAt(window, item->mapToScene(item->boundingRect().center()));
    return true;
}

void restPointer(QQuickWindow& window) {
    QTest::mouseMove(&window, QPoint(1, 1));
}

void pressKey(QQuickWindow& window, Qt::Key key) {
    QTest::keyClick(&window, key);
}

Qt::Key onwardKey() {
    return readsFromRight() ? Qt::Key_Left : Qt::Key_Right;
}

Qt::Key backKey() {
    return readsFromRight() ? Qt::Key_Right : Qt::Key_Left;
}

bool save(const QImage& picture, const QString& file) {
    return !isBlank(picture) && picture.save(file, "PNG");
}

}  // namespace zelk::tour

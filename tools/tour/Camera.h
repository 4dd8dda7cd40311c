// SPDX-License-Identifier: MIT
// Drives the real window with input events and takes pictures of it.
#pragma once

#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <functional>

namespace zelk::tour {

/// Runs the event loop until `done` returns true.
void waitUntil(const std::function<bool()>& done);

/// The visible item with this object name anywhere in the window; nullptr if there is none.
QQuickItem* findControl(QQuickWindow& window, const QString& name);

/// Whether the item exists after the next frame, which lays out what models changed.
bool appears(QQuickWindow& window, const char* name);

/// Clicks at a point of the window.
void clickAt(QQuickWindow& window, QPointF point);

/// Clicks the centre of the item. False if there is none.
bool clickOn(QQuickWindow& window, const QString& name);

/// Moves the pointer off all controls.
void restPointer(QQuickWindow& window);

void pressKey(QQuickWindow& window, Qt::Key key);

/// The arrow key that leads into a row's content, and along a row of choices: to the right, or where the application
/// reads from right to left, to the left.
Qt::Key onwardKey();
/// The other one.
Qt::Key backKey();

/// Writes a PNG. False if that fails or if the picture has a single colour.
bool save(const QImage& picture, const QString& file);

}  // namespace zelk::tour

// SPDX-License-Identifier: MIT
// Hands and eyes for the real window: presses as the system would send them, and pictures of what is shown.
#pragma once

#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <functional>

namespace zelk::tour {

/// Turns the event loop until `done`.
void waitUntil(const std::function<bool()>& done);

/// The visible item with this object name, anywhere in the window; nullptr if there is none.
QQuickItem* findControl(QQuickWindow& window, const QString& name);

/// Whether there is one in the next frame, which lays out what a model brings.
bool appears(QQuickWindow& window, const char* name);

/// A press with the mouse at a point of the window.
void clickAt(QQuickWindow& window, QPointF point);

/// A press with the mouse in the middle of the control. False if it is not there.
bool clickOn(QQuickWindow& window, const QString& name);

/// Takes the pointer off every control.
void restPointer(QQuickWindow& window);

void pressKey(QQuickWindow& window, Qt::Key key);

/// Writes a PNG. False if it cannot be written or if all of it has one colour.
bool save(const QImage& picture, const QString& file);

}  // namespace zelk::tour

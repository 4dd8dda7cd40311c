// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <QVariantMap>
#include <functional>
#include <map>
#include <memory>

#include "ui/shell/WindowId.h"

namespace zelk {

/// The windows beside the main one. Each is made when it is first asked for, and is the same one ever after. Main
/// thread.
class SecondaryWindows {
public:
    /// `given` makes the required properties of a window. The engine must outlive this.
    SecondaryWindows(QQmlEngine& engine, std::function<QVariantMap(WindowId)> given);
    ~SecondaryWindows();

    /// Shows it, or brings it forward where it is shown already.
    QQuickWindow& open(WindowId id);
    /// The window if it was ever opened, else nullptr.
    QQuickWindow* find(WindowId id) const;
    void closeAll();

private:
    QQmlEngine& engine_;
    std::function<QVariantMap(WindowId)> given_;
    std::map<WindowId, std::unique_ptr<QQuickWindow>> windows_;
};

/// A window of this file in ui/shell, in the middle of its screen and not yet shown. A file that is no window is a
/// mistake of ours and ends the program.
std::unique_ptr<QQuickWindow> makeWindow(QQmlEngine& engine, const QString& file, const QVariantMap& given);

/// Whether a sheet lies over what the window shows, and waits for an answer.
bool isCovered(const QQuickWindow& window);

/// Shows it, unfolds it and gives it the keyboard.
void bringForward(QWindow& window);

}  // namespace zelk

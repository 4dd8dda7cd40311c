// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <QVariantMap>
#include <functional>
#include <map>
#include <memory>

namespace zelk {

/// The secondary windows, one of each.
enum class WindowId { about, help, settings };

/// The windows other than the main one. Each is created when first opened, and then kept. Main thread.
class SecondaryWindows {
public:
    /// `given` returns the required properties of a window. The engine must outlive this.
    SecondaryWindows(QQmlEngine& engine, std::function<QVariantMap(WindowId)> given);
    ~SecondaryWindows();

    /// Shows the window, or raises it if it is visible.
    QQuickWindow& open(WindowId id);
    /// The window if it was opened before, else nullptr.
    QQuickWindow* find(WindowId id) const;
    void closeAll();

private:
    QQmlEngine& engine_;
    std::function<QVariantMap(WindowId)> given_;
    std::map<WindowId, std::unique_ptr<QQuickWindow>> windows_;
};

/// Creates the window of a QML file of Zelk.App, centred on its screen and hidden. Aborts if the file does not define a
/// window, which is a bug.
std::unique_ptr<QQuickWindow> makeWindow(QQmlEngine& engine, const QString& file, const QVariantMap& given);

/// Whether a modal sheet covers the window.
bool isCovered(const QQuickWindow& window);

/// Shows, restores, raises and activates the window.
void bringForward(QWindow& window);

}  // namespace zelk

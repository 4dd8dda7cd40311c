// SPDX-License-Identifier: MIT
#include "ui/shell/SecondaryWindows.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>
#include <utility>

namespace zelk {

namespace {

QString fileOf(WindowId id) {
    switch (id) {
        case WindowId::about:
            return QStringLiteral("AboutWindow");
        case WindowId::help:
            return QStringLiteral("HelpWindow");
        case WindowId::settings:
            return QStringLiteral("SettingsWindow");
    }
    return {};
}

}  // namespace

std::unique_ptr<QQuickWindow> makeWindow(QQmlEngine& engine, const QString& file, const QVariantMap& given) {
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Zelk/App/%1.qml").arg(file)));
    if (!component.isReady()) qFatal("%s", qPrintable(component.errorString()));
    std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(given)));
    if (!window) qFatal("%s is no window: %s", qPrintable(file), qPrintable(component.errorString()));
    if (const QScreen* screen = window->screen()) {
        const QRect room = screen->availableGeometry();
        QRect place(QPoint(), window->size().boundedTo(room.size()).expandedTo(window->minimumSize()));
        place.moveCenter(room.center());
        place.moveTop(std::max(place.top(), room.top()));
        window->setGeometry(place);
    }
    return window;
}

bool isCovered(const QQuickWindow& window) {
    // Popup items are children of the window's overlay, and their QObject parent is the popup.
    for (const QQuickItem* layer : window.contentItem()->childItems()) {
        if (!layer->inherits("QQuickOverlay")) continue;
        for (const QQuickItem* drawn : layer->childItems())
            if (drawn->isVisible() && drawn->parent() != nullptr && drawn->parent()->property("modal").toBool())
                return true;
    }
    return false;
}

void bringForward(QWindow& window) {
    if (window.windowStates() & Qt::WindowMinimized) window.showNormal();
    window.show();
    window.raise();
    window.requestActivate();
}

SecondaryWindows::SecondaryWindows(QQmlEngine& engine, std::function<QVariantMap(WindowId)> given)
    : engine_(engine), given_(std::move(given)) {}

SecondaryWindows::~SecondaryWindows() = default;

QQuickWindow& SecondaryWindows::open(WindowId id) {
    std::unique_ptr<QQuickWindow>& window = windows_[id];
    if (!window) window = makeWindow(engine_, fileOf(id), given_(id));
    bringForward(*window);
    return *window;
}

QQuickWindow* SecondaryWindows::find(WindowId id) const {
    const auto found = windows_.find(id);
    return found == windows_.end() ? nullptr : found->second.get();
}

void SecondaryWindows::closeAll() {
    for (const auto& [id, window] : windows_) window->close();
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <functional>
#include <memory>
#include <vector>

#include "ui/shell/CommandMenu.h"
#include "ui/shell/WindowId.h"

namespace zelk {

class AppModel;

/// The menus of the application: what stands where, under which name and key, and what it does. There is nothing to
/// cut, copy, paste or undo in it, and so no menu for that. Main thread.
class AppCommands : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(QVariantList menus READ menusForViews CONSTANT FINAL)
    Q_PROPERTY(QStringList shortcuts READ shortcuts CONSTANT FINAL)

public:
    /// `app` must outlive it. `openWindow` brings a window forward, `quit` ends the application. While `busy`,
    /// something waits for an answer, and nothing but quitting is done.
    AppCommands(
        AppModel& app, std::function<void(WindowId)> openWindow, std::function<void()> quit,
        std::function<bool()> busy = [] { return false; });
    ~AppCommands() override;

    /// From the left; owned here.
    QList<CommandMenu*> menus() const;
    QVariantList menusForViews() const;
    /// The keys of all entries that have one, as the toolkit writes them.
    QStringList shortcuts() const;
    void run(const Command& command) const;

public slots:
    /// Runs the entry that has the key at `place` in `shortcuts`.
    void runShortcut(int place);

private:
    std::vector<const Command*> withShortcut() const;

    std::function<bool()> busy_;
    std::vector<std::unique_ptr<CommandMenu>> menus_;
};

}  // namespace zelk

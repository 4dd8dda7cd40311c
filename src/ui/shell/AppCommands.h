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

/// The menus of the application: their entries, shortcuts and actions. There is no Edit menu, since nothing supports
/// cut, copy, paste or undo. Main thread.
class AppCommands : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(QVariantList menus READ menusForViews CONSTANT FINAL)
    Q_PROPERTY(QStringList shortcuts READ shortcuts CONSTANT FINAL)

public:
    /// `app` must outlive it. `openWindow` shows or raises a window, `quit` ends the application. While `busy` returns
    /// true, a modal sheet is open and only quitting works.
    AppCommands(
        AppModel& app, std::function<void(WindowId)> openWindow, std::function<void()> quit,
        std::function<bool()> busy = [] { return false; });
    ~AppCommands() override;

    /// From left to right; owned by this.
    QList<CommandMenu*> menus() const;
    QVariantList menusForViews() const;
    /// The shortcuts of all entries in Qt's portable format; an entry may have none, one or two.
    QStringList shortcuts() const;
    void run(const Command& command) const;
    /// Runs the entry as its shortcut does.
    void runByKey(const Command& command);

public slots:
    /// Runs the entry at this index of `shortcuts`.
    void runShortcut(int place);

signals:
    /// An entry was run by its shortcut and opened no dialog. If it leads to a screen, the focus belongs there.
    void ranByKey(bool leadsToScreen);

private:
    struct Key {
        QKeySequence keys;
        const Command* command;
    };
    std::vector<Key> keys() const;

    std::function<bool()> busy_;
    std::vector<std::unique_ptr<CommandMenu>> menus_;
};

}  // namespace zelk

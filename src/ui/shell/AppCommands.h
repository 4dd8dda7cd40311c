// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <functional>
#include <memory>
#include <vector>

#include "ui/controls/RowModel.h"

class QMenuBar;

namespace zelk {

class AppModel;

/// The windows beside the main one, one of each.
enum class WindowId { about, help, settings };

/// A menu entry. `part` marks entries that a system with a global menu bar puts in its own place, and those that lead
/// to a screen.
struct Command {
    enum class Part { ordinary, about, settings, quit, screen };

    QString title;
    QKeySequence shortcut;  ///< Control stands for Command on macOS; may be empty
    std::function<void()> run;
    Part part = Part::ordinary;
    bool startsGroup = false;         ///< preceded by a divider
    QKeySequence otherShortcut = {};  ///< an alternative that the menu does not show
};

/// A menu of the menu bar, as a list model of its entries. Main thread.
class CommandMenu : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of AppCommands")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)

public:
    enum Role { titleRole = Qt::UserRole, shortcutTextRole, startsGroupRole, nameRole };

    CommandMenu(QString title, std::vector<Command> commands);

    const QString& title() const { return title_; }
    const std::vector<Command>& commands() const { return commands_; }

public slots:
    /// Ignores invalid rows.
    void run(int row);

private:
    QString title_;
    std::vector<Command> commands_;
};

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

    /// From left to right; owned by this.
    QList<CommandMenu*> menus() const;
    QVariantList menusForViews() const;
    /// The shortcuts of all entries in Qt's portable format; an entry may have none, one or two.
    QStringList shortcuts() const;
    /// Creates the global menu bar of a system that has one. It has no parent window, so that it stays when the last
    /// one is closed. This must outlive it. Needs a QApplication.
    std::unique_ptr<QMenuBar> makeMenuBar();
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

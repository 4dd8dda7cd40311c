// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QKeySequence>
#include <QString>
#include <functional>
#include <vector>

#include "ui/controls/RowModel.h"

namespace zelk {

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
    std::size_t size() const override { return commands_.size(); }
    QVariant value(std::size_t row, int role) const override;

    QString title_;
    std::vector<Command> commands_;
};

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/shell/CommandMenu.h"

#include <utility>

namespace zelk {

CommandMenu::CommandMenu(QString title, std::vector<Command> commands)
    : RowModel({"title", "shortcutText", "startsGroup", "name"}),
      title_(std::move(title)),
      commands_(std::move(commands)) {}

QVariant CommandMenu::value(std::size_t row, int role) const {
    const Command& command = commands_[row];
    switch (role) {
        case Qt::DisplayRole:
        case titleRole:
            return command.title;
        case shortcutTextRole:
            return command.shortcut.toString(QKeySequence::NativeText);
        case startsGroupRole:
            return command.startsGroup;
        case nameRole:
            return QStringLiteral("menu") + command.title;
        default:
            return {};
    }
}

void CommandMenu::run(int row) {
    if (has(row)) commands_[static_cast<std::size_t>(row)].run();
}

}  // namespace zelk

#include "moc_CommandMenu.cpp"

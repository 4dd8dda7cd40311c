// SPDX-License-Identifier: MIT
#include "ui/shell/CommandMenu.h"

#include <utility>

namespace zelk {

CommandMenu::CommandMenu(QString title, std::vector<Command> commands)
    : title_(std::move(title)), commands_(std::move(commands)) {}

int CommandMenu::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(commands_.size());
}

QVariant CommandMenu::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Command& command = commands_[static_cast<std::size_t>(index.row())];
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

QHash<int, QByteArray> CommandMenu::roleNames() const {
    return {
        {titleRole, "title"}, {shortcutTextRole, "shortcutText"}, {startsGroupRole, "startsGroup"}, {nameRole, "name"}};
}

void CommandMenu::run(int row) {
    if (row >= 0 && row < rowCount()) commands_[static_cast<std::size_t>(row)].run();
}

}  // namespace zelk

#include "moc_CommandMenu.cpp"

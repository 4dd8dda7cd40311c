// SPDX-License-Identifier: MIT
#include "ui/shell/NativeMenuBar.h"

#include "ui/shell/AppCommands.h"

namespace zelk {

namespace {

/// The system moves entries with a role to its application menu. Without explicit roles Qt guesses them from the texts.
QAction::MenuRole roleOf(Command::Part part) {
    switch (part) {
        case Command::Part::about:
            return QAction::AboutRole;
        case Command::Part::settings:
            return QAction::PreferencesRole;
        case Command::Part::quit:
            return QAction::QuitRole;
        case Command::Part::ordinary:
        case Command::Part::screen:
            return QAction::NoRole;
    }
    return QAction::NoRole;
}

}  // namespace

std::unique_ptr<QMenuBar> makeNativeMenuBar(AppCommands& commands) {
    auto bar = std::make_unique<QMenuBar>();
    for (const CommandMenu* menu : commands.menus()) {
        QMenu* shown = bar->addMenu(menu->title());
        for (const Command& command : menu->commands()) {
            if (command.startsGroup) shown->addSeparator();
            QAction* action = shown->addAction(command.title);
            QList<QKeySequence> keys = {command.shortcut};
            if (!command.otherShortcut.isEmpty()) keys.append(command.otherShortcut);
            action->setShortcuts(keys);
            action->setMenuRole(roleOf(command.part));
            // The system does not say whether a shortcut or the mouse triggered it.
            QObject::connect(action, &QAction::triggered, &commands,
                             [&commands, &command] { commands.runByKey(command); });
        }
    }
    return bar;
}

}  // namespace zelk

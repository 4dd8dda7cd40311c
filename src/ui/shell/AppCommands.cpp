// SPDX-License-Identifier: MIT
#include "ui/shell/AppCommands.h"

#include <QMenuBar>
#include <utility>

#include "state/AppModel.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

namespace {

/// Only nine modules have a shortcut, Ctrl+1 to Ctrl+9.
std::vector<Command> goCommands(AppModel& app) {
    constexpr int digitKeys = 9;
    std::vector<Command> commands;
    for (const Screen screen : allScreens) {
        if (screen == Screen::settings) continue;  // opens in a window
        const int place = static_cast<int>(commands.size());
        const QKeySequence shortcut =
            place < digitKeys ? QKeySequence(QStringLiteral("Ctrl+%1").arg(place + 1)) : QKeySequence();
        commands.push_back(
            {lookOf(screen).title, shortcut, [&app, screen] { app.setSelection(screen); }, Command::Part::screen});
    }
    return commands;
}

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

CommandMenu::CommandMenu(QString title, std::vector<Command> commands)
    : RowModel(commands_, {{"title", [](const Command& command) { return command.title; }},
                           {"shortcutText",
                            [](const Command& command) { return command.shortcut.toString(QKeySequence::NativeText); }},
                           {"startsGroup", [](const Command& command) { return command.startsGroup; }},
                           {"name", [](const Command& command) { return QStringLiteral("menu") + command.title; }}}),
      title_(std::move(title)),
      commands_(std::move(commands)) {}

void CommandMenu::run(int row) {
    if (has(row)) commands_[static_cast<std::size_t>(row)].run();
}

AppCommands::AppCommands(AppModel& app, std::function<void(WindowId)> openWindow, std::function<void()> quit,
                         std::function<bool()> busy)
    : busy_(std::move(busy)) {
    const auto opens = [&](WindowId window) { return [openWindow, window] { openWindow(window); }; };
    const auto add = [&](const QString& title, std::vector<Command> commands) {
        menus_.push_back(std::make_unique<CommandMenu>(title, std::move(commands)));
    };
    add(QStringLiteral("Zelk"),
        {{tr("About Zelk"), {}, opens(WindowId::about), Command::Part::about},
         {tr("Settings…"), QKeySequence(QStringLiteral("Ctrl+,")), opens(WindowId::settings), Command::Part::settings,
          true},
         {tr("Quit Zelk"), QKeySequence(QStringLiteral("Ctrl+Q")), std::move(quit), Command::Part::quit, true}});
    add(tr("File"), {{tr("Run Survey"), QKeySequence(QStringLiteral("Ctrl+R")), [&app] { app.startScan(); }}});
    add(tr("Go"), goCommands(app));
    add(tr("Help"), {{tr("Zelk Help"), QKeySequence(QStringLiteral("Ctrl+?")), opens(WindowId::help),
                      Command::Part::ordinary, false, QKeySequence(Qt::Key_F1)}});
}

QList<CommandMenu*> AppCommands::menus() const {
    QList<CommandMenu*> menus;
    for (const auto& menu : menus_) menus.append(menu.get());
    return menus;
}

QVariantList AppCommands::menusForViews() const {
    QVariantList menus;
    for (const auto& menu : menus_) menus.append(QVariant::fromValue(menu.get()));
    return menus;
}

QStringList AppCommands::shortcuts() const {
    QStringList shortcuts;
    for (const Key& key : keys()) shortcuts.append(key.keys.toString());
    return shortcuts;
}

std::unique_ptr<QMenuBar> AppCommands::makeMenuBar() {
    auto bar = std::make_unique<QMenuBar>();
    for (const auto& menu : menus_) {
        QMenu* shown = bar->addMenu(menu->title());
        for (const Command& command : menu->commands()) {
            if (command.startsGroup) shown->addSeparator();
            QAction* action = shown->addAction(command.title);
            QList<QKeySequence> keys = {command.shortcut};
            if (!command.otherShortcut.isEmpty()) keys.append(command.otherShortcut);
            action->setShortcuts(keys);
            action->setMenuRole(roleOf(command.part));
            // The system does not say whether a shortcut or the mouse triggered it.
            connect(action, &QAction::triggered, this, [this, &command] { runByKey(command); });
        }
    }
    return bar;
}

void AppCommands::run(const Command& command) const {
    if (command.part == Command::Part::quit || !busy_()) command.run();
}

void AppCommands::runByKey(const Command& command) {
    const bool asking = busy_();
    run(command);
    if (!asking && !busy_()) emit ranByKey(command.part == Command::Part::screen);
}

void AppCommands::runShortcut(int place) {
    const std::vector<Key> all = keys();
    if (place >= 0 && static_cast<std::size_t>(place) < all.size())
        runByKey(*all[static_cast<std::size_t>(place)].command);
}

std::vector<AppCommands::Key> AppCommands::keys() const {
    std::vector<Key> keys;
    for (const auto& menu : menus_)
        for (const Command& command : menu->commands())
            for (const QKeySequence& sequence : {command.shortcut, command.otherShortcut})
                if (!sequence.isEmpty()) keys.push_back({sequence, &command});
    return keys;
}

}  // namespace zelk

#include "moc_AppCommands.cpp"

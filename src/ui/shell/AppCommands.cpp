// SPDX-License-Identifier: MIT
#include "ui/shell/AppCommands.h"

#include <utility>

#include "state/AppModel.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

namespace {

/// Only nine modules have a shortcut, Ctrl+1 to Ctrl+9.
constexpr int digitKeys = 9;

std::vector<Command> goCommands(AppModel& app) {
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

}  // namespace

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

AppCommands::~AppCommands() = default;

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

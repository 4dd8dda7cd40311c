// SPDX-License-Identifier: MIT
#include "ui/shell/AppCommands.h"

#include <gmock/gmock.h>

#include <QMenu>

#include "state/AppModelFixture.h"
#include "ui/shell/NativeMenuBar.h"

namespace zelk {

namespace {

using testing::ElementsAre;

class AppCommandsTest : public AppModelFixture {
protected:
    ~AppCommandsTest() override { machine.directories.release(); }

    /// "title|shortcut" of each entry.
    std::vector<std::string> entries(int menu) {
        std::vector<std::string> texts;
        for (const Command& command : commands.menus()[menu]->commands())
            texts.push_back((command.title + u'|' + command.shortcut.toString()).toStdString());
        return texts;
    }
    void press(const QString& key) { commands.runShortcut(static_cast<int>(commands.shortcuts().indexOf(key))); }

    std::vector<WindowId> opened;
    int quits = 0;
    AppCommands commands{model(), [this](WindowId id) { opened.push_back(id); }, [this] { ++quits; }};
};

}  // namespace

TEST_F(AppCommandsTest, hasFourMenus) {
    std::vector<std::string> titles;
    for (const CommandMenu* menu : commands.menus()) titles.push_back(menu->title().toStdString());
    EXPECT_THAT(titles, ElementsAre("Zelk", "File", "Go", "Help"));
    EXPECT_THAT(entries(0), ElementsAre("About Zelk|", "Settings…|Ctrl+,", "Quit Zelk|Ctrl+Q"));
    EXPECT_THAT(entries(1), ElementsAre("Run Survey|Ctrl+R"));
    EXPECT_THAT(entries(3), ElementsAre("Zelk Help|Ctrl+?"));
}

TEST_F(AppCommandsTest, goMenuListsScreensWithDigitShortcuts) {
    EXPECT_THAT(entries(2), ElementsAre("Overview|Ctrl+1", "Reclaim|Ctrl+2", "Privacy|Ctrl+3", "Tune|Ctrl+4",
                                        "Apps|Ctrl+5", "Clutter|Ctrl+6", "Duplicates|Ctrl+7", "Lens|Ctrl+8",
                                        "Health|Ctrl+9", "System|", "Tools|"));
}

TEST_F(AppCommandsTest, digitShortcutsSelectScreens) {
    press(QStringLiteral("Ctrl+9"));
    EXPECT_EQ(model().selection(), Screen::health);
    press(QStringLiteral("Ctrl+1"));
    EXPECT_EQ(model().selection(), Screen::survey);
}

TEST_F(AppCommandsTest, eachGoEntrySelectsItsScreen) {
    CommandMenu& go = *commands.menus()[2];
    for (int row = go.rowCount() - 1; row >= 0; --row) {
        go.run(row);
        EXPECT_EQ(model().selection(), allScreens[static_cast<std::size_t>(row)]);
    }
}

TEST_F(AppCommandsTest, reselectingTheCurrentScreenSignalsNothing) {
    takeSignals();
    press(QStringLiteral("Ctrl+1"));
    EXPECT_EQ(timesSignalled("selection"), 0);
}

TEST_F(AppCommandsTest, runsOneSurveyAtATime) {
    machine.directories.hold(home);
    press(QStringLiteral("Ctrl+R"));
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    takeSignals();
    press(QStringLiteral("Ctrl+R"));
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    EXPECT_TRUE(takeSignals().empty());
}

TEST_F(AppCommandsTest, opensWindowsAndQuits) {
    commands.menus()[0]->run(0);
    commands.menus()[0]->run(1);
    commands.menus()[3]->run(0);
    EXPECT_THAT(opened, ElementsAre(WindowId::about, WindowId::settings, WindowId::help));
    EXPECT_EQ(quits, 0);
    commands.menus()[0]->run(2);
    EXPECT_EQ(quits, 1);
}

TEST_F(AppCommandsTest, hasNoEditingCommands) {
    for (int menu = 0; menu < commands.menus().size(); ++menu)
        for (const std::string& entry : entries(menu))
            for (const char* absent : {"Cut", "Copy", "Paste", "Undo", "Redo"})
                EXPECT_EQ(entry.find(absent), std::string::npos) << entry;
    for (const auto key : {QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste, QKeySequence::Undo})
        EXPECT_FALSE(commands.shortcuts().contains(QKeySequence(key).toString()));
}

TEST_F(AppCommandsTest, ignoresInvalidRows) {
    for (CommandMenu* menu : commands.menus()) {
        menu->run(-1);
        menu->run(menu->rowCount());
    }
    commands.runShortcut(-1);
    commands.runShortcut(static_cast<int>(commands.shortcuts().size()));
    EXPECT_TRUE(opened.empty());
    EXPECT_EQ(quits, 0);
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_EQ(model().selection(), Screen::survey);
}

TEST_F(AppCommandsTest, nativeMenuBarMirrorsEntriesWithExplicitRoles) {
    const std::unique_ptr<QMenuBar> bar = makeNativeMenuBar(commands);
    EXPECT_EQ(bar->parent(), nullptr);
    const QList<CommandMenu*> menus = commands.menus();
    ASSERT_EQ(bar->actions().size(), menus.size());
    for (qsizetype at = 0; at < menus.size(); ++at) {
        const QMenu* menu = bar->actions()[at]->menu();
        EXPECT_EQ(menu->title(), menus[at]->title());
        auto command = menus[at]->commands().begin();
        for (QAction* action : menu->actions()) {
            if (action->isSeparator()) {
                EXPECT_TRUE(command->startsGroup);
                continue;
            }
            EXPECT_EQ(action->text(), command->title);
            EXPECT_EQ(action->shortcut(), command->shortcut);
            EXPECT_NE(action->menuRole(), QAction::TextHeuristicRole)
                << "the system would guess the role from the text";
            ++command;
        }
        EXPECT_EQ(command, menus[at]->commands().end());
    }
    QAction* about = bar->actions()[0]->menu()->actions()[0];
    EXPECT_EQ(about->menuRole(), QAction::AboutRole);
    about->trigger();
    EXPECT_THAT(opened, ElementsAre(WindowId::about));
}

TEST_F(AppCommandsTest, helpHasTwoShortcuts) {
    press(QStringLiteral("Ctrl+?"));
    press(QStringLiteral("F1"));
    EXPECT_THAT(opened, ElementsAre(WindowId::help, WindowId::help));
}

TEST_F(AppCommandsTest, nativeMenuBarHasBothHelpShortcuts) {
    const std::unique_ptr<QMenuBar> bar = makeNativeMenuBar(commands);
    const QAction* help = bar->actions().back()->menu()->actions().front();
    EXPECT_THAT(help->shortcuts(), ElementsAre(QKeySequence(QStringLiteral("Ctrl+?")), QKeySequence(Qt::Key_F1)));
}

TEST_F(AppCommandsTest, shortcutReportsWhetherItOpensScreen) {
    std::vector<bool> told;
    QObject::connect(&commands, &AppCommands::ranByKey, &commands,
                     [&](bool leadsToScreen) { told.push_back(leadsToScreen); });
    press(QStringLiteral("Ctrl+2"));
    press(QStringLiteral("Ctrl+,"));
    EXPECT_THAT(told, ElementsAre(true, false));
    commands.menus()[2]->run(0);
    EXPECT_EQ(told.size(), 2U) << "the mouse chose that one";
}

TEST_F(AppCommandsTest, shortcutReportsNothingWhileDialogIsOpen) {
    bool busy = true;
    AppCommands asked(
        model(), [](WindowId) {}, [&] { busy = true; }, [&] { return busy; });
    int told = 0;
    QObject::connect(&asked, &AppCommands::ranByKey, &asked, [&] { ++told; });
    const auto run = [&](const char* key) {
        asked.runShortcut(static_cast<int>(asked.shortcuts().indexOf(QString::fromLatin1(key))));
    };
    run("Ctrl+2");
    EXPECT_EQ(model().selection(), Screen::survey);
    busy = false;
    run("Ctrl+Q");
    EXPECT_EQ(told, 0) << "it came to a question";
    busy = false;
    run("Ctrl+2");
    EXPECT_EQ(told, 1);
}

}  // namespace zelk

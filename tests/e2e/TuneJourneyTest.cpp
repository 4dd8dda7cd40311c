// SPDX-License-Identifier: MIT
// Checks the background items in the real window, with the mouse, with the keyboard alone, and on a real disk.
#include <gmock/gmock.h>

#include <QTemporaryDir>
#include <filesystem>

#include "ReclaimHands.h"
#include "ScreenFaults.h"
#include "ShellFixture.h"
#include "fakes/Announcements.h"
#include "fakes/Environment.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "fakes/TuneHome.h"
#include "platform/NativePlatform.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

class TuneJourney : public ShellFixture {
protected:
    TuneJourney() { fakes::fillWithAgents(machine); }

    TuneModel& tune() { return model().tune(); }
    Strings labels() { return texts(window(), "agentList", "label"); }
    void finishCommand() {
        runUntil([this] { return !tune().busy(); });
        window().grabWindow();
    }
    void type(const std::string& words) {
        for (const char letter : words) QTest::keyClick(&window(), letter);
    }
};

}  // namespace

TEST_F(TuneJourney, checksFiltersTicksAndRemovesWithMouse) {
    shell();
    click("sidebarTune");
    EXPECT_TRUE(shows(QStringLiteral("Check memory pressure, free up RAM, flush caches, and trim startup items.")));
    click("moduleScanButton");
    ASSERT_TRUE(shows(QStringLiteral("Background items (4)")));
    EXPECT_THAT(labels(), ElementsAre("Backup", "cloud", "Daemon", "Sync"));

    click("agentSearch");
    type("CLO");
    EXPECT_THAT(labels(), ElementsAre("cloud"));
    click("agentTick0");
    click("clearSearch");
    EXPECT_THAT(labels(), ElementsAre("Backup", "cloud", "Daemon", "Sync"));
    ASSERT_TRUE(shows(QStringLiteral("Remove 1 selected")));
    click("removeAgents");
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(fakes::ownAgents + "/c.plist"));
    EXPECT_THAT(labels(), ElementsAre("Backup", "Daemon", "Sync"));
    EXPECT_TRUE(shows(QStringLiteral("Background items (3)")));

    click("undoRemoval");
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_THAT(labels(), ElementsAre("Backup", "cloud", "Daemon", "Sync"));
    EXPECT_TRUE(machine.files.identity(fakes::ownAgents + "/c.plist"));
}

TEST_F(TuneJourney, worksWithKeyboardAlone) {
    shell();
    press(Qt::Key_4, Qt::ControlModifier);
    ASSERT_EQ(model().selection(), Screen::tune);
    tabTo(window(), "moduleScanButton");
    press(Qt::Key_Return);
    ASSERT_TRUE(shows(QStringLiteral("Background items (4)")));

    QTest::keySequence(&window(), QKeySequence(QKeySequence::Find));
    type("sync");
    EXPECT_THAT(labels(), ElementsAre("Sync"));
    tabTo(window(), "agentList");
    press(Qt::Key_Space);
    tabTo(window(), "removeAgents");
    press(Qt::Key_Return);
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(fakes::ownAgents + "/s.plist"));
    window().grabWindow();
    ASSERT_TRUE(hasKeyboard(window(), "agentSearch"));
    press(Qt::Key_Escape);
    EXPECT_THAT(labels(), ElementsAre("Backup", "cloud", "Daemon"));

    tabTo(window(), "chooseAllAgents");
    press(Qt::Key_Space);
    EXPECT_TRUE(shows(QStringLiteral("Remove 2 selected")));
    tabTo(window(), "chooseNoAgents");
    press(Qt::Key_Return);
    EXPECT_EQ(find("removeAgents"), nullptr);
}

TEST_F(TuneJourney, showsAnswersOfCommands) {
    shell();
    click("sidebarTune");
    click("moduleScanButton");
    machine.processes.outcome = [](const auto&) { return ChildOutcome{std::nullopt, 0, "one\rtwo\r"}; };
    click("freeMemory");
    finishCommand();
    EXPECT_TRUE(shows(QStringLiteral("one\ntwo\n")));
    machine.processes.outcome = [](const auto&) { return ChildOutcome{std::nullopt, 1, "User canceled."}; };
    click("flushDNS");
    finishCommand();
    EXPECT_TRUE(shows(QStringLiteral("cancelled")));
    EXPECT_EQ(machine.processes.calls().size(), 2U);
    machine.vitals.memoryStats.used = 15'500'000'000;
    click("refreshMemory");
    EXPECT_TRUE(shows(QStringLiteral("pressure: high")));
}

TEST_F(TuneJourney, listAndSelectionOutliveTheScreen) {
    shell();
    click("sidebarTune");
    click("moduleScanButton");
    click("agentTick1");
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_4, Qt::ControlModifier);
    EXPECT_TRUE(shows(QStringLiteral("Remove 1 selected")));
    EXPECT_THAT(labels(), ElementsAre("Backup", "cloud", "Daemon", "Sync"));
}

TEST_F(TuneJourney, answerIsAnnouncedOnceAndNotOnReturn) {
    shell();
    click("sidebarTune");
    click("moduleScanButton");
    window().grabWindow();
    fakes::Announcements said(window());
    for (int times = 0; times < 2; ++times) {
        click("flushDNS");
        finishCommand();
        EXPECT_THAT(said.take(), ElementsAre("done"));
    }
    click("sidebarTools");
    click("sidebarTune");
    EXPECT_TRUE(shows(QStringLiteral("done")));
    EXPECT_THAT(said.take(), IsEmpty());
}

TEST_F(TuneJourney, hasNoFaultInAnySizeOrTheme) {
    for (int item = 0; item < 300; ++item)
        machine.files.addFile(fakes::ownAgents + "/" + std::to_string(1'000 + item) + ".plist",
                              fakes::agentList("Item " + std::to_string(1'000 + item)));
    shell();
    click("sidebarTune");
    click("moduleScanButton");
    machine.processes.outcome = [](const auto&) { return ChildOutcome{std::nullopt, 0, "an answer"}; };
    click("flushDNS");
    finishCommand();
    click("chooseAllAgents");
    for (const char* place : {"freeMemory", "agentSearch", "agentList"})
        inEverySize(place, [&](const std::string& state) {
            tabTo(window(), place);
            expectNoFaultsWithRing(state);
        });
}

#ifndef Q_OS_MACOS
/// Autostart entries and units on a real disk, in the folders that the environment names.
TEST(RealTuneJourney, removesEntryOfARealAutostartFolder) {
    const QTemporaryDir folder;
    const std::string home = folder.path().toStdString();
    const fakes::EnvironmentVariable homeFolder("HOME", home);
    const fakes::EnvironmentVariable data("XDG_DATA_HOME", std::nullopt);
    const fakes::EnvironmentVariable config("XDG_CONFIG_HOME", home + "/conf");
    const fakes::EnvironmentVariable system("XDG_CONFIG_DIRS", home + "/etc/xdg");
    const auto put = [&](const std::string& below, const std::string& content) {
        const std::string path = home + below;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        fakes::writeFile(path, content);
        return path;
    };
    const std::string entry = "[Desktop Entry]\nType=Application\nExec=sh -c true\nName=";
    const std::string own = put("/conf/autostart/own.desktop", entry + "Own\n");
    const std::string unit =
        put("/conf/systemd/user/own.service", "[Unit]\nDescription=Unit\n[Service]\nExecStart=-%h/bin/tool --x\n");
    put("/bin/tool", "#!/bin/sh\n");
    put("/conf/autostart/off.desktop", entry + "Off\nHidden=true\n");
    put("/etc/xdg/autostart/off.desktop", entry + "Off\n");
    put("/conf/autostart/mine.desktop", entry + "Mine\n");
    put("/etc/xdg/autostart/mine.desktop", entry + "Theirs\n");
    put("/etc/xdg/autostart/theirs.desktop", entry + "Applet\n");
    std::filesystem::create_symlink("/dev/null", home + "/conf/systemd/user/masked.service");
    std::filesystem::create_directories(home + "/conf/systemd/user/default.target.wants");
    std::filesystem::create_symlink(unit, home + "/conf/systemd/user/default.target.wants/own.service");

    NativePlatform native;
    {
        AppModel model(native.platform());
        model.setSelection(Screen::tune);
        MainWindow main(model);
        main.motion().setReduced(true);
        main.show();
        runUntil([&] { return main.isUp(); });
        ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("moduleScanButton")));

        // Those of the machine itself are in the list too.
        const auto agent = [&](const std::string& below) {
            const auto& agents = model.tune().agents();
            const auto found =
                std::find_if(agents.begin(), agents.end(), [&](const Agent& one) { return one.path == home + below; });
            return found == agents.end() ? Agent() : *found;
        };
        EXPECT_EQ(agent("/conf/autostart/own.desktop").label, "Own");
        EXPECT_TRUE(agent("/conf/autostart/own.desktop").removable);
        EXPECT_TRUE(agent("/conf/autostart/own.desktop").program.value_or("").ends_with("/sh"));
        EXPECT_EQ(agent("/conf/systemd/user/own.service"), (Agent{"Unit", unit, home + "/bin/tool", true}));
        EXPECT_EQ(agent("/etc/xdg/autostart/theirs.desktop").label, "Applet");
        EXPECT_FALSE(agent("/etc/xdg/autostart/theirs.desktop").removable);
        EXPECT_TRUE(agent("/conf/autostart/mine.desktop").replaces);
        for (const char* absent :
             {"/conf/autostart/off.desktop", "/etc/xdg/autostart/off.desktop", "/etc/xdg/autostart/mine.desktop",
              "/conf/systemd/user/masked.service", "/conf/systemd/user/default.target.wants/own.service"})
            EXPECT_EQ(agent(absent).path, "") << absent;

        ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("chooseAllAgents")));
        main.window().grabWindow();
        ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("removeAgents")));
        EXPECT_FALSE(std::filesystem::exists(own));
        EXPECT_FALSE(std::filesystem::exists(unit));
        EXPECT_TRUE(std::filesystem::exists(home + "/conf/autostart/off.desktop"));
        EXPECT_TRUE(std::filesystem::exists(home + "/conf/autostart/mine.desktop"));
        EXPECT_TRUE(std::filesystem::is_symlink(home + "/conf/systemd/user/masked.service"));
        EXPECT_THAT(fakes::restorable(home + "/.local/share/Trash"),
                    ElementsAre(testing::Key(own), testing::Key(unit)));

        main.window().grabWindow();
        ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("undoRemoval")));
        runUntil([&] { return !model.removalUndo().underWay(); });
        EXPECT_TRUE(std::filesystem::exists(own));
        EXPECT_EQ(agent("/conf/autostart/own.desktop").label, "Own");
    }
    EXPECT_TRUE(native.drain(60));
}
#endif

}  // namespace zelk

// SPDX-License-Identifier: MIT
// Lists and uninstalls applications in the real window: with the mouse, with the keyboard alone, and on a real disk.
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <filesystem>

#include "ReclaimHands.h"
#include "ScreenFaults.h"
#include "ShellFixture.h"
#include "fakes/Announcements.h"
#include "fakes/AppsHome.h"
#include "fakes/Environment.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/NativePlatform.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::Not;

using Strings = std::vector<std::string>;

class AppsJourney : public ShellFixture {
protected:
    AppsModel& apps() { return model().apps(); }
    Strings names() { return texts(window(), "appList", "name"); }
    void finishReading() {
        runUntil([this] { return !apps().loading(); });
        window().grabWindow();
    }
    void finishAsking() {
        runUntil([this] { return find("confirmUninstall") != nullptr && find("confirmUninstall")->isEnabled(); });
    }
    void finishRemoval() {
        runUntil([this] { return !apps().removing(); });
        window().grabWindow();
    }
};

class MacAppsJourney : public AppsJourney {
protected:
    MacAppsJourney() {
        fakes::addBundle(machine, "Inkwell", 300'000'000, "org.sample.inkwell");
        fakes::addBundle(machine, "Sonata", 500'000'000, "org.sample.sonata");
        machine.files.addFile(home + "/Library/Caches/Inkwell/file", {}, 400'000'000);
    }
};

class LinuxAppsJourney : public AppsJourney {
protected:
    LinuxAppsJourney() {
        desktop.fill();
        machine.files.addFile(home + "/.var/app/org.sample.Orrery/sky", {}, 2'000'000);
        machine.files.addFile(home + "/.config/studio/settings", {}, 1'000'000);
    }

    fakes::LinuxApps desktop{machine};
};

}  // namespace

TEST_F(MacAppsJourney, sortsUninstallsAndUndoesWithMouse) {
    shell();
    click("sidebarApps");
    EXPECT_TRUE(shows(QStringLiteral(
        "List installed apps by size and uninstall them cleanly — the app plus its leftover caches, preferences, and "
        "support files.")));
    click("moduleScanButton");
    finishReading();
    runUntil([this] { return names() == Strings{"Inkwell", "Sonata"}; });
    const QQuickItem* order = find("appsOrder");
    tour::clickAt(window(), order->mapToScene(QPointF(0.75 * order->width(), order->height() / 2)));
    EXPECT_THAT(names(), ElementsAre("Sonata", "Inkwell"));

    click("uninstall1");
    finishAsking();
    EXPECT_TRUE(shows(QStringLiteral("Moves the app and 1 leftover item(s) to Trash — 700 MB.")));
    click("confirmUninstall");
    finishRemoval();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/Applications/Inkwell.app", home + "/Library/Caches/Inkwell"));
    EXPECT_THAT(names(), ElementsAre("Sonata"));
    click("undoRemoval");
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_THAT(names(), ElementsAre("Sonata", "Inkwell"));
}

TEST_F(MacAppsJourney, worksWithKeyboardAlone) {
    shell();
    press(Qt::Key_5, Qt::ControlModifier);
    ASSERT_EQ(model().selection(), Screen::apps);
    tabTo(window(), "moduleScanButton");
    press(Qt::Key_Return);
    finishReading();
    runUntil([this] { return names() == Strings{"Inkwell", "Sonata"}; });
    tabTo(window(), "appList");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    finishAsking();
    EXPECT_TRUE(shows(QStringLiteral("Uninstall Sonata")));
    press(Qt::Key_Escape);
    window().grabWindow();
    EXPECT_TRUE(hasKeyboard(window(), "appList"));
    press(Qt::Key_Space);
    finishAsking();
    press(Qt::Key_Return);
    finishRemoval();
    EXPECT_THAT(names(), ElementsAre("Inkwell"));
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/Applications/Sonata.app"));
    EXPECT_TRUE(hasKeyboard(window(), "appList"));
}

TEST_F(MacAppsJourney, listOutlivesTheScreen) {
    shell();
    click("sidebarApps");
    click("moduleScanButton");
    finishReading();
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_5, Qt::ControlModifier);
    EXPECT_EQ(names().size(), 2U);
}

TEST_F(LinuxAppsJourney, quittingAsksWhileAnApplicationIsRemoved) {
    shell();
    click("sidebarApps");
    click("moduleScanButton");
    finishReading();
    click("uninstall0");
    finishAsking();
    machine.tasks.hold();
    click("confirmUninstall");
    window().grabWindow();
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits, 0) << "asked first";
    press(Qt::Key_Escape);
    machine.tasks.release();
    finishRemoval();
    EXPECT_THAT(names(), Not(Contains("Studio")));
}

TEST_F(LinuxAppsJourney, failureIsAnnouncedOnce) {
    shell();
    click("sidebarApps");
    click("moduleScanButton");
    finishReading();
    window().grabWindow();
    fakes::Announcements said(window());
    desktop.removal = {std::nullopt, 1, "error: in use\n"};
    runUntil([this] { return names().size() == 6 && names()[1] == "Orrery"; });
    click("uninstall1");
    finishAsking();
    click("confirmUninstall");
    finishRemoval();
    EXPECT_THAT(said.take(),
                ElementsAre("Orrery was not removed. Where they were: 1 leftover item(s)., error: in use"));
    EXPECT_THAT(names(), Contains("Orrery"));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(LinuxAppsJourney, hasNoFaultInAnySizeOrTheme) {
    const std::string longName(200, 'n');
    desktop.addPackaged({"long", 5'000'000}, longName, longName);
    desktop.addPackaged({"needed", 4'000'000}, "Needed by many", "needed");
    for (const char* other : {"a-long-name-of-a-package", "another-long-name-of-one", "and-a-third-name"})
        desktop.packages.push_back({other, 1, "needed"});
    for (int number = 0; number < 200; ++number) {
        const std::string name = "app" + std::to_string(1'000 + number);
        desktop.addPackaged({name}, name, name);
    }
    shell();
    click("sidebarApps");
    const auto look = [this](const char* state) {
        inEverySize(state, [this](const std::string& where) { expectNoFaultsWithRing(where); });
    };
    look("idle");
    click("moduleScanButton");
    finishReading();
    tabTo(window(), "appList");
    look("list");
    desktop.removal = {std::nullopt, 1, "error: " + longName + "\n"};
    click("uninstall0");
    finishAsking();
    look("sheet");
    click("confirmUninstall");
    finishRemoval();
    look("failed");
}

#ifndef Q_OS_MACOS
/// An AppImage and an unpacked application on a real disk, beside whatever this machine has installed.
TEST(RealAppsJourney, removesExactlyWhatTheSheetLists) {
    const QTemporaryDir folder;
    const std::string home = folder.path().toStdString();
    const fakes::EnvironmentVariable homeFolder("HOME", home);
    const fakes::EnvironmentVariable data("XDG_DATA_HOME", std::nullopt);
    const fakes::EnvironmentVariable config("XDG_CONFIG_HOME", home + "/conf");
    const fakes::EnvironmentVariable cache("XDG_CACHE_HOME", std::nullopt);
    const fakes::EnvironmentVariable state("XDG_STATE_HOME", std::nullopt);
    const auto put = [&](const std::string& below, const std::string& content) {
        const std::string path = home + below;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        fakes::writeFile(path, content);
        return path;
    };
    const std::string image = put("/Applications/Sonata.AppImage", fakes::LinuxApps::appImageStart());
    put("/Tidepool/bin/tidepool", "#!/bin/sh\n");
    put("/Tidepool/data/.hidden", std::string(10'000, 'x'));
    const std::string entry = put("/.local/share/applications/org.sample.Tidepool.desktop",
                                  fakes::applicationEntry("Tidepool", home + "/Tidepool/bin/tidepool %U"));
    put("/conf/tidepool/settings", "a");
    put("/.cache/org.sample.Tidepool/file", "b");
    put("/conf/autostart/org.sample.Tidepool.desktop", "c");
    put("/conf/Tidepool/kept", "another name");
    put("/.local/share/tidepool2/kept", "another name");
    std::filesystem::create_directories(home + "/elsewhere");
    std::filesystem::create_symlink(home + "/elsewhere", home + "/.cache/tidepool");
    const auto filesLeft = [&] {
        std::set<std::string> left;
        for (const auto& one : std::filesystem::recursive_directory_iterator(home)) {
            const std::string path = one.path().string().substr(home.size());
            if (!one.is_directory() && !path.starts_with("/.local/share/Trash")) left.insert(path);
        }
        return left;
    };
    const std::set<std::string> before = filesLeft();

    NativePlatform native;
    {
        AppModel model(native.platform());
        model.setSelection(Screen::apps);
        MainWindow main(model);
        main.motion().setReduced(true);
        main.show();
        runUntil([&] { return main.isUp(); });
        ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("moduleScanButton")));
        runUntil([&] { return !model.apps().loading(); });
        const auto app = [&](const std::string& url) {
            for (const AppEntry& one : model.apps().apps())
                if (one.url == url) return one;
            ADD_FAILURE() << url;
            return AppEntry();
        };
        const AppEntry tidepool = app(home + "/Tidepool");
        EXPECT_EQ(tidepool.kind, AppKind::unpacked);
        EXPECT_GE(tidepool.size, 12'000U);
        EXPECT_EQ(app(image).kind, AppKind::appImage);

        const auto leftovers = model.apps().leftoversFor(tidepool);
        Strings listed;
        for (const auto& one : leftovers) listed.push_back(one.url.substr(home.size()));
        EXPECT_THAT(listed,
                    ElementsAre("/.local/share/applications/org.sample.Tidepool.desktop", "/.cache/org.sample.Tidepool",
                                "/conf/tidepool", "/conf/autostart/org.sample.Tidepool.desktop"));
        model.apps().uninstall(tidepool, leftovers);
        runUntil([&] { return !model.apps().removing(); });
        std::set<std::string> expected = before;
        for (const char* gone :
             {"/Tidepool/bin/tidepool", "/Tidepool/data/.hidden",
              "/.local/share/applications/org.sample.Tidepool.desktop", "/.cache/org.sample.Tidepool/file",
              "/conf/tidepool/settings", "/conf/autostart/org.sample.Tidepool.desktop"})
            EXPECT_EQ(expected.erase(gone), 1U) << gone;
        EXPECT_EQ(filesLeft(), expected);
        EXPECT_THAT(fakes::restorable(home + "/.local/share/Trash"), Contains(Key(home + "/Tidepool")));

        model.undoLastRemoval();
        runUntil([&] { return !model.removalUndo().underWay(); });
        EXPECT_EQ(filesLeft(), before);
    }
    EXPECT_TRUE(native.drain(60));
}
#endif

}  // namespace zelk

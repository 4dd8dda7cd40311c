// SPDX-License-Identifier: MIT
// Clears what browsers left behind in the real window, with the mouse, with the keyboard alone, and on a real disk.
#include <gmock/gmock.h>

#include <QTemporaryDir>
#include <filesystem>

#include "ReclaimHands.h"
#include "ScreenFaults.h"
#include "ShellFixture.h"
#include "fakes/Environment.h"
#include "fakes/PrivacyHome.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/NativePlatform.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

class PrivacyJourney : public ShellFixture {
protected:
    PrivacyModel& privacy() { return model().privacy(); }
    Strings titles() { return texts(window(), "traceList", "title"); }
    void untilScanned() {
        runUntil([this] { return !privacy().loading(); });
        window().grabWindow();
    }
    void untilCleared() {
        runUntil([this] { return !model().removals().underWay(); });
        runWhatIsThere();
        window().grabWindow();
    }
    void untilUndone() {
        runUntil([this] { return !model().removalUndo().underWay(); });
        window().grabWindow();
    }
    const std::string library = home + "/Library/";
};

}  // namespace

TEST_F(PrivacyJourney, scansChoosesClearsAndRestoresWithMouse) {
    fakes::fillWithTraces(machine);
    shell();
    click("sidebarPrivacy");
    click("moduleScanButton");
    untilScanned();
    EXPECT_THAT(titles(), ElementsAre("Safari — Caches", "Chrome — Caches", "Safari — History", "Chrome — Cookies",
                                      "System — Recent items"));
    ASSERT_TRUE(shows(QStringLiteral("10 MB selected")));
    click("traceTick1");
    click("traceTick2");
    ASSERT_TRUE(shows(QStringLiteral("9 MB selected")));
    click("reviewButton");
    untilCleared();
    EXPECT_THAT(machine.trash.trashed(),
                ElementsAre(library + "Caches/com.apple.Safari", library + "Caches/com.apple.WebKit.WebContent",
                            library + "Safari/History.db", library + "Safari/History.db-wal"));
    EXPECT_THAT(titles(), ElementsAre("Chrome — Caches", "Chrome — Cookies", "System — Recent items"));
    click("undoRemoval");
    untilUndone();
    EXPECT_EQ(titles().size(), 5U);
    EXPECT_TRUE(machine.files.identity(library + "Safari/History.db"));
    EXPECT_TRUE(shows(QStringLiteral("0 bytes selected")));
}

TEST_F(PrivacyJourney, worksWithKeyboardAlone) {
    fakes::fillWithTraces(machine);
    shell();
    press(Qt::Key_3, Qt::ControlModifier);
    ASSERT_EQ(model().selection(), Screen::privacy);
    tabTo(window(), "moduleScanButton");
    press(Qt::Key_Return);
    untilScanned();
    tabTo(window(), "traceList");
    press(Qt::Key_End);
    press(Qt::Key_Space);
    tabTo(window(), "reviewButton");
    press(Qt::Key_Return);
    untilCleared();
    EXPECT_EQ(machine.trash.trashed().size(), 4U);
    ASSERT_TRUE(hasKeyboard(window(), "traceList"));
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Space, Qt::Key_Down, Qt::Key_Space}) press(key);
    tabTo(window(), "reviewButton");
    press(Qt::Key_Space);
    untilCleared();
    ASSERT_TRUE(shows(QStringLiteral("No traces")));
    ASSERT_TRUE(hasKeyboard(window(), "scanTracesAgain"));
    machine.files.addFile(library + "Caches/Firefox/data", {}, 9'000'000);
    press(Qt::Key_Return);
    untilScanned();
    EXPECT_THAT(titles(), ElementsAre("Firefox — Caches"));
}

TEST_F(PrivacyJourney, listAndSelectionOutliveTheScreen) {
    fakes::fillWithTraces(machine);
    shell();
    click("sidebarPrivacy");
    click("moduleScanButton");
    untilScanned();
    click("traceTick2");
    press(Qt::Key_1, Qt::ControlModifier);
    machine.workspace.running = {"Safari"};
    press(Qt::Key_3, Qt::ControlModifier);
    EXPECT_TRUE(shows(QStringLiteral("13 MB selected")));
    EXPECT_TRUE(shows(QStringLiteral("quit Safari to clear safely"))) << "looked for when the page appears";
}

TEST_F(PrivacyJourney, quittingAsksWhileTracesAreCleared) {
    fakes::fillWithTraces(machine);
    shell();
    click("sidebarPrivacy");
    click("moduleScanButton");
    untilScanned();
    machine.tasks.hold();
    click("reviewButton");
    press(Qt::Key_Q, Qt::ControlModifier);
    runUntil([&] { return find("finishFirst") != nullptr; });
    EXPECT_EQ(quits, 0);
    click("finishFirst");
    machine.tasks.release();
    runUntil([&] { return quits == 1; });
    EXPECT_EQ(machine.trash.trashed().size(), 3U);
}

TEST_F(PrivacyJourney, hasNoFaultInAnySizeOrTheme) {
    fakes::fillWithLinuxTraces(machine);
    machine.workspace.running = {"Chromium Web Browser " + std::string(200, 'n')};
    shell();
    click("sidebarPrivacy");
    click("moduleScanButton");
    untilScanned();
    for (const bool cleared : {false, true}) {
        if (cleared) {
            for (const Trace& trace : privacy().traces()) privacy().setSelected(trace.identity(), true);
            click("reviewButton");
            untilCleared();
        }
        for (const char* place :
             cleared ? std::vector{"scanTracesAgain", "undoRemoval"} : std::vector{"traceList", "reviewButton"})
            inEverySize(place, [&](const std::string& state) {
                tabTo(window(), place);
                expectNoFaultsWithRing(state);
            });
    }
}

#ifndef Q_OS_MACOS
/// Profiles on a real disk, in the folders that the environment names.
TEST(RealPrivacyJourney, clearsRealProfilesAndRestoresThem) {
    const QTemporaryDir folder;
    const std::string home = folder.path().toStdString();
    const fakes::EnvironmentVariable homeFolder("HOME", home);
    const fakes::EnvironmentVariable data("XDG_DATA_HOME", std::nullopt);
    const fakes::EnvironmentVariable config("XDG_CONFIG_HOME", home + "/conf");
    const fakes::EnvironmentVariable cache("XDG_CACHE_HOME", home + "/kept");
    Strings kept;
    const auto put = [&](const std::string& below) {
        const std::string path = home + below;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        fakes::writeFile(path, std::string(5'000, 'x'));
        return path;
    };
    const std::string profile = "/conf/mozilla/firefox/b.used/";
    for (const char* name : {"places.sqlite", "places.sqlite-wal", "logins.json", "key4.db", "cert9.db"})
        kept.push_back(put(profile + name));
    for (const char* name : {"/conf/chromium/Local State", "/conf/chromium/Default/Bookmarks",
                             "/conf/chromium/Default/Login Data", "/conf/chromium/Default/Login Data-journal"})
        kept.push_back(put(name));
    fakes::writeFile(home + "/conf/mozilla/firefox/profiles.ini", "[Profile0]\nIsRelative=1\nPath=b.used\n");
    const std::string cookies = put(profile + "cookies.sqlite");
    put(profile + "cookies.sqlite-wal");
    const std::string history = put("/conf/chromium/Default/History");
    put("/conf/chromium/Default/History-journal");
    put("/kept/chromium/Default/Cache/data_0");
    put("/kept/mozilla/firefox/b.used/cache2/entries/0");

    NativePlatform native;
    {
        AppModel model(native.platform());
        model.setSelection(Screen::privacy);
        MainWindow main(model);
        main.motion().setReduced(true);
        main.show();
        runUntil([&] { return main.isUp(); });
        ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("moduleScanButton")));
        runUntil([&] { return !model.privacy().loading(); });
        Strings found;
        for (const Trace& trace : model.privacy().traces()) found.push_back(trace.identity());
        EXPECT_THAT(found, testing::UnorderedElementsAre("ChromiumCaches", "FirefoxCaches", "FirefoxCookies",
                                                         "ChromiumHistory"));
        EXPECT_TRUE(model.privacy().firefoxHistoryStays());
        for (const std::string& identity : found) model.privacy().setSelected(identity, true);
        main.window().grabWindow();
        ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("reviewButton")));
        runUntil([&] { return !model.removals().underWay(); });
        runUntil([&] { return model.removalUndo().restorable() > 0; });
        for (const std::string& gone : {cookies, cookies + "-wal", history, history + "-journal",
                                        home + "/kept/chromium", home + "/kept/mozilla/firefox"})
            EXPECT_FALSE(std::filesystem::exists(gone)) << gone;
        for (const std::string& path : kept) EXPECT_TRUE(std::filesystem::exists(path)) << path;
        EXPECT_EQ(fakes::restorable(home + "/.local/share/Trash").size(), 6U);

        main.window().grabWindow();
        ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("undoRemoval")));
        runUntil([&] { return !model.removalUndo().underWay(); });
        for (const std::string& back : {cookies, cookies + "-wal", history, history + "-journal"})
            EXPECT_TRUE(std::filesystem::exists(back)) << back;
        EXPECT_EQ(model.privacy().traces().size(), 4U);
    }
    EXPECT_TRUE(native.drain(60));
}
#endif

}  // namespace zelk

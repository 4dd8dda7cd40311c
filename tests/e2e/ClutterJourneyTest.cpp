// SPDX-License-Identifier: MIT
// Removes large files in Clutter: with the mouse, with the keyboard alone, and on a real disk.
#include <gmock/gmock.h>

#include <QTemporaryDir>
#include <filesystem>

#include "ReclaimHands.h"
#include "ShellFixture.h"
#include "fakes/ClutterHome.h"
#include "fakes/TrashContent.h"
#include "platform/NativePlatform.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

using testing::ElementsAre;

using Strings = std::vector<std::string>;

class ClutterJourney : public ShellFixture {
protected:
    ClutterJourney() {
        fakes::fillWithClutter(machine, home);
        for (const char* file : {"/projects/film.mov", "/projects/system.iso"}) machine.files.addFile(home + file);
    }

    void waitForSurvey() {
        runUntil([&] { return model().scanPhase() == Phase::finished; });
        runUntil([&] { return !model().trashLoading(); });
        window().grabWindow();
    }
    void clickText(const char* text) {
        QQuickItem* item = showing(QString::fromLatin1(text));
        ASSERT_NE(item, nullptr) << text;
        tour::clickAt(window(), item->mapToScene(item->boundingRect().center()));
    }
    bool listHasFocus() {
        const QQuickItem* list = find("clutterList");
        return list != nullptr && list->hasActiveFocus();
    }
    std::vector<std::string> names() { return texts(window(), "clutterList", "name"); }
    std::vector<std::string> typeTotals() {
        std::vector<std::string> figures;
        for (const auto& [type, tally] : model().sortedTypeTotals())
            figures.push_back(std::string(rawValue(type)) + std::to_string(tally.bytes));
        return figures;
    }
};

/// The text of the menu entry that reveals a file in the file manager.
const char* reveal() {
    return SystemTexts::wording(SystemTexts::RevealFile, SystemTexts::shown());
}

}  // namespace

TEST_F(ClutterJourney, removesFileWithMouse) {
    shell();
    click("sidebarClutter");
    EXPECT_TRUE(shows(
        QStringLiteral("Find your largest and oldest files — videos, downloads, disk images, forgotten archives.")));
    click("moduleScanButton");
    waitForSurvey();
    ASSERT_TRUE(shows(QStringLiteral("concert.mov")));
    const auto types = typeTotals();

    // The oldest video.
    clickText("Oldest");
    click("typePill1");
    EXPECT_FALSE(shows(QStringLiteral("backup.zip")));
    click("fileMenu0");
    click("revealFile");
    EXPECT_EQ(machine.workspace.revealed.size(), 1U);
    click("fileMenu0");
    click("trashFile");
    runUntil([&] { return machine.trash.trashed().size() == 1; });
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed().front(), machine.workspace.revealed.front().front());
    EXPECT_EQ(typeTotals(), types);

    // Everything else is still there.
    click("typePill0");
    clickText("Largest");
    EXPECT_TRUE(shows(QStringLiteral("backup.zip")));
    const std::string gone = machine.trash.trashed().front();
    EXPECT_FALSE(shows(QString::fromStdString(gone.substr(gone.rfind('/') + 1))));
}

TEST_F(ClutterJourney, removesFilesWithKeyboardAlone) {
    shell();
    press(Qt::Key_6, Qt::ControlModifier);
    ASSERT_EQ(model().selection(), Screen::clutter);
    runWhatIsThere();
    window().grabWindow();
    // The screen's only button, wherever the focus was before.
    for (int stop = 0; stop < 40 && focusName() != QStringLiteral("moduleScanButton"); ++stop) press(Qt::Key_Tab);
    ASSERT_EQ(focusName(), QStringLiteral("moduleScanButton"));
    press(Qt::Key_Return);
    waitForSurvey();
    for (int stop = 0; stop < 40 && !listHasFocus(); ++stop) press(Qt::Key_Tab);
    ASSERT_TRUE(listHasFocus());

    // The menu of the second row.
    const std::vector<LargeFile> files = model().insights().topFiles;
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    window().grabWindow();
    press(Qt::Key_Return);
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(Strings{files[1].path}));
    runWhatIsThere();
    ASSERT_TRUE(listHasFocus());
    press(Qt::Key_Return);
    window().grabWindow();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    runUntil([&] { return machine.trash.trashed().size() == 1; });
    runWhatIsThere();
    ASSERT_TRUE(listHasFocus());
    press(Qt::Key_Delete);
    runUntil([&] { return machine.trash.trashed().size() == 2; });
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), (Strings{files[1].path, files[2].path}));
}

TEST_F(ClutterJourney, sortsAndFiltersWithKeyboardAlone) {
    shell();
    press(Qt::Key_6, Qt::ControlModifier);
    tabTo(window(), "moduleScanButton");
    press(Qt::Key_Return);
    waitForSurvey();
    ASSERT_EQ(names().front(), "concert.mov");

    tabTo(window(), "orderPicker");
    press(Qt::Key_Right);
    const auto rowOf = [this](const char* name) { return zelk::rowOf(window(), "clutterList", "name", name); };
    EXPECT_LT(rowOf("old.mp4"), rowOf("backup.zip"));
    EXPECT_LT(rowOf("backup.zip"), rowOf("concert.mov"));
    tabTo(window(), "typePill0");
    press(Qt::Key_Right);
    EXPECT_EQ(focusName(), "typePill1");
    EXPECT_THAT(names(), ElementsAre("film.mov", "old.mp4", "concert.mov"));
    press(Qt::Key_Right);
    EXPECT_THAT(names(), ElementsAre("system.iso", "setup.iso"));
    press(Qt::Key_Left);
    EXPECT_EQ(focusName(), "typePill1");

    tabTo(window(), "orderPicker");
    press(Qt::Key_Left);
    EXPECT_THAT(names(), ElementsAre("concert.mov", "film.mov", "old.mp4"));
    tabTo(window(), "clutterList");
    press(Qt::Key_Delete);
    runUntil([&] { return machine.trash.trashed().size() == 1; });
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/media/concert.mov"});
    EXPECT_THAT(names(), ElementsAre("film.mov", "old.mp4"));
}

TEST_F(ClutterJourney, rightClickOpensMenuAtPointer) {
    shell();
    click("sidebarClutter");
    click("moduleScanButton");
    waitForSurvey();
    const auto openAt = [&](const char* name) {
        const QQuickItem* words = showing(QString::fromLatin1(name));
        const QPointF pressed = words->mapToScene(words->boundingRect().center());
        rightClickMiddle(window(), words);
        runUntil([&] { return menuEntry(window(), reveal()) != nullptr; });
        const QPointF menu = menuEntry(window(), reveal())->mapToScene({});
        EXPECT_NEAR(menu.x(), pressed.x(), 16) << name;
        EXPECT_NEAR(menu.y(), pressed.y(), 16) << name;
    };
    const auto untilClosed = [&] { runUntil([&] { return menuEntry(window(), reveal()) == nullptr; }); };
    openAt("backup.zip");
    press(Qt::Key_Escape);
    untilClosed();
    openAt("setup.iso");
    clickMiddle(window(), menuEntry(window(), reveal()));
    untilClosed();
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(Strings{home + "/media/setup.iso"}));
    openAt("backup.zip");
    clickMiddle(window(), menuEntry(window(), "Move to Trash"));
    runUntil([&] { return machine.trash.trashed().size() == 1; });
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/backup.zip"});
    EXPECT_FALSE(shows(QStringLiteral("backup.zip")));
}

#ifndef Q_OS_MACOS
/// A home folder on a real disk, and another folder outside it.
class RealClutterJourney : public testing::Test {
protected:
    void put(const std::string& path, std::size_t bytes) const {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        fakes::writeFile(path, std::string(bytes, 'x'));
    }
    static bool lists(const AppModel& model, const std::string& path) {
        const std::vector<LargeFile>& files = model.insights().topFiles;
        return std::any_of(files.begin(), files.end(), [&](const LargeFile& file) { return file.path == path; });
    }

    const QTemporaryDir folder;
    const QTemporaryDir outside;
    const std::string home = folder.path().toStdString();
    const std::string other = outside.path().toStdString();
    const std::string trash = home + "/.local/share/Trash";
};

/// After the survey, a parent folder of the file is replaced by a link that leads outside.
TEST_F(RealClutterJourney, doesNotFollowLinkInPathOfFile) {
    const std::string swapped = home + "/films/old/first.mov";
    const std::string plain = home + "/kept/second.mov";
    put(swapped, 90'000);
    put(plain, 60'000);
    put(other + "/old/first.mov", 3);
    NativePlatform native(home);
    {
        AppModel model(native.platform());
        model.setSelection(Screen::clutter);
        MainWindow main(model);
        main.motion().setReduced(true);
        main.show();
        runUntil([&] { return main.isUp(); });
        ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("moduleScanButton")));
        runUntil([&] { return model.scanPhase() == AppModel::ScanPhase::finished; });
        main.window().grabWindow();
        ASSERT_TRUE(lists(model, swapped));
        std::filesystem::rename(home + "/films", home + "/aside");
        std::filesystem::create_directory_symlink(other, home + "/films");

        QQuickItem* list = tour::findControl(main.window(), QStringLiteral("clutterList"));
        ASSERT_NE(list, nullptr);
        const auto name = [&] { return main.window().activeFocusItem()->property("name").toString(); };
        list->forceActiveFocus(Qt::TabFocusReason);
        tour::pressKey(main.window(), Qt::Key_Home);
        ASSERT_EQ(name(), QStringLiteral("first.mov"));
        tour::pressKey(main.window(), Qt::Key_Delete);
        tour::pressKey(main.window(), Qt::Key_Down);
        ASSERT_EQ(name(), QStringLiteral("second.mov"));
        tour::pressKey(main.window(), Qt::Key_Delete);
        runUntil([&] { return !lists(model, plain); });
    }
    ASSERT_TRUE(native.drain(60));
    const auto inTrash = fakes::restorable(trash);
    ASSERT_EQ(inTrash.size(), 1U);
    EXPECT_EQ(std::filesystem::file_size(inTrash.at(plain)), 60'000U);
    EXPECT_TRUE(std::filesystem::exists(other + "/old/first.mov"));
    EXPECT_TRUE(std::filesystem::exists(home + "/aside/old/first.mov"));
}

/// Links in the path of a scan root are followed, even if the root lies below another one.
TEST_F(RealClutterJourney, removesFileBelowLinkedScanRoot) {
    put(other + "/film.mov", 90'000);
    put(home + "/second.mov", 60'000);
    const std::string linked = home + "/linked";
    std::filesystem::create_directory_symlink(other, linked);
    NativePlatform native(home);
    {
        AppModel model(native.platform());
        model.setScanRoots({home, linked});
        model.startScan();
        runUntil([&] { return model.scanPhase() == AppModel::ScanPhase::finished; });
        ASSERT_TRUE(lists(model, linked + "/film.mov"));
        model.trashLargeFile(linked + "/film.mov");
        runUntil([&] { return !lists(model, linked + "/film.mov"); });
        EXPECT_FALSE(std::filesystem::exists(other + "/film.mov"));
    }
    EXPECT_TRUE(native.drain(60));
}
#endif

TEST_F(ClutterJourney, deleteAfterScreenShortcutNeedsAnotherKeyFirst) {
    shell();
    survey();
    press(Qt::Key_6, Qt::ControlModifier);
    window().grabWindow();
    ASSERT_TRUE(listHasFocus());
    EXPECT_TRUE(find("clutterList")->property("ringed").toBool());
    press(Qt::Key_Delete);
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_6, Qt::ControlModifier);
    press(Qt::Key_Delete);
    runWhatIsThere();
    EXPECT_TRUE(machine.trash.trashed().empty());
    press(Qt::Key_Down);
    press(Qt::Key_Delete);
    runUntil([&] { return machine.trash.trashed().size() == 1; });
}

}  // namespace zelk

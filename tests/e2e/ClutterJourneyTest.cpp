// SPDX-License-Identifier: MIT
// A person whose drive is full of heavy files, in the real window: with the mouse, then with the keyboard alone.
#include <gmock/gmock.h>

#include "ShellFixture.h"
#include "fakes/ClutterHome.h"

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

    void waitForTheSurvey() {
        runUntil([&] { return model().scanPhase() == Phase::finished; });
        runUntil([&] { return !model().trashLoading(); });
        window().grabWindow();
    }
    void clickWord(const char* word) {
        QQuickItem* item = showing(QString::fromLatin1(word));
        ASSERT_NE(item, nullptr) << word;
        tour::clickAt(window(), item->mapToScene(item->boundingRect().center()));
    }
    bool listHasKeyboard() {
        const QQuickItem* list = find("clutterList");
        return list != nullptr && list->hasActiveFocus();
    }
    std::vector<std::string> typesOnTheOverview() {
        std::vector<std::string> figures;
        for (const auto& [type, tally] : model().sortedTypeTotals())
            figures.push_back(std::string(rawValue(type)) + std::to_string(tally.bytes));
        return figures;
    }
};

}  // namespace

TEST_F(ClutterJourney, withTheMouse) {
    shell();
    click("sidebarClutter");
    EXPECT_TRUE(shows(
        QStringLiteral("Find your largest and oldest files — videos, downloads, disk images, forgotten archives.")));
    click("moduleScanButton");
    waitForTheSurvey();
    ASSERT_TRUE(shows(QStringLiteral("concert.mov")));
    const auto types = typesOnTheOverview();

    // The oldest video.
    clickWord("Oldest");
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
    EXPECT_EQ(typesOnTheOverview(), types);

    // Everything else is still there.
    click("typePill0");
    clickWord("Largest");
    EXPECT_TRUE(shows(QStringLiteral("backup.zip")));
    const std::string gone = machine.trash.trashed().front();
    EXPECT_FALSE(shows(QString::fromStdString(gone.substr(gone.rfind('/') + 1))));
}

TEST_F(ClutterJourney, withTheKeyboardAlone) {
    shell();
    press(Qt::Key_6, Qt::ControlModifier);
    ASSERT_EQ(model().selection(), Screen::clutter);
    runWhatIsThere();
    window().grabWindow();
    // To the one button of the screen, wherever the keyboard was before.
    for (int stop = 0; stop < 40 && focusName() != QStringLiteral("moduleScanButton"); ++stop) press(Qt::Key_Tab);
    ASSERT_EQ(focusName(), QStringLiteral("moduleScanButton"));
    press(Qt::Key_Return);
    waitForTheSurvey();
    for (int stop = 0; stop < 40 && !listHasKeyboard(); ++stop) press(Qt::Key_Tab);
    ASSERT_TRUE(listHasKeyboard());

    // The second row's menu, and what it does.
    const std::vector<LargeFile> files = model().insights().topFiles;
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    window().grabWindow();
    press(Qt::Key_Return);
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(Strings{files[1].path}));
    runWhatIsThere();
    ASSERT_TRUE(listHasKeyboard());
    press(Qt::Key_Return);
    window().grabWindow();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    runUntil([&] { return machine.trash.trashed().size() == 1; });
    runWhatIsThere();
    ASSERT_TRUE(listHasKeyboard());
    press(Qt::Key_Delete);
    runUntil([&] { return machine.trash.trashed().size() == 2; });
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), (Strings{files[1].path, files[2].path}));
}

}  // namespace zelk

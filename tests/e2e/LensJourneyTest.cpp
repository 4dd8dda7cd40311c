// SPDX-License-Identifier: MIT
// Removes folders in the Lens: with the mouse, with the keyboard alone, and on a real disk.
#include <QTemporaryDir>
#include <filesystem>

#include "ReclaimHands.h"
#include "ShellFixture.h"
#include "fakes/TrashContent.h"
#include "platform/NativePlatform.h"
#include "ui/screens/overview/SurveyScreenModel.h"

namespace zelk {

namespace {

using Strings = std::vector<std::string>;

class LensJourney : public ShellFixture {
protected:
    LensJourney() {
        for (const char* file : {"/Library/Caches/Yarn/v6", "/projects/app/node_modules/a.js", "/projects/film.mov",
                                 "/projects/system.iso", "/.Trash/old.zip", "/wide/1"})
            machine.files.addFile(home + file);
        shell();
    }

    void surveyWith(const std::function<void()>& begin) {
        begin();
        runUntil([&] { return model().scanPhase() == Phase::finished; });
        runWhatIsThere();
        window().grabWindow();
    }
    /// The visible row of this name, or nullptr.
    QQuickItem* row(const QString& name) {
        window().grabWindow();
        for (QQuickItem* item : find("lensList")->property("contentItem").value<QQuickItem*>()->childItems())
            if (item->isVisible() && item->property("name").toString() == name) return item;
        return nullptr;
    }
    void clickPart(const QString& name, const char* part) {
        QQuickItem* item = row(name)->findChild<QQuickItem*>(QString::fromLatin1(part));
        tour::clickAt(window(), item->mapToScene(QPointF(item->width() / 2, item->height() / 2)));
    }
    void clickRow(const QString& name) {
        QQuickItem* item = row(name);
        tour::clickAt(window(), item->mapToScene(QPointF(item->width() / 2, item->height() / 2)));
    }
    QString text(const char* name) {
        window().grabWindow();
        QQuickItem* item = find(name);
        return item == nullptr ? QString() : item->property("text").toString();
    }
    QString focusedRow() { return window().activeFocusItem()->property("name").toString(); }
    /// Adds a folder with so many subfolders that the map merges the last two: "0" of 18 MB to "17" of 1 MB.
    void addManyFolders() {
        for (int at = 0; at < 18; ++at) {
            const std::string file = home + "/many/" + std::to_string(at) + "/file";
            machine.directories.file(file, static_cast<std::uint64_t>(18 - at) * 1'000'000, 1'000);
            machine.files.addFile(file);
        }
    }
    std::string lastBubble() { return chart(window(), "lensMap")->model()->slices().back().label.toStdString(); }
    void untilMenuOpens() {
        runUntil([&] { return menuEntry(window(), "All") != nullptr; });
    }
    void untilMenuCloses() {
        runUntil([&] { return menuEntry(window(), "All") == nullptr; });
    }
    void chooseInMenu(const char* entry) {
        click("lensSelect");
        untilMenuOpens();
        clickMiddle(window(), menuEntry(window(), entry));
        untilMenuCloses();
    }
    void untilTrashed(std::size_t count) {
        runUntil([&] { return machine.trash.trashed().size() == count; });
        runWhatIsThere();
    }
};

}  // namespace

TEST_F(LensJourney, removesFoldersWithMouse) {
    click("sidebarLens");
    EXPECT_TRUE(shows("Explore where your space went — a list and a live bubble map, side by side."));
    surveyWith([&] { click("moduleScanButton"); });
    EXPECT_EQ(text("lensPlace"), "me");
    EXPECT_EQ(text("lensPlaceLine"), "3.15 GB · 4 folders");

    clickRow("projects");
    EXPECT_EQ(text("lensPlace"), "projects");
    clickPart("app", "lensTick");
    click("lensBack");
    clickPart("Library", "lensTick");
    EXPECT_EQ(text("lensCaption"), "2 selected · 60 MB");

    clickPart("Library", "lensInfo");
    EXPECT_EQ(text("explanationTitle"), "Library");
    click("explanationDone");
    EXPECT_EQ(text("lensCaption"), "2 selected · 60 MB");

    click("lensRemove");
    untilTrashed(2);
    EXPECT_EQ(machine.trash.trashed(), (Strings{home + "/Library", home + "/projects/app"}));
    EXPECT_TRUE(machine.files.exists(home + "/projects/film.mov"));
    EXPECT_EQ(row("Library"), nullptr);
    EXPECT_EQ(text("lensPlaceLine"), "3.09 GB · 3 folders");
    EXPECT_EQ(text("lensCaption"), "No items selected");

    // The Overview agrees.
    click("sidebarOverview");
    EXPECT_EQ(model().root()->size, 3'087'000'000);
    EXPECT_EQ(model().reclaimableBytes(), 0);
    runUntil([&] { return main().survey().recoverable() == 0; });
}

TEST_F(LensJourney, removesFoldersWithKeyboardAlone) {
    press(Qt::Key_8, Qt::ControlModifier);
    ASSERT_EQ(model().selection(), Screen::lens);
    window().grabWindow();
    surveyWith([&] { press(Qt::Key_Return); });

    // The focus has moved from the button to the list.
    EXPECT_EQ(focusedRow(), "projects");
    press(Qt::Key_Right);
    EXPECT_EQ(text("lensPlace"), "projects");
    EXPECT_EQ(focusedRow(), "app");
    press(Qt::Key_Space);
    press(Qt::Key_I);
    EXPECT_EQ(text("explanationTitle"), "app");
    press(Qt::Key_Escape);
    EXPECT_EQ(text("explanationTitle"), QString());
    press(Qt::Key_Left);
    EXPECT_EQ(focusedRow(), "projects");
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    ASSERT_EQ(text("lensCaption"), "2 selected · 60 MB");

    for (int stop = 0; stop < 12 && focusName() != "lensRemove"; ++stop) press(Qt::Key_Tab);
    press(Qt::Key_Return);
    untilTrashed(2);
    EXPECT_EQ(machine.trash.trashed(), (Strings{home + "/Library", home + "/projects/app"}));
    EXPECT_EQ(text("lensPlaceLine"), "3.09 GB · 3 folders");
    press(Qt::Key_Down);
    EXPECT_TRUE(find("lensList")->hasActiveFocus());
}

TEST_F(LensJourney, opensAndSelectsBubblesWithKeyboard) {
    press(Qt::Key_8, Qt::ControlModifier);
    window().grabWindow();
    surveyWith([&] { press(Qt::Key_Return); });
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(text("lensPlace"), "projects") << "the largest bubble comes first";
    press(Qt::Key_Space);
    EXPECT_EQ(text("lensCaption"), "1 selected · 10 MB");
    press(Qt::Key_Backspace);
    EXPECT_EQ(text("lensPlace"), "me");
    press(Qt::Key_Space);
    EXPECT_EQ(text("lensCaption"), "2 selected · 3.08 GB");
}

TEST_F(LensJourney, reachesBubblesWithArrowKeys) {
    press(Qt::Key_8, Qt::ControlModifier);
    window().grabWindow();
    surveyWith([&] { press(Qt::Key_Return); });
    tabTo(window(), "lensMap");
    for (const char* folder : {"/Library", "/.Trash", "/wide", "/projects"}) {
        arrowToBubble(window(), "lensMap", home + folder);
        press(Qt::Key_Space);
        EXPECT_TRUE(row(QString::fromLatin1(folder).mid(1))->property("ticked").toBool()) << folder;
    }
    EXPECT_EQ(text("lensCaption"), "4 selected · 3.15 GB");
    press(Qt::Key_Return);
    EXPECT_EQ(text("lensPlace"), "projects");
}

TEST_F(LensJourney, opensAndSelectsBubblesWithMouse) {
    addManyFolders();
    click("sidebarLens");
    surveyWith([&] { click("moduleScanButton"); });
    clickBubble(window(), "lensMap", home + "/many");
    EXPECT_EQ(text("lensPlace"), "many");
    clickBubble(window(), "lensMap", home + "/many/0");
    EXPECT_EQ(text("lensPlace"), "many") << "it has no subfolders";
    EXPECT_EQ(text("lensCaption"), "1 selected · 18 MB");
    EXPECT_TRUE(row("0")->property("ticked").toBool());

    ASSERT_EQ(lastBubble(), "Other (2)");
    clickBubble(window(), "lensMap", "__other__");
    EXPECT_EQ(text("lensPlace"), "many");
    EXPECT_EQ(text("lensCaption"), "1 selected · 18 MB");

    clickBubble(window(), "lensMap", home + "/many/1");
    clickBubble(window(), "lensMap", home + "/many/0");
    EXPECT_FALSE(row("0")->property("ticked").toBool());
    EXPECT_EQ(text("lensCaption"), "1 selected · 17 MB");
    click("lensRemove");
    untilTrashed(1);
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/many/1"});
    EXPECT_EQ(lastBubble(), "Other (1)");
    click("lensBack");
    EXPECT_EQ(text("lensPlace"), "me");
}

TEST_F(LensJourney, selectsByMenuAndStartsOverWithMouse) {
    click("sidebarLens");
    surveyWith([&] { click("moduleScanButton"); });
    EXPECT_EQ(text("lensSelect"), "None");
    chooseInMenu("All");
    EXPECT_EQ(text("lensSelect"), "4");
    EXPECT_EQ(text("lensCaption"), "4 selected · 3.15 GB");
    for (const char* folder : {"projects", "Library", "wide", ".Trash"})
        EXPECT_TRUE(row(QString::fromLatin1(folder))->property("ticked").toBool()) << folder;
    chooseInMenu("None");
    EXPECT_EQ(text("lensSelect"), "None");
    EXPECT_EQ(text("lensCaption"), "No items selected");
    EXPECT_FALSE(row("projects")->property("ticked").toBool());

    // Folders selected elsewhere stay selected until Start Over.
    clickPart("Library", "lensTick");
    clickRow("projects");
    chooseInMenu("All");
    EXPECT_EQ(text("lensCaption"), "2 selected · 60 MB");
    click("lensStartOver");
    ASSERT_EQ(text("lensPlace"), "me");
    EXPECT_EQ(text("lensCaption"), "No items selected");
    EXPECT_FALSE(row("Library")->property("ticked").toBool());
    EXPECT_FALSE(find("lensBack")->isEnabled());
    EXPECT_EQ(machine.trash.trashed(), Strings{});
}

TEST_F(LensJourney, selectsByMenuAndStartsOverWithKeyboardAlone) {
    press(Qt::Key_8, Qt::ControlModifier);
    window().grabWindow();
    surveyWith([&] { press(Qt::Key_Return); });
    press(Qt::Key_Right);
    ASSERT_EQ(text("lensPlace"), "projects");
    tabTo(window(), "lensSelect");
    press(Qt::Key_Space);
    untilMenuOpens();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    untilMenuCloses();
    EXPECT_EQ(focusName(), "lensSelect");
    EXPECT_EQ(text("lensCaption"), "1 selected · 10 MB");
    press(Qt::Key_Space);
    untilMenuOpens();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    untilMenuCloses();
    EXPECT_EQ(text("lensCaption"), "No items selected");

    tabTo(window(), "lensList");
    press(Qt::Key_Space);
    EXPECT_EQ(text("lensCaption"), "1 selected · 10 MB");
    tabTo(window(), "lensStartOver");
    press(Qt::Key_Return);
    EXPECT_EQ(text("lensPlace"), "me");
    EXPECT_EQ(text("lensCaption"), "No items selected");
    EXPECT_EQ(focusName(), "lensStartOver") << "it keeps the focus";
    EXPECT_EQ(machine.trash.trashed(), Strings{});
}

TEST_F(LensJourney, leavingTheScreenClosesItsMenu) {
    click("sidebarLens");
    surveyWith([&] { click("moduleScanButton"); });
    click("lensSelect");
    ASSERT_NE(find("lensSelectAll"), nullptr);
    press(Qt::Key_1, Qt::ControlModifier);
    window().grabWindow();
    ASSERT_EQ(model().selection(), Screen::survey);
    EXPECT_EQ(find("lensSelectAll"), nullptr);
    EXPECT_TRUE(window().activeFocusItem()->isVisible());
    press(Qt::Key_8, Qt::ControlModifier);
    EXPECT_EQ(find("lensSelectAll"), nullptr);
}

TEST_F(LensJourney, failedRemovalLeavesRowUnselected) {
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    click("sidebarLens");
    surveyWith([&] { click("moduleScanButton"); });
    clickPart("Library", "lensTick");
    click("lensRemove");
    EXPECT_EQ(text("lensCaption"), "No items selected");
    machine.tasks.release();
    runWhatIsThere();
    ASSERT_NE(row("Library"), nullptr);
    EXPECT_FALSE(row("Library")->property("ticked").toBool());
    EXPECT_EQ(text("lensPlaceLine"), "3.15 GB · 4 folders");
}

#ifndef Q_OS_MACOS
namespace {

/// The relative path and kind of every entry below a folder, except for the application's own data.
std::set<std::string> treeOf(const std::string& folder) {
    std::set<std::string> entries;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const std::string path = entry.path().string().substr(folder.size());
        if (path.starts_with("/.local")) continue;
        entries.insert(path + (entry.is_symlink() ? "@" : entry.is_directory() ? "/" : ""));
    }
    return entries;
}

}  // namespace

/// The disk changes between the survey and the removal: one folder is gone, one is now a link that leads outside, one
/// is a file, and the parent of another was renamed.
TEST(RealLensJourney, removesOnlySelectedItems) {
    const QTemporaryDir folder;
    const QTemporaryDir outside;
    const std::string home = folder.path().toStdString();
    const std::string other = outside.path().toStdString();
    for (const char* name :
         {"/keep/in", "/ticked/in", "/ticked too", "/gone", "/replaced/in", "/filed/in", "/before/in"}) {
        std::filesystem::create_directories(home + name);
        fakes::writeFile(home + name + "/file", std::string(50'000, 'x'));
    }
    fakes::writeFile(other + "/precious", "gold");

    NativePlatform native(home);
    {
        AppModel model(native.platform());
        model.setSelection(Screen::lens);
        MainWindow main(model);
        main.motion().setReduced(true);
        main.show();
        runUntil([&] { return main.isUp(); });
        tour::pressKey(main.window(), Qt::Key_Return);
        runUntil([&] { return model.scanPhase() == AppModel::ScanPhase::finished; });
        main.window().grabWindow();

        // Selects all rows but "keep" and "before", and also one folder inside "ticked" and one inside "before".
        QQuickItem* list = tour::findControl(main.window(), QStringLiteral("lensList"));
        ASSERT_NE(list, nullptr);
        const auto name = [&] { return main.window().activeFocusItem()->property("name").toString(); };
        list->forceActiveFocus(Qt::TabFocusReason);
        tour::pressKey(main.window(), Qt::Key_Home);
        for (int row = 0; row < list->property("count").toInt(); ++row) {
            const bool around = name() == QStringLiteral("before");
            if (name() != QStringLiteral("keep") && name() != QStringLiteral(".local") && !around)
                tour::pressKey(main.window(), Qt::Key_Space);
            if (name() == QStringLiteral("ticked") || around) {
                tour::pressKey(main.window(), Qt::Key_Right);
                tour::pressKey(main.window(), Qt::Key_Space);
                tour::pressKey(main.window(), Qt::Key_Left);
            }
            tour::pressKey(main.window(), Qt::Key_Down);
        }
        EXPECT_TRUE(tour::findControl(main.window(), QStringLiteral("lensCaption"))
                        ->property("text")
                        .toString()
                        .startsWith(QStringLiteral("7 selected · ")));

        std::filesystem::remove_all(home + "/gone");
        std::filesystem::remove_all(home + "/replaced");
        std::filesystem::create_directory_symlink(other, home + "/replaced");
        std::filesystem::remove_all(home + "/filed");
        fakes::writeFile(home + "/filed", "a file");
        std::filesystem::rename(home + "/before", home + "/after");
        std::set<std::string> expected = treeOf(home);
        std::erase_if(expected, [](const std::string& path) {
            return path.starts_with("/ticked/") || path.starts_with("/ticked too/") || path == "/replaced@" ||
                   path == "/filed";
        });

        const std::int64_t before = model.root()->size;
        ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("lensRemove")));
        const std::string trash = home + "/.local/share/Trash";
        runUntil([&] { return fakes::restorable(trash).size() == 4; });
        runUntil([&] { return model.root()->size < before - 190'000; });
        EXPECT_EQ(treeOf(home), expected);
        const auto restorable = fakes::restorable(trash);
        EXPECT_TRUE(restorable.contains(home + "/ticked"));
        EXPECT_TRUE(restorable.contains(home + "/ticked too"));
        EXPECT_TRUE(std::filesystem::is_symlink(restorable.at(home + "/replaced")));
        EXPECT_EQ(fakes::fileContent(other + "/precious"), "gold");
        EXPECT_EQ(fakes::fileContent(restorable.at(home + "/filed")), "a file");
        EXPECT_FALSE(folderAt(model.root(), home + "/filed"));
        EXPECT_TRUE(std::filesystem::exists(home + "/after/in/file"));
        for (const char* kept : {"/gone", "/before/in"})
            EXPECT_TRUE(folderAt(model.root(), home + kept)) << "folders that were not found stay listed";
    }
    EXPECT_TRUE(native.drain(60));
}
#endif

}  // namespace zelk

// SPDX-License-Identifier: MIT
// Undoes removals in the real window on a real disk.
#include <gmock/gmock.h>

#include <QTemporaryDir>
#include <filesystem>

#include "ReclaimHands.h"
#include "ShellFixture.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/NativePlatform.h"

#ifndef Q_OS_MACOS

namespace zelk {
namespace {

namespace fs = std::filesystem;

/// The application on a home folder on disk, with helpers to operate it.
class RealUndoJourney : public testing::Test {
protected:
    void put(const std::string& below, char content) const {
        fs::create_directories(fs::path(home + below).parent_path());
        fakes::writeFile(home + below, std::string(90'000, content));
    }
    void open(Screen screen) {
        native = std::make_unique<NativePlatform>(home);
        model = std::make_unique<AppModel>(native->platform());
        model->setSelection(screen);
        main = std::make_unique<MainWindow>(*model);
        main->motion().setReduced(true);
        main->show();
        runUntil([&] { return main->isUp(); });
        click("moduleScanButton");
        runUntil([&] { return model->scanPhase() == AppModel::ScanPhase::finished; });
        main->window().grabWindow();
    }
    void close() {
        main.reset();
        model.reset();
        EXPECT_TRUE(native->drain(60));
    }

    QQuickItem* find(const char* name) { return tour::findControl(main->window(), QString::fromLatin1(name)); }
    void click(const char* name) {
        main->window().grabWindow();  // applies pending layout
        ASSERT_TRUE(tour::clickOn(main->window(), QString::fromLatin1(name))) << name;
    }
    void press(Qt::Key key) { tour::pressKey(main->window(), key); }
    std::string focusedRow() { return main->window().activeFocusItem()->property("name").toString().toStdString(); }
    /// Moves the focus to the row of this name.
    void focusRow(const char* list, const std::string& name) {
        find(list)->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Home);
        for (int row = 0; row < 20 && focusedRow() != name; ++row) press(Qt::Key_Down);
        ASSERT_EQ(focusedRow(), name);
    }
    void tabToUndo() {
        for (int stop = 0; stop < 40 && main->window().activeFocusItem() != find("undoRemoval"); ++stop)
            press(Qt::Key_Tab);
        ASSERT_EQ(main->window().activeFocusItem(), find("undoRemoval"));
    }
    bool shows(const std::string& text) {
        main->window().grabWindow();
        std::vector<QQuickItem*> pending{main->window().contentItem()};
        while (!pending.empty()) {
            QQuickItem* item = pending.back();
            pending.pop_back();
            if (!item->isVisible()) continue;
            if (item->inherits("QQuickText") && item->property("text").toString().toStdString() == text) return true;
            for (QQuickItem* child : item->childItems()) pending.push_back(child);
        }
        return false;
    }
    std::size_t trashedCount() const { return fakes::restorable(home + "/.local/share/Trash").size(); }
    bool lists(const std::string& below) const {
        const std::vector<LargeFile>& files = model->insights().topFiles;
        return std::any_of(files.begin(), files.end(),
                           [&](const LargeFile& file) { return file.path == home + below; });
    }

    const QTemporaryDir folder;
    const std::string home = folder.path().toStdString();
    std::unique_ptr<NativePlatform> native;
    std::unique_ptr<AppModel> model;
    std::unique_ptr<MainWindow> main;
};

TEST_F(RealUndoJourney, lensRestoresFoldersUnlessPathIsTaken) {
    put("/free/below/file", 'f');
    put("/taken/file", 't');
    put("/kept/file", 'k');
    open(Screen::lens);
    for (const char* name : {"free", "taken"}) {
        focusRow("lensList", name);
        press(Qt::Key_Space);
    }
    click("lensRemove");
    runUntil([&] { return find("undoRemoval") != nullptr; });
    EXPECT_EQ(trashedCount(), 2U);
    EXPECT_FALSE(fs::exists(home + "/free"));
    EXPECT_TRUE(shows("Moved to the Trash"));

    // Another program takes one of the paths meanwhile.
    put("/taken/other", 'o');
    click("undoRemoval");
    runUntil([&] { return shows("1 item was restored. 1 item stays in the Trash."); });
    EXPECT_TRUE(shows("“taken” couldn’t be put back: something else is there now"));
    EXPECT_EQ(fakes::fileContent(home + "/free/below/file"), std::string(90'000, 'f'));
    EXPECT_EQ(fakes::fileContent(home + "/taken/other"), std::string(90'000, 'o'));
    EXPECT_FALSE(fs::exists(home + "/taken/file"));
    const auto restorable = fakes::restorable(home + "/.local/share/Trash");
    ASSERT_EQ(restorable.size(), 1U);
    EXPECT_EQ(fakes::fileContent(restorable.at(home + "/taken") + "/file"), std::string(90'000, 't'));
    EXPECT_TRUE(folderAt(model->root(), home + "/free/below"));
    EXPECT_FALSE(folderAt(model->root(), home + "/taken"));
    click("closeUndoBar");
    EXPECT_EQ(find("closeUndoBar"), nullptr);
    close();
}

TEST_F(RealUndoJourney, clutterRestoresFileWithKeyboard) {
    put("/films/first.mov", '1');
    put("/films/second.mov", '2');
    open(Screen::clutter);
    focusRow("clutterList", "first.mov");
    press(Qt::Key_Delete);
    runUntil([&] { return find("undoRemoval") != nullptr; });
    EXPECT_EQ(trashedCount(), 1U);
    EXPECT_FALSE(fs::exists(home + "/films/first.mov"));
    EXPECT_FALSE(lists("/films/first.mov"));

    main->window().grabWindow();
    tabToUndo();
    press(Qt::Key_Return);
    runUntil([&] { return shows("1 item was restored."); });
    EXPECT_EQ(fakes::fileContent(home + "/films/first.mov"), std::string(90'000, '1'));
    EXPECT_EQ(trashedCount(), 0U);
    EXPECT_TRUE(lists("/films/first.mov"));
    press(Qt::Key_Escape);
    main->window().grabWindow();
    EXPECT_EQ(find("closeUndoBar"), nullptr);
    EXPECT_TRUE(find("clutterList")->hasActiveFocus());
    close();
}

}  // namespace
}  // namespace zelk

#endif

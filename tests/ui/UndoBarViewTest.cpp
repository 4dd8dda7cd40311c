// SPDX-License-Identifier: MIT
// The undo bar on both screens that show it, with pointer and keyboard.
#include <gmock/gmock.h>

#include "LensFixture.h"
#include "ViewFixture.h"
#include "fakes/ClutterHome.h"
#include "ui/screens/clutter/ClutterScreenModel.h"

namespace zelk {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

template <class Base>
class UndoBarWindow : public Base {
protected:
    bool barIsShown() { return this->find("closeUndoBar") != nullptr; }
    bool canUndo() { return this->find("undoRemoval") != nullptr; }
    void untilShown() {
        runUntil([&] { return barIsShown(); });
        this->settle();
    }
    void untilRestored(std::size_t count) {
        runUntil([&] { return this->machine.trash.restored().size() == count; });
        runUntil([&] { return !this->model().removalUndo().underWay(); });
        this->settle();
    }
    void tabTo(const char* name) {
        for (int stop = 0; stop < 40 && this->window().activeFocusItem() != this->find(name); ++stop)
            this->press(Qt::Key_Tab);
        ASSERT_EQ(this->window().activeFocusItem(), this->find(name)) << name;
        EXPECT_TRUE(this->focusIsRinged());
    }
    QQuickItem* alert() {
        for (QQuickItem* item : this->seen()) {
            QAccessibleInterface* control = QAccessible::queryAccessibleInterface(item);
            if (control != nullptr && control->role() == QAccessible::AlertMessage) return item;
        }
        return nullptr;
    }
};

class LensUndo : public UndoBarWindow<LensFixtureOn<ViewFixture>> {
protected:
    ~LensUndo() override { close(); }

    void open(QSize size = {1046, 800}) {
        fill();
        survey();
        show(QStringLiteral("Zelk.App"), QStringLiteral("MapView"), "lens", &lens(), size);
    }
    /// Removes the folder `name` with the pointer.
    void remove(const std::string& name = "music") {
        toggle(name);
        settle();
        click("lensRemove");
        untilShown();
    }
    bool listHasFocus() { return find("lensList")->hasActiveFocus(); }
};

TEST_F(LensUndo, showsNoBarBeforeRemoval) {
    open();
    EXPECT_FALSE(barIsShown());
    EXPECT_EQ(alert(), nullptr);
}

TEST_F(LensUndo, barLiesBetweenListAndFoot) {
    open();
    const double before = find("lensRemove")->mapToScene({}).y();
    remove();
    EXPECT_THAT(seenTexts(), AllOf(Contains("Moved to the Trash"), Contains("·"), Contains("Undo")));
    EXPECT_EQ(find("lensRemove")->mapToScene({}).y(), before) << "a second click never hits Undo";
    const QQuickItem* list = find("lensList");
    EXPECT_LE(list->mapToScene(QPointF(0, list->height())).y(), alert()->mapToScene({}).y());
    EXPECT_GT(find("undoRemoval")->mapToScene({}).x(), showing("Moved to the Trash")->mapToScene({}).x());
    expectNoTextClipped();
}

TEST_F(LensUndo, dotStandsInTheMiddleBetweenTheTexts) {
    open();
    remove();
    const auto box = [this](const char* text) { return showing(text)->mapRectToScene(showing(text)->boundingRect()); };
    EXPECT_NEAR(box("·").left() - box("Moved to the Trash").right(), box("Undo").left() - box("·").right(), 0.5);
}

TEST_F(LensUndo, pointerUndoesTheRemoval) {
    open();
    remove();
    click("undoRemoval");
    untilRestored(1);
    runUntil([&] { return rowNamed("music") < static_cast<int>(names().size()); });
    settle();
    EXPECT_THAT(seenTexts(), AllOf(Contains("1 item was restored."), Not(Contains("Undo")), Not(Contains("·"))));
    EXPECT_TRUE(machine.files.exists(home + "/music/song.flac"));
    click("closeUndoBar");
    EXPECT_FALSE(barIsShown());
    EXPECT_TRUE(listHasFocus());
}

TEST_F(LensUndo, keyboardUndoesTheRemoval) {
    open();
    remove();
    tabTo("undoRemoval");
    press(Qt::Key_Return);
    untilRestored(1);
    EXPECT_EQ(window().activeFocusItem(), find("closeUndoBar")) << "the focused button has disappeared";
    EXPECT_TRUE(focusIsRinged());
    press(Qt::Key_Space);
    EXPECT_FALSE(barIsShown());
    EXPECT_TRUE(listHasFocus());
    EXPECT_TRUE(find("lensList")->property("ringed").toBool());
}

TEST_F(LensUndo, escapeClosesFocusedBar) {
    open();
    remove();
    find("lensList")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Escape);
    EXPECT_TRUE(barIsShown()) << "the list has the focus";
    tabTo("undoRemoval");
    press(Qt::Key_Escape);
    EXPECT_FALSE(barIsShown());
    EXPECT_TRUE(listHasFocus());
    EXPECT_TRUE(find("lensList")->property("ringed").toBool());
    EXPECT_TRUE(machine.trash.restored().empty());
}

TEST_F(LensUndo, listTakesFocusWhenSurveyHidesBar) {
    open();
    remove();
    tabTo("undoRemoval");
    survey();
    settle();
    EXPECT_FALSE(barIsShown());
    EXPECT_TRUE(listHasFocus());
}

TEST_F(LensUndo, showsWhatWasNotRestoredAndWhy) {
    open({726, 592});
    remove();
    machine.files.addFolder(home + "/music");
    click("undoRemoval");
    runUntil([&] { return showing("1 item stays in the Trash.") != nullptr; });
    settle();
    EXPECT_NE(showing("/home/me/music is taken"), nullptr);
    expectNoTextClipped();
    singleton<TextScale>("TextScale").setFactor(1.5);
    settle();
    expectNoTextClipped();
    singleton<TextScale>("TextScale").setFactor(1);
}

TEST_F(LensUndo, barIsAnAlertNamedAfterTheRemovalAndItsUndo) {
    open();
    remove();
    EXPECT_EQ(nameOf(alert()), "Moved to the Trash");
    EXPECT_EQ(nameOf(find("undoRemoval")), "Undo");
    EXPECT_EQ(nameOf(find("closeUndoBar")), "Close");
    machine.files.addFolder(home + "/music");
    click("undoRemoval");
    runUntil([&] { return showing("1 item stays in the Trash.") != nullptr; });
    settle();
    EXPECT_THAT(nameOf(alert()), AllOf(HasSubstr("1 item stays in the Trash."), HasSubstr("is taken")));
}

class ClutterUndo : public UndoBarWindow<ViewFixture> {
protected:
    ~ClutterUndo() override { close(); }

    void open() {
        fakes::fillWithClutter(machine, home);
        survey();
        show(QStringLiteral("Zelk.App"), QStringLiteral("ClutterView"), "clutter", &clutter, {900, 620});
        find("clutterList")->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Home);
    }
    std::string first() { return clutter.rows()->pathAt(0); }
    int rows() { return clutter.rows()->rowCount(); }
    bool listHasFocus() { return find("clutterList")->hasActiveFocus(); }

    ClutterScreenModel clutter{model()};
};

TEST_F(ClutterUndo, keyboardUndoesTheRemoval) {
    open();
    EXPECT_FALSE(barIsShown());
    const std::string path = first();
    press(Qt::Key_Delete);
    untilShown();
    EXPECT_NE(first(), path);
    EXPECT_TRUE(listHasFocus());
    tabTo("undoRemoval");
    press(Qt::Key_Return);
    untilRestored(1);
    EXPECT_EQ(first(), path);
    EXPECT_THAT(seenTexts(), Contains("1 item was restored."));
    press(Qt::Key_Escape);
    EXPECT_FALSE(barIsShown());
    EXPECT_TRUE(listHasFocus());
}

TEST_F(ClutterUndo, pointerUndoesTheRemoval) {
    open();
    const std::string path = first();
    click("fileMenu0");
    click("trashFile");
    untilShown();
    const QQuickItem* list = find("clutterList");
    EXPECT_LE(list->mapToScene(QPointF(0, list->height())).y(), alert()->mapToScene({}).y());
    click("undoRemoval");
    untilRestored(1);
    EXPECT_EQ(first(), path);
    click("closeUndoBar");
    EXPECT_FALSE(barIsShown());
    EXPECT_TRUE(listHasFocus());
}

TEST_F(ClutterUndo, canUndoTheRemovalOfTheOnlyFile) {
    open();
    for (int left = rows(); left > 0; --left) {
        press(Qt::Key_Delete);
        runUntil([&] { return rows() < left; });
        settle();
    }
    EXPECT_THAT(seenTexts(), Contains("Nothing heavy"));
    untilShown();
    click("undoRemoval");
    untilRestored(1);
    EXPECT_EQ(rows(), 1);
    EXPECT_THAT(seenTexts(), Not(Contains("Nothing heavy")));
}

}  // namespace
}  // namespace zelk

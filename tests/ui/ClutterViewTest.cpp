// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <QTest>

#include "TextsOf.h"
#include "ViewFixture.h"
#include "fakes/ClutterHome.h"
#include "ui/screens/clutter/ClutterScreenModel.h"
#include "ui/theme/FileTypeLook.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using Strings = std::vector<std::string>;

class ClutterViewTest : public ViewFixture {
protected:
    ~ClutterViewTest() override { close(); }

    void open(QSize size = {900, 620}) {
        if (model().scanPhase() != Phase::finished) {
            fakes::fillWithClutter(machine, home);
            survey();
        }
        show(QStringLiteral("Zelk.App"), QStringLiteral("ClutterView"), "clutter", &clutter, size);
    }
    QQuickItem& list() { return *find("clutterList"); }
    bool listHasKeyboard() { return list().hasActiveFocus(); }
    int current() { return list().property("currentIndex").toInt(); }
    std::string currentName() { return pathOf(current()); }
    std::string pathOf(int row) { return clutter.rows()->pathAt(row); }
    void tabToTheList() {
        press(Qt::Key_Tab);
        for (int stop = 0; stop < 5 && !listHasKeyboard(); ++stop) press(Qt::Key_Tab);
        ASSERT_TRUE(listHasKeyboard());
    }
    bool menuIsOpen() { return find("trashFile") != nullptr; }
    void openMenuByKey() {
        press(Qt::Key_Return);
        ASSERT_TRUE(menuIsOpen());
    }
    /// The middle of a visible row.
    QPoint middleOf(int row) {
        QQuickItem* button = find(("fileMenu" + std::to_string(row)).c_str());
        return button->mapToScene(QPointF(-300, button->height() / 2)).toPoint();
    }
    void largeText(double factor) {
        singleton<TextScale>("TextScale").setFactor(factor);
        settle();
    }

    ClutterScreenModel clutter{model()};
};

}  // namespace

TEST_F(ClutterViewTest, showsHeaderAndRowTexts) {
    open();
    const Strings texts = seenTexts();
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "Clutter"), 2);
    for (const char* text : {"Find your largest and oldest files — videos, downloads, disk images, forgotten archives.",
                             "the heaviest files in your survey", "Largest", "Oldest", "All", "Video", "Disk images",
                             "Archives", "Documents", "concert.mov", "4 GB", "1d ago", "old.mp4", "3y ago", "800 MB"})
        EXPECT_EQ(std::count(texts.begin(), texts.end(), text), 1) << text;
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "/home/me/media"), 2);
    EXPECT_THAT(texts, Not(Contains("Nothing heavy")));
}

TEST_F(ClutterViewTest, filesOfNoKnownTypeHaveTheColourOfTheTheme) {
    machine.directories.file(home + "/thing", 5'000'000'000, 0);
    open();
    for (const auto appearance : {AppModel::Appearance::dark, AppModel::Appearance::light}) {
        model().setAppearance(appearance);
        settle();
        const QColor color = lookOf(FileType::other, singleton<Theme>("Theme").current()).color;
        EXPECT_THAT(colorsOf("doc"), ElementsAre(color, color)) << "a pill and a row";
        EXPECT_THAT(colorsOf("opticaldiscdrive"), ElementsAre(QColor(255, 107, 94), QColor(255, 107, 94)));
    }
}

TEST_F(ClutterViewTest, menuOffersRevealAndTrash) {
    open();
    tabToTheList();
    openMenuByKey();
    EXPECT_EQ(find("revealFile")->property("text").toString(), SystemTexts::of(SystemTexts::RevealFile));
    EXPECT_EQ(find("trashFile")->property("text").toString().toStdString(), "Move to Trash");
}

TEST_F(ClutterViewTest, showsPlaceholderWithoutFiles) {
    survey();
    open();
    EXPECT_THAT(seenTexts(), Contains("Nothing heavy"));
    EXPECT_THAT(seenTexts(), Contains("No large files turned up in this survey."));
    EXPECT_EQ(find("clutterList"), nullptr);
    expectNoTextClipped();
}

TEST_F(ClutterViewTest, ageAndSizeColumnsScaleWithText) {
    open();
    EXPECT_EQ(showing("1d ago")->width(), 90);
    EXPECT_EQ(showing("4 GB")->width(), 86);
    largeText(1.5);
    EXPECT_EQ(showing("1d ago")->width(), 135);
    EXPECT_EQ(showing("4 GB")->width(), 129);
    largeText(1);
}

TEST_F(ClutterViewTest, clipsNoTextAtLargeScaleInSmallWindow) {
    open({726, 592});
    expectNoTextClipped();
    largeText(1.5);
    expectNoTextClipped();
    largeText(1);
}

TEST_F(ClutterViewTest, elidesLongNameBeforeColumns) {
    machine.directories.file(home + "/" + std::string(200, 'n') + "/" + std::string(200, 'm') + ".mov", 5'000'000'000,
                             static_cast<TimePoint>(machine.clock.now() - 400 * secondsPerDay));
    open({726, 592});
    ASSERT_NE(showing("5 GB"), nullptr);
    EXPECT_FALSE(showing("5 GB")->property("truncated").toBool());
    EXPECT_FALSE(showing("1y ago")->property("truncated").toBool());
    QQuickItem* name = showing((std::string(200, 'm') + ".mov").c_str());
    ASSERT_NE(name, nullptr);
    EXPECT_TRUE(name->property("truncated").toBool());
    EXPECT_EQ(name->property("lineCount").toInt(), 1);
    EXPECT_LE(name->mapToScene(QPointF(name->width(), 0)).x(), showing("1y ago")->mapToScene(QPointF()).x());
}

TEST_F(ClutterViewTest, hasThreeTabStopsStartingAtList) {
    open();
    EXPECT_TRUE(listHasKeyboard());
    const std::string row = "concert.mov, /home/me/media, 1d ago, 4 GB";
    EXPECT_THAT(tabOrder(), ElementsAre(row, "Largest", "All"));
}

TEST_F(ClutterViewTest, namesControlsAndRows) {
    open();
    expectAllControlsNamed();
    Strings named;
    for (QQuickItem* item : seen()) named.push_back(nameOf(item));
    for (const char* name : {"concert.mov, /home/me/media, 1d ago, 4 GB", "old.mp4, /home/me, 3y ago, 800 MB",
                             "Actions for concert.mov", "Order", "Type of files"})
        EXPECT_THAT(named, Contains(name));
}

TEST_F(ClutterViewTest, navigationKeysMoveThroughRows) {
    open();
    tabToTheList();
    EXPECT_EQ(current(), 0);
    const std::pair<Qt::Key, int> keys[] = {{Qt::Key_Down, 1}, {Qt::Key_Down, 2},     {Qt::Key_Up, 1},
                                            {Qt::Key_End, 4},  {Qt::Key_Down, 4},     {Qt::Key_Home, 0},
                                            {Qt::Key_Up, 0},   {Qt::Key_PageDown, 4}, {Qt::Key_PageUp, 0}};
    for (const auto& [key, row] : keys) {
        press(key);
        EXPECT_EQ(current(), row) << key;
        EXPECT_TRUE(listHasKeyboard());
        EXPECT_TRUE(list().property("ringed").toBool());
    }
}

TEST_F(ClutterViewTest, scrollsToCurrentRow) {
    for (int file = 0; file < 60; ++file)
        machine.directories.file(home + "/" + std::to_string(file) + ".bin", 1'000'000U + static_cast<unsigned>(file));
    open();
    tabToTheList();
    press(Qt::Key_End);
    auto* row = list().property("currentItem").value<QQuickItem*>();
    ASSERT_NE(row, nullptr);
    EXPECT_LE(row->mapToItem(&list(), QPointF(0, row->height())).y(), list().height());
    press(Qt::Key_Home);
    row = list().property("currentItem").value<QQuickItem*>();
    EXPECT_GE(row->mapToItem(&list(), QPointF()).y(), 0);
}

TEST_F(ClutterViewTest, sortingScrollsToTop) {
    for (int file = 0; file < 60; ++file)
        machine.directories.file(home + "/" + std::to_string(file) + ".bin", 1'000'000U + static_cast<unsigned>(file));
    open();
    tabToTheList();
    press(Qt::Key_End);
    clutter.sort(1);
    settle();
    EXPECT_EQ(current(), 0);
    EXPECT_TRUE(list().property("atYBeginning").toBool());
}

TEST_F(ClutterViewTest, returnOpensRowMenu) {
    open();
    tabToTheList();
    press(Qt::Key_Down);
    openMenuByKey();
    EXPECT_THAT(seenTexts(), Contains(SystemTexts::of(SystemTexts::RevealFile).toStdString()));
    EXPECT_THAT(seenTexts(), Contains("Move to Trash"));
    EXPECT_EQ(showing("Move to Trash")->property("color").value<QColor>(), singleton<Theme>("Theme").alertText());
    press(Qt::Key_Return);
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(Strings{home + "/media/setup.iso"}));
    EXPECT_FALSE(menuIsOpen());
    EXPECT_TRUE(listHasKeyboard());
    EXPECT_EQ(current(), 1);
}

TEST_F(ClutterViewTest, menuKeyAndShiftF10OpenRowMenu) {
    open();
    tabToTheList();
    press(Qt::Key_Menu);
    EXPECT_TRUE(menuIsOpen());
    press(Qt::Key_Escape);
    EXPECT_FALSE(menuIsOpen());
    EXPECT_TRUE(listHasKeyboard());
    QTest::keyClick(&window(), Qt::Key_F10, Qt::ShiftModifier);
    settle();
    EXPECT_TRUE(menuIsOpen());
    press(Qt::Key_Escape);
    press(Qt::Key_F10);
    EXPECT_FALSE(menuIsOpen());
    EXPECT_TRUE(list().property("ringed").toBool());
}

TEST_F(ClutterViewTest, trashingFromMenuKeepsFocusInList) {
    open();
    tabToTheList();
    press(Qt::Key_Down);
    openMenuByKey();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/media/setup.iso"});
    EXPECT_TRUE(listHasKeyboard());
    EXPECT_EQ(currentName(), home + "/backup.zip");
    EXPECT_TRUE(list().property("ringed").toBool());
}

TEST_F(ClutterViewTest, deleteKeyTrashesFileAndSelectsNext) {
    open();
    tabToTheList();
    press(Qt::Key_Down);
    press(Qt::Key_Delete);
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/media/setup.iso"});
    EXPECT_EQ(currentName(), home + "/backup.zip");
    EXPECT_TRUE(listHasKeyboard());
    press(Qt::Key_End);
    press(Qt::Key_Delete);
    EXPECT_EQ(currentName(), home + "/old.mp4");
    EXPECT_TRUE(list().property("ringed").toBool());
}

TEST_F(ClutterViewTest, heldDeleteKeyTrashesOneFile) {
    open();
    tabToTheList();
    press(Qt::Key_Delete);
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&window(), &again);
    settle();
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/media/concert.mov"});
}

TEST_F(ClutterViewTest, failedRemovalKeepsFocusOnRow) {
    open();
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    tabToTheList();
    press(Qt::Key_Down);
    const Strings before = seenTexts();
    press(Qt::Key_Delete);
    EXPECT_EQ(seenTexts(), before);
    EXPECT_EQ(current(), 1);
    EXPECT_TRUE(listHasKeyboard());
}

TEST_F(ClutterViewTest, rightClickOpensRowMenu) {
    open();
    QTest::mouseClick(&window(), Qt::RightButton, {}, middleOf(2));
    settle();
    ASSERT_TRUE(menuIsOpen());
    EXPECT_EQ(current(), 2);
    click("trashFile");
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/backup.zip"});
    EXPECT_FALSE(menuIsOpen());
}

TEST_F(ClutterViewTest, rowButtonOpensMenu) {
    open();
    click("fileMenu3");
    ASSERT_TRUE(menuIsOpen());
    click("revealFile");
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(Strings{home + "/old.mp4"}));
    EXPECT_FALSE(list().property("ringed").toBool());
}

TEST_F(ClutterViewTest, menuOfRowButtonHasTheKeyboard) {
    open();
    click("fileMenu3");
    ASSERT_TRUE(menuIsOpen());
    EXPECT_FALSE(listHasKeyboard());
    EXPECT_EQ(current(), 3);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(Strings{home + "/old.mp4"}));
    EXPECT_TRUE(listHasKeyboard());
}

// The symbol of the button ends where the page does, and a long name ends before the age.
TEST_F(ClutterViewTest, rowsReachTheMarginAndNameAndAgeDoNotTouch) {
    open();
    for (const double factor : {1.0, 1.5}) {
        largeText(factor);
        const auto box = [](const QQuickItem& item) { return item.mapRectToScene({QPointF(), item.size()}); };
        const QQuickItem& button = *find("fileMenu0");
        const QQuickItem& symbol = *button.childItems().at(1);
        const double end = box(*button.parentItem()).right() - Theme::pageMargin();
        EXPECT_EQ(box(symbol).right(), end) << factor;
        const QQuickItem& age = *showing("1d ago");
        EXPECT_EQ(box(*showing("concert.mov")).right(), box(age).left() - 16) << factor;
    }
}

TEST_F(ClutterViewTest, clickSelectsRow) {
    open();
    tour::clickAt(window(), middleOf(3));
    settle();
    EXPECT_EQ(current(), 3);
    EXPECT_TRUE(listHasKeyboard());
    EXPECT_FALSE(list().property("ringed").toBool());
    press(Qt::Key_Up);
    EXPECT_EQ(current(), 2);
    EXPECT_TRUE(list().property("ringed").toBool());
}

TEST_F(ClutterViewTest, arrowsChoosePillAndOrder) {
    open();
    for (int stop = 0; stop < 5 && focusName() != "All"; ++stop) press(Qt::Key_Tab);
    press(Qt::Key_Right);
    EXPECT_EQ(clutter.typeFilter(), FileType::video);
    EXPECT_EQ(focusName(), "Video");
    EXPECT_TRUE(focusIsRinged());
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(clutter.typeFilter(), std::nullopt);
    for (int stop = 0; stop < 5 && focusName() != "Largest"; ++stop) press(Qt::Key_Tab);
    press(Qt::Key_Right);
    EXPECT_TRUE(clutter.sortByAge());
    EXPECT_EQ(focusName(), "Oldest");
}

TEST_F(ClutterViewTest, firstPillIsReachedIfTheChosenOneIsGone) {
    open();
    click("typePill1");
    EXPECT_EQ(clutter.typeFilter(), FileType::video);
    EXPECT_TRUE(find("typePill1")->property("chosen").toBool());
    model().setScanRoots({home + "/papers"});
    survey();
    settle();
    EXPECT_EQ(find("typePill2"), nullptr);
    for (const char* pill : {"typePill0", "typePill1"}) EXPECT_FALSE(find(pill)->property("chosen").toBool()) << pill;
    EXPECT_TRUE(find("typePill0")->activeFocusOnTab());
    EXPECT_FALSE(find("typePill1")->activeFocusOnTab());
}

TEST_F(ClutterViewTest, clickingPillFilters) {
    open();
    click("typePill3");
    EXPECT_EQ(clutter.typeFilter(), FileType::archive);
    EXPECT_THAT(seenTexts(), Not(Contains("concert.mov")));
    click("typePill0");
    EXPECT_THAT(seenTexts(), Contains("concert.mov"));
}

TEST_F(ClutterViewTest, emptyFilterKeepsHeaderAndIgnoresKeys) {
    open();
    click("typePill3");
    tabToTheList();
    press(Qt::Key_Delete);
    EXPECT_EQ(list().property("count").toInt(), 0);
    EXPECT_THAT(seenTexts(), Not(Contains("Nothing heavy")));
    EXPECT_THAT(seenTexts(), Contains("the heaviest files in your survey"));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Delete, Qt::Key_Menu, Qt::Key_End}) press(key);
    EXPECT_FALSE(menuIsOpen());
    EXPECT_EQ(machine.trash.trashed().size(), 1U);
    click("typePill0");
    EXPECT_THAT(seenTexts(), Contains("concert.mov"));
}

TEST_F(ClutterViewTest, menuClosesWhenListDisappears) {
    open();
    click("fileMenu0");
    ASSERT_TRUE(menuIsOpen());
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    settle();
    EXPECT_FALSE(menuIsOpen());
    machine.directories.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(ClutterViewTest, deleteKeyIgnoresRowNobodySelected) {
    open();
    ASSERT_TRUE(listHasKeyboard());
    press(Qt::Key_Delete);
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/media/concert.mov"});
}

TEST_F(ClutterViewTest, deleteKeyActsOnPressedRow) {
    open();
    tour::clickAt(window(), middleOf(1));
    settle();
    press(Qt::Key_Delete);
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/media/setup.iso"});
}

TEST_F(ClutterViewTest, deleteKeyIgnoresRowAfterLeavingScreen) {
    open();
    tabToTheList();
    view().setVisible(false);
    view().setVisible(true);
    list().forceActiveFocus(Qt::ShortcutFocusReason);
    press(Qt::Key_Delete);
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(ClutterViewTest, deleteKeyIgnoresRowsAfterSurveyOrSorting) {
    open();
    tabToTheList();
    survey();
    settle();
    ASSERT_TRUE(listHasKeyboard());
    press(Qt::Key_Delete);
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    press(Qt::Key_End);
    clutter.sort(1);
    settle();
    press(Qt::Key_Delete);
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(ClutterViewTest, deleteKeyNeedsNoModifier) {
    const TextsOf linuxTexts(desktopLinux);
    open();
    tabToTheList();
    for (const auto held : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        QTest::keyClick(&window(), Qt::Key_Delete, held);
    for (const auto held : {Qt::NoModifier, Qt::ControlModifier}) QTest::keyClick(&window(), Qt::Key_Backspace, held);
    settle();
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    QTest::keyClick(&window(), Qt::Key_Delete, Qt::KeypadModifier);
    settle();
    EXPECT_EQ(machine.trash.trashed().size(), 1U);
}

TEST_F(ClutterViewTest, commandDeleteMovesFileToTrashOnMacOS) {
    const TextsOf macTexts(macOS);
    open();
    tabToTheList();
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace}) press(key);
    QTest::keyClick(&window(), Qt::Key_Backspace, Qt::ControlModifier | Qt::ShiftModifier);
    settle();
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    QTest::keyClick(&window(), Qt::Key_Backspace, Qt::ControlModifier);
    settle();
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/media/concert.mov"});
}

}  // namespace zelk

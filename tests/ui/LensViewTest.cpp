// SPDX-License-Identifier: MIT
// Drives the rendered screen with its two panes by mouse and keyboard.
#include "LensFixture.h"
#include "PseudoLanguage.h"
#include "ViewFixture.h"

namespace zelk {

namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class LensViewTest : public LensFixtureOn<ViewFixture> {
protected:
    ~LensViewTest() override { close(); }

    void open(QSize size = {1046, 800}) {
        show(QStringLiteral("Zelk.App"), QStringLiteral("MapView"), "lens", &lens(), size);
    }
    /// Surveys and opens the screen with the focus on the first row.
    void openSurveyed() {
        fill();
        survey();
        open();
        focusList();
    }
    void focusList() {
        find("lensList")->forceActiveFocus(Qt::TabFocusReason);
        settle();
    }

    /// The accessible names of the instantiated rows, from top to bottom.
    std::vector<std::string> rowNames() {
        std::vector<std::pair<double, std::string>> rows;
        for (QQuickItem* item : seen())
            if (item->property("spoken").isValid() && item->property("ringed").isValid())
                rows.emplace_back(item->mapToScene({}).y(), nameOf(item));
        std::sort(rows.begin(), rows.end());
        std::vector<std::string> names;
        for (auto& [y, name] : rows) names.push_back(std::move(name));
        return names;
    }
    QQuickItem* row(const std::string& name) {
        for (QQuickItem* item : seen())
            if (item->property("spoken").isValid() && item->property("name").toString().toStdString() == name)
                return item;
        return nullptr;
    }
    /// The descendant of a row with this object name.
    QQuickItem* part(const std::string& rowName, const char* name) {
        return row(rowName)->findChild<QQuickItem*>(QString::fromLatin1(name));
    }
    void clickItem(QQuickItem* item) {
        tour::clickAt(window(), item->mapToScene(QPointF(item->width() / 2, item->height() / 2)));
        settle();
    }
    std::string text(const char* name) { return find(name)->property("text").toString().toStdString(); }
    bool listHasFocus() { return find("lensList")->hasActiveFocus(); }
};

}  // namespace

TEST_F(LensViewTest, offersSurveyBeforeResults) {
    open();
    EXPECT_THAT(seenTexts(), Contains("Run survey"));
    EXPECT_EQ(find("lensList"), nullptr);
}

TEST_F(LensViewTest, showsPlaceholderWithoutTree) {
    show(QStringLiteral("Zelk.App"), QStringLiteral("LensPanes"), "lens", &lens(), {700, 500});
    EXPECT_THAT(seenTexts(), ElementsAre("Nothing to map"));
}

TEST_F(LensViewTest, showsFixedTexts) {
    openSurveyed();
    expectTexts({"Start Over", "Select:", "None", "Review and Remove"});
    EXPECT_EQ(nameOf(find("lensBack")), "Back");
    click("lensSelect");
    EXPECT_EQ(text("lensSelectAll"), "All");
    EXPECT_EQ(text("lensSelectNone"), "None");
}

TEST_F(LensViewTest, explainsFolderWithoutSubfolders) {
    put("/a file", 5'000'000);
    survey();
    open();
    expectTexts({"No folders that take up space",
                 "Files that lie directly in this folder are counted with it and not listed one by one.",
                 "5 MB in files directly in this folder"});
}

TEST_F(LensViewTest, showsCurrentFolder) {
    machine.vitals.setVolume(home, VolumeInfo{994'660'000'000, 212'460'000'000, 0});
    openSurveyed();
    EXPECT_EQ(text("lensPlace"), "me");
    EXPECT_EQ(text("lensName"), "me");
    EXPECT_EQ(text("lensPlaceLine"), "148 MB · 3 folders");
    EXPECT_EQ(text("lensCaption"), "No items selected");
    EXPECT_EQ(text("lensVolume"), "782.2 GB of 994.66 GB used");
    EXPECT_NEAR(find("lensVolumeBar")->width(), 220 * 0.7864, 0.1);
    EXPECT_EQ(find("lensVolumeBar")->height(), 6);
    EXPECT_EQ(find("lensList")->width(), 340);
    EXPECT_THAT(rowNames(), ElementsAre("projects, 90 MB, folder", "Library, 50 MB, folder", "music, 8 MB, folder"));
    EXPECT_FALSE(find("lensRemove")->isEnabled());
    EXPECT_FALSE(find("lensBack")->isEnabled());
    expectNoTextClipped();
    expectAllControlsNamed();
}

TEST_F(LensViewTest, footerKeepsMarginOfThePage) {
    machine.vitals.setVolume(home, VolumeInfo{994'660'000'000, 212'460'000'000, 0});
    openSurveyed();
    const auto box = [&](const char* name) { return find(name)->mapRectToScene(find(name)->boundingRect()); };
    EXPECT_EQ(box("lensVolume").left(), 26);
    EXPECT_EQ(box("lensRemove").right(), 1046 - 26);
    EXPECT_EQ(box("lensRemove").bottom(), 800 - 16);
    model().setVolume(std::nullopt);
    settle();
    EXPECT_EQ(find("lensCaption")->mapToScene({}).x(), 26);
}

TEST_F(LensViewTest, iconOfTheFolderIsCentredOnItsLines) {
    openSurveyed();
    const auto box = [&](const char* name) { return find(name)->mapRectToScene(find(name)->boundingRect()); };
    EXPECT_NEAR(box("lensPlaceIcon").center().y(), box("lensName").united(box("lensPlaceLine")).center().y(), 1);
    clickItem(row("projects"));
    ASSERT_FALSE(text("lensLoose").empty());
    EXPECT_NEAR(box("lensPlaceIcon").center().y(), box("lensName").united(box("lensPlaceLine")).center().y(), 1);
    singleton<TextScale>("TextScale").setFactor(1.5);
    settle();
    EXPECT_NEAR(box("lensPlaceIcon").center().y(), box("lensName").united(box("lensPlaceLine")).center().y(), 1);
}

TEST_F(LensViewTest, footerStaysLowInALongerLanguage) {
    tour::PseudoLanguage language;
    QCoreApplication::installTranslator(&language);
    singleton<TextScale>("TextScale").setFactor(1.5);
    machine.vitals.setVolume(home, VolumeInfo{994'660'000'000, 212'460'000'000, 0});
    fill();
    survey();
    open({760, 585});
    const auto box = [&](const char* name) { return find(name)->mapRectToScene(find(name)->boundingRect()); };
    EXPECT_LE(find("lensCaption")->property("lineCount").toInt(), 2);
    EXPECT_GE(box("lensCaption").top(), box("lensVolumeBar").bottom());
    EXPECT_EQ(box("lensCaption").left(), 26);
    for (const char* text : {"lensVolume", "lensCaption"})
        EXPECT_LE(box(text).right(), box("lensRemove").left()) << text;
    EXPECT_LE(box("lensCaption").bottom(), 585 - 16);
    EXPECT_GT(find("lensList")->height(), 150) << "the list has room";
}

TEST_F(LensViewTest, hidesVolumeBarWithoutVolume) {
    openSurveyed();
    model().setVolume(std::nullopt);
    settle();
    EXPECT_EQ(find("lensVolume"), nullptr);
    EXPECT_EQ(text("lensCaption"), "No items selected");
}

// Mouse

TEST_F(LensViewTest, clickOnRowEntersFolder) {
    openSurveyed();
    clickItem(row("projects"));
    EXPECT_EQ(text("lensPlace"), "projects");
    clickItem(row("app"));
    EXPECT_EQ(text("lensPlace"), "app");
    clickItem(row("node_modules"));
    EXPECT_EQ(text("lensPlace"), "app") << "it has no subfolders";
    click("lensBack");
    EXPECT_EQ(text("lensPlace"), "projects");
    click("lensStartOver");
    EXPECT_EQ(text("lensPlace"), "me");
}

TEST_F(LensViewTest, clickOnCheckBoxSelects) {
    openSurveyed();
    clickItem(part("Library", "lensTick"));
    EXPECT_EQ(text("lensPlace"), "me");
    EXPECT_EQ(text("lensCaption"), "1 selected · 50 MB");
    EXPECT_TRUE(find("lensRemove")->isEnabled());
    EXPECT_THAT(rowNames(), Contains("Library, 50 MB, folder, ticked"));
    clickItem(part("Library", "lensTick"));
    EXPECT_EQ(text("lensCaption"), "No items selected");
}

TEST_F(LensViewTest, menuSelectsAllAndNone) {
    openSurveyed();
    EXPECT_EQ(nameOf(find("lensSelect")), "Select:, None");
    click("lensSelect");
    click("lensSelectAll");
    EXPECT_EQ(text("lensSelect"), "3");
    EXPECT_EQ(text("lensCaption"), "3 selected · 148 MB");
    click("lensSelect");
    click("lensSelectNone");
    EXPECT_EQ(text("lensSelect"), "None");
}

TEST_F(LensViewTest, infoButtonOpensExplanation) {
    openSurveyed();
    clickItem(part("Library", "lensInfo"));
    EXPECT_EQ(text("explanationTitle"), "Library");
    EXPECT_EQ(text("lensPlace"), "me");
    click("explanationDone");
    EXPECT_EQ(find("explanationDone"), nullptr);
}

TEST_F(LensViewTest, removedFolderLeavesList) {
    openSurveyed();
    clickItem(part("Library", "lensTick"));
    click("lensRemove");
    runUntilRemoved(0);
    settle();
    EXPECT_THAT(rowNames(), ElementsAre("projects, 90 MB, folder", "music, 8 MB, folder"));
    EXPECT_EQ(text("lensPlaceLine"), "98 MB · 2 folders");
    EXPECT_TRUE(listHasFocus());
}

// Keyboard

TEST_F(LensViewTest, tabOrderIsListChartFooterToolbar) {
    openSurveyed();
    press(Qt::Key_Return);
    press(Qt::Key_Space);
    const std::vector<std::string> order = tabOrder();
    EXPECT_THAT(order, ElementsAre("app, 10 MB, folder, ticked", "What is app?", HasSubstr("Map of projects"),
                                   "Review and Remove", "Start Over", "Back", "Select:, 1"));
}

TEST_F(LensViewTest, backtabReversesTab) {
    openSurveyed();
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "What is projects?");
    press(Qt::Key_Tab);
    EXPECT_THAT(focusName(), HasSubstr("Map of me"));
    press(Qt::Key_Backtab);
    EXPECT_EQ(focusName(), "What is projects?");
    press(Qt::Key_Backtab);
    EXPECT_EQ(focusName(), "projects, 90 MB, folder");
    press(Qt::Key_Backtab);
    EXPECT_EQ(focusName(), "Select:, None");
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "projects, 90 MB, folder");
}

TEST_F(LensViewTest, arrowsHomeAndEndMoveThroughRows) {
    openSurveyed();
    EXPECT_EQ(focusName(), "projects, 90 MB, folder");
    press(Qt::Key_Down);
    EXPECT_EQ(focusName(), "Library, 50 MB, folder");
    press(Qt::Key_End);
    EXPECT_EQ(focusName(), "music, 8 MB, folder");
    press(Qt::Key_Down);
    EXPECT_EQ(focusName(), "music, 8 MB, folder");
    press(Qt::Key_Home);
    EXPECT_EQ(focusName(), "projects, 90 MB, folder");
}

TEST_F(LensViewTest, spaceSelectsCurrentRow) {
    openSurveyed();
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_EQ(text("lensCaption"), "1 selected · 50 MB");
    EXPECT_EQ(focusName(), "Library, 50 MB, folder, ticked");
    press(Qt::Key_Space);
    EXPECT_EQ(text("lensCaption"), "No items selected");
}

TEST_F(LensViewTest, keysEnterAndLeaveFolders) {
    openSurveyed();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(text("lensPlace"), "Library");
    EXPECT_EQ(focusName(), "Caches, 50 MB, folder");
    press(Qt::Key_Right);
    EXPECT_EQ(text("lensPlace"), "Caches");
    press(Qt::Key_Right);
    EXPECT_EQ(text("lensPlace"), "Caches") << "it has no subfolders";
    press(Qt::Key_Left);
    EXPECT_EQ(text("lensPlace"), "Library");
    press(Qt::Key_Backspace);
    EXPECT_EQ(text("lensPlace"), "me");
    EXPECT_EQ(focusName(), "Library, 50 MB, folder") << "the row of the folder that was left";
    press(Qt::Key_Backspace);
    EXPECT_EQ(text("lensPlace"), "me");
    EXPECT_TRUE(listHasFocus());
}

TEST_F(LensViewTest, keysOpenExplanation) {
    openSurveyed();
    press(Qt::Key_I);
    EXPECT_EQ(text("explanationTitle"), "projects");
    press(Qt::Key_Escape);
    EXPECT_EQ(focusName(), "projects, 90 MB, folder");
    press(Qt::Key_Tab);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        EXPECT_EQ(focusName(), "What is projects?");
        press(key);
        ASSERT_NE(find("explanationTitle"), nullptr);
        press(Qt::Key_Escape);
        EXPECT_EQ(find("explanationTitle"), nullptr);
    }
    press(Qt::Key_Down);
    EXPECT_EQ(focusName(), "Library, 50 MB, folder");
}

TEST_F(LensViewTest, disabledButtonPassesFocusToList) {
    openSurveyed();
    press(Qt::Key_Return);
    find("lensBack")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_EQ(text("lensPlace"), "me");
    EXPECT_EQ(focusName(), "projects, 90 MB, folder");
    press(Qt::Key_Space);
    find("lensRemove")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    runUntilRemoved(0);
    settle();
    EXPECT_EQ(focusName(), "Library, 50 MB, folder");
}

TEST_F(LensViewTest, menuWorksWithKeyboard) {
    openSurveyed();
    find("lensSelect")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(text("lensCaption"), "3 selected · 148 MB");
    EXPECT_EQ(focusName(), "Select:, 3");
}

TEST_F(LensViewTest, focusMovesToLastRowWhenRowsAreReset) {
    addMany("", 200);
    survey();
    open();
    focusList();
    press(Qt::Key_End);
    ASSERT_EQ(find("lensList")->property("currentIndex").toInt(), 199);
    // Every other folder: too many for single row signals, so the model resets.
    const std::vector<NodeRef> folders = lens().walk().visibleChildren();
    for (std::size_t at = 0; at < folders.size(); at += 2) model().removeFromTree(*folders[at]);
    runUntil([&] { return lens().rows()->rowCount() == 100; });
    settle();
    EXPECT_EQ(find("lensList")->property("currentIndex").toInt(), 99);
    EXPECT_EQ(focusName(), "folder 199, 1 MB, folder");
    press(Qt::Key_Space);
    EXPECT_EQ(text("lensCaption"), "1 selected · 1 MB");
}

// Layout

TEST_F(LensViewTest, clipsNothingAtLargeScaleInSmallWindow) {
    machine.vitals.setVolume(home, VolumeInfo{994'660'000'000, 212'460'000'000, 0});
    singleton<TextScale>("TextScale").setFactor(1.5);
    fill();
    survey();
    open({726, 580});
    focusList();
    EXPECT_GT(find("lensList")->width(), 340);
    lens().selectAll();
    settle();
    expectNoTextClipped();
    for (int stop = 0; stop < 8; ++stop) {
        expectFocusInSight();
        press(Qt::Key_Tab);
    }
}

TEST_F(LensViewTest, longNameKeepsLayout) {
    const std::string name(200, 'w');
    put("/" + name + "/inner/file", 5'000'000);
    put("/other/file", 1'000'000);
    survey();
    open({726, 580});
    focusList();
    QQuickItem* label = nullptr;
    for (QQuickItem* item : seen()) {
        const QRectF box = item->mapRectToScene(item->boundingRect());
        if (!item->inherits("QQuickText")) continue;
        EXPECT_LE(box.right(), 726) << item->property("text").toString().toStdString();
        label = item;
    }
    EXPECT_NE(label, nullptr);
    press(Qt::Key_Return);
    EXPECT_EQ(text("lensPlace"), name);
    EXPECT_TRUE(find("lensPlace")->property("truncated").toBool());
    EXPECT_LE(find("lensName")->mapRectToScene(find("lensName")->boundingRect()).right(), 340);
}

TEST_F(LensViewTest, instantiatesOnlyVisibleRows) {
    for (int at = 0; at < 50'000; ++at)
        machine.directories.file(home + "/many/" + std::to_string(at) + "/file", 1'000 * (at + 1));
    survey();
    open();
    focusList();
    press(Qt::Key_Return);
    EXPECT_EQ(text("lensPlaceLine"), "1.25 TB · 50000 folders");
    EXPECT_LT(rowNames().size(), 40U);
    press(Qt::Key_End);
    EXPECT_EQ(focusName(), "0, 1 KB, folder");
    EXPECT_LT(rowNames().size(), 40U);
    expectFocusInSight();
}

TEST_F(LensViewTest, startOverIsOfSizeThirteen) {
    openSurveyed();
    EXPECT_EQ(sizeOf("Start Over"), 13);
    const SymbolItem* arrow = symbol("arrow.counterclockwise");
    ASSERT_NE(arrow, nullptr);
    EXPECT_EQ(arrow->size(), sideBesideText(13));
}

}  // namespace zelk

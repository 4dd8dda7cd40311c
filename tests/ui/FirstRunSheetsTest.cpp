// SPDX-License-Identifier: MIT
#include "TextsOf.h"
#include "ViewFixture.h"
#include "ui/charts/PaintedLayer.h"
#include "ui/screens/welcome/FirstRunModel.h"

namespace zelk {

namespace {

class FirstRunSheetsTest : public ViewFixture {
protected:
    ~FirstRunSheetsTest() override { close(); }

    void open(QSize size = {960, 620}) {
        show(QStringLiteral("Zelk.App"), QStringLiteral("FirstRunSheets"), "firstRun", &firstRun, size);
        firstRun.start();
        settle();
    }
    void openAtPanel() {
        preferences.flags[didOnboardKey] = true;
        granted = false;
        open();
    }

    const TextsOf mac{macOS};
    fakes::FakePreferences preferences;
    bool granted = true;
    FirstRunModel firstRun{preferences, [this] { return granted; }, machine.workspace, std::chrono::milliseconds(0)};
};

}  // namespace

TEST_F(FirstRunSheetsTest, showsNothingIfOnboardedWithAccess) {
    preferences.flags[didOnboardKey] = true;
    open();
    EXPECT_TRUE(seenTexts().empty());
}

TEST_F(FirstRunSheetsTest, firstPageFocusesNextAndHasNoBack) {
    open();
    EXPECT_EQ(focusName(), "Next");
    EXPECT_EQ(tabOrder(), (std::vector<std::string>{"Next", "Skip"}));
    EXPECT_EQ(find("backButton"), nullptr);
}

TEST_F(FirstRunSheetsTest, showsPagesWithTheirTexts) {
    const std::vector<std::vector<std::string>> pages{
        {"Welcome to Zelk", "A fast, private way to understand and clean your Mac.", "Skip", "Next"},
        {"See your storage",
         "Scan your whole drive in seconds, broken down by type and biggest files — with a live bubble map you can "
         "drill into.",
         "Skip", "Back", "Next"},
        {"Reclaim space safely",
         "Clear caches, junk, duplicates, and forgotten large files. Everything goes to the Trash, so it's always "
         "reversible.",
         "Skip", "Back", "Next"},
        {"Private by design",
         "Zelk runs entirely on your Mac. Nothing is ever uploaded, and destructive actions always ask first.", "Back",
         "Get Started"},
    };
    open();
    for (const std::vector<std::string>& texts : pages) {
        EXPECT_EQ(seenTexts(), texts);
        press(Qt::Key_Right);
    }
}

TEST_F(FirstRunSheetsTest, pageShowsTintedSymbolAndActiveDot) {
    const std::pair<const char*, QColor> pages[] = {{"internaldrive.fill", {245, 166, 35}},
                                                    {"circle.hexagongrid.fill", {232, 91, 196}},
                                                    {"sparkles", {50, 199, 123}},
                                                    {"hand.raised.fill", {62, 155, 255}}};
    open();
    int page = 0;
    for (const auto& [name, color] : pages) {
        ASSERT_NE(symbol(name), nullptr) << name;
        EXPECT_EQ(symbol(name)->parentItem()->property("color").value<QColor>(), color) << name;
        std::vector<int> lit;
        int dot = 0;
        for (QQuickItem* item : seen()) {
            if (!item->property("current").isValid() || item->width() != 8) continue;
            if (item->property("color").value<QColor>() == singleton<Theme>("Theme").accent()) lit.push_back(dot);
            ++dot;
        }
        EXPECT_EQ(lit, std::vector<int>{page++});
        press(Qt::Key_Right);
    }
}

TEST_F(FirstRunSheetsTest, sizesDiscTitleAndBodyOfPage) {
    open();
    const SymbolItem* drive = symbol("internaldrive.fill");
    ASSERT_NE(drive, nullptr);
    EXPECT_EQ(drive->size(), 44);
    EXPECT_EQ(drive->color(), QColor(Qt::white));
    const QQuickItem* disc = drive->parentItem();
    EXPECT_EQ(disc->size(), QSizeF(140, 140));
    EXPECT_EQ(disc->property("kind").toInt(), static_cast<int>(PaintedLayer::IntroDisc));
    EXPECT_EQ(sizeOf("Welcome to Zelk"), 26);
    EXPECT_EQ(sizeOf("A fast, private way to understand and clean your Mac."), 14);
    EXPECT_EQ(sizeOf("Skip"), 13);
    for (const char* text : {"Welcome to Zelk", "A fast, private way to understand and clean your Mac."})
        EXPECT_EQ(showing(text)->property("horizontalAlignment").toInt(), static_cast<int>(Qt::AlignHCenter)) << text;
}

TEST_F(FirstRunSheetsTest, lastPageHidesSkipAndFinishes) {
    open();
    for (int page = 0; page < 3; ++page) press(Qt::Key_Return);
    EXPECT_EQ(focusName(), "Get Started");
    EXPECT_EQ(tabOrder(), (std::vector<std::string>{"Get Started", "Back"}));
    press(Qt::Key_Return);
    EXPECT_FALSE(firstRun.showWelcome());
    EXPECT_TRUE(preferences.flags[didOnboardKey]);
    EXPECT_TRUE(seenTexts().empty());
}

TEST_F(FirstRunSheetsTest, arrowsTurnPages) {
    open();
    press(Qt::Key_Left);
    EXPECT_EQ(firstRun.welcome()->page(), 0);
    for (int turn = 0; turn < 5; ++turn) press(Qt::Key_Right);
    EXPECT_EQ(firstRun.welcome()->page(), 3);
    EXPECT_TRUE(firstRun.showWelcome());
    press(Qt::Key_Left);
    EXPECT_EQ(firstRun.welcome()->page(), 2);
}

TEST_F(FirstRunSheetsTest, focusMovesOnWhenItsButtonDisappears) {
    open();
    press(Qt::Key_Right);
    while (focusName() != "Back") press(Qt::Key_Tab);
    press(Qt::Key_Space);
    EXPECT_EQ(firstRun.welcome()->page(), 0);
    EXPECT_EQ(focusName(), "Next");
    EXPECT_TRUE(focusIsRinged());
    while (focusName() != "Skip") press(Qt::Key_Tab);
    for (int turn = 0; turn < 3; ++turn) press(Qt::Key_Right);
    EXPECT_EQ(focusName(), "Get Started");
    EXPECT_TRUE(focusIsRinged());
}

TEST_F(FirstRunSheetsTest, escapeSkipsTheWelcome) {
    open();
    press(Qt::Key_Escape);
    EXPECT_FALSE(firstRun.showWelcome());
    EXPECT_TRUE(preferences.flags[didOnboardKey]);
}

TEST_F(FirstRunSheetsTest, clickingSkipEndsWelcome) {
    open();
    click("skipButton");
    EXPECT_FALSE(firstRun.showWelcome());
}

TEST_F(FirstRunSheetsTest, pageSlidesWithoutOvershoot) {
    singleton<Motion>("Motion").setReduced(false);
    open();
    QQuickItem* pages = find("welcomePages");
    ASSERT_NE(pages, nullptr);
    const qreal stage = pages->parentItem()->width();
    firstRun.welcome()->next();
    EXPECT_EQ(pages->x(), 0) << "it slides instead of jumping";
    qreal furthest = 0;
    tour::waitUntil([&] {
        furthest = std::min(furthest, pages->x());
        return pages->x() == -stage;
    });
    EXPECT_GE(furthest, -stage - 0.5) << "no overshoot";
}

TEST_F(FirstRunSheetsTest, panelShowsTextsInOrder) {
    openAtPanel();
    EXPECT_EQ(seenTexts(), (std::vector<std::string>{"Zelk needs Full Disk Access", "to survey your whole drive.",
                                                     "Open Settings → drag Zelk in → come back.", "Open Settings",
                                                     "waiting for access…", "Continue without it"}));
    EXPECT_TRUE(firstRun.polling());
    expectAllControlsNamed();
}

TEST_F(FirstRunSheetsTest, linuxPanelHasNoSettingsButton) {
    const TextsOf here(desktopLinux);
    openAtPanel();
    EXPECT_EQ(seenTexts(),
              (std::vector<std::string>{"Zelk may not read your whole drive", "Some folders belong to another user.",
                                        "Ask their owner to share them, or go on without them.", "waiting for access…",
                                        "Continue without it"}));
    EXPECT_EQ(focusName(), "Continue without it");
    press(Qt::Key_Return);
    EXPECT_FALSE(firstRun.showOnboarding());
    EXPECT_TRUE(machine.workspace.opened.empty());
}

TEST_F(FirstRunSheetsTest, panelIs460By420WithPartsInOrder) {
    openAtPanel();
    const QQuickItem* dialog = find("openSettingsButton");
    ASSERT_NE(dialog, nullptr);
    while (!dialog->inherits("QQuickPopupItem")) ASSERT_NE(dialog = dialog->parentItem(), nullptr);
    EXPECT_EQ(dialog->size(), QSizeF(460, 420));
    ASSERT_NE(symbol("lock.open.display"), nullptr);
    double above = symbol("lock.open.display")->mapToScene({}).y();
    for (const char* text :
         {"Zelk needs Full Disk Access", "to survey your whole drive.", "Open Settings → drag Zelk in → come back.",
          "Open Settings", "waiting for access…", "Continue without it"}) {
        ASSERT_NE(showing(text), nullptr) << text;
        EXPECT_GT(showing(text)->mapToScene({}).y(), above) << text;
        above = showing(text)->mapToScene({}).y();
    }
}

TEST_F(FirstRunSheetsTest, panelWorksWithKeyboard) {
    openAtPanel();
    EXPECT_EQ(tabOrder(), (std::vector<std::string>{"Open Settings", "Continue without it"}));
    press(Qt::Key_Return);
    EXPECT_EQ(machine.workspace.opened, std::vector<std::string>{accessSettingsURL});
    EXPECT_TRUE(firstRun.showOnboarding());
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    EXPECT_FALSE(firstRun.showOnboarding());
    EXPECT_FALSE(firstRun.polling());
    EXPECT_TRUE(seenTexts().empty());
}

TEST_F(FirstRunSheetsTest, escapeContinuesWithoutAccess) {
    openAtPanel();
    press(Qt::Key_Escape);
    EXPECT_FALSE(firstRun.showOnboarding());
}

TEST_F(FirstRunSheetsTest, panelClosesWhenAccessIsGranted) {
    openAtPanel();
    granted = true;
    runUntil([&] { return !firstRun.showOnboarding(); });
    EXPECT_FALSE(firstRun.polling());
}

TEST_F(FirstRunSheetsTest, pollsOnlyWhileWindowIsVisible) {
    openAtPanel();
    window().hide();
    runWhatIsThere();
    EXPECT_FALSE(firstRun.polling());
    window().show();
    runUntil([&] { return firstRun.polling(); });
}

TEST_F(FirstRunSheetsTest, stopsPollingWhenViewIsDestroyed) {
    openAtPanel();
    close();
    EXPECT_FALSE(firstRun.polling());
}

TEST_F(FirstRunSheetsTest, welcomeLeadsToPanel) {
    granted = false;
    open();
    press(Qt::Key_Escape);
    EXPECT_EQ(focusName(), "Open Settings");
}

TEST_F(FirstRunSheetsTest, clipsNothingInLargeText) {
    singleton<TextScale>("TextScale").setFactor(1.5);
    granted = false;
    open();
    for (int page = 0; page < 4; ++page) {
        expectNoTextClipped();
        press(Qt::Key_Right);
    }
    firstRun.welcome()->skip();
    settle();
    expectNoTextClipped();
}

}  // namespace zelk

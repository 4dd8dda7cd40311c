// SPDX-License-Identifier: MIT
#include "ViewFixture.h"
#include "ui/screens/settings/SettingsScreenModel.h"

namespace zelk {

namespace {

using Roots = std::vector<std::string>;

class SettingsWindow : public ViewFixture {
protected:
    ~SettingsWindow() override {
        machine.directories.release();
        close();
    }
    void open(QSize size = {460, 360}) {
        show(QStringLiteral("Zelk.App"), QStringLiteral("SettingsView"), "settings", &settings, size);
    }
    /// Presses Tab until the control of this name has the focus.
    void tabTo(const std::string& name) {
        for (int stop = 0; stop < 40 && focusName() != name; ++stop) press(Qt::Key_Tab);
        ASSERT_EQ(focusName(), name);
    }
    bool shows(const std::string& text) {
        const std::vector<std::string> texts = seenTexts();
        return std::find(texts.begin(), texts.end(), text) != texts.end();
    }

    std::optional<std::string> chosen;
    SettingsScreenModel settings{model(), [this] { return chosen; }};
};

}  // namespace

TEST_F(SettingsWindow, showsItsTextsInOrder) {
    open({640, 900});
    EXPECT_EQ(seenTexts(),
              (std::vector<std::string>{"Settings", "Scan roots", "/home/me", "Add folder…", "Cleanup",
                                        "Age filter default: 14 days", "14", "Delete permanently by default",
                                        "Off keeps cleanup reversible (moves to Trash).", "Appearance", "Theme",
                                        "System", "Light", "Dark", "Re-scan now"}));
    ASSERT_NE(symbol("gearshape"), nullptr);
    EXPECT_EQ(symbol("gearshape")->color(), QColor(152, 146, 168));
}

TEST_F(SettingsWindow, tabVisitsControlsFromTopToBottom) {
    open();
    const std::vector<std::string> order = tabOrder();
    const auto place = [&](const std::string& name) {
        return std::find(order.begin(), order.end(), name) - order.begin();
    };
    EXPECT_LT(place("Remove /home/me"), place("Add folder…"));
    EXPECT_LT(place("Add folder…"), place("Delete permanently by default"));
    EXPECT_LT(place("Delete permanently by default"), place("Re-scan now"));
    EXPECT_LT(place("Re-scan now"), static_cast<std::ptrdiff_t>(order.size()));
}

TEST_F(SettingsWindow, scrollsToFocusedControl) {
    open();
    for (int stop = 0; stop < 10; ++stop) {
        expectFocusInSight();
        press(Qt::Key_Tab);
    }
    tabTo("Re-scan now");
    expectFocusInSight();
}

TEST_F(SettingsWindow, namesAllControls) {
    open({640, 900});
    expectAllControlsNamed();
}

TEST_F(SettingsWindow, keyboardAddsFolder) {
    machine.directories.directory("/data");
    chosen = "/data";
    open();
    tabTo("Add folder…");
    press(Qt::Key_Return);
    EXPECT_EQ(model().scanRoots(), (Roots{home, "/data"}));
    EXPECT_TRUE(shows("/data"));
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(SettingsWindow, keyboardRemovalMovesFocusToNextRow) {
    model().setScanRoots({"/a", "/b", "/c"});
    open();
    tabTo("Remove /b");
    press(Qt::Key_Space);
    EXPECT_EQ(model().scanRoots(), (Roots{"/a", "/c"}));
    EXPECT_EQ(focusName(), "Remove /c");
    EXPECT_TRUE(focusIsRinged());
    press(Qt::Key_Space);
    EXPECT_EQ(focusName(), "Remove /a");
    press(Qt::Key_Space);
    EXPECT_EQ(focusName(), "Add folder…");
    EXPECT_TRUE(shows("No folders yet. Add one, and a survey walks it.")) << "shown for an empty list";
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(SettingsWindow, invitesToAddAFolderOnlyWhileThereIsNone) {
    const char* invitation = "No folders yet. Add one, and a survey walks it.";
    open();
    for (const Roots& roots : {Roots{}, Roots{"/a"}, Roots{"/a", "/b"}, Roots{}}) {
        model().setScanRoots(roots);
        settle();
        EXPECT_EQ(shows(invitation), roots.empty());
        for (const std::string& root : roots) EXPECT_TRUE(shows(root)) << root;
    }
}

TEST_F(SettingsWindow, keyboardStepsAgeDownToZero) {
    open();
    tabTo("Age filter default: 14 days");
    press(Qt::Key_Up);
    EXPECT_EQ(model().ageFilterDays(), 15);
    EXPECT_TRUE(shows("Age filter default: 15 days"));
    for (int step = 0; step < 20; ++step) press(Qt::Key_Down);
    EXPECT_EQ(model().ageFilterDays(), 0);
    EXPECT_TRUE(shows("Age filter default: all"));
}

TEST_F(SettingsWindow, keyboardTogglesSwitchThatFollowsModel) {
    open();
    tabTo("Delete permanently by default");
    press(Qt::Key_Space);
    EXPECT_TRUE(model().hardDeleteEnabled());
    press(Qt::Key_Space);
    EXPECT_FALSE(model().hardDeleteEnabled());
    model().setHardDeleteEnabled(true);
    EXPECT_TRUE(window().activeFocusItem()->property("checked").toBool());
}

TEST_F(SettingsWindow, keyboardPicksTheme) {
    open();
    tabTo("Dark");
    press(Qt::Key_Left);
    EXPECT_EQ(model().appearance(), AppModel::Appearance::light);
    press(Qt::Key_Left);
    EXPECT_EQ(model().appearance(), AppModel::Appearance::system);
    press(Qt::Key_Right);
    EXPECT_EQ(model().appearance(), AppModel::Appearance::light);
}

TEST_F(SettingsWindow, keyboardRescans) {
    open();
    tabTo("Re-scan now");
    machine.directories.hold(home);
    press(Qt::Key_Return);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    machine.directories.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(SettingsWindow, rowShowsFolderAndRemoveSymbols) {
    open();
    const SymbolItem* folder = symbol("folder.fill");
    const SymbolItem* remove = symbol("minus.circle");
    ASSERT_NE(folder, nullptr);
    ASSERT_NE(remove, nullptr);
    const QQuickItem* path = find("rootPath");
    EXPECT_LT(folder->mapToScene({}).x(), path->mapToScene({}).x());
    EXPECT_GE(remove->mapToScene({}).x(), path->mapToScene({path->width(), 0}).x());
    EXPECT_EQ(remove->mapToScene({remove->width(), 0}).x(), 460 - 26 - 16) << "where the controls below it end";
    EXPECT_EQ(folder->size(), sideBesideText(13));
    singleton<TextScale>("TextScale").setFactor(1.5);
    settle();
    EXPECT_EQ(folder->size(), sideBesideText(1.5 * 13)) << "it grows with the path";
    singleton<TextScale>("TextScale").setFactor(1);
    settle();
    tour::clickAt(window(), remove->mapToScene(remove->boundingRect().center()));
    settle();
    EXPECT_EQ(model().scanRoots(), Roots{});
    EXPECT_EQ(symbol("minus.circle"), nullptr);
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(SettingsWindow, elidesLongPathInTheMiddleButNamesItInFull) {
    const std::string path = "/beginning/" + std::string(200, 'n') + "/end";
    model().setScanRoots({path});
    open();
    const QQuickItem* words = find("rootPath");
    ASSERT_NE(words, nullptr);
    EXPECT_TRUE(words->property("truncated").toBool());
    EXPECT_LE(words->mapRectToScene(words->boundingRect()).right(), window().width());
    EXPECT_EQ(words->property("elide").toInt(), static_cast<int>(Qt::ElideMiddle));
    EXPECT_EQ(nameOf(find("rootPath")), path);
}

TEST_F(SettingsWindow, removesFolderWithInvalidUtf8) {
    model().setScanRoots({home, "/data/caf\xe9"});
    open();
    tabTo("Remove /data/caf\xef\xbf\xbd");
    press(Qt::Key_Space);
    EXPECT_EQ(model().scanRoots(), Roots{home});
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(SettingsWindow, clipsNothingInLargeText) {
    singleton<TextScale>("TextScale").setFactor(1.5);
    open();
    expectNoTextClipped();
}

}  // namespace zelk

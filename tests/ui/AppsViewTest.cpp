// SPDX-License-Identifier: MIT
#include <algorithm>

#include "AppsViewFixture.h"

namespace zelk {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using Strings = std::vector<std::string>;

const std::string appsPurpose =
    "List installed apps by size and uninstall them cleanly — the app plus its leftover caches, preferences, and "
    "support files.";

}  // namespace

TEST_F(MacApps, idleFaceSaysWhatItIsFor) {
    open();
    EXPECT_THAT(seenTexts(), ElementsAre("Apps", appsPurpose, "Scan applications"));
    EXPECT_FALSE(apps().hasScanned());
    click("moduleScanButton");
    EXPECT_TRUE(apps().hasScanned());
}

TEST_F(MacApps, readingFaceNamesTheFolder) {
    open();
    machine.directories.hold("/Applications");
    click("moduleScanButton");
    EXPECT_THAT(seenTexts(), ElementsAre("Reading /Applications…"));
    EXPECT_NE(find("moduleProgressBar"), nullptr);
    machine.directories.release();
    runUntil([this] { return !apps().loading(); });
    settle();
    EXPECT_THAT(seenTexts(), Contains("3 apps · footprint includes caches, support & containers"));
}

TEST_F(MacApps, listShowsItsTextsInOrder) {
    openScanned();
    EXPECT_EQ(seenTexts(),
              (Strings{"Apps", appsPurpose, "Apps", "3 apps · footprint includes caches, support & containers",
                       "Total footprint", "App size", "Inkwell", "app 300 MB · data 1 GB", "1.3 GB", "Uninstall",
                       "Sonata", "org.sample.sonata", "500 MB", "Uninstall", "Tidepool", "/Applications/Tidepool.app",
                       "100 MB", "Uninstall"}));
    EXPECT_EQ(sizeOf("Inkwell"), 13);
}

TEST_F(MacApps, rowShowsIdentifierUntilFootprintIsKnown) {
    machine.tasks.hold();
    apps().scanApps();
    runUntil([this] { return !machine.tasks.waiting().empty(); });
    machine.tasks.runNext();
    runUntil([this] { return !apps().loading(); });
    open();
    expectTexts({"org.sample.inkwell", "org.sample.sonata", "/Applications/Tidepool.app", "300 MB"});
    EXPECT_EQ(rowNames(), (Strings{"Sonata", "Inkwell", "Tidepool"}));
    machine.tasks.release();
    runUntil([this] { return rowNames().front() == "Inkwell"; });
    settle();
    expectTexts({"app 300 MB · data 1 GB", "1.3 GB", "org.sample.sonata"});
}

TEST_F(MacApps, segmentsSort) {
    openScanned();
    EXPECT_EQ(rowNames(), (Strings{"Inkwell", "Sonata", "Tidepool"}));
    find("appsOrder")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Right);
    EXPECT_EQ(apps().sort(), AppsModel::Sort::bundle);
    EXPECT_EQ(rowNames(), (Strings{"Sonata", "Inkwell", "Tidepool"}));
    press(Qt::Key_Left);
    EXPECT_EQ(rowNames(), (Strings{"Inkwell", "Sonata", "Tidepool"}));
    EXPECT_EQ(list().property("currentIndex").toInt(), 0);
}

TEST_F(MacApps, noneFoundSaysSo) {
    openScanned();
    for (int left = 3; left > 0; --left) {
        ask(0);
        confirm();
    }
    expectTexts({"No apps found", "There is no application in the folder Applications."});
    EXPECT_EQ(find("appList"), nullptr);
}

TEST_F(MacApps, sheetListsTheAppAndItsLeftovers) {
    openScanned();
    ask(0);
    expectTexts({"Uninstall Inkwell", "Moves the app and 2 leftover item(s) to Trash — 1.35 GB.", "Inkwell.app",
                 "300 MB", "org.sample.inkwell", "900 MB", "Inkwell", "150 MB", "Cancel", "Move 1.35 GB to Trash"});
    EXPECT_NE(symbol("app"), nullptr);
    EXPECT_EQ(colorsOf("doc").size(), 2U);
}

TEST_F(MacApps, sheetWithoutLeftoversHasOneRow) {
    openScanned();
    ask(2);
    expectTexts({"Uninstall Tidepool", "Moves the app and 0 leftover item(s) to Trash — 100 MB.", "Tidepool.app",
                 "Move 100 MB to Trash"});
    EXPECT_EQ(find("uninstallList")->property("count").toInt(), 1);
}

TEST_F(MacApps, sheetTellsThatItMeasures) {
    openScanned();
    machine.tasks.hold();
    click("uninstall0");
    EXPECT_NE(find("uninstallSpinner"), nullptr);
    EXPECT_FALSE(find("confirmUninstall")->isEnabled());
    press(Qt::Key_Return);
    EXPECT_FALSE(apps().removing());
    machine.tasks.release();
    runUntil([this] { return !screen().sheet()->loading(); });
    settle();
    EXPECT_EQ(find("uninstallSpinner"), nullptr);
    EXPECT_TRUE(find("confirmUninstall")->isEnabled());
}

TEST_F(MacApps, measuresOfAnotherSheetComeTooLate) {
    openScanned();
    machine.tasks.hold();
    click("uninstall0");
    press(Qt::Key_Escape);
    click("uninstall1");
    machine.tasks.runNext();
    runWhatIsThere();
    EXPECT_TRUE(screen().sheet()->loading());
    machine.tasks.release();
    runUntil([this] { return !screen().sheet()->loading(); });
    settle();
    expectTexts({"Uninstall Sonata", "Moves the app and 0 leftover item(s) to Trash — 500 MB."});
}

TEST_F(MacApps, confirmingMovesAllAndTheRowGoes) {
    openScanned();
    ask(0);
    confirm();
    EXPECT_EQ(find("confirmUninstall"), nullptr);
    EXPECT_EQ(rowNames(), (Strings{"Sonata", "Tidepool"}));
    EXPECT_THAT(machine.trash.trashed(),
                ElementsAre("/Applications/Inkwell.app", home + "/Library/Application Support/org.sample.inkwell",
                            home + "/Library/Caches/Inkwell"));
    expectTexts({"Moved to the Trash", "Undo", "2 apps · footprint includes caches, support & containers"});
    click("undoRemoval");
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_EQ(rowNames(), (Strings{"Inkwell", "Sonata", "Tidepool"}));
}

TEST_F(MacApps, cancelMovesNothing) {
    openScanned();
    ask(0);
    click("cancelUninstall");
    EXPECT_EQ(find("confirmUninstall"), nullptr);
    ask(0);
    press(Qt::Key_Escape);
    EXPECT_EQ(find("confirmUninstall"), nullptr);
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(MacApps, refusedMoveIsNotShown) {
    openScanned();
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    ask(1);
    confirm();
    EXPECT_EQ(rowNames(), (Strings{"Inkwell", "Tidepool"}));
    EXPECT_EQ(find("endingBar"), nullptr);
    EXPECT_EQ(find("undoRemoval"), nullptr);
}

TEST_F(MacApps, keysOpenAndConfirmTheSheet) {
    openScanned();
    list().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    runUntil([this] { return !screen().sheet()->loading(); });
    settle();
    expectTexts({"Uninstall Sonata"});
    EXPECT_TRUE(find("uninstallList")->hasActiveFocus());
    press(Qt::Key_Return);
    runUntil([this] { return !apps().removing(); });
    settle();
    EXPECT_EQ(rowNames(), (Strings{"Inkwell", "Tidepool"})) << "Return agrees to what can be undone";
    EXPECT_TRUE(list().hasActiveFocus());
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Delete, Qt::Key_Enter}) {
        press(key);
        EXPECT_NE(find("confirmUninstall"), nullptr) << key;
        press(Qt::Key_Escape);
    }
}

TEST_F(MacApps, keyOpensNothingForARowThatNobodyChose) {
    openScanned();
    list().forceActiveFocus(Qt::OtherFocusReason);
    ASSERT_FALSE(list().property("rowChosen").toBool());
    press(Qt::Key_Return);
    EXPECT_EQ(find("confirmUninstall"), nullptr);
}

TEST_F(MacApps, rowsAreNamedWithAllThatTheyShow) {
    openScanned();
    EXPECT_EQ(said(0).text(QAccessible::Name).toStdString(), "Inkwell, app 300 MB · data 1 GB, 1.3 GB");
    EXPECT_EQ(said(0).role(), QAccessible::ListItem);
    EXPECT_EQ(said(0).text(QAccessible::Description), QString());
    EXPECT_EQ(nameOf(find("uninstall1")), "Uninstall Sonata");
    said(2).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    runUntil([this] { return !screen().sheet()->loading(); });
    settle();
    expectTexts({"Uninstall Tidepool"});
}

TEST_F(MacApps, rowsHaveIconsOfTheSystem) {
    machine.workspace.icons["/Applications/Sonata.app"] = {1, {0xff00ff00}};
    openScanned();
    EXPECT_THAT(machine.workspace.iconReads, Contains("/Applications/Sonata.app"));
    EXPECT_THAT(machine.workspace.iconReads, Contains("/Applications/Inkwell.app"));
}

TEST_F(MacApps, othersRestWhileOneIsRemoved) {
    openScanned();
    ask(0);
    machine.tasks.hold();
    click("confirmUninstall");
    EXPECT_NE(find("uninstalling0"), nullptr);
    EXPECT_EQ(find("uninstall0"), nullptr);
    EXPECT_FALSE(find("uninstall1")->isEnabled());
    EXPECT_TRUE(said(0).text(QAccessible::Name).endsWith(QStringLiteral(", being removed")));
    EXPECT_FALSE(said(1).text(QAccessible::Name).endsWith(QStringLiteral(", being removed")));
    screen().uninstall(1);
    EXPECT_FALSE(screen().sheet()->isOpen());
    machine.tasks.release();
    runUntil([this] { return !apps().removing(); });
    settle();
    EXPECT_TRUE(find("uninstall0")->isEnabled());
    EXPECT_EQ(find("uninstalling0"), nullptr);
}

TEST_F(MacApps, nothingIsClippedAtLargeText) {
    singleton<TextScale>("TextScale").setFactor(1.5);
    openScanned({760, 600});
    expectNoTextClipped();
    expectAllControlsNamed();
}

TEST_F(MacApps, oddNamesAreShownAsMarks) {
    fakes::addBundle(machine, "a\nb\xff", 900'000'000);
    openScanned();
    EXPECT_THAT(rowNames(), Contains("a␊b\uFFFD"));
}

TEST_F(LinuxAppsWindow, readingFaceNamesNoFolder) {
    machine.tasks.hold();
    open();
    click("moduleScanButton");
    EXPECT_THAT(seenTexts(), ElementsAre("Reading applications…"));
    machine.tasks.release();
    runUntil([this] { return !apps().loading(); });
}

TEST_F(LinuxAppsWindow, rowsTellWhereTheApplicationCameFrom) {
    openScanned();
    expectTexts({"6 apps · footprint includes caches, support & containers", "package", "flatpak", "snap", "AppImage",
                 "unpacked", "flatpak, all users", "app 500 MB · data 2 MB"});
    EXPECT_EQ(said(1).text(QAccessible::Name).toStdString(), "Orrery, flatpak, app 500 MB · data 2 MB, 502 MB");
}

TEST_F(LinuxAppsWindow, applicationThatStaysHasNoButtonAndSaysWhy) {
    desktop.packages.push_back({"one", 1, "studio"});
    desktop.packages.push_back({"two", 1, "studio"});
    desktop.packages.push_back({"zoo", 1, "studio"});
    desktop.packages.push_back({"zzz", 1, "studio"});
    openScanned();
    expectTexts({"Stays: needed by one, two, zoo and 1 more."});
    EXPECT_EQ(find("uninstall0"), nullptr);
    EXPECT_EQ(said(0).text(QAccessible::Description).toStdString(), "Stays: needed by one, two, zoo and 1 more.");
    list().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    EXPECT_EQ(find("confirmUninstall"), nullptr);
}

TEST_F(LinuxAppsWindow, sandboxSaysWhatItCannotSeeAndRemove) {
    const TextsOf sandbox(SystemTexts::System::flatpak);
    machine.locations.sandboxed = true;
    openScanned();
    EXPECT_THAT(rowNames(), ElementsAre("Orrery", "Sonata", "Tidepool"));
    expectTexts({"3 apps · those of flatpak, snap and the distribution can’t be seen from here",
                 "Stays: only flatpak can remove it, which Flatpak’s sandbox does not have."});
    EXPECT_EQ(find("uninstall0"), nullptr);
    EXPECT_NE(find("uninstall1"), nullptr);
}

TEST_F(LinuxAppsWindow, entryOfNoPackageHasNoFigure) {
    machine.files.addFile(desktop.entryOf("handmade"), fakes::applicationEntry("Handmade", "/opt/x"));
    openScanned();
    expectTexts({"Handmade", "system", "Stays: nothing here says what removes it."});
    EXPECT_THAT(seenTexts(), Not(Contains("0 bytes")));
}

TEST_F(LinuxAppsWindow, sheetOfAPackageSaysWhoRemovesWhat) {
    openScanned();
    ask(0);
    expectTexts({"Uninstall Studio",
                 "Removes the package for all users, for good, once an administrator agrees, and moves 1 leftover "
                 "item(s) to Trash — 922.6 MB.",
                 "studio", "removed by an administrator", "~/.config/studio · to the Trash", "1 MB",
                 "Remove 922.6 MB"});
    press(Qt::Key_Return);
    EXPECT_TRUE(screen().sheet()->isOpen()) << "a stray Return removes nothing for good";
}

TEST_F(LinuxAppsWindow, sheetOfAFlatpakSaysSo) {
    openScanned();
    ask(1);
    expectTexts({"Removes the app through flatpak, for good, and moves 1 leftover item(s) to Trash — 502 MB.",
                 "org.sample.Orrery", "removed by flatpak", "~/.var/app/org.sample.Orrery · to the Trash"});
}

TEST_F(LinuxAppsWindow, sheetNamesTheOtherApplicationsThatGo) {
    desktop.addEntry("studio", "Studio Player", "org.sample.StudioPlayer", "/usr/bin/studio --play");
    desktop.addEntry("studio", "Studio Helper", "org.sample.StudioHelper", "/usr/bin/studio --help",
                     "NoDisplay=true\n");
    openScanned();
    ask(0);
    expectTexts({"studio", "Studio Player"});
    EXPECT_THAT(seenTexts(), Not(Contains("Studio Helper")));
    EXPECT_EQ(std::ranges::count(seenTexts(), std::string("removed by an administrator")), 2);
}

TEST_F(LinuxAppsWindow, sheetLooksAgainAtWhatIsTheUsers) {
    openScanned();
    machine.files.addFile(home + "/Tidepool/thesis", {}, 5'000'000);
    ask(4);
    expectTexts({"Moves the app and 1 leftover item(s) to Trash — 65 MB.", "Move 65 MB to Trash"});
    press(Qt::Key_Escape);
    machine.files.addFolder(home + "/Tidepool/.git");
    ask(4);
    expectTexts({"Stays: it has changed since it was listed."});
    EXPECT_FALSE(find("confirmUninstall")->isEnabled());
}

TEST_F(LinuxAppsWindow, sheetWithoutLeftoversSaysNothingOfTheTrash) {
    openScanned();
    ask(5);
    expectTexts({"Removes the app through flatpak for all users, for good — 20 MB.", "Remove 20 MB"});
    press(Qt::Key_Escape);
    machine.files.erase(home + "/.config/studio");
    ask(0);
    expectTexts({"Removes the package for all users, for good, once an administrator agrees — 921.6 MB."});
}

TEST_F(LinuxAppsWindow, sheetOfASnapSaysWhatSnapDoes) {
    openScanned();
    ask(2);
    expectTexts(
        {"Removes the app through snap for all users, for good — 303 MB. Snap removes the folder of the app too, and "
         "may keep a copy of its data for a while.",
         "chat_42.snap", "removed by snap", "chat", "3 MB", "~/snap/chat · removed by snap"});
}

TEST_F(LinuxAppsWindow, sheetOfWhatIsTheUsersHasTheToldSentence) {
    openScanned();
    ask(3);
    expectTexts({"Moves the app and 0 leftover item(s) to Trash — 90 MB.", "Sonata.AppImage",
                 "~/Applications/Sonata.AppImage", "Move 90 MB to Trash"});
    press(Qt::Key_Escape);
    ask(4);
    expectTexts({"Moves the app and 1 leftover item(s) to Trash — 60 MB.", "~/Tidepool", "org.sample.Tidepool.desktop",
                 "~/.local/share/applications/org.sample.Tidepool.desktop"});
}

TEST_F(LinuxAppsWindow, sheetOfAPackageThatTakesAnotherAlongRemovesNothing) {
    openScanned();
    desktop.alongside = {"plugins"};
    ask(0);
    expectTexts({"Stays: needed by plugins."});
    EXPECT_FALSE(find("confirmUninstall")->isEnabled());
    screen().sheet()->confirm();
    EXPECT_THAT(desktop.removals(), IsEmpty());
}

TEST_F(LinuxAppsWindow, afterARemovalTheBarSaysWhatWentWhere) {
    openScanned();
    ask(1);
    confirm();
    EXPECT_THAT(rowNames(), Not(Contains("Orrery")));
    expectTexts({"Orrery was removed. Moved to the Trash: 1 leftover item(s)."});
    EXPECT_EQ(find("undoRemoval"), nullptr);
    click("closeUndoBar");
    EXPECT_EQ(find("endingBar"), nullptr);
    EXPECT_FALSE(apps().lastEnding());
}

TEST_F(LinuxAppsWindow, failedRemovalLeavesTheRowAndSaysWhy) {
    openScanned();
    desktop.removal = {std::nullopt, 1, "Looking…\nerror: it is in use\n"};
    ask(1);
    confirm();
    EXPECT_THAT(rowNames(), Contains("Orrery"));
    expectTexts({"Orrery was not removed. Where they were: 1 leftover item(s).", "error: it is in use"});
    EXPECT_EQ(nameOf(find("endingBar")),
              "Orrery was not removed. Where they were: 1 leftover item(s)., error: it is in use");
    desktop.removal = {std::nullopt, 126, "Error executing command as another user: Request dismissed\n"};
    ask(0);
    confirm();
    expectTexts({"Studio was not removed: an administrator has to agree to it. Where they were: 1 leftover item(s)."});
    desktop.removal = {"No such file or directory", 0, {}};
    ask(2);
    confirm();
    expectTexts({"Chat was not removed: what removes it could not be started. Where they were: 1 leftover item(s).",
                 "No such file or directory"});
    desktop.removal = {};
    desktop.removes = false;
    ask(5);
    confirm();
    expectTexts({"Maps was not removed: it is still there."});
}

TEST_F(LinuxAppsWindow, keyboardClosesTheBarAndReturnsToTheList) {
    openScanned();
    desktop.removes = false;
    ask(5);
    confirm();
    find("closeUndoBar")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Escape);
    EXPECT_EQ(find("endingBar"), nullptr);
    EXPECT_TRUE(list().hasActiveFocus());
}

TEST_F(LinuxAppsWindow, twoOfOneNameAreToldApartByTheirKind) {
    desktop.addPackaged({"orrery"}, "Orrery", "orrery");
    openScanned();
    EXPECT_EQ(std::ranges::count(rowNames(), std::string("Orrery")), 2);
    ask(1);
    expectTexts({"org.sample.Orrery"});
    confirm();
    EXPECT_EQ(std::ranges::count(rowNames(), std::string("Orrery")), 1);
}

TEST_F(LinuxAppsWindow, longListMakesOnlyTheRowsInView) {
    for (int number = 0; number < 500; ++number) {
        const std::string name = "app" + std::to_string(1'000 + number);
        desktop.addPackaged({name}, name, name);
    }
    openScanned();
    ASSERT_EQ(list().property("count").toInt(), 506);
    int made = 0;
    for (QQuickItem* item : list().property("contentItem").value<QQuickItem*>()->childItems())
        made += item->property("uninstallName").isValid() ? 1 : 0;
    EXPECT_GT(made, 5);
    EXPECT_LT(made, 40);
    list().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    EXPECT_EQ(list().property("currentIndex").toInt(), 505);
}

}  // namespace zelk

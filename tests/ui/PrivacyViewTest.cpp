// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "PrivacyViewFixture.h"

namespace zelk {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

using Strings = std::vector<std::string>;

const char* const whyNot =
    "Firefox’s history is not listed: it shares a file with your bookmarks. Clear it in Firefox.";

class PrivacyWindow : public PrivacyViewFixture {
protected:
    const std::string library = home + "/Library/";
};

class PrivacyWindowOfMac : public PrivacyWindow {
protected:
    PrivacyWindowOfMac() { fakes::fillWithTraces(machine); }
};

TEST_F(PrivacyWindowOfMac, showsItsThreeFaces) {
    open();
    EXPECT_THAT(seenTexts(),
                ElementsAre("Privacy",
                            "Clear browsing traces across your browsers — caches, histories, cookies. No malware "
                            "scanner (that needs a signature database).",
                            "Scan for traces"));
    machine.tasks.hold();
    click("moduleScanButton");
    EXPECT_THAT(seenTexts(), ElementsAre("Scanning browser traces…"));
    machine.tasks.release();
    runUntil([this] { return !traces().loading(); });
    settle();
    EXPECT_EQ(
        seenTexts(),
        (Strings{"Privacy", "browsing traces", "Safari — Caches", library + "Caches/com.apple.Safari", "6 MB",
                 "Chrome — Caches", library + "Caches/Google/Chrome", "4 MB", "Safari — History",
                 library + "Safari/History.db", "3 MB", "Chrome — Cookies",
                 library + "Application Support/Google/Chrome/Default/Cookies", "2 MB", "System — Recent items",
                 library + "Application Support/com.apple.sharedfilelist", "1 MB", "10 MB selected", "Clear traces"}));
    EXPECT_EQ(colorsOf("globe").size(), 5U);
    expectNoTextClipped();
}

TEST_F(PrivacyWindow, saysThatThereIsNothingAndLooksAgain) {
    open();
    click("moduleScanButton");
    runUntil([this] { return !traces().loading(); });
    settle();
    EXPECT_EQ(seenTexts(), (Strings{"Privacy", "browsing traces", "No traces",
                                    "No browser caches or histories to clear.", "Scan for traces"}));
    EXPECT_EQ(colorsOf("hand.raised").size(), 2U) << "of the header and of the empty state";
    EXPECT_EQ(find("reviewButton"), nullptr);
    machine.files.addFile(library + "Caches/Firefox/data", {}, 9'000'000);
    click("scanTracesAgain");
    runUntil([this] { return !traces().loading(); });
    settle();
    expectTexts({"Firefox — Caches", "9 MB selected"});
    EXPECT_TRUE(list().hasActiveFocus());
}

TEST_F(PrivacyWindowOfMac, rowsAreTickBoxes) {
    machine.workspace.running = {"Google Chrome"};
    openScanned();
    EXPECT_EQ(said(0).role(), QAccessible::CheckBox);
    EXPECT_TRUE(said(0).state().checkable);
    EXPECT_TRUE(said(0).state().checked);
    EXPECT_EQ(nameOf(&row(0)), "Safari — Caches, " + library + "Caches/com.apple.Safari, 6 MB");
    EXPECT_FALSE(said(1).state().checkable);
    EXPECT_TRUE(said(1).state().checked) << "it stays chosen";
    EXPECT_EQ(nameOf(&row(1)), "Chrome — Caches, quit Google Chrome to clear safely, 4 MB");
    EXPECT_FALSE(said(2).state().checked);
    EXPECT_TRUE(find("traceTick0")->isEnabled());
    EXPECT_FALSE(find("traceTick1")->isEnabled());
    EXPECT_THAT(namesInside(&row(1)), testing::IsEmpty()) << "the row itself has said it";
}

TEST_F(PrivacyWindowOfMac, rowsOfRunningBrowsersArePaleAndWarn) {
    machine.workspace.running = {"Google Chrome"};
    openScanned();
    EXPECT_DOUBLE_EQ(find("traceTick1")->parentItem()->opacity(), 0.6);
    EXPECT_DOUBLE_EQ(find("traceTick0")->parentItem()->opacity(), 1);
    const QQuickItem* warning = showing("quit Google Chrome to clear safely");
    ASSERT_NE(warning, nullptr);
    EXPECT_EQ(warning->property("color").value<QColor>(), singleton<Theme>("Theme").alertText());
    EXPECT_THAT(seenTexts(), Not(Contains(library + "Caches/Google/Chrome")));
    expectTexts({"10 MB selected"});
}

TEST_F(PrivacyWindowOfMac, clickTicksRowUnlessItsBrowserRuns) {
    machine.workspace.running = {"Google Chrome"};
    openScanned();
    click("traceTick0");
    expectTexts({"4 MB selected"});
    for (const char* text : {"Safari — History", "Chrome — Cookies"}) {
        tour::clickAt(window(), showing(text)->mapToScene({4, 4}));
        settle();
    }
    EXPECT_THAT(traces().selected(), ElementsAre("ChromeCaches", "SafariHistory"));
    EXPECT_EQ(current(), 3);
}

TEST_F(PrivacyWindowOfMac, keysTickRows) {
    openScanned();
    tabTo("traceList");
    press(Qt::Key_Home);
    for (const Qt::Key key :
         {Qt::Key_Space, Qt::Key_Down, Qt::Key_Return, Qt::Key_Down, Qt::Key_Enter, Qt::Key_Down, Qt::Key_Space})
        press(key);
    EXPECT_THAT(traces().selected(), ElementsAre("ChromeCookies", "SafariHistory"));
    press(Qt::Key_Space);
    EXPECT_THAT(traces().selected(), ElementsAre("SafariHistory"));
    EXPECT_TRUE(list().property("ringed").toBool());
}

TEST_F(PrivacyWindowOfMac, tabVisitsEverythingInOrder) {
    openScanned();
    tabTo("traceList");
    EXPECT_THAT(tabOrder(),
                ElementsAre("Safari — Caches, " + library + "Caches/com.apple.Safari, 6 MB", "Clear traces"));
    expectAllControlsNamed();
}

TEST_F(PrivacyWindowOfMac, buttonIsDisabledWithoutASelection) {
    openScanned();
    EXPECT_TRUE(find("reviewButton")->isEnabled());
    selectAll(false);
    EXPECT_FALSE(find("reviewButton")->isEnabled());
    expectTexts({"0 bytes selected"});
}

TEST_F(PrivacyWindowOfMac, clearingWithThePointerLeavesTheFocusInTheList) {
    openScanned();
    click("reviewButton");
    untilCleared();
    EXPECT_EQ(machine.trash.trashed().size(), 3U);
    expectTexts({"Safari — History", "0 bytes selected", "Moved to the Trash", "Undo"});
    EXPECT_THAT(seenTexts(), Not(Contains("Safari — Caches")));
    EXPECT_TRUE(list().hasActiveFocus());
    EXPECT_FALSE(list().property("ringed").toBool());
    const QQuickItem* undo = find("undoRemoval");
    EXPECT_LT(undo->mapToScene({}).y(), find("reviewButton")->mapToScene({}).y()) << "a second click never hits Undo";
    expectNoTextClipped();
}

TEST_F(PrivacyWindowOfMac, clearingWithTheKeyboardLeavesTheRingInTheList) {
    openScanned();
    tabTo("reviewButton");
    press(Qt::Key_Return);
    untilCleared();
    EXPECT_TRUE(list().hasActiveFocus());
    EXPECT_TRUE(list().property("ringed").toBool());
    tabTo("undoRemoval");
    press(Qt::Key_Return);
    runUntil([this] { return !model().removalUndo().underWay(); });
    settle();
    expectTexts({"Safari — Caches", "Chrome — Caches", "3 items were restored."});
    press(Qt::Key_Escape);
    EXPECT_TRUE(list().hasActiveFocus());
    EXPECT_TRUE(list().property("ringed").toBool());
}

TEST_F(PrivacyWindowOfMac, afterEverythingIsClearedTheFocusIsOnTheScan) {
    openScanned();
    selectAll(true);
    tabTo("reviewButton");
    press(Qt::Key_Space);
    untilCleared();
    expectTexts({"No traces", "No browser caches or histories to clear.", "Moved to the Trash"});
    EXPECT_EQ(window().activeFocusItem(), find("scanTracesAgain"));
    EXPECT_TRUE(focusIsRinged());
    tabTo("undoRemoval");
    press(Qt::Key_Return);
    runUntil([this] { return !model().removalUndo().underWay(); });
    settle();
    EXPECT_EQ(list().property("count").toInt(), 5);
}

TEST_F(PrivacyWindowOfMac, scanKeepsItsFocusOverTheScan) {
    openScanned();
    selectAll(true);
    click("reviewButton");
    untilCleared();
    tabTo("scanTracesAgain");
    press(Qt::Key_Return);
    runUntil([this] { return !traces().loading(); });
    settle();
    expectTexts({"No traces"});
    EXPECT_EQ(window().activeFocusItem(), find("scanTracesAgain"));
}

TEST_F(PrivacyWindowOfMac, noticesBrowsersWhenTheWindowWakes) {
    openScanned();
    machine.workspace.running = {"Safari"};
    QQuickWindow other;
    other.show();
    other.requestActivate();
    runUntil([&] { return other.isActive(); });
    settle();
    EXPECT_EQ(showing("quit Safari to clear safely"), nullptr);
    window().requestActivate();
    runUntil([&] { return window().isActive(); });
    settle();
    EXPECT_NE(showing("quit Safari to clear safely"), nullptr);
    EXPECT_FALSE(find("traceTick0")->isEnabled());
}

TEST_F(PrivacyWindowOfMac, noticesBrowsersWhenItAppears) {
    openScanned();
    view().setVisible(false);
    settle();
    machine.workspace.running = {"Safari"};
    view().setVisible(true);
    settle();
    EXPECT_NE(showing("quit Safari to clear safely"), nullptr);
    machine.workspace.running.clear();
    view().setVisible(false);
    view().setVisible(true);
    settle();
    EXPECT_EQ(showing("quit Safari to clear safely"), nullptr);
}

TEST_F(PrivacyWindow, saysOnLinuxWhyAHistoryIsMissing) {
    fillLinux();
    openScanned();
    QQuickItem* reason = showing(whyNot);
    ASSERT_NE(reason, nullptr);
    EXPECT_NE(symbol("info.circle"), nullptr);
    EXPECT_EQ(sizeOf(whyNot), 11);
    const double top = reason->mapToScene({}).y();
    EXPECT_GE(top, list().mapToScene(QPointF(0, list().height())).y()) << "below the list";
    EXPECT_LT(top, find("reviewButton")->mapToScene({}).y());
    expectNoTextClipped();
    // It is said where there is nothing to clear too.
    selectAll(true);
    click("reviewButton");
    untilCleared();
    expectTexts({"No traces", whyNot});
    expectNoTextClipped();
}

TEST_F(PrivacyWindowOfMac, saysNothingOfTheKindOnMacOS) {
    machine.files.addFile(library + "Application Support/Firefox/profiles.ini", "[Profile0]\nPath=own\n");
    machine.files.addFile(library + "Application Support/Firefox/own/places.sqlite");
    openScanned();
    EXPECT_EQ(showing(whyNot), nullptr);
    EXPECT_EQ(symbol("info.circle"), nullptr);
}

TEST_F(PrivacyWindow, largeTextHasRoomInASmallWindow) {
    fillLinux();
    machine.workspace.running = {"Chromium Web Browser"};
    singleton<TextScale>("TextScale").setFactor(1.5);
    openScanned({726, 700});
    expectNoTextClipped();
    singleton<TextScale>("TextScale").setFactor(1);
}

}  // namespace
}  // namespace zelk

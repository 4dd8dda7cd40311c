// SPDX-License-Identifier: MIT
#include "ui/screens/privacy/PrivacyScreenModel.h"

#include <gmock/gmock.h>

#include <QSignalSpy>

#include "fakes/PrivacyHome.h"
#include "state/AppModelFixture.h"

namespace zelk {
namespace {

using testing::ElementsAre;

using Strings = std::vector<std::string>;

class PrivacyScreen : public AppModelFixture {
protected:
    PrivacyScreenModel& screen() {
        if (!screen_) screen_ = std::make_unique<PrivacyScreenModel>(model());
        return *screen_;
    }
    PrivacyModel& traces() { return model().privacy(); }
    void scan() {
        screen().scan();
        runUntil([this] { return !traces().loading(); });
    }
    QVariant cell(int row, const char* role) {
        TraceRows& rows = *screen().rows();
        return rows.data(rows.index(row), rows.roleNames().key(role));
    }
    Strings column(const char* role) {
        Strings texts;
        for (int row = 0; row < screen().rows()->rowCount(); ++row)
            texts.push_back(cell(row, role).toString().toStdString());
        return texts;
    }
    const std::string library = home + "/Library/";

private:
    std::unique_ptr<PrivacyScreenModel> screen_;
};

class PrivacyScreenOfMac : public PrivacyScreen {
protected:
    PrivacyScreenOfMac() { fakes::fillWithTraces(machine); }
};

TEST_F(PrivacyScreen, exposesItsTexts) {
    EXPECT_EQ(screen().screen(), Screen::privacy);
    EXPECT_EQ(screen().title(), QStringLiteral("Privacy"));
    EXPECT_EQ(
        screen().subtitle().toStdString(),
        "Clear browsing traces across your browsers — caches, histories, cookies. No malware scanner (that needs a "
        "signature database).");
    EXPECT_EQ(screen().scanLabel(), QStringLiteral("Scan for traces"));
    EXPECT_EQ(screen().scanningLabel().toStdString(), "Scanning browser traces…");
}

TEST_F(PrivacyScreenOfMac, isIdleThenScanningThenShowsResults) {
    QList<ModulePhase> phases;
    QObject::connect(&screen(), &ModuleScreenModel::phaseChanged, &screen(), [&] { phases += screen().phase(); });
    EXPECT_TRUE(screen().idle());
    scan();
    EXPECT_EQ(phases, (QList{ModulePhase::scanning, ModulePhase::results}));
    EXPECT_TRUE(PrivacyScreenModel(model()).results()) << "the model of the application keeps them";
}

TEST_F(PrivacyScreenOfMac, describesRows) {
    scan();
    EXPECT_FALSE(screen().nothing());
    EXPECT_THAT(column("title"), ElementsAre("Safari — Caches", "Chrome — Caches", "Safari — History",
                                             "Chrome — Cookies", "System — Recent items"));
    EXPECT_THAT(column("place"), ElementsAre(library + "Caches/com.apple.Safari", library + "Caches/Google/Chrome",
                                             library + "Safari/History.db",
                                             library + "Application Support/Google/Chrome/Default/Cookies",
                                             library + "Application Support/com.apple.sharedfilelist"));
    EXPECT_THAT(column("ticked"), ElementsAre("true", "true", "false", "false", "false"));
    EXPECT_THAT(column("running"), ElementsAre("false", "false", "false", "false", "false"));
    EXPECT_THAT(column("warning"), ElementsAre("", "", "", "", ""));
    EXPECT_THAT(column("size"), ElementsAre("6 MB", "4 MB", "3 MB", "2 MB", "1 MB"));
    EXPECT_EQ(column("spoken")[2], "Safari — History, " + library + "Safari/History.db, 3 MB");
    EXPECT_FALSE(cell(0, "display").isValid());
}

TEST_F(PrivacyScreenOfMac, rowsOfRunningBrowsersSayWhatToQuit) {
    machine.workspace.running = {"Google Chrome", "System Settings"};
    scan();
    EXPECT_THAT(column("warning"),
                ElementsAre("", "quit Google Chrome to clear safely", "", "quit Google Chrome to clear safely",
                            "quit System Settings to clear safely"));
    EXPECT_THAT(column("running"), ElementsAre("false", "true", "false", "true", "true"));
    EXPECT_EQ(column("place")[1], "");
    EXPECT_EQ(column("spoken")[1], "Chrome — Caches, quit Google Chrome to clear safely, 4 MB");
}

TEST_F(PrivacyScreenOfMac, everyBrowserMayRunIfNobodySaysWhatDoes) {
    machine.workspace.runningKnown = false;
    scan();
    const std::string safari = "Safari may be running: quit it before clearing";
    const std::string chrome = "Chrome may be running: quit it before clearing";
    EXPECT_THAT(column("warning"), ElementsAre(safari, chrome, safari, chrome, ""));
    EXPECT_THAT(column("running"), ElementsAre("true", "true", "true", "true", "false")) << "the system is no browser";
    screen().toggle(0);
    EXPECT_THAT(traces().selected(), ElementsAre("ChromeCaches", "SafariCaches")) << "as it was seeded";
    machine.workspace.runningKnown = true;
    traces().refreshRunning();
    EXPECT_THAT(column("running"), ElementsAre("false", "false", "false", "false", "false"));
}

TEST_F(PrivacyScreenOfMac, namesThatAreNoTextAreShownAllTheSame) {
    machine.workspace.running = {"Safari\n\xff"};
    scan();
    EXPECT_EQ(column("warning")[0], "quit Safari␊\xEF\xBF\xBD to clear safely");
}

TEST_F(PrivacyScreenOfMac, togglesRowsThatAreFree) {
    machine.workspace.running = {"Google Chrome"};
    scan();
    screen().toggle(0);
    screen().toggle(2);
    screen().toggle(1);  // runs: stays as it was seeded
    screen().toggle(3);
    screen().toggle(-1);
    screen().toggle(5);
    EXPECT_THAT(traces().selected(), ElementsAre("ChromeCaches", "SafariHistory"));
    EXPECT_THAT(column("ticked"), ElementsAre("false", "true", "true", "false", "false"));
    screen().toggle(0);
    EXPECT_THAT(column("ticked"), ElementsAre("true", "true", "true", "false", "false"));
}

TEST_F(PrivacyScreenOfMac, footerTellsTheSelectionWithThatOfRunningBrowsers) {
    machine.workspace.running = {"Google Chrome"};
    scan();
    EXPECT_EQ(screen().selectedLine(), QStringLiteral("10 MB selected"));
    EXPECT_TRUE(screen().clearable());
    const QSignalSpy told(&screen(), &PrivacyScreenModel::selectionChanged);
    screen().toggle(0);
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(screen().selectedLine(), QStringLiteral("4 MB selected"));
    screen().clearChosen();
    EXPECT_EQ(screen().selectedLine(), QStringLiteral("0 bytes selected"));
    EXPECT_FALSE(screen().clearable());
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(library + "Caches/Google/Chrome"));
}

TEST_F(PrivacyScreen, withSafarisHistoryAloneHasNothingToClear) {
    machine.files.addFile(library + "Safari/History.db", {}, 2'000'000);
    scan();
    EXPECT_EQ(screen().selectedLine(), QStringLiteral("0 bytes selected"));
    EXPECT_FALSE(screen().clearable());
}

TEST_F(PrivacyScreenOfMac, clearingEditsSingleRows) {
    scan();
    const QSignalSpy removed(screen().rows(), &QAbstractItemModel::rowsRemoved);
    const QSignalSpy reset(screen().rows(), &QAbstractItemModel::modelReset);
    screen().clearChosen();
    EXPECT_THAT(column("title"), ElementsAre("Safari — History", "Chrome — Cookies", "System — Recent items"));
    EXPECT_EQ(removed.size(), 1);
    EXPECT_TRUE(reset.isEmpty());
}

TEST_F(PrivacyScreenOfMac, looksForBrowsersWhenItAppearsAndWhenItsWindowWakes) {
    scan();
    int& reads = machine.workspace.runningReads;
    const auto readsOf = [&](bool seen, bool active) {
        reads = 0;
        screen().watch(seen, active);
        return reads;
    };
    EXPECT_EQ(readsOf(false, false), 0);
    EXPECT_EQ(readsOf(false, true), 0) << "nobody sees it";
    EXPECT_EQ(readsOf(true, true), 1);
    EXPECT_EQ(readsOf(true, true), 0);
    EXPECT_EQ(readsOf(true, false), 0) << "somebody went to quit a browser";
    machine.workspace.running = {"Safari"};
    EXPECT_EQ(readsOf(true, true), 1);
    EXPECT_EQ(column("running")[0], "true");
    EXPECT_EQ(readsOf(false, true), 0);
    EXPECT_EQ(readsOf(true, true), 1);
    EXPECT_EQ(readsOf(false, false), 0);
    EXPECT_EQ(readsOf(true, false), 1);
}

TEST_F(PrivacyScreenOfMac, looksAgainAsLongAsItIsSeenThatABrowserRuns) {
    machine.workspace.running = {"Safari"};
    scan();
    screen().watch(false, false);
    int& reads = machine.workspace.runningReads;
    const auto isTimed = [&] { return screen().waitsForBrowsers(); };
    EXPECT_FALSE(isTimed()) << "nobody sees it";
    screen().watch(true, true);
    EXPECT_TRUE(isTimed());
    reads = 0;
    machine.workspace.running.clear();
    runUntil([&] { return reads > 0; });
    EXPECT_THAT(column("running"), ElementsAre("false", "false", "false", "false", "false"));
    EXPECT_EQ(column("place")[0], library + "Caches/com.apple.Safari");
    EXPECT_FALSE(isTimed()) << "nothing runs";
    machine.workspace.running = {"Safari"};
    screen().watch(true, false);
    screen().watch(true, true);
    EXPECT_TRUE(isTimed());
    screen().watch(false, true);
    EXPECT_FALSE(isTimed());
    screen().watch(true, true);
    EXPECT_TRUE(isTimed());
    traces().setSelected("SafariHistory", true);
    screen().clearChosen();
    EXPECT_FALSE(isTimed()) << "its rows are gone";
}

TEST_F(PrivacyScreen, saysOnLinuxThatAHistoryStays) {
    fakes::fillWithLinuxTraces(machine);
    EXPECT_FALSE(screen().historyStays());
    const QSignalSpy told(&screen(), &PrivacyScreenModel::tracesChanged);
    scan();
    EXPECT_TRUE(screen().historyStays());
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(column("title")[1], "Firefox — Cookies");
    EXPECT_EQ(column("title")[3], "GNOME Web — History");
}

}  // namespace
}  // namespace zelk

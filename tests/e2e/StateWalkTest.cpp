// SPDX-License-Identifier: MIT
// Checks for layout and accessibility faults in states that screens reach only through actions.
#include <gmock/gmock.h>

#include <set>

#include "ReclaimHands.h"
#include "ScreenFaults.h"
#include "ShellFixture.h"
#include "fakes/SnapshotTools.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"
#include "ui/theme/ScreenLook.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

constexpr std::int64_t huge = 1'000'000'000'000'000;

class StateWalk : public ShellFixture {
protected:
    /// A name of 200 characters with spaces to break at.
    static std::string longName() {
        std::string name;
        while (name.size() < 200) name += "long ";
        return name;
    }

    /// Checks the Overview from top to bottom.
    void scrollThrough(const std::string& state) {
        QQuickItem* scroll = find("surveyScroll");
        ASSERT_NE(scroll, nullptr) << state;
        window().grabWindow();
        const double end = scroll->property("contentHeight").toReal() - scroll->height();
        for (double y = 0;; y = std::min(end, y + 0.8 * scroll->height())) {
            scroll->setProperty("contentY", y);
            expectNoFaults(window(), state + " from " + std::to_string(std::lround(y)));
            if (y >= end) break;
        }
        scroll->setProperty("contentY", 0);
    }
    void scrollToAndClick(const char* name) {
        window().grabWindow();
        QQuickItem* scroll = find("surveyScroll");
        scroll->setProperty("contentY", scroll->property("contentHeight").toReal() - scroll->height());
        click(name);
        window().grabWindow();
    }
};

class ReclaimWalk : public StateWalk {
protected:
    ReclaimWalk() {
        for (const std::string& folder : {std::string("/a"), "/" + longName(), "/" + std::string(200, 'n')})
            junk(home + folder + "/node_modules/a.js", 20'000'000);
        junk(home + "/huge/node_modules/a.js", huge);
        junk(home + "/Library/Application Support/Cursor/Cache/data", 4'000'000);
        machine.workspace.running = {"Cursor"};
        machine.trash.put("old.zip", 7'000'000);
        model().setAudience(AppModel::Audience::developer);
        shell();
        survey();
        click("sidebarReclaim");
        // Expands every category.
        ItemList& items = *main().reclaim().items();
        for (int row = 0; row < items.rowCount(); ++row) items.setOpen(row, true);
    }

    void junk(const std::string& path, std::int64_t bytes) {
        machine.directories.file(path, static_cast<std::uint64_t>(bytes), 1'000);
        machine.files.addFile(path, {}, static_cast<std::uint64_t>(bytes));
    }
};

}  // namespace

TEST_F(StateWalk, hasNoFaultDuringSurvey) {
    machine.directories.directory(home + "/" + longName() + "/" + longName());
    machine.directories.file(home + "/wide/inner/huge", huge);
    shell();
    // Creates the screens first, so that none is checked half loaded.
    for (const Screen screen : {Screen::reclaim, Screen::lens, Screen::clutter, Screen::survey})
        model().setSelection(screen);
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    runUntil([&] { return model().itemsScanned() > 0; });
    inEverySize("surveying", [&](const std::string& where) {
        for (const Screen screen : {Screen::survey, Screen::reclaim, Screen::lens, Screen::clutter}) {
            model().setSelection(screen);
            runUntil([&] { return screen == Screen::survey || shows(QString::fromStdString(model().progressLine())); });
            expectNoFaults(window(), where + ", " + lookOf(screen).title.toStdString());
        }
    });
}

TEST_F(StateWalk, hasNoFaultAfterEmptySurvey) {
    machine.directories.directory("/nothing");
    model().setScanRoots({"/nothing"});
    shell();
    survey();
    ASSERT_EQ(model().bytesScanned(), 0);
    inEverySize("nothing found", [&](const std::string& where) {
        for (const Screen screen : {Screen::reclaim, Screen::lens, Screen::clutter}) {
            model().setSelection(screen);
            expectNoFaults(window(), where + ", " + lookOf(screen).title.toStdString());
        }
        model().setSelection(Screen::survey);
        scrollThrough(where);
    });
}

TEST_F(StateWalk, hasNoFaultInTrendsAndChanges) {
    model().setScanRoots({home, "/going"});
    machine.directories.file("/going/" + std::string(200, 'g') + "/old.mov", 4'000'000'000);
    shell();
    survey();
    model().setScanRoots({home});
    machine.directories.file(home + "/projects/grown.mov", static_cast<std::uint64_t>(huge));
    machine.directories.file(home + "/" + longName() + "/new.mov", 3'000'000'000);
    machine.directories.file(home + "/" + std::string(200, 'n') + "/new.mov", 3'000'000'000);
    survey();
    ASSERT_EQ(model().history().size(), 2U);
    inEverySize("with trends", [this](const std::string& where) { scrollThrough(where); });

    scrollToAndClick("changesButton");
    for (const char* text : {"What changed", "Grew (2)", "Appeared (2)", "Vanished (2)"})
        EXPECT_TRUE(shows(QString::fromUtf8(text))) << text;
    inEverySize("the changes");
}

TEST_F(StateWalk, hasNoFaultWithHugeTrash) {
    machine.files.addFile(home + "/.Trash/huge", {}, static_cast<std::uint64_t>(huge));
    machine.directories.file(home + "/.Trash/huge", static_cast<std::uint64_t>(huge));
    shell();
    survey();
    ASSERT_GE(model().trashBytes(), huge);
    inEverySize("a full Trash", [this](const std::string& where) { scrollThrough(where); });
}

TEST_F(StateWalk, hasNoFaultWithUnreadableTrash) {
    machine.trash.setAccessible(false);
    shell();
    survey();
    runUntil([&] { return !model().trashAccessible(); });
    ASSERT_TRUE(shows(SystemTexts::of(SystemTexts::TrashLocked)));
    inEverySize("the Trash without access", [this](const std::string& where) { scrollThrough(where); });
}

TEST_F(StateWalk, hasNoFaultOnFirstRun) {
    fakes::FakePreferences preferences;
    services.preferences = &preferences;
    services.workspace = &machine.workspace;
    services.accessGranted = [] { return false; };
    shell();
    for (const char* page : {"the first page", "the second page", "the third page", "the last page"}) {
        window().grabWindow();
        ASSERT_NE(find("primaryButton"), nullptr) << page;
        inEverySize(page);
        for (int control = 0; control < 3; ++control) {
            press(Qt::Key_Tab);
            window().grabWindow();
            EXPECT_THAT(ringFaults(window()), testing::IsEmpty()) << page << ", " << focusName().toStdString();
        }
        find("primaryButton")->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
        runWhatIsThere();
    }
    runUntil([&] { return find("continueButton") != nullptr; });
    inEverySize("the panel that asks for access");
}

TEST_F(StateWalk, hasNoFaultInHealth) {
    machine.vitals.powerInfo = PowerInfo{true, 100, true, true};
    machine.vitals.deviceInfo.chip =
        "Some Vendor(R) Processor(TM) with a long name and 128 cores @ 3.60GHz, revision 7";
    machine.vitals.memoryStats = MemoryStats{1'000'000'000'000'000, 999'990'000'000'000, 0, 0, 0};
    machine.vitals.setVolume(home, VolumeInfo{huge, huge / 100, 0});
    machine.processes.outcome = [](const auto&) {
        ChildOutcome outcome;
        outcome.output = std::string(200, 'n') + "\r" + longName() + "\n";
        return outcome;
    };
    shell();
    click("sidebarHealth");
    window().grabWindow();
    QQuickItem* scroll = find("healthScroll");
    ASSERT_NE(scroll, nullptr);
    ASSERT_TRUE(shows(QStringLiteral("Requires Attention")));
    const auto bothEnds = [&](const std::string& where) {
        for (const double end : {0.0, 1.0}) {
            window().grabWindow();
            scroll->setProperty("contentY", end * (scroll->property("contentHeight").toReal() - scroll->height()));
            expectNoFaults(window(), where + (end > 0 ? ", below" : ", above"));
        }
        scroll->setProperty("contentY", 0);
    };
    inEverySize("health", bothEnds);
    click("scoreInfo");
    ASSERT_TRUE(shows(QStringLiteral("Learn more")));
    inEverySize("the score explained");
    press(Qt::Key_Escape);
    find("improveMemory")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    runUntil([&] { return find("healthOutput") != nullptr; });
    inEverySize("health with a result", bothEnds);
}

TEST_F(StateWalk, hasNoFaultInSystem) {
    machine.system = SystemKind::desktopLinux;
    machine.vitals.setVolume(home, VolumeInfo{huge, huge / 100, huge / 50});
    machine.directories.directory(home + "/locked");
    machine.directories.unreadable(home + "/locked");
    for (const std::string& name : {longName(), std::string(200, 'n')}) {
        machine.directories.file(home + "/" + name + "/" + name + ".qcow2", static_cast<std::uint64_t>(huge), 0);
        machine.directories.file(home + "/" + name + ".sparseimage", 60'000'000, 0);
    }
    fakes::SnapshotTools tools(machine);
    tools.kept = {{longName(), true, 1, "pre"}, {std::string(200, 'n'), true, 2}, {"mine", false, 3, "single", ""}};
    for (int number = 4; number < 120; ++number) tools.kept.push_back({"timeline", true, number});
    tools.removal = {std::nullopt, 1, std::string(200, 'n') + "\r" + longName() + "\n" + std::string(300, '\n')};
    shell();
    survey();
    click("sidebarSystem");
    runUntil([&] { return find("thinSnapshots") != nullptr; });
    QQuickItem* scroll = find("systemScroll");
    ASSERT_NE(scroll, nullptr);
    const auto scrollTo = [&](double share) {
        window().grabWindow();
        scroll->setProperty("contentY", share * (scroll->property("contentHeight").toReal() - scroll->height()));
    };
    const auto inParts = [&](const std::string& where) {
        for (const double share : {0.0, 0.05, 0.1, 0.95, 1.0}) {
            scrollTo(share);
            expectNoFaults(window(), where + " at " + std::to_string(share));
        }
        scrollTo(0);
    };
    inEverySize("system", inParts);
    find("deleteSnapshot1")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    runUntil([&] { return find("removeSnapshots") != nullptr; });
    inEverySize("the question about a snapshot");
    machine.tasks.hold();
    click("removeSnapshots");
    runUntil([&] { return find("snapshotSpinner") != nullptr; });
    inEverySize("system, removing", inParts);
    machine.tasks.release();
    runUntil([&] { return find("snapshotOutput") != nullptr; });
    inEverySize("system with a result", inParts);
}

TEST_F(StateWalk, hasNoFaultWithCollapsedSidebar) {
    shell();
    click("collapseButton");
    ASSERT_TRUE(main().sidebar().collapsed());
    inEverySize("collapsed", [this](const std::string& where) {
        for (const Screen screen : allScreens) {
            model().setSelection(screen);
            expectNoFaults(window(), where + ", " + lookOf(screen).title.toStdString());
        }
    });
    std::size_t rows = 0;
    for (const std::string& name : focusableNames(window()))
        for (const Screen screen : allScreens) rows += lookOf(screen).title.toStdString() == name;
    EXPECT_GE(rows, allScreens.size()) << "a row that shows no title still has its name";
}

TEST_F(StateWalk, clipsNoFocusRing) {
    shell();
    survey();
    for (const QSize size : {QSize(960, 620), QSize(1600, 1000)}) {
        window().resize(size);
        runUntil([&] { return window().contentItem()->size() == QSizeF(size); });
        for (const Screen screen : allScreens) {
            model().setSelection(screen);
            window().grabWindow();
            std::set<const QQuickItem*> seen;
            for (;;) {
                press(Qt::Key_Tab);
                if (!seen.insert(window().activeFocusItem()).second) break;
                window().grabWindow();
                EXPECT_THAT(ringFaults(window()), testing::IsEmpty())
                    << lookOf(screen).title.toStdString() << ", " << size.width() << " wide";
            }
            EXPECT_GT(seen.size(), allScreens.size()) << "the sidebar alone has as many";
        }
    }
}

TEST_F(StateWalk, hasNoFaultInOtherWindows) {
    shell();
    for (const double factor : {1.0, 1.5}) {
        main().textScale().setFactor(factor);
        for (const WindowId id : {WindowId::about, WindowId::help, WindowId::settings}) {
            QQuickWindow& other = main().openWindow(id);
            runUntil([&] { return other.isExposed(); });
            runWhatIsThere();
            expectNoFaults(other, other.title().toStdString() + ", texts by " + std::to_string(factor));
        }
    }
}

TEST_F(ReclaimWalk, hasNoFaultInItems) {
    ASSERT_NE(find("itemList"), nullptr);
    inEverySize("the items");
}

TEST_F(ReclaimWalk, hasNoFaultInSafetyGuide) {
    click("safetyInfo");
    ASSERT_TRUE(shows(QStringLiteral("What's safe to remove?")));
    inEverySize("the safety guide");
}

TEST_F(ReclaimWalk, hasNoFaultInReviewAndResult) {
    click("reviewButton");
    runUntil([&] { return find("confirmCleanup") != nullptr && find("confirmCleanup")->isEnabled(); });
    inEverySize("the review");
    // Lets one item fail, so that the result mentions what was skipped.
    machine.files.failing = [this](const auto& call) { return call.path == home + "/a/node_modules"; };
    click("confirmCleanup");
    runUntil([&] { return find("cleanupResult") != nullptr; });
    inEverySize("the result");
}

TEST_F(ReclaimWalk, hasNoFaultWhileCleaningAndQuitting) {
    click("reviewButton");
    runUntil([&] { return find("confirmCleanup") != nullptr && find("confirmCleanup")->isEnabled(); });
    machine.tasks.hold();
    click("confirmCleanup");
    machine.tasks.runNext();
    machine.tasks.runNext();
    window().grabWindow();
    ASSERT_NE(find("cleaningBar"), nullptr);
    inEverySize("cleaning");
    press(Qt::Key_Q, Qt::ControlModifier);
    runUntil([&] { return find("finishFirst") != nullptr; });
    inEverySize("the question");
    click("stopNow");
    inEverySize("stopping");
    machine.tasks.release();
    runUntil([&] { return quits == 1; });
}

}  // namespace zelk

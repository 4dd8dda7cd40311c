// SPDX-License-Identifier: MIT
#include "ui/screens/overview/TrashBannerModel.h"

#include <gmock/gmock.h>

#include <QSignalSpy>

#include "TextsOf.h"
#include "state/AppModelFixture.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

class TrashBanner : public AppModelFixture {
protected:
    TrashBannerModel& banner() {
        if (!banner_) banner_ = std::make_unique<TrashBannerModel>(model(), machine.workspace, showWhenEmpty);
        return *banner_;
    }

    /// Comes on screen and waits for what was measured.
    void appearAndRead() {
        banner().appear();
        runWhatIsThere();
    }

    std::string subtitle() { return banner().subtitle().toStdString(); }
    /// The shown text; empty while hidden.
    std::string figure() { return banner().known() ? byteFigure(banner().bytes()).toStdString() : std::string(); }
    std::string action() { return banner().action().toStdString(); }

    const TextsOf texts{macOS};
    /// Set before the first call.
    bool showWhenEmpty = true;

private:
    std::unique_ptr<TrashBannerModel> banner_;
};

}  // namespace

TEST_F(TrashBanner, readsTheTrashWhenItComesOnScreen) {
    machine.trash.put("a", 7'000'000);
    appearAndRead();
    EXPECT_TRUE(banner().shown());
    EXPECT_EQ(subtitle(), "free it by emptying the Trash");
    EXPECT_FALSE(banner().busy());
    EXPECT_EQ(figure(), "7 MB");
    EXPECT_EQ(action(), "Empty");
    EXPECT_EQ(banner().actionName(), QStringLiteral("Empty Trash"));
}

TEST_F(TrashBanner, readingForTheFirstTimeShowsASpinnerAndNoButton) {
    machine.trash.put("a", 7'000'000);
    machine.tasks.hold();
    banner().appear();
    EXPECT_EQ(subtitle(), "reading…");
    EXPECT_TRUE(banner().busy());
    EXPECT_EQ(figure(), "");
    EXPECT_EQ(action(), "");
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(subtitle(), "free it by emptying the Trash");
}

TEST_F(TrashBanner, aSecondRefreshShowsTheOldSizeWithoutASpinner) {
    machine.trash.put("a", 7'000'000);
    appearAndRead();
    machine.trash.put("b", 2'000'000);
    machine.tasks.hold();
    banner().appear();
    EXPECT_EQ(subtitle(), "free it by emptying the Trash");
    EXPECT_FALSE(banner().busy());
    EXPECT_EQ(figure(), "7 MB");
    EXPECT_EQ(action(), "Empty");
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(figure(), "9 MB");
}

TEST_F(TrashBanner, anEmptyTrashSaysSoAndHasNoButton) {
    appearAndRead();
    EXPECT_TRUE(banner().shown());
    EXPECT_EQ(subtitle(), "empty");
    EXPECT_FALSE(banner().busy());
    EXPECT_EQ(figure(), byteFigure(0).toStdString());
    EXPECT_EQ(action(), "");
    banner().act();
    EXPECT_FALSE(model().emptyingTrash());
    EXPECT_TRUE(machine.workspace.opened.empty());
}

TEST_F(TrashBanner, anEmptyTrashIsNotShownWhereNobodyAskedForIt) {
    showWhenEmpty = false;
    appearAndRead();
    EXPECT_FALSE(banner().shown());
    machine.trash.put("a", 1);
    appearAndRead();
    EXPECT_TRUE(banner().shown());
}

TEST_F(TrashBanner, oneByteIsNotEmpty) {
    machine.trash.put("a", 1);
    appearAndRead();
    EXPECT_EQ(subtitle(), "free it by emptying the Trash");
    EXPECT_EQ(action(), "Empty");
}

TEST_F(TrashBanner, withoutAccessAtTheFirstRefreshItAsksForItWhateverIsToBeShown) {
    for (const bool whenEmpty : {true, false}) {
        machine.trash.setAccessible(false);
        TrashBannerModel one(model(), machine.workspace, whenEmpty);
        one.appear();
        runWhatIsThere();
        EXPECT_EQ(model().trashBytes(), 0);
        EXPECT_TRUE(one.shown());
        EXPECT_EQ(one.subtitle(), QStringLiteral("Full Disk Access needed to read the Trash"));
        EXPECT_FALSE(one.busy());
        EXPECT_FALSE(one.known()) << "a Trash that cannot be read is not one of zero bytes";
        EXPECT_EQ(one.action(), QStringLiteral("Grant Access"));
    }
}

TEST_F(TrashBanner, onLinuxItSaysWhoseTheTrashMayBeAndOffersToShowIt) {
    const TextsOf here(desktopLinux);
    machine.trash.setAccessible(false);
    appearAndRead();
    EXPECT_EQ(subtitle(), "not yours to read: see who owns its folder");
    EXPECT_EQ(action(), "Show Folder");
}

TEST_F(TrashBanner, withoutAccessAKnownSizeIsNotShown) {
    machine.trash.put("a", 7'000'000);
    appearAndRead();
    machine.trash.setAccessible(false);
    appearAndRead();
    EXPECT_EQ(model().trashBytes(), 7'000'000);
    EXPECT_EQ(subtitle(), "Full Disk Access needed to read the Trash");
    EXPECT_EQ(figure(), "");
    EXPECT_EQ(action(), "Grant Access");
}

TEST_F(TrashBanner, grantAccessOpensThePrivacySettings) {
    machine.trash.setAccessible(false);
    appearAndRead();
    banner().act();
    EXPECT_EQ(machine.workspace.opened,
              std::vector<std::string>{"x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles"});
    EXPECT_FALSE(model().emptyingTrash());
}

TEST_F(TrashBanner, accessThatIsGrantedIsNoticedByTheNextRefreshOnly) {
    machine.trash.setAccessible(false);
    machine.trash.put("a", 7'000'000);
    appearAndRead();
    machine.trash.setAccessible(true);
    banner().act();
    runWhatIsThere();
    EXPECT_EQ(action(), "Grant Access");
    appearAndRead();
    EXPECT_EQ(figure(), "7 MB");
    EXPECT_EQ(action(), "Empty");
}

TEST_F(TrashBanner, accessThatIsGrantedIsNoticedByAFinishedSurvey) {
    machine.trash.setAccessible(false);
    appearAndRead();
    machine.trash.setAccessible(true);
    fillHome();
    survey();
    EXPECT_EQ(subtitle(), "free it by emptying the Trash");
    EXPECT_EQ(figure(), "7 MB");
}

TEST_F(TrashBanner, emptyingShowsASpinnerAndNoButton) {
    machine.trash.put("a", 7'000'000);
    appearAndRead();
    machine.tasks.hold();
    banner().act();
    EXPECT_TRUE(model().emptyingTrash());
    EXPECT_EQ(subtitle(), "emptying the Trash…");
    EXPECT_TRUE(banner().busy());
    EXPECT_EQ(figure(), "");
    EXPECT_EQ(action(), "");
    machine.tasks.release();
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_EQ(subtitle(), "empty");
    EXPECT_EQ(action(), "");
}

TEST_F(TrashBanner, emptyingIsToldBeforeTheMissingAccess) {
    machine.trash.put("a", 7'000'000);
    appearAndRead();
    machine.tasks.hold();
    banner().act();
    machine.trash.setAccessible(false);
    banner().appear();
    machine.tasks.runAt(1);
    runUntil([&] { return !model().trashAccessible(); });
    EXPECT_TRUE(model().emptyingTrash());
    EXPECT_EQ(subtitle(), "emptying the Trash…");
    EXPECT_TRUE(banner().busy());
    EXPECT_EQ(action(), "");
    banner().act();
    EXPECT_TRUE(machine.workspace.opened.empty());
    machine.tasks.release();
    runUntil([&] { return !model().emptyingTrash(); });
}

TEST_F(TrashBanner, whatCannotBeRemovedStaysAndIsShown) {
    machine.trash.put("stays", 3'000'000);
    machine.trash.put("goes", 4'000'000);
    appearAndRead();
    machine.files.failing = [](const auto& call) {
        return call.operation == "remove" && call.path == "/home/me/.Trash/stays";
    };
    banner().act();
    runUntil([&] { return !model().emptyingTrash(); });
    EXPECT_EQ(model().trashBytes(), 3'000'000);
    EXPECT_EQ(subtitle(), "free it by emptying the Trash");
    EXPECT_EQ(figure(), "3 MB");
    EXPECT_EQ(action(), "Empty");
}

TEST_F(TrashBanner, saysThatItChanged) {
    QSignalSpy changes(&banner(), &TrashBannerModel::changed);
    machine.trash.put("a", 1);
    appearAndRead();
    EXPECT_FALSE(changes.isEmpty());
    changes.clear();
    machine.trash.setAccessible(false);
    appearAndRead();
    EXPECT_FALSE(changes.isEmpty());
}

}  // namespace zelk

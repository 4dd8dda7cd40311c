// SPDX-License-Identifier: MIT
#include "ui/screens/welcome/FirstRunModel.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "fakes/FakePlatform.h"
#include "state/AppModelFixture.h"

namespace zelk {

namespace {

using std::chrono::milliseconds;

/// Preferences that remember what was written into them, in order.
class NotedPreferences : public fakes::FakePreferences {
public:
    std::vector<std::pair<std::string, bool>> writes;

    void setFlag(const std::string& key, bool value) override {
        writes.emplace_back(key, value);
        FakePreferences::setFlag(key, value);
    }
};

class FirstRun : public testing::Test {
protected:
    /// Looks as often as the event loop turns, so that no test waits.
    FirstRunModel& model() {
        if (!model_) model_ = std::make_unique<FirstRunModel>(preferences, probe(), workspace, milliseconds(0));
        return *model_;
    }
    std::function<bool()> probe() {
        return [this] {
            ++looks;
            return granted;
        };
    }
    void startAgain() {
        model_.reset();
        model().start();
    }

    NotedPreferences preferences;
    fakes::FakeWorkspace workspace;
    bool granted = true;
    int looks = 0;

private:
    std::unique_ptr<FirstRunModel> model_;
};

}  // namespace

TEST_F(FirstRun, showsNothingAndLooksAtNothingBeforeTheStart) {
    granted = false;
    EXPECT_FALSE(model().showWelcome());
    EXPECT_FALSE(model().showOnboarding());
    EXPECT_FALSE(model().access()->polling());
    EXPECT_EQ(looks, 0);
}

TEST_F(FirstRun, theFirstStartWelcomesAndDoesNotLookYet) {
    granted = false;
    model().start();
    EXPECT_TRUE(model().showWelcome());
    EXPECT_FALSE(model().showOnboarding());
    EXPECT_EQ(looks, 0);
    EXPECT_TRUE(preferences.writes.empty());
}

TEST_F(FirstRun, theEndOfTheWelcomeIsRememberedAndThenItAsksForAccess) {
    granted = false;
    model().start();
    QSignalSpy changed(&model(), &FirstRunModel::changed);
    model().welcome()->skip();
    EXPECT_FALSE(model().showWelcome());
    EXPECT_TRUE(model().showOnboarding());
    EXPECT_EQ(looks, 1);
    EXPECT_EQ(changed.count(), 1) << "no moment in between with both or with none";
    EXPECT_EQ(preferences.writes, (std::vector<std::pair<std::string, bool>>{{"zelk/didOnboard", true}}));
}

TEST_F(FirstRun, theEndOfTheWelcomeShowsNoPanelWhereAccessIsThere) {
    model().start();
    for (int press = 0; press < 4; ++press) model().welcome()->pressPrimary();
    EXPECT_FALSE(model().showWelcome());
    EXPECT_FALSE(model().showOnboarding());
    EXPECT_EQ(looks, 1);
}

TEST_F(FirstRun, theWelcomeEndsOnce) {
    model().start();
    model().welcome()->skip();
    model().welcome()->skip();
    EXPECT_EQ(preferences.writes.size(), 1U);
    EXPECT_EQ(looks, 1);
}

TEST_F(FirstRun, welcomesOnlyOnce) {
    model().start();
    model().welcome()->skip();
    for (int start = 0; start < 3; ++start) {
        startAgain();
        EXPECT_FALSE(model().showWelcome());
    }
    EXPECT_EQ(preferences.writes.size(), 1U) << "set once, and never cleared";
    EXPECT_TRUE(preferences.flags["zelk/didOnboard"]);
}

TEST_F(FirstRun, welcomesAgainWhereItWasNeverFinished) {
    model().start();
    model().welcome()->next();
    startAgain();
    EXPECT_TRUE(model().showWelcome());
    EXPECT_EQ(model().welcome()->page(), 0);
}

TEST_F(FirstRun, aWindowThatAppearsAgainDuringTheWelcomeKeepsItsPage) {
    model().start();
    model().welcome()->next();
    model().start();
    EXPECT_TRUE(model().showWelcome());
    EXPECT_EQ(model().welcome()->page(), 1);
}

TEST_F(FirstRun, aLaterStartAsksForAccessWhereThereIsNone) {
    preferences.flags["zelk/didOnboard"] = true;
    granted = false;
    model().start();
    EXPECT_FALSE(model().showWelcome());
    EXPECT_TRUE(model().showOnboarding());
    EXPECT_EQ(looks, 1);
}

TEST_F(FirstRun, aLaterStartWithAccessShowsNothing) {
    preferences.flags["zelk/didOnboard"] = true;
    model().start();
    EXPECT_FALSE(model().showWelcome());
    EXPECT_FALSE(model().showOnboarding());
    EXPECT_TRUE(preferences.writes.empty());
}

TEST_F(FirstRun, theAccessThatComesClosesThePanelByItself) {
    preferences.flags["zelk/didOnboard"] = true;
    granted = false;
    model().start();
    model().access()->setShown(true);
    EXPECT_TRUE(model().access()->polling());
    runUntil([&] { return looks >= 4; });
    EXPECT_TRUE(model().showOnboarding()) << "an answer of no changes nothing";
    granted = true;
    runUntil([&] { return !model().showOnboarding(); });
    EXPECT_FALSE(model().access()->polling());
}

TEST_F(FirstRun, afterContinueWithoutItTheNextStartAsksAgain) {
    preferences.flags["zelk/didOnboard"] = true;
    granted = false;
    model().start();
    model().access()->setShown(true);
    model().access()->continueWithoutIt();
    EXPECT_FALSE(model().showOnboarding());
    EXPECT_FALSE(model().access()->polling());
    EXPECT_TRUE(preferences.writes.empty()) << "nothing records that it was declined";
    startAgain();
    EXPECT_TRUE(model().showOnboarding());
}

TEST_F(FirstRun, looksNoMoreWhenThePanelIsGone) {
    preferences.flags["zelk/didOnboard"] = true;
    granted = false;
    model().start();
    model().access()->setShown(true);
    model().access()->setShown(false);
    EXPECT_FALSE(model().access()->polling());
    const int before = looks;
    runWhatIsThere();
    EXPECT_EQ(looks, before);
    EXPECT_TRUE(model().showOnboarding()) << "it comes back with its window";
    model().access()->setShown(true);
    EXPECT_TRUE(model().access()->polling());
}

TEST_F(FirstRun, looksEverySecondAndAHalf) {
    FirstRunModel asShipped(preferences, probe(), workspace);
    EXPECT_EQ(asShipped.access()->interval(), milliseconds(1'500));
}

TEST_F(FirstRun, opensTheSettingsWhereAccessIsGranted) {
    model().access()->openSettings();
    EXPECT_EQ(workspace.opened,
              std::vector<std::string>{"x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles"});
    EXPECT_EQ(looks, 0);
}

TEST_F(FirstRun, theDoneSignalComesOncePerEnd) {
    model().access()->setShown(true);
    QSignalSpy done(model().access(), &AccessPanelModel::granted);
    runUntil([&] { return done.count() > 0; });
    runWhatIsThere();
    EXPECT_EQ(done.count(), 1);
    EXPECT_EQ(looks, 1);
}

}  // namespace zelk

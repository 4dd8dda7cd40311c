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

/// Records every write, in order.
class RecordingPreferences : public fakes::FakePreferences {
public:
    std::vector<std::pair<std::string, bool>> writes;

    void setFlag(const std::string& key, bool value) override {
        writes.emplace_back(key, value);
        FakePreferences::setFlag(key, value);
    }
};

class FirstRunModelTest : public testing::Test {
protected:
    /// Probes on every turn of the event loop, so that no test has to wait.
    FirstRunModel& model() {
        if (!model_) model_ = std::make_unique<FirstRunModel>(preferences, probe(), workspace, milliseconds(0));
        return *model_;
    }
    std::function<bool()> probe() {
        return [this] {
            ++probes;
            return granted;
        };
    }
    void restart() {
        model_.reset();
        model().start();
    }

    RecordingPreferences preferences;
    fakes::FakeWorkspace workspace;
    bool granted = true;
    int probes = 0;

private:
    std::unique_ptr<FirstRunModel> model_;
};

}  // namespace

TEST_F(FirstRunModelTest, isIdleBeforeStart) {
    granted = false;
    EXPECT_FALSE(model().showWelcome());
    EXPECT_FALSE(model().showOnboarding());
    EXPECT_FALSE(model().polling());
    EXPECT_EQ(probes, 0);
}

TEST_F(FirstRunModelTest, firstStartShowsWelcomeWithoutProbing) {
    granted = false;
    model().start();
    EXPECT_TRUE(model().showWelcome());
    EXPECT_FALSE(model().showOnboarding());
    EXPECT_EQ(probes, 0);
    EXPECT_TRUE(preferences.writes.empty());
}

TEST_F(FirstRunModelTest, endOfWelcomeIsStoredAndAsksForAccess) {
    granted = false;
    model().start();
    QSignalSpy changed(&model(), &FirstRunModel::changed);
    model().welcome()->skip();
    EXPECT_FALSE(model().showWelcome());
    EXPECT_TRUE(model().showOnboarding());
    EXPECT_EQ(probes, 1);
    EXPECT_EQ(changed.count(), 1) << "both flags change at once";
    EXPECT_EQ(preferences.writes, (std::vector<std::pair<std::string, bool>>{{"zelk/didOnboard", true}}));
}

TEST_F(FirstRunModelTest, endOfWelcomeSkipsPanelIfAccessIsGranted) {
    model().start();
    for (int press = 0; press < 4; ++press) model().welcome()->pressPrimary();
    EXPECT_FALSE(model().showWelcome());
    EXPECT_FALSE(model().showOnboarding());
    EXPECT_EQ(probes, 1);
}

TEST_F(FirstRunModelTest, welcomeEndsOnce) {
    model().start();
    model().welcome()->skip();
    model().welcome()->skip();
    EXPECT_EQ(preferences.writes.size(), 1U);
    EXPECT_EQ(probes, 1);
}

TEST_F(FirstRunModelTest, welcomesOnlyOnce) {
    model().start();
    model().welcome()->skip();
    for (int start = 0; start < 3; ++start) {
        restart();
        EXPECT_FALSE(model().showWelcome());
    }
    EXPECT_EQ(preferences.writes.size(), 1U) << "set once and never cleared";
    EXPECT_TRUE(preferences.flags["zelk/didOnboard"]);
}

TEST_F(FirstRunModelTest, unfinishedWelcomeIsShownAgain) {
    model().start();
    model().welcome()->next();
    restart();
    EXPECT_TRUE(model().showWelcome());
    EXPECT_EQ(model().welcome()->page(), 0);
}

TEST_F(FirstRunModelTest, restartDuringWelcomeKeepsPage) {
    model().start();
    model().welcome()->next();
    model().start();
    EXPECT_TRUE(model().showWelcome());
    EXPECT_EQ(model().welcome()->page(), 1);
}

TEST_F(FirstRunModelTest, laterStartAsksForMissingAccess) {
    preferences.flags["zelk/didOnboard"] = true;
    granted = false;
    model().start();
    EXPECT_FALSE(model().showWelcome());
    EXPECT_TRUE(model().showOnboarding());
    EXPECT_EQ(probes, 1);
}

TEST_F(FirstRunModelTest, laterStartWithAccessShowsNothing) {
    preferences.flags["zelk/didOnboard"] = true;
    model().start();
    EXPECT_FALSE(model().showWelcome());
    EXPECT_FALSE(model().showOnboarding());
    EXPECT_TRUE(preferences.writes.empty());
}

TEST_F(FirstRunModelTest, grantedAccessClosesPanel) {
    preferences.flags["zelk/didOnboard"] = true;
    granted = false;
    model().start();
    model().setPolling(true);
    EXPECT_TRUE(model().polling());
    runUntil([&] { return probes >= 4; });
    EXPECT_TRUE(model().showOnboarding()) << "a denied probe changes nothing";
    granted = true;
    runUntil([&] { return !model().showOnboarding(); });
    EXPECT_FALSE(model().polling());
}

TEST_F(FirstRunModelTest, nextStartAsksAgainAfterContinuingWithoutAccess) {
    preferences.flags["zelk/didOnboard"] = true;
    granted = false;
    model().start();
    model().setPolling(true);
    model().continueWithoutAccess();
    EXPECT_FALSE(model().showOnboarding());
    EXPECT_FALSE(model().polling());
    EXPECT_TRUE(preferences.writes.empty()) << "the refusal is not stored";
    restart();
    EXPECT_TRUE(model().showOnboarding());
}

TEST_F(FirstRunModelTest, hiddenPanelStopsPolling) {
    preferences.flags["zelk/didOnboard"] = true;
    granted = false;
    model().start();
    model().setPolling(true);
    model().setPolling(false);
    EXPECT_FALSE(model().polling());
    const int before = probes;
    runWhatIsThere();
    EXPECT_EQ(probes, before);
    EXPECT_TRUE(model().showOnboarding()) << "it reappears with its window";
    model().setPolling(true);
    EXPECT_TRUE(model().polling());
}

TEST_F(FirstRunModelTest, pollsEvery1500Milliseconds) {
    FirstRunModel asShipped(preferences, probe(), workspace);
    EXPECT_EQ(asShipped.interval(), milliseconds(1'500));
}

TEST_F(FirstRunModelTest, opensAccessSettings) {
    model().openAccessSettings();
    EXPECT_EQ(workspace.opened,
              std::vector<std::string>{"x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles"});
    EXPECT_EQ(probes, 0);
}

TEST_F(FirstRunModelTest, signalsGrantedAccessOnce) {
    preferences.flags["zelk/didOnboard"] = true;
    granted = false;
    model().start();
    granted = true;
    QSignalSpy changed(&model(), &FirstRunModel::changed);
    model().setPolling(true);
    runUntil([&] { return changed.count() > 0; });
    runWhatIsThere();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(probes, 2) << "at the start, and the one that found it";
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
#include "ui/screens/overview/SurveyScreenModel.h"

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <array>

#include "TextsOf.h"
#include "state/AppModelFixture.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

class SurveyScreen : public AppModelFixture {
protected:
    ~SurveyScreen() override {
        machine.directories.release();
        screen_.reset();
    }

    SurveyScreenModel& screen() {
        if (!screen_) screen_ = std::make_unique<SurveyScreenModel>(model(), [this] { return time; });
        return *screen_;
    }

    /// Starts a survey that stops after its first progress report.
    void beginAndHold() {
        addWideFolder(home + "/wide");
        machine.directories.hold(home + "/wide/inner");
        screen().pressScan();
        runUntil([&] { return model().itemsScanned() > 0; });
    }

    void finishSurvey() {
        screen().pressScan();
        runUntil([&] { return model().scanPhase() == Phase::finished; });
    }

    /// Waits for the next change of the figures.
    void awaitChange() {
        bool changed = false;
        const auto connection =
            QObject::connect(&screen(), &SurveyScreenModel::figuresChanged, &screen(), [&] { changed = true; });
        runUntil([&] { return changed; });
        QObject::disconnect(connection);
    }

    /// The clock of the spoken progress, which only the tests advance.
    double time = 100;

private:
    std::unique_ptr<SurveyScreenModel> screen_;
};

}  // namespace

TEST_F(SurveyScreen, invitesToScanWhenIdle) {
    EXPECT_TRUE(screen().idle());
    EXPECT_FALSE(screen().scanning());
    EXPECT_FALSE(screen().finished());
    const TextsOf mac(macOS);
    EXPECT_EQ(screen().buttonName(), QStringLiteral("Scan your whole Mac"));
    const TextsOf here(desktopLinux);
    EXPECT_EQ(screen().buttonName(), QStringLiteral("Scan your whole computer"));
}

TEST_F(SurveyScreen, featureSelectsItsScreen) {
    const std::array expected{Screen::reclaim, Screen::duplicates, Screen::clutter, Screen::lens};
    ASSERT_EQ(screen().features().size(), 4);
    for (int row = 0; row < 4; ++row) {
        screen().pressFeature(row);
        EXPECT_EQ(model().selection(), expected[static_cast<std::size_t>(row)]);
    }
    screen().pressFeature(4);
    screen().pressFeature(-1);
    EXPECT_EQ(model().selection(), Screen::lens) << "there is no fifth feature";
}

TEST_F(SurveyScreen, showsItemsBytesAndPathWhileScanning) {
    beginAndHold();
    runUntil([&] { return screen().items() != 0; });
    EXPECT_TRUE(screen().scanning());
    EXPECT_EQ(screen().items(), model().itemsScanned());
    EXPECT_GE(screen().items(), 20'000);
    EXPECT_EQ(screen().scanned(), model().bytesScanned());
    EXPECT_EQ(screen().pathLine(), QStringLiteral("/home/me/wide"));
    EXPECT_EQ(screen().buttonName(), QStringLiteral("scanning…"));
}

TEST_F(SurveyScreen, speaksProgressEveryThreeSecondsWhileShown) {
    EXPECT_EQ(screen().spokenProgress(), QString());
    beginAndHold();
    EXPECT_EQ(screen().spokenProgress(), QStringLiteral("0 bytes, 0 items"));
    const QString now =
        QStringLiteral("%1, %2 items").arg(byteFigure(model().bytesScanned()), groupedFigure(model().itemsScanned()));
    time += 2.9;
    emit model().progressChanged();
    awaitChange();
    EXPECT_EQ(screen().spokenProgress(), QStringLiteral("0 bytes, 0 items"));
    time += 0.1;
    model().setSelection(Screen::tools);
    emit model().progressChanged();
    awaitChange();
    EXPECT_EQ(screen().spokenProgress(), QStringLiteral("0 bytes, 0 items"));
    model().setSelection(Screen::survey);
    emit model().progressChanged();
    awaitChange();
    EXPECT_EQ(screen().spokenProgress(), now);
    screen().cancel();
    EXPECT_EQ(screen().spokenProgress(), QString());
}

TEST_F(SurveyScreen, startsWithRootPathAndNoItems) {
    machine.directories.hold(home);
    screen().pressScan();
    EXPECT_TRUE(screen().scanning());
    EXPECT_EQ(screen().items(), 0);
    EXPECT_EQ(screen().scanned(), 0);
    EXPECT_EQ(screen().pathLine(), QString());
    awaitChange();
    EXPECT_EQ(screen().items(), 0);
    EXPECT_EQ(screen().pathLine(), QStringLiteral("/home/me"));
}

TEST_F(SurveyScreen, nextSurveyStartsAtZero) {
    fillHome();
    model().setScanRoots({home + "/projects"});
    finishSurvey();
    model().setScanRoots({home});
    machine.directories.hold(home);
    int changes = 0;
    QObject::connect(&screen(), &SurveyScreenModel::figuresChanged, &screen(), [&] {
        ++changes;
        EXPECT_EQ(screen().items(), 0);
        EXPECT_EQ(screen().scanned(), 0);
        EXPECT_THAT(screen().pathLine(), testing::AnyOf(QString(), QStringLiteral("/home/me")));
    });
    screen().pressScan();
    EXPECT_GT(changes, 0);
    awaitChange();
    EXPECT_EQ(screen().pathLine(), QStringLiteral("/home/me"));
}

TEST_F(SurveyScreen, updatesAllFiguresOfAReportTogether) {
    int reports = 0;
    QObject::connect(&screen(), &SurveyScreenModel::figuresChanged, &screen(), [&] {
        if (screen().items() == 0) return;
        ++reports;
        EXPECT_EQ(screen().scanned(), model().bytesScanned());
        EXPECT_EQ(screen().pathLine(), QStringLiteral("/home/me/wide"));
    });
    beginAndHold();
    runUntil([&] { return reports > 0; });
}

TEST_F(SurveyScreen, keepsRecoverableFigureWhenNextSurveyStarts) {
    fillHome();
    finishSurvey();
    machine.directories.hold(home);
    screen().pressScan();
    EXPECT_EQ(screen().recoverable(), 60'000'000);
    awaitChange();
    EXPECT_EQ(screen().recoverable(), 60'000'000);
}

TEST_F(SurveyScreen, keepsScannedFigureWhenCancelled) {
    beginAndHold();
    runUntil([&] { return screen().items() != 0; });
    const qint64 scanned = screen().scanned();
    EXPECT_NE(scanned, 0);
    screen().cancel();
    EXPECT_EQ(screen().scanned(), scanned);
}

TEST_F(SurveyScreen, shortensLongPathWithInvalidUtf8) {
    const std::string folder = home + "/\xFF-" + std::string(70, 'x');
    addWideFolder(folder);
    machine.directories.hold(folder + "/inner");
    screen().pressScan();
    runUntil([&] { return model().itemsScanned() > 0; });
    runUntil([&] { return screen().pathLine().startsWith(u'…'); });
    EXPECT_EQ(screen().pathLine(), QStringLiteral("…") + QString(55, u'x'));
}

TEST_F(SurveyScreen, showsRecoverableBytesWhenFinished) {
    fillHome();
    finishSurvey();
    EXPECT_TRUE(screen().finished());
    EXPECT_EQ(screen().recoverable(), 60'000'000);
    EXPECT_EQ(screen().buttonName(), QStringLiteral("60 MB recoverable, re-run"));
}

TEST_F(SurveyScreen, showsZeroBytesIfNothingIsRecoverable) {
    finishSurvey();
    EXPECT_EQ(screen().recoverable(), 0);
}

TEST_F(SurveyScreen, recoverableStartsAtZeroWhenPhaseBecomesFinished) {
    fillHome();
    finishSurvey();
    QObject::connect(&screen(), &SurveyScreenModel::phaseChanged, &screen(), [&] {
        if (!screen().finished()) return;
        EXPECT_EQ(screen().recoverable(), 0);
        EXPECT_EQ(screen().buttonName(), QStringLiteral("60 MB recoverable, re-run"));
    });
    finishSurvey();
    EXPECT_EQ(screen().recoverable(), 60'000'000);
}

TEST_F(SurveyScreen, followsChangesOfTheResults) {
    fillHome();
    finishSurvey();
    const NodeRef modules = folderAt(model().root(), home + "/projects/app/node_modules");
    ASSERT_TRUE(modules);
    model().removeFromTree(*modules);
    runUntil([&] { return screen().recoverable() == 50'000'000; });
}

TEST_F(SurveyScreen, limitsRateOfFigureChanges) {
    for (int folder = 0; folder < 40; ++folder) addWideFolder(home + "/" + std::to_string(folder));
    int changes = 0;
    QObject::connect(&screen(), &SurveyScreenModel::figuresChanged, &screen(), [&] { ++changes; });
    QElapsedTimer clock;
    clock.start();
    finishSurvey();
    // Two per phase change, one for the first report after a pause, and then one per tick.
    const auto allowed = 6 + clock.elapsed() / 80;
    EXPECT_LE(changes, allowed);
}

TEST_F(SurveyScreen, ignoresScanDuringSurvey) {
    beginAndHold();
    const std::int64_t items = model().itemsScanned();
    screen().pressScan();
    EXPECT_TRUE(screen().scanning());
    EXPECT_EQ(model().itemsScanned(), items);
}

TEST_F(SurveyScreen, cancelReturnsToIdle) {
    beginAndHold();
    screen().cancel();
    EXPECT_TRUE(screen().idle());
    EXPECT_TRUE(screen().buttonName().startsWith(QStringLiteral("Scan your whole")));
}

TEST_F(SurveyScreen, showsFiguresWhenCreatedDuringSurvey) {
    beginAndHold();
    SurveyScreenModel late(model());
    EXPECT_TRUE(late.scanning());
    EXPECT_EQ(late.items(), 0);
    runUntil([&] { return late.items() == model().itemsScanned(); });
    EXPECT_EQ(late.pathLine(), QStringLiteral("/home/me/wide"));
}

}  // namespace zelk

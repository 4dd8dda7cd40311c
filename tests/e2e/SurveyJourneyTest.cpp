// SPDX-License-Identifier: MIT
// A person at the window: the mouse and the keyboard go in, the window and the model come out.
#include <QTemporaryDir>
#include <filesystem>

#include "Camera.h"
#include "fakes/TestFiles.h"
#include "platform/NativePlatform.h"
#include "state/AppModelFixture.h"
#include "ui/screens/overview/SurveyScreenModel.h"
#include "ui/shell/MainWindow.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/Motion.h"

namespace zelk {

namespace {

using tour::clickOn;
using tour::findControl;
using tour::pressKey;

const QString scanButton = QStringLiteral("scanButton");
const QString cancelButton = QStringLiteral("cancelButton");

class Journey : public AppModelFixture {
protected:
    Journey() {
        fillHome();
        addWideFolder(home + "/wide");
    }
    ~Journey() override {
        machine.directories.release();
        main_.reset();
    }

    QQuickWindow& window() {
        if (!main_) {
            main_ = std::make_unique<MainWindow>(model());
            main_->motion().setReduced(true);  // a pressed button is where it was aimed at
            main_->show();
            runUntil([&] { return main_->isUp(); });
        }
        return main_->window();
    }
    SurveyScreenModel& screen() { return main_->survey(); }
    void closeAndDestroy() {
        window().close();
        main_.reset();
        destroyModel();
    }

    void holdInTheMiddle() { machine.directories.hold(home + "/wide/inner"); }
    void untilProgress() {
        runUntil([&] { return model().itemsScanned() > 0; });
    }
    void untilFinished() {
        runUntil([&] { return model().scanPhase() == Phase::finished; });
    }

private:
    std::unique_ptr<MainWindow> main_;
};

}  // namespace

TEST_F(Journey, aPressOnTheButtonSurveysAndEndsWithWhatIsRecoverable) {
    holdInTheMiddle();
    ASSERT_TRUE(clickOn(window(), scanButton));
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    untilProgress();
    EXPECT_NE(findControl(window(), cancelButton), nullptr);
    machine.directories.release();
    untilFinished();
    runUntil([&] { return screen().recoverable() == QStringLiteral("60 MB"); });
    EXPECT_EQ(findControl(window(), cancelButton), nullptr);
}

TEST_F(Journey, returnPressesTheButton) {
    pressKey(window(), Qt::Key_Return);
    untilFinished();
}

TEST_F(Journey, enterPressesTheButton) {
    pressKey(window(), Qt::Key_Enter);
    untilFinished();
}

TEST_F(Journey, spacePressesTheButton) {
    pressKey(window(), Qt::Key_Space);
    untilFinished();
}

TEST_F(Journey, theButtonIsRound) {
    QQuickItem* button = findControl(window(), scanButton);
    const QPointF corner = button->mapToScene(QPointF(4, 4));
    tour::clickAt(window(), corner);
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(Journey, theButtonDoesNothingDuringASurvey) {
    holdInTheMiddle();
    clickOn(window(), scanButton);
    untilProgress();
    const std::int64_t items = model().itemsScanned();
    clickOn(window(), scanButton);
    pressKey(window(), Qt::Key_Return);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    EXPECT_EQ(model().itemsScanned(), items);
}

TEST_F(Journey, cancelIsPressedWithTheMouse) {
    holdInTheMiddle();
    clickOn(window(), scanButton);
    untilProgress();
    window().grabWindow();  // lays out what the phase brought
    ASSERT_TRUE(clickOn(window(), cancelButton));
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_TRUE(model().history().empty());
    EXPECT_EQ(findControl(window(), cancelButton), nullptr);
}

TEST_F(Journey, escapeCancels) {
    holdInTheMiddle();
    pressKey(window(), Qt::Key_Return);
    untilProgress();
    pressKey(window(), Qt::Key_Escape);
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(Journey, escapeDoesNothingWhenNoSurveyRuns) {
    pressKey(window(), Qt::Key_Return);
    untilFinished();
    pressKey(window(), Qt::Key_Escape);
    EXPECT_EQ(model().scanPhase(), Phase::finished);
}

TEST_F(Journey, aSecondSurveyFollowsACancelledOne) {
    holdInTheMiddle();
    pressKey(window(), Qt::Key_Return);
    untilProgress();
    pressKey(window(), Qt::Key_Escape);
    machine.directories.release();
    pressKey(window(), Qt::Key_Return);
    untilFinished();
    EXPECT_EQ(model().history().size(), 1U);
}

TEST_F(Journey, theFinishedButtonSurveysAgain) {
    pressKey(window(), Qt::Key_Return);
    untilFinished();
    clickOn(window(), scanButton);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    untilFinished();
    EXPECT_EQ(model().history().size(), 2U);
}

TEST_F(Journey, theWindowClosesInMidSurvey) {
    holdInTheMiddle();
    pressKey(window(), Qt::Key_Return);
    untilProgress();
    closeAndDestroy();
    letScansDrain();
    EXPECT_EQ(historyFile(), std::nullopt);
}

TEST(RealJourney, aRealFolderIsSurveyedThroughTheWindow) {
    const QTemporaryDir folder;
    const std::string home = folder.path().toStdString();
    const std::string modules = home + "/project/node_modules/left-pad";
    ASSERT_TRUE(std::filesystem::create_directories(modules));
    fakes::writeFile(modules + "/index.js", std::string(100'000, ' '));

    NativePlatform native(home);
    {
        AppModel model(native.platform());
        MainWindow main(model);
        main.show();
        runUntil([&] { return main.isUp(); });
        pressKey(main.window(), Qt::Key_Return);
        runUntil([&] { return model.scanPhase() == AppModel::ScanPhase::finished; });
        EXPECT_GE(model.reclaimableBytes(), 100'000);
        runUntil([&] { return main.survey().recoverable() == byteFigure(model.reclaimableBytes()); });
    }
    EXPECT_TRUE(native.drain(60));
}

}  // namespace zelk

// SPDX-License-Identifier: MIT
// Surveys through the main window, with the mouse and with the keyboard.
#include <QTemporaryDir>
#include <filesystem>

#include "Camera.h"
#include "fakes/TestFiles.h"
#include "platform/NativePlatform.h"
#include "state/AppModelFixture.h"
#include "ui/screens/overview/SurveyScreenModel.h"
#include "ui/shell/MainWindow.h"
#include "ui/theme/Motion.h"

namespace zelk {

namespace {

using tour::clickOn;
using tour::findControl;
using tour::pressKey;

const QString scanButton = QStringLiteral("scanButton");
const QString cancelButton = QStringLiteral("cancelButton");

class SurveyJourney : public AppModelFixture {
protected:
    SurveyJourney() {
        fillHome();
        addWideFolder(home + "/wide");
    }
    ~SurveyJourney() override {
        machine.directories.release();
        main_.reset();
    }

    QQuickWindow& window() {
        if (!main_) {
            main_ = std::make_unique<MainWindow>(model());
            main_->motion().setReduced(true);  // so that buttons do not move while they are clicked
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

    void holdSurvey() { machine.directories.hold(home + "/wide/inner"); }
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

TEST_F(SurveyJourney, buttonSurveysAndShowsRecoverableBytes) {
    holdSurvey();
    ASSERT_TRUE(clickOn(window(), scanButton));
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    untilProgress();
    EXPECT_NE(findControl(window(), cancelButton), nullptr);
    machine.directories.release();
    untilFinished();
    runUntil([&] { return screen().recoverable() == 60'000'000; });
    EXPECT_EQ(findControl(window(), cancelButton), nullptr);
}

TEST_F(SurveyJourney, returnPressesButton) {
    pressKey(window(), Qt::Key_Return);
    untilFinished();
}

TEST_F(SurveyJourney, enterPressesButton) {
    pressKey(window(), Qt::Key_Enter);
    untilFinished();
}

TEST_F(SurveyJourney, spacePressesButton) {
    pressKey(window(), Qt::Key_Space);
    untilFinished();
}

TEST_F(SurveyJourney, ignoresClickOutsideRoundButton) {
    QQuickItem* button = findControl(window(), scanButton);
    const QPointF corner = button->mapToScene(QPointF(4, 4));
    tour::clickAt(window(), corner);
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(SurveyJourney, buttonIsIgnoredDuringSurvey) {
    holdSurvey();
    clickOn(window(), scanButton);
    untilProgress();
    const std::int64_t items = model().itemsScanned();
    clickOn(window(), scanButton);
    pressKey(window(), Qt::Key_Return);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    EXPECT_EQ(model().itemsScanned(), items);
}

TEST_F(SurveyJourney, cancelButtonCancels) {
    holdSurvey();
    clickOn(window(), scanButton);
    untilProgress();
    window().grabWindow();  // applies the layout of the new phase
    ASSERT_TRUE(clickOn(window(), cancelButton));
    EXPECT_EQ(model().scanPhase(), Phase::idle);
    EXPECT_TRUE(model().history().empty());
    EXPECT_EQ(findControl(window(), cancelButton), nullptr);
}

TEST_F(SurveyJourney, escapeCancels) {
    holdSurvey();
    pressKey(window(), Qt::Key_Return);
    untilProgress();
    pressKey(window(), Qt::Key_Escape);
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(SurveyJourney, escapeIsIgnoredWithoutSurvey) {
    pressKey(window(), Qt::Key_Return);
    untilFinished();
    pressKey(window(), Qt::Key_Escape);
    EXPECT_EQ(model().scanPhase(), Phase::finished);
}

TEST_F(SurveyJourney, surveysAgainAfterCancel) {
    holdSurvey();
    pressKey(window(), Qt::Key_Return);
    untilProgress();
    pressKey(window(), Qt::Key_Escape);
    machine.directories.release();
    pressKey(window(), Qt::Key_Return);
    untilFinished();
    EXPECT_EQ(model().history().size(), 1U);
}

TEST_F(SurveyJourney, surveysAgainAfterFinishing) {
    pressKey(window(), Qt::Key_Return);
    untilFinished();
    holdSurvey();
    clickOn(window(), scanButton);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    machine.directories.release();
    untilFinished();
    EXPECT_EQ(model().history().size(), 2U);
}

TEST_F(SurveyJourney, windowMayCloseDuringSurvey) {
    holdSurvey();
    pressKey(window(), Qt::Key_Return);
    untilProgress();
    closeAndDestroy();
    letScansDrain();
    EXPECT_EQ(historyFile(), std::nullopt);
}

TEST(RealSurveyJourney, surveysRealFolder) {
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
        runUntil([&] { return main.survey().recoverable() == model.reclaimableBytes(); });
    }
    EXPECT_TRUE(native.drain(60));
}

}  // namespace zelk

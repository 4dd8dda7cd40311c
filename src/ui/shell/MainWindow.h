// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <memory>

namespace zelk {

class AppModel;
class Motion;
class SurveyScreenModel;

/// The main window of an AppModel with all that it shows, not yet visible. The model must outlive it; a survey may be
/// under way when it goes. Main thread.
class MainWindow {
public:
    explicit MainWindow(AppModel& app);
    ~MainWindow();
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    void show() { window_->show(); }

    QQuickWindow& window() { return *window_; }
    SurveyScreenModel& survey() { return *survey_; }
    Motion& motion() { return *motion_; }

private:
    // In this order: the window reads the models, and goes first.
    std::unique_ptr<SurveyScreenModel> survey_;
    QQmlEngine engine_;
    Motion* motion_ = nullptr;  // the engine's
    std::unique_ptr<QQuickWindow> window_;
};

}  // namespace zelk

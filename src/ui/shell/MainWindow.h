// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <functional>
#include <memory>

#include "ui/shell/DetailPages.h"
#include "ui/shell/SecondaryWindows.h"
#include "ui/shell/WindowId.h"
#include "ui/shell/WindowServices.h"

namespace zelk {

class AboutModel;
class AppCommands;
class AppModel;
class FirstRunModel;
class HelpModel;
class Motion;
class QuitQuestion;
class ReclaimScreenModel;
class SidebarModel;
class SurveyScreenModel;
class TextScale;

/// The main window of an AppModel with all that it shows and the windows beside it, not yet visible. The model and the
/// services must outlive it; a survey may be under way when it goes. Main thread.
class MainWindow {
public:
    explicit MainWindow(AppModel& app, WindowServices services = {});
    ~MainWindow();
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// Shows it; the first time, the first run begins. Its contents follow its first frame.
    void show();
    /// Whether it is on the screen with its contents and has the keyboard.
    bool isUp() const;
    /// What the first moments can do without: called once, when the contents have been painted.
    void whenComplete(std::function<void()> act) { whenComplete_ = std::move(act); }

    /// Every window that is there comes to the front, the main one last; one that was closed stays so. Gives their
    /// number.
    int bringAllForward();
    QQuickWindow& openWindow(WindowId id) { return secondary_->open(id); }
    SecondaryWindows& secondary() { return *secondary_; }

    QQuickWindow& window() { return *window_; }
    SurveyScreenModel& survey();
    ReclaimScreenModel& reclaim();
    SidebarModel& sidebar() { return *sidebar_; }
    AppCommands& commands() { return *commands_; }
    /// By which every way out goes.
    QuitQuestion& quitQuestion() { return *quitQuestion_; }
    Motion& motion() { return *motion_; }
    TextScale& textScale() { return *textScale_; }

private:
    QVariantMap givenTo(WindowId id);
    void afterNextFrame(const std::function<void()>& act);

    AppModel& app_;
    WindowServices services_;
    // In this order: the windows read the models, and go first.
    std::unique_ptr<SidebarModel> sidebar_;
    std::unique_ptr<DetailPages> pages_;
    std::unique_ptr<HelpModel> help_;
    std::unique_ptr<AboutModel> about_;
    std::unique_ptr<FirstRunModel> firstRun_;
    std::unique_ptr<QuitQuestion> quitQuestion_;
    std::unique_ptr<AppCommands> commands_;
    QQmlEngine engine_;
    Motion* motion_ = nullptr;        // the engine's
    TextScale* textScale_ = nullptr;  // the engine's
    std::unique_ptr<SecondaryWindows> secondary_;
    std::unique_ptr<QQuickWindow> window_;
    std::function<void()> whenComplete_;
    bool complete_ = false;
    bool begun_ = false;
};

}  // namespace zelk

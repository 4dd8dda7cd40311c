// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <QRect>
#include <QThreadPool>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "ui/shell/Activation.h"
#include "ui/shell/AppCommands.h"
#include "ui/shell/DetailPages.h"
#include "ui/shell/ViewTypes.h"
#include "ui/shell/WindowServices.h"

namespace zelk {

class AppModel;
class FirstRunModel;
class Motion;
class QuitQuestion;
class ReclaimScreenModel;
class SidebarModel;
class SurveyScreenModel;
class TextScale;

/// The main window of an AppModel with its models and the windows beside it; hidden at first. The model and the
/// services must outlive it. May be destroyed during a survey. Main thread.
class MainWindow {
public:
    explicit MainWindow(AppModel& app, WindowServices services = {});
    ~MainWindow();
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// Shows the window and, the first time, starts the first-run sheets. The contents are created after the first
    /// frame.
    void show();
    /// Whether it is visible with its contents and active.
    bool isUp() const;
    /// Sets a callback for start-up work that can wait; called once, after the contents were painted.
    void whenComplete(std::function<void()> act) { whenComplete_ = std::move(act); }

    /// Shows the window as show() does, if need be, and gives it the focus.
    void comeForward(const Activation& by);
    /// Raises every open window, the main one last. Closed windows stay closed. Returns how many there are.
    int bringAllForward();
    /// Shows the window, or raises it if it is visible. It lives until it is closed.
    QQuickWindow& openWindow(WindowId id);
    /// The window if it is open, else nullptr.
    QQuickWindow* findWindow(WindowId id) const;

    QQuickWindow& window() { return *window_; }
    SurveyScreenModel& survey();
    ReclaimScreenModel& reclaim();
    SidebarModel& sidebar() { return *sidebar_; }
    AppCommands& commands() { return *commands_; }
    /// Every request to quit goes through this.
    QuitQuestion& quitQuestion() { return *quitQuestion_; }
    Motion& motion() { return *motion_; }
    TextScale& textScale() { return *textScale_; }

private:
    std::unique_ptr<QQuickWindow> makeSecondary(WindowId id);
    void releaseClosed(WindowId id);
    void afterNextFrame(const std::function<void()>& act);

    AppModel& app_;
    WindowServices services_;
    // Order matters: the windows read the models and are destroyed first.
    std::unique_ptr<SidebarModel> sidebar_;
    std::unique_ptr<DetailPages> pages_;
    std::unique_ptr<FirstRunModel> firstRun_;
    std::unique_ptr<QuitQuestion> quitQuestion_;
    std::unique_ptr<AppCommands> commands_;
    QQmlEngine engine_;
    ViewTypes views_{engine_};
    QThreadPool background_;          // waits for its work when it goes
    Motion* motion_ = nullptr;        // owned by the engine
    TextScale* textScale_ = nullptr;  // owned by the engine
    std::map<WindowId, std::unique_ptr<QQuickWindow>> secondary_;
    std::vector<std::unique_ptr<QQuickWindow>> closed_;  // until no handler of theirs runs
    std::map<WindowId, QRect> places_;                   // of closed windows
    std::unique_ptr<QQuickWindow> window_;
    std::function<void()> whenComplete_;
    bool complete_ = false;
    bool begun_ = false;
};

}  // namespace zelk

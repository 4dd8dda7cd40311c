// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "PausingDirectories.h"
#include "PretendingServices.h"
#include "state/AppModel.h"
#include "ui/shell/MainWindow.h"

namespace zelk::tour {

/// One walk through the application with its pictures in `folder`. It prints each picture's path.
class Tour {
public:
    Tour(AppModel& app, PausingDirectories& directories, Pretence& pretence, QString folder, QSize size);

    /// Every screen, window and sheet in both themes, every phase of a survey, large text and little room. False if
    /// something was missed or a picture could not be taken.
    bool run();

private:
    void setTheme(bool dark);
    bool inTheme(bool dark);
    bool idle();
    bool heroes();
    bool survey(bool withKeyboard);
    bool findings();
    bool lens();
    bool changes();
    bool reclaim();
    bool cleanUp();
    bool items();
    bool nothingFound();
    bool chooseInMenu(int entry);
    bool clutter();
    bool windows();
    bool sidebarAndMenus();
    bool firstRun();
    bool smallAndLarge();
    bool focus();

    bool go(Screen screen);
    bool missed(const char* what) const;
    bool picture(const QString& name) { return picture(window_.window(), name); }
    bool picture(QQuickWindow& window, const QString& name);

    AppModel& app_;
    PausingDirectories& directories_;
    Pretence& pretence_;
    QString folder_;
    QSize size_;
    QString theme_;
    MainWindow window_;
};

}  // namespace zelk::tour

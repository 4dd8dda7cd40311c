// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "PausingDirectories.h"
#include "state/AppModel.h"
#include "ui/shell/MainWindow.h"

namespace zelk::tour {

/// One walk through the window with its pictures in `folder`. It prints each picture's path.
class Tour {
public:
    Tour(AppModel& app, PausingDirectories& directories, QString folder, QSize size);

    /// All phases in both themes, and the keyboard's place. False if one was missed or a picture could not be taken.
    bool run();

private:
    QString dress(bool dark);
    bool idle(const QString& theme);
    bool survey(const QString& theme, bool withKeyboard);
    bool focus(const QString& theme);
    bool picture(const QString& name);

    AppModel& app_;
    PausingDirectories& directories_;
    QString folder_;
    MainWindow window_;
};

}  // namespace zelk::tour

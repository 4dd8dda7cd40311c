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

    /// All phases in both themes. False if a phase was missed or a picture could not be taken.
    bool run();

private:
    bool survey(const QString& theme, bool withKeyboard);
    bool picture(const QString& name);

    AppModel& app_;
    PausingDirectories& directories_;
    QString folder_;
    MainWindow window_;
};

}  // namespace zelk::tour

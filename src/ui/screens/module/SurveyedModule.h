// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include "ui/screens/module/ModuleScreenModel.h"

namespace zelk {

class AppModel;

/// A module that lives from the survey: its phase is the survey's, its button begins one, and its detail is the
/// survey's progress, a dozen times a second and no more. Main thread.
class SurveyedModule : public zelk::ModuleScreenModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")

public:
    /// `app` must outlive it.
    SurveyedModule(AppModel& app, Screen screen, ModuleTexts texts);

private:
    void followPhase();
    void followProgress();

    AppModel& app_;
    QTimer timer_;
};

}  // namespace zelk
